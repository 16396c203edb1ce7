#ifndef RVNAMETEXT_P_H
#define RVNAMETEXT_P_H

#include <QLatin1StringView>
#include <QString>

/// A name in quotes; behind it the code points of letters beyond ASCII, since they may look like others, or like none.
/// @{
QString rvQuotedName(const QString &name);
QString rvQuotedName(QLatin1StringView name);
/// @}

/// The findings about an element that is not read, though it was meant to be.
/// @{
QString rvMisspeltElementText(const QString &name, QLatin1StringView meant);
QString rvPrefixedElementText(const QString &name, QLatin1StringView meant);
/// @}

#endif
