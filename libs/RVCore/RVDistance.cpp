#include "RVDistance.h"

#include <QDataStream>
#include <QDebug>

QDataStream &operator<<(QDataStream &stream, RVDistance distance)
{
    return stream << double(distance.myValue);
}

QDataStream &operator>>(QDataStream &stream, RVDistance &distance)
{
    double tenths = 0;
    stream >> tenths;
    distance.myValue = tenths;
    return stream;
}

QDebug operator<<(QDebug debug, RVDistance distance)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "RVDistance(" << distance.value(DISTANCE_UNIT_MILLIMETRE) << " mm)";
    return debug;
}
