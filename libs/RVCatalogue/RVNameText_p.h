#ifndef RVNAMETEXT_P_H
#define RVNAMETEXT_P_H

#include <QLatin1StringView>
#include <QString>

/// A name in quotes, followed by the code points of its letters beyond ASCII, because these may look like others or be
/// invisible.
/// @{
QString rvQuotedName(const QString &name);
QString rvQuotedName(QLatin1StringView name);
/// @}

/// The texts about an element that is not read, though it was meant to be.
/// @{
QString rvMisspeltElementText(const QString &name, QLatin1StringView meant);
QString rvPrefixedElementText(const QString &name, QLatin1StringView meant);
/// @}

#endif
