#include "RVIdCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVCatalogueValues_p.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVNumberFault_p.h"
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
                             RVFindingText::tr("the product has no article id; write its number into article_id"));
    addInvalidArticleId(element);
}

void RVIdCheck::addInvalidArticleId(const RVCatalogueElement &product)
{
    constexpr auto name = "article_id"_L1;
    const QString id = product.attribute(name);
    const RVNumberFault fault(id, RVNumberFault::Type::Whole);
    const bool isTooSmall = rvIntValue(product, name) || fault.reason() == RVNumberFault::Reason::TooSmall
            || (!fault.mended().isNull() && fault.mended().toInt() < 1);
    const QString text = fault.reason() == RVNumberFault::Reason::TooLarge
            ? RVFindingText::tr("the article id %1 is too large")
            : RVFindingText::tr("the article id %1 is no whole number above 0");
    myReport->add(RVCatalogueRuleId::ArticleIdInvalid, product, name,
                  rvAdvised(text.arg(rvQuoted(id)), isTooSmall ? RVFindingText::tr("write 1 or more") : fault.advice()),
                  { {}, isTooSmall ? QList<RVFileEdit>() : rvReplaced(product, name, fault.mended()) });
}

void RVIdCheck::checkType(const RVCatalogueElement &product)
{
    constexpr auto name = "type"_L1;
    if (rvIsBlank(product, name))
        myReport->add(RVCatalogueRuleId::TypeMissing, product, name,
                      RVFindingText::tr("the product has no type; write the code that projects have for it"));
}

void RVIdCheck::checkShippingGroup(const RVCatalogueElement &product)
{
    constexpr auto name = "shipping_group"_L1;
    const std::optional<int> group = rvIntValue(product, name);
    if (group.value_or(-1) != -1 || !product.hasAttribute(name))
        return;
    const QString text = product.attribute(name);
    const RVNumberFault fault(text, RVNumberFault::Type::Whole);
    const QString reason = fault.reason() == RVNumberFault::Reason::TooLarge
            ? RVFindingText::tr("the shipping group %1 is too large")
            : RVFindingText::tr("the shipping group %1 is none");
    const bool isMeantAsNone = group || fault.mended() == "-1"_L1;
    myReport->add(RVCatalogueRuleId::ShippingGroupInvalid, product, name,
                  rvAdvised(reason.arg(rvQuoted(text)),
                            isMeantAsNone ? RVFindingText::tr("leave out the attribute") : fault.advice()),
                  { {}, isMeantAsNone ? QList<RVFileEdit>() : rvReplaced(product, name, fault.mended()) });
}
