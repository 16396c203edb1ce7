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

/// The text in quotes, on one line and not too long, for texts of the catalogue in findings.
QString rvQuoted(QStringView text);

/// The texts without quotes: "a, b and c".
QString rvAllOf(const QStringList &texts);
/// The texts in quotes: ""a", "b" or "c""; of more than three the first three.
QString rvOneOf(const QStringList &texts);

/// A fault and an advice: "there is no page -1; write 0 or more". Only the fault if the advice is empty.
QString rvAdvised(const QString &fault, const QString &advice);

#endif
