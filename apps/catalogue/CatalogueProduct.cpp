#include "CatalogueProduct.h"

#include "CatalogueBatch.h"

#include <RVXMLParser.h>

#include <QDomDocument>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QDomElement &product, QLatin1StringView name)
{
    return product.attribute(name);
}

QString textOf(const CatalogueElement &product, QLatin1StringView name)
{
    return product.text(name);
}

/// The attribute of a product; the null value where it is missing, though an empty text may stand for another one.
template<typename T, typename Element>
T readAttribute(const Element &product, QLatin1StringView name, const T &missing = T())
{
    return product.hasAttribute(name) ? T(textOf(product, name)) : missing;
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

/// The part of a product whose numbers the library's readers understand. The rest is most of it, and dear to copy.
QDomElement numbersOf(const CatalogueElement &product)
{
    QDomDocument document;
    QDomElement numbers = product.copy(&document,
                                       { "article_id"_L1, "shipping_group"_L1, "pages"_L1, "max_pages"_L1,
                                         "page_step"_L1, "pieces"_L1, "photo_box"_L1 });
    for (const QLatin1StringView name : { "barcodes"_L1, "composition"_L1 }) {
        const CatalogueElement child = product.firstChildElement(name);
        if (!child.isNull())
            numbers.appendChild(child.deepCopy(&document));
    }
    document.appendChild(numbers);
    return numbers;
}

}

template<typename Element>
CatalogueProduct::CatalogueProduct(const Element &texts, const QDomElement &numbers)
    : name(textOf(texts, "name"_L1)),
      type(textOf(texts, "type"_L1)),
      articleId(RVArticleId::fromArticleIdAttribute(numbers)),
      articleClass(readAttribute<RVArticleClass>(texts, "article_class"_L1)),
      coverType(readAttribute<RVCoverType>(texts, "cover_type"_L1)),
      pageBinding(readAttribute<RVPageBinding>(texts, "page_binding"_L1)),
      paperType(readAttribute<RVPaperType>(texts, "paper_type"_L1)),
      fotoPaperType(readAttribute(texts, "foto_paper_type"_L1, RVFotoPaperType::defaultFor(articleClass))),
      orientation(readAttribute<RVOrientation>(texts, "orientation"_L1)),
      spaceMagnitude(readAttribute<RVSpaceMagnitude>(texts, "space_magnitude"_L1)),
      shippingGroup(readShippingGroup(numbers, articleClass)),
      barcodes(readBarcodes(numbers)),
      pageCounts(RVXMLParser::boolAttribute(numbers, u"photo_box"_s, false)
                         ? RVPageCountOrganization::createFromProductsXMLForPictureBox(numbers)
                         : RVPageCountOrganization::createFromProductsXML(numbers)),
      spine(RVSpineConfig::createFromProductsXML(numbers)),
      priceClass(textOf(texts, "price_class"_L1)),
      pagePriceClass(textOf(texts, "page_price_class"_L1))
{ }

CatalogueProduct::CatalogueProduct(const QDomElement &product) : CatalogueProduct(product, product)
{
    options.readVariants(product);
    for (QDomElement form = product.firstChildElement(u"forms"_s).firstChildElement(u"form"_s); !form.isNull();
         form = form.nextSiblingElement(u"form"_s)) {
        const QString option = RVConfiguredArticleVariant(form).toString();
        if (!option.isEmpty() && !myOptionPriceClasses.contains(option))
            myOptionPriceClasses.insert(option, form.attribute(u"price_class"_s));
    }
}

CatalogueProduct CatalogueProduct::withoutOptions(const CatalogueElement &product)
{
    return CatalogueProduct(product, numbersOf(product));
}

bool CatalogueProduct::hasSpine() const
{
    return RVDistance() < spine.spineWidth(unsigned(qMax(0, pageCounts.maxPages())));
}

RVPriceClass CatalogueProduct::optionPriceClass(const QString &key, const QString &value) const
{
    return myOptionPriceClasses.value(RVConfiguredArticleVariant(key, value).toString());
}
