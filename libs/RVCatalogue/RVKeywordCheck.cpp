#include "RVKeywordCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVKeywordVocabulary_p.h"

using namespace Qt::StringLiterals;

namespace {

/// All keywords if they are few, otherwise the command that lists them.
QString listOf(const RVKeywordVocabulary &vocabulary)
{
    constexpr qsizetype many = 9;
    if (vocabulary.keywords().size() < many)
        return RVFindingText::tr("there are %1").arg(rvAllOf(vocabulary.keywords()));
    return RVFindingText::tr("\"rvcatalog keywords %1\" lists them").arg(vocabulary.attributeName());
}

QString adviceOn(const RVKeywordFault &fault, const RVKeywordVocabulary &vocabulary)
{
    const QString better = rvOneOf(fault.betterKeywords);
    switch (fault.kind) {
    case RVKeywordFault::Separated:
        return fault.betterKeywords.isEmpty() ? RVFindingText::tr("keywords are separated by commas")
                                              : RVFindingText::tr("keywords are separated by commas: %1").arg(better);
    case RVKeywordFault::Named:
        return RVFindingText::tr("the keyword of that name is %1").arg(better);
    case RVKeywordFault::Mistyped:
        return fault.meaning.isEmpty()
                ? RVFindingText::tr("did you mean %1?").arg(better)
                : RVFindingText::tr("did you mean %1, that is %2?").arg(better, rvQuoted(fault.meaning));
    default:
        return listOf(vocabulary);
    }
}

QString emptyText(QLatin1StringView attribute, bool isAlone)
{
    return isAlone
            ? RVFindingText::tr("there is an empty keyword in %1; write one, or leave out the attribute").arg(attribute)
            : RVFindingText::tr("there is an empty keyword in %1; write one, or take out the comma").arg(attribute);
}

QString textOf(const RVKeywordFault &fault, const RVKeywordVocabulary &vocabulary, bool isAlone)
{
    const QLatin1StringView attribute = vocabulary.attributeName();
    if (fault.kind == RVKeywordFault::Alias)
        return RVFindingText::tr("%1 is an alias in %2; the main keyword is %3")
                .arg(rvQuoted(fault.piece), attribute, rvOneOf(fault.betterKeywords));
    if (fault.kind == RVKeywordFault::Empty)
        return emptyText(attribute, isAlone);
    const QString text = RVFindingText::tr("%1 is no keyword of %2").arg(rvQuoted(fault.piece), attribute);
    return rvAdvised(rvAdvised(text, fault.letters), adviceOn(fault, vocabulary));
}

RVCatalogueRuleId ruleOf(const RVKeywordFault &fault)
{
    return fault.kind == RVKeywordFault::Alias ? RVCatalogueRuleId::KeywordLegacy : RVCatalogueRuleId::KeywordUnknown;
}

}

void RVKeywordCheck::check(const RVCatalogueProduct &product)
{
    const RVCatalogueElement element = product.element();
    for (const RVKeywordVocabulary &vocabulary : RVKeywordVocabulary::ofProducts()) {
        const QLatin1StringView name = vocabulary.attributeName();
        if (vocabulary.hasAll(element.utf8(name)) || !element.hasAttribute(name))
            continue;
        const QString list = element.attribute(name);
        for (const RVKeywordFault &fault : vocabulary.faults(list))
            myReport->add(ruleOf(fault), element, name, textOf(fault, vocabulary, !list.contains(u',')),
                          { {}, rvReplaced(element, name, fault.from, fault.piece.size(), fault.mended) });
    }
}
