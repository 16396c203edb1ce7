#include "RVDirectoryName.h"

#include "RVEnumerators.h"

#include <QDebug>
#include <QString>

QString RVDirectoryName::name() const
{
    switch (myValue) {
    case DIRECTORY_CLIPARTS:
        return QStringLiteral("cliparts");
    case DIRECTORY_STYLES:
        return QStringLiteral("styles");
    case DIRECTORY_BACKGROUNDS:
        return QStringLiteral("backgrounds");
    case DIRECTORY_FORMPARAMETERS:
        return QStringLiteral("formparameters");
    case DIRECTORY_LAYOUTS:
        return QStringLiteral("layouts");
    case DIRECTORY_DESIGNS:
        return QStringLiteral("designs");
    case DIRECTORY_TEMPLATES:
        return QStringLiteral("templates");
    }
    return QString();
}

QDebug operator<<(QDebug debug, RVDirectoryNameEnum value)
{
    return debug << RVEnumerators<RVDirectoryNameEnum>::text(value).constData();
}
