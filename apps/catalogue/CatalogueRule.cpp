#include "CatalogueRule.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto NOTE = FindingSeverity::Note;
constexpr auto WARNING = FindingSeverity::Warning;
constexpr auto ERROR = FindingSeverity::Error;

}

QLatin1StringView severityName(FindingSeverity severity)
{
    switch (severity) {
    case FindingSeverity::Note:
        return "note"_L1;
    case FindingSeverity::Warning:
        return "warning"_L1;
    case FindingSeverity::Error:
        break;
    }
    return "error"_L1;
}

QString CatalogueRule::translatedReason() const
{
    return FindingText::tr(reason);
}

const QList<CatalogueRule> &catalogueRules()
{
    // clang-format off
    static const QList<CatalogueRule> theRules = {
        { "products-missing"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A file without a product is no catalogue: nothing of it can be ordered.") },
        { "type-missing"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Projects find their product by its type, so one without a type cannot be ordered.") },
        { "type-duplicate"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Of two products of one type the application only ever finds the first, and the codes of a photo book family are one type.") },
        { "article-id-missing"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Shop and production know an article by its id.") },
        { "article-id-invalid"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "An article id is a whole number above 0; anything else is read as no id.") },
        { "article-id-duplicate"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Two products with one article id are the same article to shop and production.") },
        { "shipping-group-invalid"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A shipping group that is no whole number, or -1, is none, so the product is shipped with nothing else.") },
        { "element-ignored"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Only the first element of each kind in a product is read, so what the others say is lost.") },
        { "number-invalid"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "What cannot be read as a number silently becomes the default.") },
        { "boolean-invalid"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "What is none of true, false, 1, 0, yes, no, on and off silently becomes the default.") },
        { "unit-unknown"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Lengths in an unknown unit are read as millimetres.") },
        { "keyword-unknown"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A keyword that nobody knows silently becomes the default of its attribute.") },
        { "keyword-legacy"_L1, NOTE, QT_TRANSLATE_NOOP("FindingText", "An alias is still read, but a program that writes the value uses its main keyword.") },
        { "page-counts-reversed"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "With a lowest page count above the highest no count can be chosen.") },
        { "page-counts-invalid"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Without valid page counts the product cannot be ordered.") },
        { "page-step-misses-highest"_L1, WARNING, QT_TRANSLATE_NOOP("FindingText", "The highest page count can never be reached when the steps do not meet it.") },
        { "spine-missing"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A glued or lay-flat book has a spine, and without its widths the cover is made too narrow.") },
        { "spine-negative"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A spine that has a negative width, or grows backwards, comes out too narrow.") },
        { "spine-font-too-small"_L1, WARNING, QT_TRANSLATE_NOOP("FindingText", "Where the spine shrinks until the smallest font no longer fits, its text is cut off.") },
        { "option-incomplete"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "An option without key or value is dropped, so the customer is never offered it.") },
        { "option-duplicate"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "The customer is offered the same choice twice, and only the first has a price.") },
        { "option-default-twice"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Of several defaults of one key the last one silently wins.") },
        { "option-default-missing"_L1, WARNING, QT_TRANSLATE_NOOP("FindingText", "Without a default an order comes without the option, or with whichever stands first.") },
        { "option-color-invalid"_L1, WARNING, QT_TRANSLATE_NOOP("FindingText", "The editor shows no swatch for a colour that it cannot read.") },
        { "option-composite-mismatch"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Keys that are chosen together need one value each, or production gets none of them.") },
        { "barcode-invalid"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A barcode without extent or image is dropped, and production cannot tell the product.") },
        { "barcode-page-impossible"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A barcode on a page that the product cannot have is never printed.") },
        { "barcode-outside-page"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "A barcode that leaves its page is cut off and cannot be read.") },
        { "barcode-overlap"_L1, ERROR, QT_TRANSLATE_NOOP("FindingText", "Barcodes that overlap cannot be read.") },
        { "price-class-unknown"_L1, WARNING, QT_TRANSLATE_NOOP("FindingText", "An add-on whose price class belongs to no known group is not counted where add-ons are billed.") },
    };
    // clang-format on
    return theRules;
}

const CatalogueRule &catalogueRule(Rule rule)
{
    return catalogueRules().at(int(rule));
}

int indexOfRule(QStringView name)
{
    const QList<CatalogueRule> &rules = catalogueRules();
    const auto found = std::find_if(rules.begin(), rules.end(),
                                    [&](const CatalogueRule &rule) { return rule.name == name; });
    return found == rules.end() ? -1 : int(found - rules.begin());
}

QString quoted(QStringView text)
{
    constexpr qsizetype longest = 80;
    QString shown = text.left(longest).toString();
    if (!shown.isEmpty() && shown.back().isHighSurrogate())
        shown.chop(1);
    for (QChar &character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = u' ';
    }
    return u'"' + shown + (text.size() > longest ? u"…\""_s : u"\""_s);
}
