#include "RVFontCreator.h"

#include <QFont>
#include <QGuiApplication>
#include <QString>

template class RVSingleton<RVFontCreator>;

QFont RVFontCreator::createFont(const QString &family, int pointSize) const
{
    return QFont(family, qMax(1, pointSize));
}

QString RVFontCreator::defaultFontFamily() const
{
    return QFont().family();
}

bool RVFontCreator::canMeasure()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}
