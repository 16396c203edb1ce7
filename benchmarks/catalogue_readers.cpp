// usage: catalogue_readers CATALOGUE
// Reads every value of every product from one QDomDocument, with the readers and attribute classes of RVProductBase,
// and prints their checksum.
#include "TypedProduct.h"

#include <RVXMLParser.h>

#include <QDomDocument>
#include <QFile>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The value; null if the attribute is missing.
template<typename T>
T keywords(const QDomElement &product, const QString &name, const T &missing = T())
{
    return product.hasAttribute(name) ? T(product.attribute(name)) : missing;
}

RVPageCountOrganization pageCounts(const QDomElement &product)
{
    return RVXMLParser::boolAttribute(product, u"photo_box"_s, false)
            ? RVPageCountOrganization::createFromProductsXMLForPictureBox(product)
            : RVPageCountOrganization::createFromProductsXML(product);
}

RVShippingGroupId shippingGroup(const QDomElement &product, const RVArticleClass &articleClass)
{
    const RVShippingGroupId given(product, u"shipping_group"_s);
    return given.isValid() ? given : RVShippingGroupId(articleClass.shippingGroup());
}

RVBarcodeDefinitionList barcodes(const QDomElement &product)
{
    const QDomElement parent = product.firstChildElement(u"barcodes"_s);
    return RVBarcodeDefinitionList::createFromProductsXML(parent, RVDistanceUnit(parent.attribute(u"units"_s)));
}

RVPriceClass optionPriceClass(const QDomElement &product, const RVConfiguredArticleVariantList &options)
{
    const QString formName = u"form"_s;
    QDomElement form = product.firstChildElement(u"forms"_s).firstChildElement(formName);
    while (!form.isNull() && !options.isEmpty()) {
        if (form.attribute(u"key"_s) == options.constFirst().key()
            && form.attribute(u"value"_s) == options.constFirst().value())
            return form.attribute(u"price_class"_s);
        form = form.nextSiblingElement(formName);
    }
    return RVPriceClass();
}

QStringList families(const QDomElement &product)
{
    QStringList result;
    for (QDomElement parent = product.parentNode().toElement(); !parent.isNull();
         parent = parent.parentNode().toElement()) {
        if (parent.hasAttribute(u"name"_s))
            result.prepend(parent.attribute(u"name"_s));
    }
    return result;
}

TypedProduct valuesOf(const QDomElement &product, qint64 number)
{
    const RVArticleClass articleClass = keywords<RVArticleClass>(product, u"article_class"_s);
    const RVPageCountOrganization counts = pageCounts(product);
    const RVSpineConfig spine = RVSpineConfig::createFromProductsXML(product);
    const RVConfiguredArticleVariantList options(product);
    return {
        product.attribute(u"type"_s),
        product.attribute(u"name"_s),
        RVArticleId::fromArticleIdAttribute(product),
        articleClass,
        keywords<RVCoverType>(product, u"cover_type"_s),
        keywords<RVPageBinding>(product, u"page_binding"_s),
        keywords<RVPaperType>(product, u"paper_type"_s),
        keywords(product, u"foto_paper_type"_s, RVFotoPaperType::defaultFor(articleClass)),
        keywords<RVOrientation>(product, u"orientation"_s),
        keywords<RVSpaceMagnitude>(product, u"space_magnitude"_s),
        shippingGroup(product, articleClass),
        counts,
        spine,
        RVDistance() < spine.spineWidth(unsigned(qMax(0, counts.maxPages()))),
        barcodes(product),
        options,
        optionPriceClass(product, options),
        product.attribute(u"price_class"_s),
        product.attribute(u"page_price_class"_s),
        families(product),
        number,
        product.lineNumber(),
    };
}

}

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    QFile file(QFile::decodeName(argv[1]));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return 2;
    ProductChecksum checksum;
    qint64 number = 0;
    for (QDomElement element = document.documentElement().firstChildElement(u"product"_s); !element.isNull();
         element = element.nextSiblingElement(u"product"_s))
        checksum.add(valuesOf(element, number++));
    checksum.print();
    return 0;
}
