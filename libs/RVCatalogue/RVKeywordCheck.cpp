#include "RVKeywordCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVKeywordVocabulary_p.h"

namespace {

QString textOf(const RVKeywordFault &fault, QLatin1StringView attribute)
{
    if (fault.isKnown)
        return RVFindingText::tr("%1 is an alias in %2; the main keyword is %3")
                .arg(rvQuoted(fault.piece), attribute, rvQuoted(fault.betterKeyword));
    if (fault.piece.isEmpty())
        return RVFindingText::tr("there is an empty keyword in %1").arg(attribute);
    if (fault.betterKeyword.isEmpty())
        return RVFindingText::tr("%1 is no keyword of %2").arg(rvQuoted(fault.piece), attribute);
    if (fault.meaning.isEmpty())
        return RVFindingText::tr("%1 is no keyword of %2; did you mean %3?")
                .arg(rvQuoted(fault.piece), attribute, rvQuoted(fault.betterKeyword));
    return RVFindingText::tr("%1 is no keyword of %2; did you mean %3, that is %4?")
            .arg(rvQuoted(fault.piece), attribute, rvQuoted(fault.betterKeyword), rvQuoted(fault.meaning));
}

RVCatalogueRuleId ruleOf(const RVKeywordFault &fault)
{
    return fault.isKnown ? RVCatalogueRuleId::KeywordLegacy : RVCatalogueRuleId::KeywordUnknown;
}

}

void RVKeywordCheck::check(const RVCatalogueProduct &product)
{
    const RVCatalogueElement element = product.element();
    for (const RVKeywordVocabulary &vocabulary : RVKeywordVocabulary::ofProducts()) {
        const QLatin1StringView name = vocabulary.attributeName();
        if (vocabulary.hasAll(element.utf8(name)) || !element.hasAttribute(name))
            continue;
        for (const RVKeywordFault &fault : vocabulary.faults(element.attribute(name)))
            myReport->add(ruleOf(fault), element, name, textOf(fault, name));
    }
}
