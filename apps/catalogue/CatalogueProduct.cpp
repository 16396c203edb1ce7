#include "CatalogueProduct.h"

#include <RVXMLParser.h>

#include <QDomElement>

using namespace Qt::StringLiterals;

CatalogueProduct::CatalogueProduct(const QDomElement &product)
    : name(product.attribute(u"name"_s)),
      type(product.attribute(u"type"_s)),
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
