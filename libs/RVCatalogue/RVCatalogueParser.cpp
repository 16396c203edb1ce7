#include "RVCatalogueParser_p.h"

#include <utility>

namespace {

constexpr QByteArrayView PRODUCT("product");
constexpr QByteArrayView GROUP_NAME("name");

}

void RVCatalogueParser::startElement(const RVXmlTag &tag)
{
    if (myOpenElements.empty() && tag.name != PRODUCT) {
        openGroup(tag);
        myStrayElements.startGroup(tag);
        return;
    }
    if (myOpenElements.empty())
        myStrayElements.startProduct();
    myOpenElements.push_back(quint32(myRows.elements.size()));
    myRows.append(tag);
}

void RVCatalogueParser::endElement()
{
    if (myOpenElements.empty()) {
        if (myGroups.back())
            myFamilies.removeLast();
        myGroups.pop_back();
        myStrayElements.endGroup();
        return;
    }
    myRows.elements[myOpenElements.back()].end = quint32(myRows.elements.size());
    myOpenElements.pop_back();
    if (myOpenElements.empty())
        finishProduct();
}

QList<RVCatalogueProduct> RVCatalogueParser::take()
{
    return std::exchange(myProducts, {});
}

void RVCatalogueParser::openGroup(const RVXmlTag &tag)
{
    bool hasName = false;
    for (int i = 0; i < tag.allAttributes && !hasName; ++i) {
        hasName = tag.attributeName(i) == GROUP_NAME;
        if (hasName)
            myFamilies += QString::fromUtf8(tag.attributeValue(i));
    }
    myGroups.push_back(hasName);
}

// Copies, since they are exactly as large as the product, while the rows keep their room for the next one.
void RVCatalogueParser::finishProduct()
{
    auto *data = new RVCatalogueProductData;
    data->rows.elements = myRows.elements;
    data->rows.attributes = myRows.attributes;
    data->rows.text = QByteArray(myRows.text.constData(), myRows.text.size());
    data->families = myFamilies;
    data->number = myNumber++;
    myProducts += RVCatalogueProduct(data);
    myRows.elements.clear();
    myRows.attributes.clear();
    myRows.text.resize(0);
}
