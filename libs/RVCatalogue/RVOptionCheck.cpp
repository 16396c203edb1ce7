#include "RVOptionCheck_p.h"

#include "RVCatalogueProduct.h"
#include "RVColorCheck_p.h"
#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVOptionDefaultCheck_p.h"
#include "RVOptionSpellingCheck_p.h"
#include "RVPriceClassCheck_p.h"
#include "RVValueCheck_p.h"

#include <algorithm>
#include <functional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// True if keys that are chosen together do not have one value each.
bool isMismatch(const RVCatalogueElement &form, QByteArrayView key, QByteArrayView value)
{
    return (key.contains(';') || value.contains(';'))
            && RVConfiguredArticleVariantList::createForProduction(
                       RVConfiguredArticleVariant(form.attribute("key"_L1), form.attribute("value"_L1)))
                       .isEmpty();
}

QString incompleteText(const RVCheckedOption &option)
{
    if (!option.key.isEmpty())
        return RVFindingText::tr("the option has no value; write one, or take out the form");
    return option.value.isEmpty()
            ? RVFindingText::tr("the option has no key and no value; write both, or take out the form")
            : RVFindingText::tr("the option has no key; write one, or take out the form");
}

RVOptionsByKey byKey(const RVCheckedOptions &options)
{
    RVOptionsByKey result;
    for (const RVCheckedOption &option : options) {
        if (!option.key.isEmpty())
            result += &option;
    }
    std::sort(result.begin(), result.end(), [](const RVCheckedOption *a, const RVCheckedOption *b) {
        if (const int order = rvCompareSpellings(a->key, b->key))
            return order < 0;
        const int order = rvCompareSpellings(a->value, b->value);
        return order != 0 ? order < 0 : std::less<>()(a, b);
    });
    return result;
}

}

void RVOptionCheck::check(const RVCatalogueProduct &product)
{
    constexpr auto name = "form"_L1;
    const RVCatalogueElement forms = product.element().firstChildElement("forms"_L1);
    RVCheckedOptions options;
    for (auto form = forms.firstChildElement(name); !form.isNull(); form = form.nextSiblingElement(name))
        options += checkForm(form);
    const RVOptionsByKey sorted = byKey(options);
    checkDuplicates(sorted);
    RVOptionSpellingCheck(myReport).check(sorted);
    RVOptionDefaultCheck(myReport).check(options, sorted);
}

RVCheckedOption RVOptionCheck::checkForm(const RVCatalogueElement &form)
{
    const QByteArrayView key = form.utf8("key"_L1);
    const QByteArrayView value = form.utf8("value"_L1);
    const std::optional<bool> preselected = rvCheckedBool(form, "preselected"_L1, false, myReport);
    const bool hasMismatch = !value.isEmpty() && isMismatch(form, key, value);
    const RVCheckedOption option = {
        form, key, value, hasMismatch, preselected.value_or(false), preselected.has_value()
    };
    checkKeyAndValue(option);
    RVColorCheck(myReport).check(form);
    rvCheckedBool(form, "not_accountable"_L1, false, myReport);
    RVPriceClassCheck(myReport).check(form, "price_class"_L1);
    return option;
}

void RVOptionCheck::checkKeyAndValue(const RVCheckedOption &option)
{
    if (!option.isComplete())
        return myReport->add(RVCatalogueRuleId::OptionIncomplete, option.form,
                             option.key.isEmpty() ? "key"_L1 : "value"_L1, incompleteText(option));
    if (option.hasMismatch)
        myReport->add(
                RVCatalogueRuleId::OptionCompositeMismatch, option.form, "value"_L1,
                RVFindingText::tr("the keys %1 and the values %2 are not equally many; write one value for each key")
                        .arg(rvQuoted(option.form.attribute("key"_L1)), rvQuoted(option.form.attribute("value"_L1))),
                { { rvPlaceOf(option.form, "key"_L1, RVFindingText::tr("the keys")) } });
}

void RVOptionCheck::checkDuplicates(const RVOptionsByKey &options)
{
    const RVCheckedOption *first = nullptr;
    for (const RVCheckedOption *option : options) {
        const bool isDuplicate = first && option->isComplete() && option->key == first->key
                && option->value == first->value;
        if (!isDuplicate) {
            first = option;
            continue;
        }
        myReport->add(RVCatalogueRuleId::OptionDuplicate, option->form, "value"_L1,
                      RVFindingText::tr("the option %1 of %2 is already there in line %3; take out one")
                              .arg(rvQuoted(option->form.attribute("value"_L1)),
                                   rvQuoted(option->form.attribute("key"_L1)), rvLineOf(first->form)),
                      { { rvPlaceOf(first->form, "value"_L1, RVFindingText::tr("the first of them")) } });
    }
}
