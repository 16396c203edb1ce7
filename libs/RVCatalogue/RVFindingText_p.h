#ifndef RVFINDINGTEXT_P_H
#define RVFINDINGTEXT_P_H

#include <QCoreApplication>
#include <QString>

/// Texts of findings and reasons of rules, in the language of the program: English, unless it has a translation.
class RVFindingText
{
    Q_DECLARE_TR_FUNCTIONS(RVFindingText)
};

/// The text in quotes, on one line and not too long, as findings show what a catalogue says.
QString rvQuoted(QStringView text);

#endif
