#include "RVCatalogueParser_p.h"

#include "RVUtf8_p.h"

#include <utility>

namespace {

constexpr QByteArrayView PRODUCT("product");
constexpr QByteArrayView GROUP_NAME("name");

}

void RVCatalogueParser::startElement(const RVXmlTag &tag)
{
    if (myOpenElements.empty() && tag.name != PRODUCT) {
        openGroup(tag);
        myStrayElements.startGroup(tag, myScope);
        return;
    }
    if (!myWaiting.empty())
        attachToProduct(true);
    if (myOpenElements.empty())
        myStrayElements.startProduct();
    myOpenElements.push_back(quint32(myRows.elements.size()));
    myRows.append(tag);
}

void RVCatalogueParser::endElement()
{
    if (myOpenElements.empty()) {
        myStrayElements.endGroup();
        closeGroup();
        return;
    }
    if (!myWaiting.empty())
        attachToProduct(false);
    myRows.elements[myOpenElements.back()].end = quint32(myRows.elements.size());
    myOpenElements.pop_back();
    if (myOpenElements.empty())
        finishProduct();
}

void RVCatalogueParser::comment(const RVXmlComment &comment)
{
    std::optional<RVSuppression> suppression = RVSuppression::read(comment.text, comment.range);
    if (!suppression)
        return;
    suppression->parent = myOpenElements.empty() ? RVSuppression::OUTSIDE : myOpenElements.back();
    myWaiting.push_back(*std::move(suppression));
}

// These comments have no following element in the same parent.
void RVCatalogueParser::closeWaiting()
{
    if (myWaiting.empty())
        return;
    const RVSuppressionScope::Pointer scope(
            new RVSuppressionScope(std::exchange(myWaiting, {}), myScope, myGroups.size()));
    scope->judge({});
    myClosedScopes.push_back(scope);
}

QList<RVCatalogueProduct> RVCatalogueParser::take()
{
    return std::exchange(myProducts, {});
}

std::vector<RVSuppressionScope::Pointer> RVCatalogueParser::takeClosedScopes()
{
    return std::exchange(myClosedScopes, {});
}

void RVCatalogueParser::attachToProduct(bool hasElement)
{
    for (RVSuppression &suppression : myWaiting) {
        suppression.hasElement = hasElement;
        suppression.element = quint32(myRows.elements.size());
        mySuppressions.push_back(std::move(suppression));
    }
    myWaiting.clear();
}

void RVCatalogueParser::openScope()
{
    for (RVSuppression &suppression : myWaiting)
        suppression.hasElement = true;
    myScope = new RVSuppressionScope(std::exchange(myWaiting, {}), myScope, myGroups.size());
}

// A file without products has a finding for the root element only.
void RVCatalogueParser::closeScope()
{
    RVCatalogueRuleSet broken;
    if (myGroups.empty() && myNumber == 0) {
        broken.set(std::size_t(RVCatalogueRuleId::ProductsMissing));
        myIsMissingSilenced = myScope->silences(RVCatalogueRuleId::ProductsMissing);
    }
    myScope->judge(broken);
    myClosedScopes.push_back(myScope);
    myScope = myScope->outer();
}

void RVCatalogueParser::openGroup(const RVXmlTag &tag)
{
    if (!myWaiting.empty())
        openScope();
    bool hasName = false;
    for (int i = 0; i < tag.allAttributes && !hasName; ++i) {
        hasName = tag.attributeName(i) == GROUP_NAME;
        if (hasName)
            myFamilies += rvFromUtf8(tag.attributeValue(i));
    }
    myGroups.push_back(hasName);
}

void RVCatalogueParser::closeGroup()
{
    closeWaiting();
    if (myGroups.back())
        myFamilies.removeLast();
    myGroups.pop_back();
    if (myScope && myScope->level() == myGroups.size())
        closeScope();
}

// A copy is exactly as large as the product, and the rows keep their room for the next one.
void RVCatalogueParser::finishProduct()
{
    auto *data = new RVCatalogueProductData;
    data->rows.elements = myRows.elements;
    data->rows.attributes = myRows.attributes;
    data->rows.text = QByteArray(myRows.text.constData(), myRows.text.size());
    data->families = myFamilies;
    data->suppressions = std::exchange(mySuppressions, {});
    data->scope = myScope;
    if (myScope)
        myScope->expect();
    data->number = myNumber++;
    myProducts += RVCatalogueProduct(data);
    myRows.elements.clear();
    myRows.attributes.clear();
    myRows.text.resize(0);
}
