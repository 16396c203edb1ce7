#include "DomProduct.h"

using namespace Qt::StringLiterals;

namespace {

/// A length in tenths of a millimetre; the measured catalogues use no other units.
double unitFactor(const QString &unit)
{
    return unit == "cm"_L1 ? 100 : 10;
}

DomForm readForm(const QDomElement &element)
{
    return {
        element.attribute(u"key"_s),
        element.attribute(u"key_name"_s),
        element.attribute(u"value"_s),
        element.attribute(u"value_name"_s),
        element.attribute(u"editor_name"_s),
        element.attribute(u"name"_s),
        element.attribute(u"preview"_s),
        QColor(element.attribute(u"color"_s)),
        element.attribute(u"preselected"_s) == "true"_L1,
        element.attribute(u"not_accountable"_s) == "true"_L1,
    };
}

DomBarcode readBarcode(const QDomElement &element, double factor)
{
    const double x = element.attribute(u"position_x"_s).toDouble() * factor;
    const double y = element.attribute(u"position_y"_s).toDouble() * factor;
    const double width = element.attribute(u"width"_s).toDouble() * factor;
    const double height = element.attribute(u"height"_s).toDouble() * factor;
    return { QRect(int(x), int(y - height), int(width), int(height)), element.attribute(u"pageNr"_s).toInt(),
             element.attribute(u"image"_s) };
}

}

DomGeometry::DomGeometry(const QDomElement &product)
{
    const int pieces = product.attribute(u"pieces"_s).toInt();
    lowestPages = product.attribute(u"pages"_s).toInt() * pieces;
    highestPages = product.attribute(u"max_pages"_s).toInt() * pieces;
    pageStep = product.attribute(u"page_step"_s).toInt();

    const QDomElement composition = product.firstChildElement(u"composition"_s);
    const double factor = unitFactor(composition.attribute(u"units"_s));
    const QDomElement spine = composition.firstChildElement(u"spine"_s);
    packagesPerBlock = spine.attribute(u"packages_per_block"_s).toInt();
    baseWidth = spine.attribute(u"base_width"_s).toDouble() * factor;
    blockWidth = spine.attribute(u"block_width"_s).toDouble() * factor;
    additionalWidth = spine.attribute(u"additional_width"_s).toDouble() * factor;

    const QString formName = u"form"_s;
    for (QDomElement form = product.firstChildElement(u"forms"_s).firstChildElement(formName); !form.isNull();
         form = form.nextSiblingElement(formName))
        forms += readForm(form);

    const QString barcodeName = u"barcode"_s;
    const QDomElement barcodesElement = product.firstChildElement(u"barcodes"_s);
    const double barcodeFactor = unitFactor(barcodesElement.attribute(u"units"_s));
    for (QDomElement barcode = barcodesElement.firstChildElement(barcodeName); !barcode.isNull();
         barcode = barcode.nextSiblingElement(barcodeName))
        barcodes += readBarcode(barcode, barcodeFactor);
}
