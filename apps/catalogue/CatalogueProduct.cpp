#include "CatalogueProduct.h"

#include <RVXMLParser.h>

#include <QDomElement>

using namespace Qt::StringLiterals;

namespace {

/// The attribute of a product; the null value where it is missing, though an empty text may stand for another one.
template<typename T>
T readAttribute(const QDomElement &product, const QString &name, const T &missing = T())
{
    return product.hasAttribute(name) ? T(product.attribute(name)) : missing;
}

RVShippingGroupId readShippingGroup(const QDomElement &product, const RVArticleClass &articleClass)
{
    const RVShippingGroupId given(product, u"shipping_group"_s);
    return given.isValid() ? given : RVShippingGroupId(articleClass.shippingGroup());
}

RVBarcodeDefinitionList readBarcodes(const QDomElement &product)
{
    const QDomElement barcodes = product.firstChildElement(u"barcodes"_s);
    return RVBarcodeDefinitionList::createFromProductsXML(barcodes, RVDistanceUnit(barcodes.attribute(u"units"_s)));
}

}

CatalogueProduct::CatalogueProduct(const QDomElement &product)
    : name(product.attribute(u"name"_s)),
      type(product.attribute(u"type"_s)),
      articleId(RVArticleId::fromArticleIdAttribute(product)),
      articleClass(readAttribute<RVArticleClass>(product, u"article_class"_s)),
      coverType(readAttribute<RVCoverType>(product, u"cover_type"_s)),
      pageBinding(readAttribute<RVPageBinding>(product, u"page_binding"_s)),
      paperType(readAttribute<RVPaperType>(product, u"paper_type"_s)),
      fotoPaperType(readAttribute(product, u"foto_paper_type"_s, RVFotoPaperType::defaultFor(articleClass))),
      orientation(readAttribute<RVOrientation>(product, u"orientation"_s)),
      spaceMagnitude(readAttribute<RVSpaceMagnitude>(product, u"space_magnitude"_s)),
      shippingGroup(readShippingGroup(product, articleClass)),
      barcodes(readBarcodes(product)),
      pageCounts(RVXMLParser::boolAttribute(product, u"photo_box"_s, false)
                         ? RVPageCountOrganization::createFromProductsXMLForPictureBox(product)
                         : RVPageCountOrganization::createFromProductsXML(product)),
      spine(RVSpineConfig::createFromProductsXML(product)),
      options(product),
      priceClass(product.attribute(u"price_class"_s)),
      pagePriceClass(product.attribute(u"page_price_class"_s))
{
    for (QDomElement form = product.firstChildElement(u"forms"_s).firstChildElement(u"form"_s); !form.isNull();
         form = form.nextSiblingElement(u"form"_s)) {
        const QString option = RVConfiguredArticleVariant(form).toString();
        if (!option.isEmpty() && !myOptionPriceClasses.contains(option))
            myOptionPriceClasses.insert(option, form.attribute(u"price_class"_s));
    }
}

bool CatalogueProduct::hasSpine() const
{
    return RVDistance() < spine.spineWidth(unsigned(qMax(0, pageCounts.maxPages())));
}

RVPriceClass CatalogueProduct::optionPriceClass(const QString &key, const QString &value) const
{
    return myOptionPriceClasses.value(RVConfiguredArticleVariant(key, value).toString());
}
