#ifndef RVUNITTEXT_P_H
#define RVUNITTEXT_P_H

#include <QString>
#include <QStringList>

/// True for the valid texts of "units".
bool rvIsUnit(const QString &text);

/// All valid texts.
QStringList rvUnits();

/// The unit that an invalid text means: "mm" for "Millimeter" and "MM"; null if it may mean several or none.
QString rvMeantUnit(const QString &text);

#endif
