#ifndef RVUNITTEXT_P_H
#define RVUNITTEXT_P_H

#include <QString>
#include <QStringList>

/// True for the texts that "units" may have.
bool rvIsUnit(const QString &text);

/// All of them.
QStringList rvUnits();

/// The unit that a text means which is none: "mm" for "Millimeter" and "MM"; null where it may mean several or none.
QString rvMeantUnit(const QString &text);

#endif
