#include "RVSpaceMagnitude.h"

#include "RVDisplayNames_p.h"
#include "RVKeywords_p.h"
#include "RVOrientation.h"
#include "RVSaturation_p.h"

#include <QFont>

#include <cmath>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVSpaceMagnitudeEnum>;

namespace {

constexpr char CONTEXT[] = "RVSpaceMagnitude";

// clang-format off
constexpr RVKeyword<RVSpaceMagnitudeEnum> KEYWORDS[] = {
    { u"50cm2", SPACE_MAGNITUDE_50CM2 },
    { u"150cm2", SPACE_MAGNITUDE_150CM2 },
    { u"A6", SPACE_MAGNITUDE_150CM2 },
    { u"200cm2", SPACE_MAGNITUDE_200CM2 },
    { u"220cm2", SPACE_MAGNITUDE_220CM2 },
    { u"280cm2", SPACE_MAGNITUDE_280CM2 },
    { u"310cm2", SPACE_MAGNITUDE_310CM2 },
    { u"A5", SPACE_MAGNITUDE_310CM2 },
    { u"400cm2", SPACE_MAGNITUDE_400CM2 },
    { u"600cm2", SPACE_MAGNITUDE_600CM2 },
    { u"A4", SPACE_MAGNITUDE_600CM2 },
    { u"900cm2", SPACE_MAGNITUDE_900CM2 },
    { u"1200cm2", SPACE_MAGNITUDE_1200CM2 },
    { u"A3", SPACE_MAGNITUDE_1200CM2 },
    { u"2000cm2", SPACE_MAGNITUDE_2000CM2 },
    { u"2400cm2", SPACE_MAGNITUDE_2400CM2 },
    { u"A2", SPACE_MAGNITUDE_2400CM2 },
    { u"normal", SPACE_MAGNITUDE_NORMAL },
    { u"xl", SPACE_MAGNITUDE_XL },
};
// clang-format on

/// The smallest size class has no name.
constexpr RVDisplayText<RVSpaceMagnitudeEnum> NAMES[] = {
    { SPACE_MAGNITUDE_150CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Mini") },
    { SPACE_MAGNITUDE_200CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Klein") },
    { SPACE_MAGNITUDE_220CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Compact Quadratisch") },
    { SPACE_MAGNITUDE_280CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Compact") },
    { SPACE_MAGNITUDE_310CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A5") },
    { SPACE_MAGNITUDE_400CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Quadratisch") },
    { SPACE_MAGNITUDE_600CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A4") },
    { SPACE_MAGNITUDE_900CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "XL") },
    { SPACE_MAGNITUDE_1200CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A3") },
    { SPACE_MAGNITUDE_2000CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "XXL") },
    { SPACE_MAGNITUDE_2400CM2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A2") },
};

/// An area below the bound belongs to the size class, unless it belongs to an earlier one.
constexpr struct
{
    int bound;
    RVSpaceMagnitudeEnum value;
} AREA_BOUNDS[] = {
    // clang-format off
    { 101, SPACE_MAGNITUDE_50CM2 },
    { 176, SPACE_MAGNITUDE_150CM2 },
    { 205, SPACE_MAGNITUDE_200CM2 },
    { 221, SPACE_MAGNITUDE_220CM2 },
    { 296, SPACE_MAGNITUDE_280CM2 },
    { 356, SPACE_MAGNITUDE_310CM2 },
    { 513, SPACE_MAGNITUDE_400CM2 },
    { 763, SPACE_MAGNITUDE_600CM2 },
    { 951, SPACE_MAGNITUDE_900CM2 },
    { 1901, SPACE_MAGNITUDE_1200CM2 },
    { 2101, SPACE_MAGNITUDE_2000CM2 },
    // clang-format on
};

}

RVSpaceMagnitude::RVSpaceMagnitude(RVSpaceMagnitudeEnum value) noexcept : RVEnumWrapper(value) { }

RVSpaceMagnitude::RVSpaceMagnitude(const QString &text) : RVSpaceMagnitude()
{
    setValue(text);
}

RVSpaceMagnitude RVSpaceMagnitude::fromSquareCentimeters(int area)
{
    for (const auto &row : AREA_BOUNDS) {
        if (area < row.bound)
            return row.value;
    }
    return SPACE_MAGNITUDE_2400CM2;
}

RVSpaceMagnitude RVSpaceMagnitude::estimateByAreaSizes(double x)
{
    return x == 0.0 ? RVSpaceMagnitude() : fromSquareCentimeters(rvSaturated(30.0 / x));
}

RVSpaceMagnitude RVSpaceMagnitude::createFromHumanReadable(const QString &name)
{
    return names().value(name);
}

int RVSpaceMagnitude::maxReasonableImagesPerPage() const
{
    switch (value()) {
    case SPACE_MAGNITUDE_200CM2:
        return 4;
    case SPACE_MAGNITUDE_280CM2:
    case SPACE_MAGNITUDE_310CM2:
        return 5;
    case SPACE_MAGNITUDE_400CM2:
        return 6;
    case SPACE_MAGNITUDE_600CM2:
        return 8;
    case SPACE_MAGNITUDE_900CM2:
        return 12;
    case SPACE_MAGNITUDE_1200CM2:
    case SPACE_MAGNITUDE_2000CM2:
    case SPACE_MAGNITUDE_2400CM2:
        return 14;
    default:
        return 1;
    }
}

int RVSpaceMagnitude::suitableFontSizeInPoints() const
{
    switch (value()) {
    case SPACE_MAGNITUDE_400CM2:
    case SPACE_MAGNITUDE_600CM2:
        return 16;
    case SPACE_MAGNITUDE_900CM2:
    case SPACE_MAGNITUDE_1200CM2:
        return 24;
    case SPACE_MAGNITUDE_2000CM2:
    case SPACE_MAGNITUDE_2400CM2:
        return 32;
    default:
        return 12;
    }
}

int RVSpaceMagnitude::normativeSize() const
{
    switch (value()) {
    case SPACE_MAGNITUDE_50CM2:
        return 50;
    case SPACE_MAGNITUDE_150CM2:
        return 150;
    case SPACE_MAGNITUDE_200CM2:
        return 200;
    case SPACE_MAGNITUDE_220CM2:
        return 225;
    case SPACE_MAGNITUDE_280CM2:
        return 280;
    case SPACE_MAGNITUDE_310CM2:
        return 310;
    case SPACE_MAGNITUDE_400CM2:
        return 400;
    case SPACE_MAGNITUDE_600CM2:
        return 625;
    case SPACE_MAGNITUDE_900CM2:
        return 900;
    case SPACE_MAGNITUDE_1200CM2:
        return 1250;
    case SPACE_MAGNITUDE_2000CM2:
        return 2025;
    case SPACE_MAGNITUDE_2400CM2:
        return 2500;
    default:
        return 0;
    }
}

double RVSpaceMagnitude::scaleFactorForArea(const RVSpaceMagnitude &other) const
{
    if (!isValid() || !other.isValid())
        return 1.0;
    return double(other.normativeSize()) / double(normativeSize());
}

double RVSpaceMagnitude::scaleFactorPerDimension(const RVSpaceMagnitude &other) const
{
    return std::sqrt(scaleFactorForArea(other));
}

double RVSpaceMagnitude::optimumFotosPerPage(const RVOrientation &orientation) const
{
    switch (value()) {
    case SPACE_MAGNITUDE_50CM2:
    case SPACE_MAGNITUDE_150CM2:
    case SPACE_MAGNITUDE_200CM2:
    case SPACE_MAGNITUDE_220CM2:
    case SPACE_MAGNITUDE_280CM2:
    case SPACE_MAGNITUDE_310CM2:
        return 1.5;
    case SPACE_MAGNITUDE_400CM2:
        return 2.0;
    case SPACE_MAGNITUDE_600CM2:
        return orientation.isPortrait() ? 2.8 : 3.0;
    case SPACE_MAGNITUDE_900CM2:
        return 3.3;
    case SPACE_MAGNITUDE_1200CM2:
        return 3.2;
    case SPACE_MAGNITUDE_2000CM2:
    case SPACE_MAGNITUDE_2400CM2:
        return 4.0;
    default:
        return 2.1;
    }
}

QFont RVSpaceMagnitude::adaptFont(const QFont &font, const RVSpaceMagnitude &target) const
{
    const double factor = scaleFactorPerDimension(target);
    QFont result = font;
    if (factor == 1.0)
        return result;
    // A combination has no area to scale by; a font without a size would be none.
    if (font.pointSizeF() == -1) {
        const int pixelSize = rvSaturated(std::floor(font.pixelSize() * factor));
        if (pixelSize > 0)
            result.setPixelSize(pixelSize);
    } else if (const double pointSize = font.pointSizeF() * factor; pointSize > 0.0 && std::isfinite(pointSize)) {
        result.setPointSizeF(pointSize);
    }
    return result;
}

QString RVSpaceMagnitude::humanReadableName() const
{
    return names().name(*this);
}

const RVDisplayNames<RVSpaceMagnitude> &RVSpaceMagnitude::names()
{
    static const auto &theNames = *rvForever(initNames());
    return theNames;
}

RVDisplayNames<RVSpaceMagnitude> RVSpaceMagnitude::initNames()
{
    return { CONTEXT, rvTranslated<RVSpaceMagnitude>(CONTEXT, NAMES), RVSpaceMagnitude(),
             QCoreApplication::translate("RVSpaceMagnitude", "Undefiniert") };
}

void RVSpaceMagnitude::fillTable(RVEnumToStringTable<RVSpaceMagnitudeEnum> *table) const
{
    rvFillTable(table, KEYWORDS, u"any"_s, SPACE_MAGNITUDE_ANY);
}

QDebug operator<<(QDebug debug, const RVSpaceMagnitude &magnitude)
{
    return debug << u"RVSpaceMagnitude: %1"_s.arg(magnitude.encode());
}
