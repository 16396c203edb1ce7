#include "RVOrientation.h"

#include "RVAngle.h"
#include "RVEnumerators.h"
#include "RVKeywords_p.h"
#include "RVSaturation_p.h"
#include "RVXMLBuilder.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QSizeF>

#include <cmath>

using namespace Qt::StringLiterals;

template class RVEnumWrapper<RVOrientationEnum>;

namespace {

constexpr RVKeyword<RVOrientationEnum> KEYWORDS[] = {
    { u"none", ORIENTATION_NONE },
    { u"portrait", ORIENTATION_PORTRAIT },
    { u"landscape", ORIENTATION_LANDSCAPE },
    { u"portrait_slim", ORIENTATION_PORTRAIT_SLIM },
    { u"landscape_slim", ORIENTATION_LANDSCAPE_SLIM },
    { u"landscape_large", ORIENTATION_LANDSCAPE },
    { u"square", ORIENTATION_SQUARE },
    { u"quadratic", ORIENTATION_SQUARE },
    { u"all", ORIENTATION_ALL },
};

}

RVOrientation::RVOrientation(RVOrientationEnum value) noexcept : RVEnumWrapper(value) { }

RVOrientation::RVOrientation(const QString &text) : RVOrientation()
{
    setValue(text);
}

RVOrientation::RVOrientation(const QSizeF &size) : RVOrientation()
{
    setValue(fromSize(size));
}

RVOrientation::RVOrientation(const QString &text, const QSizeF &size) : RVOrientation(text)
{
    if (isNull())
        setValue(fromSize(size));
}

RVOrientation RVOrientation::createFromSize(const QSizeF &size)
{
    return RVOrientation(QString(), size);
}

RVOrientation RVOrientation::createFromPageTilt(const RVAngle &tilt)
{
    return tilt.isNull() ? ORIENTATION_LANDSCAPE : ORIENTATION_PORTRAIT;
}

RVOrientationEnum RVOrientation::fromSize(const QSizeF &size) const
{
    const bool hasSides = size.width() >= 0.0 && size.height() >= 0.0; // false also for what is not a number
    if (!hasSides || (size.width() == 0.0 && size.height() == 0.0))
        return ORIENTATION_NONE;
    const double ratio = std::abs(size.width() / size.height());
    if (ratio >= 2.0)
        return ORIENTATION_LANDSCAPE_SLIM;
    if (ratio <= 0.5)
        return ORIENTATION_PORTRAIT_SLIM;
    if (ratio <= 0.9)
        return ORIENTATION_PORTRAIT;
    if (ratio <= 1.1)
        return ORIENTATION_SQUARE;
    return ORIENTATION_LANDSCAPE;
}

RVOrientation RVOrientation::reduceToBasics() const
{
    switch (int(value())) {
    case ORIENTATION_PORTRAIT:
    case ORIENTATION_PORTRAIT_SLIM:
    case ORIENTATION_PORTRAIT | ORIENTATION_PORTRAIT_SLIM:
    case ORIENTATION_ALL:
        return ORIENTATION_PORTRAIT;
    case ORIENTATION_LANDSCAPE:
    case ORIENTATION_LANDSCAPE_SLIM:
    case ORIENTATION_LANDSCAPE | ORIENTATION_LANDSCAPE_SLIM:
        return ORIENTATION_LANDSCAPE;
    case ORIENTATION_SQUARE:
        return ORIENTATION_SQUARE;
    default:
        return ORIENTATION_NONE;
    }
}

QString RVOrientation::humanReadable() const
{
    switch (value()) {
    case ORIENTATION_PORTRAIT:
        return QCoreApplication::translate("RVOrientation", "Hochkant-");
    case ORIENTATION_LANDSCAPE:
        return QCoreApplication::translate("RVOrientation", "Panorama-");
    case ORIENTATION_SQUARE:
        return QCoreApplication::translate("RVOrientation", "quadratische ");
    case ORIENTATION_PORTRAIT_SLIM:
        return QCoreApplication::translate("RVOrientation", "schlanke Hochkant-");
    case ORIENTATION_LANDSCAPE_SLIM:
        return QCoreApplication::translate("RVOrientation", "schlanke Panorama-");
    default:
        return u""_s;
    }
}

QString RVOrientation::previewFileNamePrefix() const
{
    if (isPortrait())
        return u"portrait"_s;
    if (isLandscape())
        return u"landscape"_s;
    if (isQuadratic())
        return u"square"_s;
    return u"unknown"_s;
}

double RVOrientation::defaultWidthHeightRatio() const
{
    switch (value()) {
    case ORIENTATION_PORTRAIT:
        return 0.666666; // six decimals, not two thirds
    case ORIENTATION_LANDSCAPE:
        return 1.5;
    case ORIENTATION_PORTRAIT_SLIM:
        return 0.5;
    case ORIENTATION_LANDSCAPE_SLIM:
        return 2.0;
    default:
        return 1.0;
    }
}

double RVOrientation::foldMarginFactor() const
{
    switch (reduceToBasics().value()) {
    case ORIENTATION_PORTRAIT:
        return 0.053659;
    case ORIENTATION_LANDSCAPE:
        return 0.040741;
    case ORIENTATION_SQUARE:
        return 0.044878;
    default:
        return 0.0;
    }
}

int RVOrientation::foldMargin(int length) const
{
    return rvSaturated(std::floor(length * foldMarginFactor()));
}

QString RVOrientation::encodeForDLP() const
{
    return reduceToBasics().encode();
}

void RVOrientation::toTemplates2Format(QDomElement &parent) const
{
    if (hasValue(ORIENTATION_ALL))
        return;
    const QSet<RVOrientationEnum> bits = splitToBits();
    for (const RVOrientationEnum bit : bits)
        RVXMLBuilder::buildDomElement(parent, u"orientation"_s, enumToStringTable()->encodeCSV(bit));
}

void RVOrientation::fillTable(RVEnumToStringTable<RVOrientationEnum> *table) const
{
    rvFillTable(table, KEYWORDS, u"portrait"_s);
}

QDebug operator<<(QDebug debug, const RVOrientation &orientation)
{
    return rvDebugAttribute(debug, "RVOrientation", orientation);
}

QDebug operator<<(QDebug debug, RVOrientationEnum value)
{
    return debug << RVEnumerators<RVOrientationEnum>::text(value).constData();
}
