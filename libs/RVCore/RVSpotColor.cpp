#include "RVSpotColor.h"

#include "RVEnumerators.h"

#include <QDebug>

template class RVEnumWrapper<RVSpotColorEnum>;

RVSpotColor::RVSpotColor(RVSpotColorEnum value) noexcept : RVEnumWrapper(value) { }

RVSpotColor::RVSpotColor(const QString &text) : RVSpotColor()
{
    setValue(text);
}

void RVSpotColor::fillTable(RVEnumToStringTable<RVSpotColorEnum> *table) const
{
    table->insert(QStringLiteral("gloss"), SPOT_COLOR_GLOSS);
    table->insert(QStringLiteral("gold"), SPOT_COLOR_GOLD);
    table->insert(QStringLiteral("silver"), SPOT_COLOR_SILVER);
    table->insert(QStringLiteral("rosegold"), SPOT_COLOR_ROSEGOLD);
    table->insert(QStringLiteral("silver_ink"), SPOT_COLOR_SILVER_INK);
}

QDebug operator<<(QDebug debug, const RVSpotColor &spotColor)
{
    const QDebugStateSaver saver(debug);
    debug.noquote().nospace() << "RVSpotColor(" << spotColor.encodeCSV() << ')';
    return debug;
}

QDebug operator<<(QDebug debug, RVSpotColorEnum value)
{
    return debug << RVEnumerators<RVSpotColorEnum>::text(value).constData();
}
