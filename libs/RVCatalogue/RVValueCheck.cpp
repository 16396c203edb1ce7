#include "RVValueCheck_p.h"

#include "RVCatalogueValues_p.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView UNITS[] = { "mm", "cm", "inch", "in", "pt", "point", "0.1mm" };

void addUnreadable(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView name,
                   const QString &text, RVFindingReport *report)
{
    report->add(rule, element, name, text.arg(name, rvQuoted(element.attribute(name))));
}

}

std::optional<int> rvCheckedInt(const RVCatalogueElement &element, QLatin1StringView name, int missing,
                                RVFindingReport *report)
{
    if (const std::optional<int> number = rvIntValue(element, name))
        return number;
    if (!element.hasAttribute(name))
        return report->isMeant(element, name) ? std::nullopt : std::optional(missing);
    addUnreadable(RVCatalogueRuleId::NumberInvalid, element, name,
                  RVFindingText::tr("%1 is %2, which is no whole number"), report);
    return std::nullopt;
}

std::optional<double> rvCheckedDouble(const RVCatalogueElement &element, QLatin1StringView name, double missing,
                                      RVFindingReport *report)
{
    if (const std::optional<double> number = rvDoubleValue(element, name))
        return number;
    if (!element.hasAttribute(name))
        return report->isMeant(element, name) ? std::nullopt : std::optional(missing);
    addUnreadable(RVCatalogueRuleId::NumberInvalid, element, name, RVFindingText::tr("%1 is %2, which is no number"),
                  report);
    return std::nullopt;
}

std::optional<bool> rvCheckedBool(const RVCatalogueElement &element, QLatin1StringView name, bool missing,
                                  RVFindingReport *report)
{
    if (const std::optional<bool> value = rvBoolValue(element, name))
        return value;
    if (!element.hasAttribute(name))
        return report->isMeant(element, name) ? std::nullopt : std::optional(missing);
    addUnreadable(RVCatalogueRuleId::BooleanInvalid, element, name,
                  RVFindingText::tr("%1 is %2, which is neither true nor false"), report);
    return std::nullopt;
}

bool rvCheckUnit(const RVCatalogueElement &element, RVFindingReport *report)
{
    constexpr auto name = "units"_L1;
    const bool isKnown = std::find(std::begin(UNITS), std::end(UNITS), element.utf8(name)) != std::end(UNITS);
    if (isKnown || !element.hasAttribute(name))
        return isKnown || !report->isMeant(element, name);
    report->add(RVCatalogueRuleId::UnitUnknown, element, name,
                RVFindingText::tr("there is no unit %1; there are mm, cm, inch, in, pt, point and 0.1mm")
                        .arg(rvQuoted(element.attribute(name))));
    return false;
}

bool rvIsBlank(const RVCatalogueElement &element, QLatin1StringView name)
{
    const QByteArrayView text = element.utf8(name);
    const bool hasPlainLetter = std::any_of(text.begin(), text.end(),
                                            [](char letter) { return letter > ' ' && letter <= '~'; });
    return !hasPlainLetter && element.attribute(name).trimmed().isEmpty();
}
