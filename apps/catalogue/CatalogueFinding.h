#ifndef CATALOGUEFINDING_H
#define CATALOGUEFINDING_H

#include "FilePosition.h"

#include <QList>
#include <QString>

/// How bad a finding is: what is good to know, what is probably not meant, what goes wrong.
enum class FindingSeverity {
    Note,
    Warning,
    Error,
};

/// "note", "warning" or "error".
QLatin1StringView severityName(FindingSeverity severity);

/// What a catalogue is checked for.
struct CatalogueRule
{
    QLatin1StringView name; ///< such as "keyword-unknown"; stays the same from version to version
    FindingSeverity severity; ///< of its findings
    const char *reason; ///< one sentence on why it matters, in English

    /// The same in the language of the program.
    QString translatedReason() const;
};

/// Every rule, grouped by subject.
const QList<CatalogueRule> &catalogueRules();
/// The place of a rule in that list; -1 for an unknown name.
int indexOfRule(QStringView name);

/// One place of a catalogue where something is to be mended, or could be written better.
struct CatalogueFinding
{
    FilePosition position; ///< where the element begins
    FindingSeverity severity = FindingSeverity::Error;
    QString text; ///< one line, without a full stop
    QLatin1StringView rule; ///< its name
    qint64 product = -1; ///< counted in the file from 0; -1 for the file as a whole
};

#endif
