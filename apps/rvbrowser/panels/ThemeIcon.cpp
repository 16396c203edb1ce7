#include "ThemeIcon.h"

#include <QApplication>

QIcon themeIcon(const char *name, QStyle::StandardPixmap fallback)
{
    const QIcon icon = themeIcon(name);
    return icon.isNull() ? QApplication::style()->standardIcon(fallback) : icon;
}

QIcon themeIcon(const char *name)
{
    return QIcon::fromTheme(QString::fromLatin1(name));
}
