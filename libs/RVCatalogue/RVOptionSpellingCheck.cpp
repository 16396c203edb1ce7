#include "RVOptionSpellingCheck_p.h"

#include "RVFindingReport_p.h"
#include "RVFindingText_p.h"
#include "RVForeignLetters_p.h"
#include "RVUtf8_p.h"

#include <QString>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Iterator = RVOptionsByKey::const_iterator;

constexpr auto KEY_NAME = "key_name"_L1;

bool isAscii(QByteArrayView text)
{
    return std::all_of(text.begin(), text.end(), [](char letter) { return uchar(letter) < 0x80; });
}

int compareFolded(QByteArrayView a, QByteArrayView b)
{
    return isAscii(a) && isAscii(b) ? a.compare(b, Qt::CaseInsensitive)
                                    : rvFromUtf8(a).compare(rvFromUtf8(b), Qt::CaseInsensitive);
}

bool isSeparator(char letter)
{
    return letter == ',' || letter == ':';
}

/// True for a blank of ASCII, and for a byte of a letter that may look like another one or be invisible.
bool mayBeBlank(char letter)
{
    return uchar(letter) <= ' ' || uchar(letter) >= 0x80;
}

bool isSpace(QChar letter)
{
    return letter.isSpace();
}

bool isFormatMark(QChar letter)
{
    return letter.category() == QChar::Other_Format;
}

bool isUnseen(QChar letter)
{
    return isSpace(letter) || isFormatMark(letter);
}

/// Compares what can be seen of the texts, without letter case.
int compareSeen(QByteArrayView a, QByteArrayView b)
{
    if (std::none_of(a.begin(), a.end(), mayBeBlank) && std::none_of(b.begin(), b.end(), mayBeBlank))
        return compareFolded(a, b);
    return rvFromUtf8(a).removeIf(isUnseen).compare(rvFromUtf8(b).removeIf(isUnseen), Qt::CaseInsensitive);
}

/// The text about a key or a value with blanks or invisible letters; its placeholders are not filled in.
QString faultText(const QString &text, bool hasBlankInside)
{
    if (hasBlankInside)
        return RVFindingText::tr("the %1 %2 has a blank in it");
    return std::any_of(text.begin(), text.end(), isSpace) ? RVFindingText::tr("the %1 %2 has a blank around it")
                                                          : RVFindingText::tr("the %1 %2 is not what it looks like");
}

/// The earliest option in the file.
const RVCheckedOption *earliest(Iterator begin, Iterator end)
{
    return *std::min_element(begin, end, std::less<>());
}

/// The end of the options of the same key.
Iterator keyEnd(Iterator begin, Iterator end)
{
    return std::find_if(begin, end, [begin](const RVCheckedOption *option) { return option->key != (*begin)->key; });
}

/// The option whose attribute most others have as well; the earliest of several.
template<typename Value>
const RVCheckedOption *mostUsual(Iterator begin, Iterator end, Value value)
{
    const RVCheckedOption *result = nullptr;
    std::ptrdiff_t most = 0;
    std::vector<const RVCheckedOption *> options(begin, end);
    std::sort(options.begin(), options.end(), [&value](const RVCheckedOption *a, const RVCheckedOption *b) {
        return std::less<>()(std::pair(value(a), a), std::pair(value(b), b));
    });
    for (auto first = options.cbegin(); first != options.cend();) {
        const auto last = std::find_if(first, options.cend(),
                                       [&](const RVCheckedOption *option) { return value(option) != value(*first); });
        const bool isBetter = last - first > most || (last - first == most && std::less<>()(*first, result));
        if (isBetter && !value(*first).isEmpty()) {
            most = last - first;
            result = *first;
        }
        first = last;
    }
    return result;
}

QByteArrayView keyOf(const RVCheckedOption *option)
{
    return option->key;
}

QByteArrayView keyNameOf(const RVCheckedOption *option)
{
    return option->form.utf8(KEY_NAME);
}

}

int rvCompareSpellings(QByteArrayView a, QByteArrayView b)
{
    if (a == b)
        return 0;
    if (const int order = compareSeen(a, b))
        return order;
    const int order = compareFolded(a, b);
    return order != 0 ? order : a.compare(b);
}

bool rvIsOtherSpelling(QByteArrayView a, QByteArrayView b)
{
    return a != b && compareSeen(a, b) == 0;
}

void RVOptionSpellingCheck::check(const RVOptionsByKey &options)
{
    const RVCheckedOption *previous = nullptr;
    for (const RVCheckedOption *option : options) {
        const bool isDuplicate = previous && option->key == previous->key && option->value == previous->value;
        previous = option;
        // A duplicate option, or one with a different number of values, is a mistake already.
        if (isDuplicate || option->hasMismatch)
            continue;
        checkLetters(*option, "key"_L1);
        checkLetters(*option, "value"_L1);
    }
    for (Iterator begin = options.begin(); begin != options.end();) {
        const auto *const end = std::find_if(begin, options.end(), [begin](const RVCheckedOption *option) {
            return option->key != (*begin)->key && compareFolded(option->key, (*begin)->key) != 0;
        });
        checkKeys(begin, end);
        begin = end;
    }
}

void RVOptionSpellingCheck::checkLetters(const RVCheckedOption &option, QLatin1StringView attribute)
{
    const QByteArrayView bytes = option.form.utf8(attribute);
    const bool hasSeparator = std::any_of(bytes.begin(), bytes.end(), isSeparator);
    if (!hasSeparator && std::none_of(bytes.begin(), bytes.end(), mayBeBlank))
        return;
    const QString text = option.form.attribute(attribute);
    if (hasSeparator)
        return myReport->add(RVCatalogueRuleId::OptionSeparator, option.form, attribute,
                             RVFindingText::tr("the %1 %2 has a separator of orders in it; only semicolons join "
                                               "several")
                                     .arg(attribute, rvQuoted(text)));
    checkUnseen(option.form, attribute, text);
}

/// Finds blanks and invisible letters.
void RVOptionSpellingCheck::checkUnseen(const RVCatalogueElement &form, QLatin1StringView attribute,
                                        const QString &text)
{
    const auto *first = std::find_if(text.begin(), text.end(), isUnseen);
    if (first == text.end())
        return;
    QString seen = text;
    seen = seen.removeIf(isFormatMark).trimmed();
    const bool hasBlankInside = seen.isEmpty() || std::any_of(seen.begin(), seen.end(), isSpace);
    const QString fault = faultText(text, hasBlankInside).arg(attribute, rvQuoted(text));
    const QString letter = RVForeignLetters(QStringView(first, 1)).text();
    myReport->add(RVCatalogueRuleId::OptionBlank, form, attribute,
                  rvAdvised(rvAdvised(fault, letter), RVFindingText::tr("take it out")),
                  { {}, hasBlankInside ? QList<RVFileEdit>() : rvReplaced(form, attribute, seen) });
}

/// Checks the options whose keys differ only in letter case.
void RVOptionSpellingCheck::checkKeys(Iterator begin, Iterator end)
{
    if ((*begin)->key != (*(end - 1))->key) {
        const RVCheckedOption *usual = mostUsual(begin, end, keyOf);
        for (Iterator it = begin; it != end; ++it) {
            if ((*it)->key != usual->key)
                addLetterCase(**it, *usual, "key"_L1);
        }
    }
    for (Iterator it = begin; it != end;) {
        const Iterator next = keyEnd(it, end);
        checkValues(it, next);
        checkKeyNames(it, next);
        it = next;
    }
}

/// Checks the values of one key.
void RVOptionSpellingCheck::checkValues(Iterator begin, Iterator end)
{
    for (Iterator it = begin; it != end;) {
        const auto *const next = std::find_if(it, end, [it](const RVCheckedOption *option) {
            return option->value != (*it)->value && compareFolded(option->value, (*it)->value) != 0;
        });
        const RVCheckedOption *first = earliest(it, next);
        for (; it != next; ++it) {
            if ((*it)->value != first->value)
                addLetterCase(**it, *first, "value"_L1);
        }
    }
}

void RVOptionSpellingCheck::addLetterCase(const RVCheckedOption &option, const RVCheckedOption &other,
                                          QLatin1StringView attribute)
{
    const QString text = RVFindingText::tr(
            "the %1 %2 differs from %3 in line %4 in letter case only; choose one spelling");
    myReport->add(RVCatalogueRuleId::OptionLetterCase, option.form, attribute,
                  text.arg(attribute, rvQuoted(option.form.attribute(attribute)),
                           rvQuoted(other.form.attribute(attribute)), rvLineOf(other.form)),
                  { { rvPlaceOf(other.form, attribute, RVFindingText::tr("the other spelling")) }, {} });
}

/// Checks the names of one key.
void RVOptionSpellingCheck::checkKeyNames(Iterator begin, Iterator end)
{
    const auto isOther = [begin](const RVCheckedOption *option) { return keyNameOf(option) != keyNameOf(*begin); };
    if (std::none_of(begin, end, isOther))
        return;
    const RVCheckedOption *usual = mostUsual(begin, end, keyNameOf);
    const QString text = RVFindingText::tr("the key %1 is named %2 here, but %3 in line %4; choose one name");
    for (Iterator it = begin; it != end; ++it) {
        const RVCatalogueElement &form = (*it)->form;
        if (!keyNameOf(*it).isEmpty() && keyNameOf(*it) != keyNameOf(usual))
            myReport->add(RVCatalogueRuleId::OptionKeyNames, form, KEY_NAME,
                          text.arg(rvQuoted(form.attribute("key"_L1)), rvQuoted(form.attribute(KEY_NAME)),
                                   rvQuoted(usual->form.attribute(KEY_NAME)), rvLineOf(usual->form)),
                          { { rvPlaceOf(usual->form, KEY_NAME, RVFindingText::tr("the other name")) }, {} });
    }
}
