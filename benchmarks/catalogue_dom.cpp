// usage: catalogue_dom CATALOGUE [--json]
// The usual code without the library: loads the whole catalogue into one QDomDocument and reads the same values of
// every product as "rvcatalog show". It writes the values only with --json, so that they can be compared.
#include "DomProduct.h"

#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

struct DomProduct
{
    QString name;
    QString type;
    int articleId = 0;
    int shippingGroup = 0;
    QStringList articleClass;
    QStringList coverType;
    QStringList pageBinding;
    QStringList paperType;
    QStringList orientation;
    QStringList spaceMagnitude;
    DomGeometry geometry;

    explicit DomProduct(const QDomElement &product)
        : name(product.attribute(u"name"_s)),
          type(product.attribute(u"type"_s).section(u'_', 0, 0)), // the generated codes have the family in front
          articleId(product.attribute(u"article_id"_s).toInt()),
          shippingGroup(product.attribute(u"shipping_group"_s).toInt()),
          articleClass(product.attribute(u"article_class"_s).split(u',')),
          coverType(product.attribute(u"cover_type"_s).split(u',')),
          pageBinding(product.attribute(u"page_binding"_s).split(u',')),
          paperType(product.attribute(u"paper_type"_s).split(u',')),
          orientation(product.attribute(u"orientation"_s).split(u',')),
          spaceMagnitude(product.attribute(u"space_magnitude"_s).split(u',')),
          geometry(product)
    { }

    double spineWidth(int pages) const
    {
        const int packages = (pages - geometry.lowestPages) / geometry.pageStep;
        const int blocks = packages / geometry.packagesPerBlock;
        return geometry.baseWidth + geometry.blockWidth * blocks + 2 * geometry.additionalWidth;
    }
};

QJsonObject keywords(const QStringList &list)
{
    return { { u"keywords"_s, QJsonArray::fromStringList(list) } };
}

QJsonObject spineJson(const DomProduct &product, int pages)
{
    return { { u"page_count"_s, pages }, { u"width_mm"_s, product.spineWidth(pages) / 10 } };
}

QJsonArray optionsJson(const DomProduct &product)
{
    QJsonArray options;
    for (const DomForm &form : product.geometry.forms)
        options += QJsonObject {
            { u"key"_s, form.key },
            { u"key_name"_s, form.keyName },
            { u"value"_s, form.value },
            { u"value_name"_s, form.valueName },
            { u"default"_s, form.preselected },
            { u"accountable"_s, !form.notAccountable },
        };
    return options;
}

QJsonArray barcodesJson(const DomProduct &product)
{
    QJsonArray barcodes;
    for (const DomBarcode &barcode : product.geometry.barcodes)
        barcodes += QJsonObject {
            { u"page"_s, barcode.page },
            { u"left_mm"_s, barcode.rect.left() / 10.0 },
            { u"top_mm"_s, barcode.rect.top() / 10.0 },
            { u"width_mm"_s, barcode.rect.width() / 10.0 },
            { u"height_mm"_s, barcode.rect.height() / 10.0 },
            { u"image"_s, barcode.image },
        };
    return barcodes;
}

QJsonObject toJson(const DomProduct &product)
{
    return {
        { u"type"_s, product.type },
        { u"name"_s, product.name },
        { u"article_id"_s, product.articleId },
        { u"article_class"_s, keywords(product.articleClass) },
        { u"cover_type"_s, keywords(product.coverType) },
        { u"page_binding"_s, keywords(product.pageBinding) },
        { u"paper_type"_s, keywords(product.paperType) },
        { u"orientation"_s, keywords(product.orientation) },
        { u"space_magnitude"_s, keywords(product.spaceMagnitude) },
        { u"shipping_group"_s, product.shippingGroup },
        { u"barcodes"_s, barcodesJson(product) },
        { u"pages"_s,
          QJsonObject {
                  { u"lowest"_s, product.geometry.lowestPages },
                  { u"highest"_s, product.geometry.highestPages },
                  { u"step"_s, product.geometry.pageStep },
          } },
        { u"spine"_s,
          QJsonArray { spineJson(product, product.geometry.lowestPages),
                       spineJson(product, product.geometry.highestPages) } },
        { u"options"_s, optionsJson(product) },
    };
}

}

int main(int argc, char *argv[])
{
    if (argc < 2)
        return 2;
    const bool asJson = argc > 2 && std::strcmp(argv[2], "--json") == 0;
    QFile file(QFile::decodeName(argv[1]));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return 2;
    double checksum = 0;
    for (QDomElement element = document.documentElement().firstChildElement(u"product"_s); !element.isNull();
         element = element.nextSiblingElement(u"product"_s)) {
        const DomProduct product(element);
        checksum += product.spineWidth(product.geometry.highestPages);
        if (asJson)
            std::puts(QJsonDocument(toJson(product)).toJson(QJsonDocument::Compact).constData());
    }
    return checksum > 0 ? 0 : 1;
}
