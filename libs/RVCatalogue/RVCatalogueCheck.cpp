#include "RVCatalogueCheck.h"

#include "RVBarcodeCheck_p.h"
#include "RVCatalogueProduct.h"
#include "RVCatalogueRuleTable_p.h"
#include "RVFindingReport_p.h"
#include "RVIdCheck_p.h"
#include "RVKeywordCheck_p.h"
#include "RVOptionCheck_p.h"
#include "RVPageCountCheck_p.h"
#include "RVPartCheck_p.h"
#include "RVPriceClassCheck_p.h"
#include "RVSpineCheck_p.h"

#include <QSharedData>

#include <bitset>

using namespace Qt::StringLiterals;

class RVCatalogueCheckData : public QSharedData
{
public:
    std::bitset<RV_CATALOGUE_RULE_COUNT> disabled;
};

// Without data nothing is disabled.
RVCatalogueCheck::RVCatalogueCheck() = default;
RVCatalogueCheck::RVCatalogueCheck(const RVCatalogueCheck &other) = default;
RVCatalogueCheck::RVCatalogueCheck(RVCatalogueCheck &&other) noexcept = default;
RVCatalogueCheck &RVCatalogueCheck::operator=(const RVCatalogueCheck &other) = default;
RVCatalogueCheck &RVCatalogueCheck::operator=(RVCatalogueCheck &&other) noexcept = default;
RVCatalogueCheck::~RVCatalogueCheck() = default;

void RVCatalogueCheck::disable(RVCatalogueRule rule)
{
    if (rule.isNull())
        return;
    if (!d)
        d = new RVCatalogueCheckData;
    d->disabled.set(std::size_t(RVCatalogueRuleRow::of(rule)->id));
}

bool RVCatalogueCheck::isEnabled(RVCatalogueRule rule) const
{
    return !rule.isNull() && !(d && d->disabled.test(std::size_t(RVCatalogueRuleRow::of(rule)->id)));
}

QList<RVCatalogueFinding> RVCatalogueCheck::findings(const RVCatalogueProduct &product) const
{
    if (product.isNull())
        return {};
    RVFindingReport report(*this, product.number());
    RVIdCheck(&report).check(product);
    RVPartCheck(&report).check(product);
    RVKeywordCheck(&report).check(product);
    const RVCheckedPageCounts pageCounts = RVPageCountCheck(&report).check(product);
    RVSpineCheck(&report, pageCounts).check(product);
    RVOptionCheck(&report).check(product);
    RVBarcodeCheck(&report, pageCounts).check(product);
    RVPriceClassCheck(&report).check(product.element(), "page_price_class"_L1);
    return report.sorted();
}
