#ifndef RVFINDINGTEXT_P_H
#define RVFINDINGTEXT_P_H

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// Texts of findings and reasons of rules, in the language of the program: English, unless it has a translation.
class RVFindingText
{
    Q_DECLARE_TR_FUNCTIONS(RVFindingText)
};

/// The text in quotes, on one line and not too long, as findings show what a catalogue says.
QString rvQuoted(QStringView text);

/// The texts as they are: "a, b and c".
QString rvAllOf(const QStringList &texts);
/// The texts in quotes: ""a", "b" or "c""; of more than three the first three.
QString rvOneOf(const QStringList &texts);

/// A fault, and what is to be done about it: "there is no page -1; write 0 or more". The fault alone where that is
/// empty.
QString rvAdvised(const QString &fault, const QString &advice);

#endif
