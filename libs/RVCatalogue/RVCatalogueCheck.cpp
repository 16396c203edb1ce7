#include "RVCatalogueCheck.h"

#include "RVBarcodeCheck_p.h"
#include "RVCatalogueProduct.h"
#include "RVCatalogueRuleTable_p.h"
#include "RVFindingReport_p.h"
#include "RVIdCheck_p.h"
#include "RVIgnoredElementCheck_p.h"
#include "RVKeywordCheck_p.h"
#include "RVNameCheck_p.h"
#include "RVOptionCheck_p.h"
#include "RVPageCountCheck_p.h"
#include "RVPriceClassCheck_p.h"
#include "RVSilencer_p.h"
#include "RVSpineCheck_p.h"

#include <QHash>
#include <QSet>
#include <QSharedData>

#include <bitset>

using namespace Qt::StringLiterals;

class RVCatalogueCheckData : public QSharedData
{
public:
    std::bitset<RV_CATALOGUE_RULE_COUNT> disabled;
    QHash<RVCatalogueRuleId, RVCatalogueSeverity> severities; // only those that were set
    QSet<QString> foreignNames;
    QStringList priceClasses; // sorted
    QHash<quint64, QSizeF> pageSizes; // by the hash of the type
};

namespace {

RVCatalogueRuleId idOf(RVCatalogueRule rule)
{
    return RVCatalogueRuleRow::of(rule)->id;
}

RVCatalogueCheckData *writable(QSharedDataPointer<RVCatalogueCheckData> *data)
{
    if (!*data)
        *data = new RVCatalogueCheckData;
    return data->data();
}

}

// A check without data has no disabled rules.
RVCatalogueCheck::RVCatalogueCheck() = default;
RVCatalogueCheck::RVCatalogueCheck(const RVCatalogueCheck &other) = default;
RVCatalogueCheck::RVCatalogueCheck(RVCatalogueCheck &&other) noexcept = default;
RVCatalogueCheck &RVCatalogueCheck::operator=(const RVCatalogueCheck &other) = default;
RVCatalogueCheck &RVCatalogueCheck::operator=(RVCatalogueCheck &&other) noexcept = default;
RVCatalogueCheck::~RVCatalogueCheck() = default;

void RVCatalogueCheck::disable(RVCatalogueRule rule)
{
    if (!rule.isNull())
        writable(&d)->disabled.set(std::size_t(idOf(rule)));
}

bool RVCatalogueCheck::isEnabled(RVCatalogueRule rule) const
{
    return !rule.isNull() && !(d && d->disabled.test(std::size_t(idOf(rule))));
}

void RVCatalogueCheck::setSeverity(RVCatalogueRule rule, RVCatalogueSeverity severity)
{
    if (rule.isNull())
        return;
    RVCatalogueCheckData *data = writable(&d);
    data->disabled.reset(std::size_t(idOf(rule)));
    data->severities.insert(idOf(rule), severity);
}

RVCatalogueSeverity RVCatalogueCheck::severity(RVCatalogueRule rule) const
{
    return d && !rule.isNull() ? d->severities.value(idOf(rule), rule.severity()) : rule.severity();
}

void RVCatalogueCheck::addForeignNames(const QStringList &names)
{
    writable(&d)->foreignNames.unite(QSet<QString>(names.begin(), names.end()));
}

bool RVCatalogueCheck::isForeign(const QString &name) const
{
    return d && d->foreignNames.contains(name);
}

void RVCatalogueCheck::addPriceClasses(const QStringList &codes)
{
    QStringList &all = writable(&d)->priceClasses;
    all += codes;
    all.sort();
    all.removeDuplicates();
}

QStringList RVCatalogueCheck::priceClasses() const
{
    return d ? d->priceClasses : QStringList();
}

void RVCatalogueCheck::setPageSize(const RVProductType &type, const QSizeF &size)
{
    writable(&d)->pageSizes.insert(type.calcHashValue(), size);
}

QSizeF RVCatalogueCheck::pageSize(const RVProductType &type) const
{
    return d ? d->pageSizes.value(type.calcHashValue()) : QSizeF();
}

QList<RVCatalogueFinding> RVCatalogueCheck::findings(const RVCatalogueProduct &product) const
{
    if (product.isNull())
        return {};
    const QList<RVCatalogueFinding> all = allFindings(product);
    return RVSilencer::isNeeded(product) ? RVSilencer(*this, product).audible(all) : all;
}

QList<RVCatalogueFinding> RVCatalogueCheck::allFindings(const RVCatalogueProduct &product) const
{
    RVFindingReport report(*this, product);
    RVNameCheck(&report).check(product);
    RVIdCheck(&report).check(product);
    RVIgnoredElementCheck(&report).check(product);
    RVKeywordCheck(&report).check(product);
    const RVCheckedPageCounts pageCounts = RVPageCountCheck(&report).check(product);
    RVSpineCheck(&report, pageCounts).check(product);
    RVOptionCheck(&report).check(product);
    RVBarcodeCheck(&report, pageCounts).check(product);
    RVPriceClassCheck(&report).check(product.element(), "page_price_class"_L1);
    return report.sorted();
}
