#ifndef THEMEICON_H
#define THEMEICON_H

#include <QIcon>
#include <QStyle>

/// The icon of the desktop's theme, which has names such as "document-open"; that of the widget style where the theme
/// has none.
QIcon themeIcon(const char *name, QStyle::StandardPixmap fallback);
/// The same where the style has nothing to show either: then the icon is null.
QIcon themeIcon(const char *name);

#endif
