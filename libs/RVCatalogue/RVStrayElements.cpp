#include "RVStrayElements_p.h"

#include "RVCatalogueCheck.h"
#include "RVFilePosition_p.h"
#include "RVFindingText_p.h"
#include "RVNameGuess_p.h"
#include "RVNameText_p.h"
#include "RVUtf8_p.h"
#include "RVXmlScanner_p.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MOST = 1000;

constexpr auto PRODUCT = "product"_L1;
constexpr QLatin1StringView PRODUCT_NAMES[] = { PRODUCT };

QString typeOf(const RVXmlTag &tag)
{
    for (int i = 0; i < tag.allAttributes; ++i) {
        if (tag.attributeName(i) == "type")
            return rvFromUtf8(tag.attributeValue(i));
    }
    return QString();
}

RVStrayElement stray(const RVXmlTag &tag, RVCatalogueRuleId rule, QLatin1StringView meant)
{
    return { rule,
             { tag.position, rvAdvanced(tag.position, tag.text, '\0') },
             QString::fromUtf8(tag.name),
             meant,
             typeOf(tag),
             {} };
}

// A comment in front of it has an effect, even if the element turns out to be no fault.
void setScope(RVStrayElement *element, const RVSuppressionScope::Pointer &scope)
{
    if (!scope)
        return;
    RVCatalogueRuleSet broken;
    broken.set(std::size_t(element->rule));
    scope->addBroken(broken);
    element->scope = scope;
}

/// True for the plural, which is the usual name of a catalogue's root.
bool isPlural(QByteArrayView name)
{
    constexpr QLatin1StringView plural[] = { "products"_L1 };
    return rvGuessName(name, plural).changes == 0;
}

std::optional<RVStrayElement> strayProduct(const RVXmlTag &tag)
{
    if (tag.name.contains(':')) {
        const bool isProduct = rvIsName(tag.name.sliced(tag.name.indexOf(':') + 1), PRODUCT);
        return isProduct ? std::optional(stray(tag, RVCatalogueRuleId::ElementPrefixed, PRODUCT)) : std::nullopt;
    }
    if (rvGuessName(tag.name, PRODUCT_NAMES).names.isEmpty() || isPlural(tag.name))
        return std::nullopt;
    return stray(tag, RVCatalogueRuleId::ElementMisspelt, PRODUCT);
}

QString textOf(const RVStrayElement &element)
{
    switch (element.rule) {
    case RVCatalogueRuleId::ElementMisplaced:
        return RVFindingText::tr("the element %1 is not read outside of a product; move it into one")
                .arg(rvQuoted(element.name));
    case RVCatalogueRuleId::ElementPrefixed:
        return rvPrefixedElementText(element.name, element.meant);
    default:
        return rvMisspeltElementText(element.name, element.meant);
    }
}

}

void RVStrayElements::startGroup(const RVXmlTag &tag, const RVSuppressionScope::Pointer &scope)
{
    const RVKnownElement *known = rvKnownElement(tag.name);
    if (known && !myGroups.empty() && myParts < MOST) {
        myGroups.back().parts.push_back(stray(tag, RVCatalogueRuleId::ElementMisplaced, known->name));
        setScope(&myGroups.back().parts.back(), scope);
        ++myParts;
    }
    Group group;
    group.product = strayProduct(tag);
    if (group.product)
        setScope(&*group.product, scope);
    group.firstInside = myElements.size();
    myGroups.push_back(std::move(group));
}

void RVStrayElements::startProduct()
{
    if (myGroups.empty())
        return;
    myGroups.back().hasProducts = true;
    myGroups.back().hasInnerProducts = true;
}

void RVStrayElements::endGroup()
{
    const Group group = std::move(myGroups.back());
    myGroups.pop_back();
    myParts -= qsizetype(group.parts.size());
    if (!myGroups.empty())
        myGroups.back().hasInnerProducts = myGroups.back().hasInnerProducts || group.hasInnerProducts;
    if (group.hasProducts) {
        for (const RVStrayElement &part : group.parts)
            keep(part);
    }
    if (!group.product || group.hasInnerProducts)
        return;
    myElements.remove(group.firstInside, myElements.size() - group.firstInside);
    keep(*group.product);
}

void RVStrayElements::keep(const RVStrayElement &element)
{
    if (myElements.size() < MOST)
        myElements += element;
}

QList<RVCatalogueFinding> RVStrayElements::findings(const RVCatalogueCheck &check) const
{
    QList<RVCatalogueFinding> result;
    for (const RVStrayElement &element : myElements) {
        const RVCatalogueRule rule = RVCatalogueRuleRow::rule(element.rule);
        const bool isSilenced = element.scope && element.scope->silences(element.rule);
        if (!check.isEnabled(rule) || check.isForeign(element.name) || isSilenced)
            continue;
        RVCatalogueFinding finding(rule, element.range, textOf(element));
        finding.setSeverity(check.severity(rule));
        finding.setProductType(element.type);
        result += finding;
    }
    return result;
}

bool RVStrayElements::haveProduct(const QList<RVCatalogueFinding> &findings)
{
    // Parts of a product are only found where there is one.
    return std::any_of(findings.begin(), findings.end(), [](const RVCatalogueFinding &finding) {
        return finding.severity() != RVCatalogueSeverity::Note;
    });
}
