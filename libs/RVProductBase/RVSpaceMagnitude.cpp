#include "RVSpaceMagnitude.h"

#include "RVDisplayNames_p.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"
#include "RVOrientation.h"
#include "RVSaturation_p.h"

#include <QFont>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

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

/// One size class and its values for page layout.
struct SizeClass
{
    RVSpaceMagnitudeEnum value;
    int bound; ///< in cm²; an area below it belongs to the class, unless it belongs to one in an earlier row
    int normativeSize; ///< in cm²
    int images; ///< at most, on one page
    int fontSize; ///< in points
    double fotos; ///< that look best on one page
    double fotosOnPortrait; ///< that look best on one that is upright
    const char *name; ///< null if there is none
};

// clang-format off
constexpr SizeClass SIZE_CLASSES[] = {
    { SPACE_MAGNITUDE_50CM2, 101, 50, 1, 12, 1.5, 1.5, nullptr },
    { SPACE_MAGNITUDE_150CM2, 176, 150, 1, 12, 1.5, 1.5, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Mini") },
    { SPACE_MAGNITUDE_200CM2, 205, 200, 4, 12, 1.5, 1.5, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Klein") },
    { SPACE_MAGNITUDE_220CM2, 221, 225, 1, 12, 1.5, 1.5, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Compact Quadratisch") },
    { SPACE_MAGNITUDE_280CM2, 296, 280, 5, 12, 1.5, 1.5, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Compact") },
    { SPACE_MAGNITUDE_310CM2, 356, 310, 5, 12, 1.5, 1.5, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A5") },
    { SPACE_MAGNITUDE_400CM2, 513, 400, 6, 16, 2.0, 2.0, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "Quadratisch") },
    { SPACE_MAGNITUDE_600CM2, 763, 625, 8, 16, 3.0, 2.8, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A4") },
    { SPACE_MAGNITUDE_900CM2, 951, 900, 12, 24, 3.3, 3.3, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "XL") },
    { SPACE_MAGNITUDE_1200CM2, 1901, 1250, 14, 24, 3.2, 3.2, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A3") },
    { SPACE_MAGNITUDE_2000CM2, 2101, 2025, 14, 32, 4.0, 4.0, QT_TRANSLATE_NOOP("RVSpaceMagnitude", "XXL") },
    { SPACE_MAGNITUDE_2400CM2, std::numeric_limits<int>::max(), 2500, 14, 32, 4.0, 4.0,
      QT_TRANSLATE_NOOP("RVSpaceMagnitude", "A2") },
};
// clang-format on

constexpr bool areInAnySize()
{
    auto sizes = RVSpaceMagnitudeEnum(0);
    for (const SizeClass &size : SIZE_CLASSES)
        sizes |= size.value;
    return sizes == SPACE_MAGNITUDE_ANY;
}
static_assert(areInAnySize(), "SPACE_MAGNITUDE_ANY has the size classes of the table and no others");

/// The layout of any value that is not exactly one size class.
constexpr SizeClass NO_SIZE_CLASS = { RVSpaceMagnitudeEnum(0), 0, 0, 1, 12, 2.1, 2.1, nullptr };

const SizeClass &sizeClass(RVSpaceMagnitudeEnum value)
{
    const auto *const found = std::find_if(std::begin(SIZE_CLASSES), std::end(SIZE_CLASSES),
                                           [value](const SizeClass &size) { return size.value == value; });
    return found == std::end(SIZE_CLASSES) ? NO_SIZE_CLASS : *found;
}

QMap<RVSpaceMagnitude, QString> translatedNames()
{
    QMap<RVSpaceMagnitude, QString> result;
    for (const SizeClass &size : SIZE_CLASSES) {
        if (size.name)
            result.insert(size.value, QCoreApplication::translate(CONTEXT, size.name));
    }
    return result;
}

}

RVSpaceMagnitude::RVSpaceMagnitude(RVSpaceMagnitudeEnum value) noexcept : RVEnumWrapper(value) { }

RVSpaceMagnitude::RVSpaceMagnitude(const QString &text) : RVSpaceMagnitude()
{
    setValue(text);
}

RVSpaceMagnitude RVSpaceMagnitude::fromSquareCentimeters(int area)
{
    for (const SizeClass &size : SIZE_CLASSES) {
        if (area < size.bound)
            return size.value;
    }
    return std::rbegin(SIZE_CLASSES)->value;
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
    return sizeClass(value()).images;
}

int RVSpaceMagnitude::suitableFontSizeInPoints() const
{
    return sizeClass(value()).fontSize;
}

int RVSpaceMagnitude::normativeSize() const
{
    return sizeClass(value()).normativeSize;
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
    const SizeClass &size = sizeClass(value());
    return orientation.isPortrait() ? size.fotosOnPortrait : size.fotos;
}

QFont RVSpaceMagnitude::adaptFont(const QFont &font, const RVSpaceMagnitude &target) const
{
    const double factor = scaleFactorPerDimension(target);
    QFont result = font;
    if (factor == 1.0)
        return result;
    // A combination has no area to scale by, and a font without a size would be invalid.
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
    return { CONTEXT, translatedNames(), RVSpaceMagnitude(),
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

QDebug operator<<(QDebug debug, RVSpaceMagnitudeEnum value)
{
    return debug << RVEnumerators<RVSpaceMagnitudeEnum>::text(value).constData();
}
