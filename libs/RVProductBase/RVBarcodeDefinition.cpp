#include "RVBarcodeDefinition.h"

#include "RVDirectoryConfig.h"
#include "RVSaturation_p.h"
#include "RVXMLParser.h"

#include <QDomElement>

using namespace Qt::StringLiterals;

namespace {

/// The length in the attribute; 1 of the unit if it is missing.
RVDistance readLength(const QDomElement &element, const QString &name, const RVDistanceUnit &unit)
{
    return RVXMLParser::readDistance(element, name, 1.0, unit);
}

qreal inTenths(const RVDistance &length)
{
    return length.value(DISTANCE_UNIT_TENTH_MILLIMETRE);
}

int inclusiveEnd(int start, qreal length)
{
    return rvSaturated(qint64(start) + rvSaturated(length) - 1);
}

qint64 extent(int first, int last)
{
    return qint64(last) - first;
}

}

const QString RVBarcodeDefinition::DEFAULT_IMAGE_NAME = u"dummy-barcode.png"_s;

RVBarcodeDefinition::RVBarcodeDefinition() = default;

RVBarcodeDefinition::RVBarcodeDefinition(const QRect &rect, int pageNr, const QString &imageName)
    : myRect(rect),
      myPageNr(pageNr),
      myImageName(imageName)
{ }

RVBarcodeDefinition::~RVBarcodeDefinition() = default;

RVBarcodeDefinition RVBarcodeDefinition::createFromProductsXML(const QDomElement &element, const RVDistanceUnit &unit)
{
    const RVDistance x = readLength(element, u"position_x"_s, unit);
    const RVDistance y = readLength(element, u"position_y"_s, unit);
    const RVDistance width = readLength(element, u"width"_s, unit);
    const RVDistance height = readLength(element, u"height"_s, unit);
    const QString imageName = RVXMLParser::attribute(element, u"image"_s, DEFAULT_IMAGE_NAME, true);
    const int pageNr = RVXMLParser::intAttribute(element.attributes(), u"pageNr"_s, 0);
    return createFromLengths(x, y, width, height, pageNr, imageName);
}

RVBarcodeDefinition RVBarcodeDefinition::createFromLengths(const RVDistance &x, const RVDistance &y,
                                                           const RVDistance &width, const RVDistance &height,
                                                           int pageNr, const QString &imageName)
{
    const QPoint topLeft(rvSaturated(inTenths(x)), rvSaturated(inTenths(y) - inTenths(height)));
    const QPoint bottomRight(inclusiveEnd(topLeft.x(), inTenths(width)), inclusiveEnd(topLeft.y(), inTenths(height)));
    return RVBarcodeDefinition(QRect(topLeft, bottomRight), pageNr, imageName);
}

QImage RVBarcodeDefinition::image() const
{
    if (myImage.isNull())
        myImage.load(RVDirectoryConfig::instance()->resource("icons/picjolly/"_L1 + myImageName, false));
    return myImage;
}

bool RVBarcodeDefinition::isValid() const noexcept
{
    return myRect.right() >= myRect.left() && myRect.top() <= myRect.bottom() && !myImageName.isEmpty();
}

bool RVBarcodeDefinition::operator==(const RVBarcodeDefinition &other) const
{
    return myRect == other.myRect && myPageNr == other.myPageNr && myImageName == other.myImageName;
}

bool RVBarcodeDefinition::operator<(const RVBarcodeDefinition &other) const
{
    const QRect &a = myRect;
    const QRect &b = other.myRect;
    return a.left() < b.left() || a.top() < b.top() || extent(a.left(), a.right()) < extent(b.left(), b.right())
            || extent(a.top(), a.bottom()) < extent(b.top(), b.bottom()) || myPageNr < other.myPageNr
            || myImageName < other.myImageName;
}
