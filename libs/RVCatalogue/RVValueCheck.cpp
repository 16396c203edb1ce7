#include "RVValueCheck_p.h"

#include "RVCatalogueValues_p.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"
#include "RVNumberFault_p.h"
#include "RVUnitText_p.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView BOOLEAN_TEXTS[] = {
    QLatin1StringView("true"), QLatin1StringView("false"), QLatin1StringView("yes"), QLatin1StringView("no"),
    QLatin1StringView("on"),   QLatin1StringView("off"),   QLatin1StringView("1"),   QLatin1StringView("0"),
};

/// The boolean that an invalid text means: "true" for " true" and "ture"; null if it may mean both, or none.
QString meantBoolean(const QString &text)
{
    QString plain = RVForeignLetters(text).plain().trimmed();
    RVNearestTexts nearest(plain, 2);
    for (const QLatin1StringView boolean : BOOLEAN_TEXTS)
        nearest.offer(boolean);
    if (nearest.distance() == 0)
        return plain;
    return nearest.texts().size() == 1 ? nearest.texts().first() : QString();
}

QString allBooleans()
{
    QStringList texts;
    for (const QLatin1StringView boolean : BOOLEAN_TEXTS)
        texts += boolean;
    return rvAllOf(texts);
}

QString reasonText(const RVNumberFault &fault, bool isWhole)
{
    switch (fault.reason()) {
    case RVNumberFault::Reason::TooLarge:
        return RVFindingText::tr("%1 is %2, which is too large");
    case RVNumberFault::Reason::TooSmall:
        return RVFindingText::tr("%1 is %2, which is too small");
    default:
        return isWhole ? RVFindingText::tr("%1 is %2, which is no whole number")
                       : RVFindingText::tr("%1 is %2, which is no number");
    }
}

void addNoNumber(const RVCatalogueElement &element, QLatin1StringView name, RVNumberFault::Type type,
                 RVFindingReport *report)
{
    const QString text = element.attribute(name);
    const RVNumberFault fault(text, type);
    const QString reason = reasonText(fault, type == RVNumberFault::Type::Whole).arg(name, rvQuoted(text));
    report->add(RVCatalogueRuleId::NumberInvalid, element, name, rvAdvised(reason, fault.advice()),
                { {}, rvReplaced(element, name, fault.mended()) });
}

}

std::optional<int> rvCheckedInt(const RVCatalogueElement &element, QLatin1StringView name, int missing,
                                RVFindingReport *report)
{
    if (const std::optional<int> number = rvIntValue(element, name))
        return number;
    if (!element.hasAttribute(name))
        return report->isMeant(element, name) ? std::nullopt : std::optional(missing);
    addNoNumber(element, name, RVNumberFault::Type::Whole, report);
    return std::nullopt;
}

std::optional<double> rvCheckedDouble(const RVCatalogueElement &element, QLatin1StringView name, double missing,
                                      RVFindingReport *report)
{
    if (const std::optional<double> number = rvDoubleValue(element, name))
        return number;
    if (!element.hasAttribute(name))
        return report->isMeant(element, name) ? std::nullopt : std::optional(missing);
    addNoNumber(element, name, RVNumberFault::Type::Length, report);
    return std::nullopt;
}

std::optional<bool> rvCheckedBool(const RVCatalogueElement &element, QLatin1StringView name, bool missing,
                                  RVFindingReport *report)
{
    if (const std::optional<bool> value = rvBoolValue(element, name))
        return value;
    if (!element.hasAttribute(name))
        return report->isMeant(element, name) ? std::nullopt : std::optional(missing);
    const QString text = element.attribute(name);
    const QString meant = meantBoolean(text);
    const QString reason = RVFindingText::tr("%1 is %2, which is neither true nor false").arg(name, rvQuoted(text));
    const QString advice = meant.isNull() ? RVFindingText::tr("there are %1").arg(allBooleans())
                                          : RVFindingText::tr("did you mean %1?").arg(rvQuoted(meant));
    report->add(RVCatalogueRuleId::BooleanInvalid, element, name,
                rvAdvised(rvAdvised(reason, RVForeignLetters(text).text()), advice),
                { {}, rvReplaced(element, name, meant) });
    return std::nullopt;
}

bool rvCheckUnit(const RVCatalogueElement &element, RVFindingReport *report)
{
    constexpr auto name = "units"_L1;
    const bool isKnown = rvIsUnit(element.attribute(name));
    if (isKnown || !element.hasAttribute(name))
        return isKnown || !report->isMeant(element, name);
    const QString text = element.attribute(name);
    const QString meant = rvMeantUnit(text);
    const QString reason = RVFindingText::tr("there is no unit %1").arg(rvQuoted(text));
    const QString advice = meant.isNull() ? RVFindingText::tr("there are %1").arg(rvAllOf(rvUnits()))
                                          : RVFindingText::tr("write %1").arg(rvQuoted(meant));
    report->add(RVCatalogueRuleId::UnitUnknown, element, name,
                rvAdvised(rvAdvised(reason, RVForeignLetters(text).text()), advice),
                { {}, rvReplaced(element, name, meant) });
    return false;
}

bool rvIsBlank(const RVCatalogueElement &element, QLatin1StringView name)
{
    return element.attribute(name).trimmed().isEmpty();
}
