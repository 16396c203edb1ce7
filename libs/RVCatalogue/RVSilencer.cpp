#include "RVSilencer_p.h"

#include "RVCatalogueCheck.h"
#include "RVCatalogueProductData_p.h"
#include "RVFindingReport_p.h"
#include "RVSuppressionCheck_p.h"

#include <algorithm>

RVSilencer::RVSilencer(const RVCatalogueCheck &check, const RVCatalogueProduct &product)
    : myCheck(check),
      myProduct(product),
      myData(*product.d)
{ }

bool RVSilencer::isNeeded(const RVCatalogueProduct &product)
{
    return !product.d->suppressions.empty() || product.d->scope;
}

QList<RVCatalogueFinding> RVSilencer::audible(const QList<RVCatalogueFinding> &findings)
{
    for (const RVCatalogueFinding &finding : findings) {
        const quint32 element = elementAt(finding.range().begin);
        if (element != RVSuppression::OUTSIDE)
            moveTo(element);
        take(finding, element);
    }
    return myAudible;
}

QList<RVCatalogueFinding> RVSilencer::judged(const QList<RVCatalogueFinding> &findings)
{
    myJudgesComments = true;
    audible(findings);
    moveTo(quint32(myData.rows.elements.size()));
    if (myData.scope)
        myData.scope->judge(myBroken);
    rvSort(&myAudible);
    return myAudible;
}

/// The last element that begins there or in front of it.
quint32 RVSilencer::elementAt(const RVFilePosition &position) const
{
    const auto &elements = myData.rows.elements;
    const auto behind = std::upper_bound(elements.begin(), elements.end(), position,
                                         [](const RVFilePosition &place, const RVCatalogueRows::Element &element) {
                                             return place < element.position;
                                         });
    return behind == elements.begin() ? RVSuppression::OUTSIDE : quint32(behind - elements.begin() - 1);
}

quint32 RVSilencer::endOf(const RVSuppression &comment) const
{
    return myData.rows.elements[comment.element].end;
}

// A comment without an element is the last in its parent, whose comments are therefore still open.
void RVSilencer::moveTo(quint32 element)
{
    for (; myNext < myData.suppressions.size() && myData.suppressions[myNext].element <= element; ++myNext) {
        const RVSuppression &comment = myData.suppressions[myNext];
        if (!comment.hasElement) {
            complain(comment, {});
            continue;
        }
        closeUpTo(comment.element);
        myOpen.push_back({ &comment, {} });
    }
    closeUpTo(element);
}

void RVSilencer::closeUpTo(quint32 element)
{
    while (!myOpen.empty() && endOf(*myOpen.back().comment) <= element) {
        const OpenComment last = myOpen.back();
        myOpen.pop_back();
        complain(*last.comment, last.broken);
    }
}

void RVSilencer::complain(const RVSuppression &comment, const RVCatalogueRuleSet &broken)
{
    if (!myJudgesComments)
        return;
    RVFindingReport report(myCheck, myProduct);
    RVSuppressionCheck(&report).check(comment, broken);
    for (const RVCatalogueFinding &finding : report.sorted())
        take(finding, comment.parent);
}

void RVSilencer::take(const RVCatalogueFinding &finding, quint32 element)
{
    const RVCatalogueRuleId rule = RVCatalogueRuleRow::of(finding.rule())->id;
    bool isSilent = myData.scope && myData.scope->silences(rule);
    for (OpenComment &open : myOpen) {
        if (element >= open.comment->element && element < endOf(*open.comment)) {
            open.broken.set(std::size_t(rule));
            isSilent = isSilent || open.comment->names(rule);
        }
    }
    myBroken.set(std::size_t(rule));
    if (!isSilent)
        myAudible += finding;
}
