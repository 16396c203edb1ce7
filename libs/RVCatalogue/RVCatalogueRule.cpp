#include "RVCatalogueRule.h"

#include "RVCatalogueRuleTable_p.h"
#include "RVFindingText_p.h"
#include "RVRuleExplanation_p.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QList<RVCatalogueRule> RVCatalogueRule::all()
{
    static const QList<RVCatalogueRule> theRules = [] {
        QList<RVCatalogueRule> result;
        for (const RVCatalogueRuleRow &row : RV_CATALOGUE_RULES)
            result += RVCatalogueRule(&row);
        return result;
    }();
    return theRules;
}

RVCatalogueRule RVCatalogueRule::find(QAnyStringView name)
{
    const auto *end = std::end(RV_CATALOGUE_RULES);
    const auto *found = std::find_if(std::begin(RV_CATALOGUE_RULES), end, [name](const RVCatalogueRuleRow &row) {
        return name == QAnyStringView(row.name);
    });
    return found == end ? RVCatalogueRule() : RVCatalogueRule(found);
}

QLatin1StringView RVCatalogueRule::name() const
{
    return myRow ? myRow->name : QLatin1StringView();
}

RVCatalogueSeverity RVCatalogueRule::severity() const
{
    return myRow ? myRow->severity : RVCatalogueSeverity::Note;
}

QString RVCatalogueRule::reason() const
{
    return myRow ? RVFindingText::tr(myRow->reason) : QString();
}

QByteArray RVCatalogueRule::example() const
{
    return myRow ? QByteArray(myRow->example) : QByteArray();
}

QByteArray RVCatalogueRule::mendedExample() const
{
    return myRow ? QByteArray(myRow->mended) : QByteArray();
}

QString RVCatalogueRule::explanation() const
{
    return RVRuleExplanation(*this).toPlainText();
}

QString RVCatalogueRule::explanationAsMarkdown() const
{
    return RVRuleExplanation(*this).toMarkdown();
}

QLatin1StringView rvSeverityName(RVCatalogueSeverity severity)
{
    switch (severity) {
    case RVCatalogueSeverity::Note:
        return "note"_L1;
    case RVCatalogueSeverity::Warning:
        return "warning"_L1;
    case RVCatalogueSeverity::Error:
        break;
    }
    return "error"_L1;
}
