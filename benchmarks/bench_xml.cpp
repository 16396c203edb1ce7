// Reading one product element of a catalogue, compared with reading each attribute by name.
#include "Catalogue.h"
#include "Comparison.h"
#include "DomProduct.h"

#include <RVBarcodeDefinitionList.h>
#include <RVConfiguredArticleVariantList.h>
#include <RVPageCountOrganization.h>
#include <RVSpineConfig.h>

#include <QDomDocument>
#include <QDomNamedNodeMap>
#include <QList>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int FORMS = 6;
constexpr int PRODUCTS = 16;

struct Product
{
    RVPageCountOrganization pageCounts;
    RVSpineConfig spine;
    RVConfiguredArticleVariantList options;
    RVBarcodeDefinitionList barcodes;
};

Product readProduct(const QDomElement &product)
{
    const QDomElement barcodes = product.firstChildElement(u"barcodes"_s);
    return { RVPageCountOrganization::createFromProductsXML(product), RVSpineConfig::createFromProductsXML(product),
             RVConfiguredArticleVariantList(product),
             RVBarcodeDefinitionList::createFromProductsXML(barcodes, RVDistanceUnit(barcodes.attribute(u"units"_s))) };
}

bool sameForm(const RVConfiguredArticleVariant &ours, const DomForm &theirs)
{
    return ours.key() == theirs.key && ours.keyName() == theirs.keyName && ours.value() == theirs.value
            && ours.visibleName() == theirs.valueName && ours.editorName() == theirs.editorName
            && ours.preview() == theirs.preview && ours.color() == theirs.color
            && ours.isDefault() == theirs.preselected && ours.isNotAccountable() == theirs.notAccountable;
}

bool sameBarcode(const RVBarcodeDefinition &ours, const DomBarcode &theirs)
{
    return ours.rect() == theirs.rect && ours.pageNr() == theirs.page && ours.imageName() == theirs.image;
}

bool sameProduct(const Product &ours, const DomGeometry &theirs)
{
    const RVPageCountOrganization pageCounts(RVIntRange(theirs.lowestPages, theirs.highestPages), theirs.pageStep);
    const RVSpineConfig spine(pageCounts, theirs.packagesPerBlock, theirs.baseWidth, theirs.blockWidth,
                              theirs.additionalWidth);
    return ours.pageCounts == pageCounts && ours.spine == spine && ours.options.size() == FORMS
            && ours.barcodes.size() == 2
            && std::equal(ours.options.begin(), ours.options.end(), theirs.forms.begin(), theirs.forms.end(), sameForm)
            && std::equal(ours.barcodes.begin(), ours.barcodes.end(), theirs.barcodes.begin(), theirs.barcodes.end(),
                          sameBarcode);
}

QList<QDomElement> products()
{
    static QDomDocument document;
    document.setContent(catalogueXml(PRODUCTS, FORMS));
    QList<QDomElement> result;
    for (QDomElement product = document.documentElement().firstChildElement(); !product.isNull();
         product = product.nextSiblingElement())
        result += product;
    return result;
}

struct Attribute
{
    QDomElement element;
    QString name;
};

/// Every attribute of an element and of the elements in it.
QList<Attribute> attributesOf(const QDomElement &element)
{
    QList<Attribute> result;
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.size(); ++i)
        result += { element, attributes.item(i).nodeName() };
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        result += attributesOf(child);
    return result;
}

/// Reads each attribute without converting it.
qsizetype countLetters(const QList<Attribute> &attributes)
{
    return std::accumulate(attributes.begin(), attributes.end(), qsizetype(0),
                           [](qsizetype sum, const Attribute &attribute) {
                               return sum + attribute.element.attribute(attribute.name).size();
                           });
}

}

void addBenchmarks()
{
    QList<QList<Attribute>> attributes;
    for (const QDomElement &product : products())
        attributes += attributesOf(product);
    Comparison("product_element", products(), readProduct)
            .against(
                    "dom", [](const QDomElement &product) { return DomGeometry(product); }, sameProduct)
            .above(attributes, countLetters);
}
