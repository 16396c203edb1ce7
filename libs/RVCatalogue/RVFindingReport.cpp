#include "RVFindingReport_p.h"

#include "RVCatalogueCheck.h"
#include "RVCatalogueProduct.h"
#include "RVNameVocabulary_p.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The text, escaped for a value between quotes.
QString escaped(const QString &text)
{
    QString result = text.toHtmlEscaped();
    return result.replace(u'\'', "&apos;"_L1);
}

}

void RVFindingReport::add(RVCatalogueRuleId rule, const RVCatalogueElement &element, const QString &text,
                          const RVFindingDetails &details)
{
    add(rule, element.range(), text, details);
}

void RVFindingReport::add(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute,
                          const QString &text, const RVFindingDetails &details)
{
    if (isMeant(element, attribute) && !element.hasAttribute(attribute))
        return;
    add(rule, element.attributeRange(attribute), text, details);
}

void RVFindingReport::add(RVCatalogueRuleId rule, const RVFileRange &range, const QString &text,
                          const RVFindingDetails &details)
{
    const RVCatalogueRule broken = RVCatalogueRuleRow::rule(rule);
    if (!myCheck.isEnabled(broken))
        return;
    RVCatalogueFinding finding(broken, range, text, myProduct.number());
    finding.setSeverity(myCheck.severity(broken));
    finding.setProductType(myProduct.element().attribute("type"_L1));
    finding.setRelatedPlaces(details.places);
    finding.setFix(details.fix);
    myFindings += finding;
}

void RVFindingReport::addMeant(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute)
{
    addMeant(rule, { element.position(), QLatin1StringView(), attribute });
}

void RVFindingReport::addMeant(RVCatalogueRuleId rule, QLatin1StringView elementName, QLatin1StringView attribute)
{
    addMeant(rule, { RVFilePosition(), elementName, attribute });
}

void RVFindingReport::addMeant(RVCatalogueRuleId rule, const Meant &meant)
{
    const RVCatalogueRule broken = RVCatalogueRuleRow::rule(rule);
    if (myCheck.isEnabled(broken) && myCheck.severity(broken) != RVCatalogueSeverity::Note)
        myMeant += meant;
}

bool RVFindingReport::isMeant(const RVCatalogueElement &element, QLatin1StringView attribute) const
{
    return std::any_of(myMeant.begin(), myMeant.end(), [&](const Meant &meant) {
        return meant.attribute == attribute
                && (meant.elementName.isEmpty() ? meant.position == element.position()
                                                : rvIsName(element.utf8Name(), meant.elementName));
    });
}

bool RVFindingReport::isMeant(QLatin1StringView elementName) const
{
    return std::any_of(myMeant.begin(), myMeant.end(), [elementName](const Meant &meant) {
        return meant.elementName == elementName && meant.attribute.isEmpty();
    });
}

QList<RVCatalogueFinding> RVFindingReport::sorted() const
{
    QList<RVCatalogueFinding> result = myFindings;
    rvSort(&result);
    return result;
}

void rvSort(QList<RVCatalogueFinding> *findings)
{
    std::stable_sort(findings->begin(), findings->end(), [](const RVCatalogueFinding &a, const RVCatalogueFinding &b) {
        return a.range().begin < b.range().begin;
    });
}

RVRelatedPlace rvPlaceOf(const RVCatalogueElement &element, const QString &text)
{
    return { element.range(), text, QString() };
}

RVRelatedPlace rvPlaceOf(const RVCatalogueElement &element, QLatin1StringView attribute, const QString &text)
{
    return { element.attributeRange(attribute), text, QString() };
}

QList<RVFileEdit> rvReplaced(const RVCatalogueElement &element, QLatin1StringView attribute, qsizetype from,
                             qsizetype length, const QString &text)
{
    const auto range = text.isNull() ? std::nullopt : element.valueRange(attribute, from, length);
    if (!range)
        return {};
    return { { *range, escaped(text) } };
}

QList<RVFileEdit> rvReplaced(const RVCatalogueElement &element, QLatin1StringView attribute, const QString &text)
{
    return rvReplaced(element, attribute, 0, element.attribute(attribute).size(), text);
}

QString rvLineOf(const RVCatalogueElement &element)
{
    return QString::number(element.position().line);
}
