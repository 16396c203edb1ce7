#include "RVDistanceUnit.h"

#include "RVEnumerators.h"

#include <QDebug>
#include <QMessageLogger>
#include <QString>

namespace {

constexpr struct
{
    QLatin1StringView text;
    RVDistanceUnitEnum unit;
} UNIT_TEXTS[] = {
    { QLatin1StringView("0.1mm"), DISTANCE_UNIT_TENTH_MILLIMETRE },
    { QLatin1StringView("mm"), DISTANCE_UNIT_MILLIMETRE },
    { QLatin1StringView("cm"), DISTANCE_UNIT_CENTIMETRE },
    { QLatin1StringView("inch"), DISTANCE_UNIT_INCH },
    { QLatin1StringView("in"), DISTANCE_UNIT_INCH },
    { QLatin1StringView("pt"), DISTANCE_UNIT_POINT },
    { QLatin1StringView("point"), DISTANCE_UNIT_POINT },
};

RVDistanceUnitEnum unitOf(const QString &text)
{
    for (const auto &row : UNIT_TEXTS) {
        if (text == row.text)
            return row.unit;
    }
    return DISTANCE_UNIT_MILLIMETRE;
}

}

RVDistanceUnit::RVDistanceUnit(const QString &text) : RVDistanceUnit(unitOf(text)) { }

// Log filters of the application recognise this message by its context.
void RVDistanceUnit::warnUnsupported() const
{
    QMessageLogger("libs/RVCore/RVDistanceUnit", 101, "constexpr qreal RVDistanceUnit::units2Pixels(qreal) const")
                    .warning()
            << "distance not supported!" << myCode;
}

QDebug operator<<(QDebug debug, RVDistanceUnitEnum unit)
{
    return debug << RVEnumerators<RVDistanceUnitEnum>::text(unit).constData();
}
