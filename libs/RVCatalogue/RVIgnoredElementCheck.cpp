#include "RVIgnoredElementCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"

using namespace Qt::StringLiterals;

void RVIgnoredElementCheck::check(const RVCatalogueProduct &product)
{
    const RVCatalogueElement element = product.element();
    checkInnerProducts(element);
    for (const QLatin1StringView name : { "barcodes"_L1, "composition"_L1, "forms"_L1 })
        checkOthers(element.firstChildElement(name), name);
    checkOthers(element.firstChildElement("composition"_L1).firstChildElement("spine"_L1), "spine"_L1);
}

void RVIgnoredElementCheck::checkInnerProducts(const RVCatalogueElement &product)
{
    constexpr auto name = "product"_L1;
    for (auto inner = product.firstChildElement(name); !inner.isNull(); inner = inner.nextSiblingElement(name))
        myReport->add(RVCatalogueRuleId::ElementIgnored, inner,
                      RVFindingText::tr("a product inside a product is not read; put it behind the outer one"),
                      { { rvPlaceOf(product, RVFindingText::tr("the outer product")) } });
}

/// Finds the elements with that name after the first one.
void RVIgnoredElementCheck::checkOthers(const RVCatalogueElement &first, QLatin1StringView name)
{
    for (auto other = first.nextSiblingElement(name); !other.isNull(); other = other.nextSiblingElement(name))
        myReport->add(RVCatalogueRuleId::ElementIgnored, other,
                      RVFindingText::tr("only the first %1 is read, the one in line %2; make them one")
                              .arg(name, rvLineOf(first)),
                      { { rvPlaceOf(first, RVFindingText::tr("the first of them")) } });
}
