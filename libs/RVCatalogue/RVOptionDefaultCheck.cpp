#include "RVOptionDefaultCheck_p.h"

#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVOptionSpellingCheck_p.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Iterator = RVOptionsByKey::const_iterator;

/// True for an option that is offered to the customer, and for one that cannot be offered but was meant to be the
/// default.
bool counts(const RVCheckedOption &option)
{
    return option.isPreselected || (!option.value.isEmpty() && !option.hasMismatch);
}

const RVCheckedOption *earlier(const RVCheckedOption *a, const RVCheckedOption *b)
{
    return !a || std::less<>()(b, a) ? b : a;
}

/// True if the preselected options can be determined.
bool isCertain(const RVCheckedOptions &options)
{
    return std::all_of(options.begin(), options.end(), [](const RVCheckedOption &option) {
        return option.isReadable && !(option.isPreselected && option.key.isEmpty());
    });
}

bool hasPreselected(const RVOptionsByKey &options)
{
    return std::any_of(options.begin(), options.end(),
                       [](const RVCheckedOption *option) { return option->isPreselected; });
}

/// The numbers of semicolons between the values of the defaults that do not have one value for each key; sorted.
QVarLengthArray<qsizetype> mismatches(const RVCheckedOptions &options)
{
    QVarLengthArray<qsizetype> result;
    for (const RVCheckedOption &option : options) {
        if (option.hasMismatch && option.isPreselected)
            result += option.value.count(';');
    }
    std::sort(result.begin(), result.end());
    return result;
}

/// Calls visit(option, isDuplicate) for each option that counts; a duplicate has the value of an earlier one.
template<typename Visitor>
void visitCounting(Iterator begin, Iterator end, Visitor visit)
{
    const RVCheckedOption *previous = nullptr;
    for (Iterator it = begin; it != end; ++it) {
        if (!counts(**it))
            continue;
        visit(*it, previous && previous->value == (*it)->value);
        previous = *it;
    }
}

}

/// The options of one key that count.
struct RVOptionDefaultCheck::Key
{
    Key(Iterator begin, Iterator end)
    {
        visitCounting(begin, end, [this](const RVCheckedOption *option, bool isDuplicate) {
            first = earlier(first, option);
            values += isDuplicate ? 0 : 1;
            if (option->isPreselected)
                preselected = earlier(preselected, option);
        });
        // A duplicate option is a mistake of its own.
        visitCounting(begin, end, [this](const RVCheckedOption *option, bool isDuplicate) {
            if (option->isPreselected && !isDuplicate && option != preselected)
                preselectedToo = earlier(preselectedToo, option);
        });
    }

    const RVCheckedOption *first = nullptr;
    const RVCheckedOption *preselected = nullptr;
    const RVCheckedOption *preselectedToo = nullptr;
    qsizetype values = 0; // the number of different values
};

void RVOptionDefaultCheck::check(const RVCheckedOptions &options, const RVOptionsByKey &byKey)
{
    const bool canTell = isCertain(options) && !myReport->isMeant("form"_L1);
    const bool hasDefaults = hasPreselected(byKey);
    const QVarLengthArray<qsizetype> meantForOthers = mismatches(options);
    for (Iterator begin = byKey.begin(); begin != byKey.end();) {
        Iterator end = std::find_if(begin, byKey.end(),
                                    [begin](const RVCheckedOption *option) { return option->key != (*begin)->key; });
        const Key key(begin, end);
        // Two spellings of a key are one mistake, so the default of one is meant for both.
        const bool isSpeltTwice = (begin != byKey.begin() && rvIsOtherSpelling((*begin)->key, (*(begin - 1))->key))
                || (end != byKey.end() && rvIsOtherSpelling((*begin)->key, (*end)->key));
        begin = end;
        if (key.preselectedToo)
            addTwice(key);
        if (!key.first || key.preselected || !canTell || isSpeltTwice || (!hasDefaults && key.values < 2))
            continue;
        // A default with as many values as these keys may be meant for them, with a mistake in its own keys.
        if (!std::binary_search(meantForOthers.begin(), meantForOthers.end(), key.first->key.count(';')))
            addMissing(key, hasDefaults);
    }
}

void RVOptionDefaultCheck::addTwice(const Key &key)
{
    const RVCatalogueElement form = key.preselectedToo->form;
    myReport->add(RVCatalogueRuleId::OptionDefaultTwice, form, "preselected"_L1,
                  RVFindingText::tr("%1 is preselected for %2, but %3 in line %4 is so already; preselect one")
                          .arg(rvQuoted(form.attribute("value"_L1)), rvQuoted(form.attribute("key"_L1)),
                               rvQuoted(key.preselected->form.attribute("value"_L1)), rvLineOf(key.preselected->form)),
                  { { rvPlaceOf(key.preselected->form, "preselected"_L1, RVFindingText::tr("the first default")) } });
}

void RVOptionDefaultCheck::addMissing(const Key &key, bool hasDefaults)
{
    const QString text = hasDefaults
            ? RVFindingText::tr("no option of %1 is preselected, so an order comes without any; preselect one")
            : RVFindingText::tr("no option of %1 is preselected, so the first is taken; preselect one");
    myReport->add(RVCatalogueRuleId::OptionDefaultMissing, key.first->form,
                  text.arg(rvQuoted(key.first->form.attribute("key"_L1))));
}
