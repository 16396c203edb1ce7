#include "RVIdCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVCatalogueValues_p.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVValueCheck_p.h"

using namespace Qt::StringLiterals;

void RVIdCheck::check(const RVCatalogueProduct &product)
{
    constexpr auto name = "article_id"_L1;
    const RVCatalogueElement element = product.element();
    checkType(element);
    checkShippingGroup(element);
    if (product.articleId().isValid())
        return;
    if (rvIsBlank(element, name))
        return myReport->add(RVCatalogueRuleId::ArticleIdMissing, element, name,
                             RVFindingText::tr("the product has no article id"));
    myReport->add(
            RVCatalogueRuleId::ArticleIdInvalid, element, name,
            RVFindingText::tr("the article id %1 is no whole number above 0").arg(rvQuoted(element.attribute(name))));
}

void RVIdCheck::checkType(const RVCatalogueElement &product)
{
    constexpr auto name = "type"_L1;
    if (rvIsBlank(product, name))
        myReport->add(RVCatalogueRuleId::TypeMissing, product, name, RVFindingText::tr("the product has no type"));
}

void RVIdCheck::checkShippingGroup(const RVCatalogueElement &product)
{
    constexpr auto name = "shipping_group"_L1;
    if (rvIntValue(product, name).value_or(-1) != -1 || !product.hasAttribute(name))
        return;
    myReport->add(RVCatalogueRuleId::ShippingGroupInvalid, product, name,
                  RVFindingText::tr("the shipping group %1 is none").arg(rvQuoted(product.attribute(name))));
}
