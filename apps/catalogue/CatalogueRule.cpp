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

const QList<CatalogueRule> &catalogueRules()
{
    // clang-format off
    static const QList<CatalogueRule> theRules = {
        { "products-missing"_L1, ERROR, "A file without a product is no catalogue: nothing of it can be ordered."_L1 },
        { "type-missing"_L1, ERROR, "Projects find their product by its type, so one without a type cannot be ordered."_L1 },
        { "type-duplicate"_L1, ERROR, "Of two products of one type the application only ever finds the first, and the codes of a photo book family are one type."_L1 },
        { "article-id-missing"_L1, ERROR, "Shop and production know an article by its id."_L1 },
        { "article-id-invalid"_L1, ERROR, "An article id is a whole number above 0; anything else is read as no id."_L1 },
        { "article-id-duplicate"_L1, ERROR, "Two products with one article id are the same article to shop and production."_L1 },
        { "shipping-group-invalid"_L1, ERROR, "A shipping group that is no whole number from 0 is read as none, so the product is shipped with nothing else."_L1 },
        { "number-invalid"_L1, ERROR, "What cannot be read as a number silently becomes the default."_L1 },
        { "boolean-invalid"_L1, ERROR, "What is none of true, false, 1, 0, yes, no, on and off silently becomes the default."_L1 },
        { "unit-unknown"_L1, ERROR, "Lengths in an unknown unit are read as millimetres."_L1 },
        { "keyword-unknown"_L1, ERROR, "A keyword that nobody knows silently becomes the default of its attribute."_L1 },
        { "keyword-legacy"_L1, NOTE, "An alias is still read, but a program that writes the value uses its main keyword."_L1 },
        { "page-counts-reversed"_L1, ERROR, "With a lowest page count above the highest no count can be chosen."_L1 },
        { "page-counts-invalid"_L1, ERROR, "Without valid page counts the product cannot be ordered."_L1 },
        { "page-step-misses-highest"_L1, WARNING, "The highest page count can never be reached when the steps do not meet it."_L1 },
        { "spine-missing"_L1, ERROR, "A glued or lay-flat book has a spine, and without its widths the cover is made too narrow."_L1 },
        { "spine-negative"_L1, ERROR, "A spine that has a negative width, or grows backwards, comes out too narrow."_L1 },
        { "spine-font-too-small"_L1, WARNING, "Where the spine shrinks until the smallest font no longer fits, its text is cut off."_L1 },
        { "option-incomplete"_L1, ERROR, "An option without key or value is dropped, so the customer is never offered it."_L1 },
        { "option-duplicate"_L1, ERROR, "The customer is offered the same choice twice, and only the first has a price."_L1 },
        { "option-default-twice"_L1, ERROR, "Of several defaults of one key the last one silently wins."_L1 },
        { "option-default-missing"_L1, WARNING, "Without a default an order comes without the option, or with whichever stands first."_L1 },
        { "option-color-invalid"_L1, WARNING, "The editor shows no swatch for a colour that it cannot read."_L1 },
        { "option-composite-mismatch"_L1, ERROR, "Keys that are chosen together need one value each, or production gets none of them."_L1 },
        { "barcode-invalid"_L1, ERROR, "A barcode without extent or image is dropped, and production cannot tell the product."_L1 },
        { "barcode-page-impossible"_L1, ERROR, "A barcode on a page that the product cannot have is never printed."_L1 },
        { "barcode-outside-page"_L1, ERROR, "A barcode that leaves its page is cut off and cannot be read."_L1 },
        { "barcode-overlap"_L1, ERROR, "Barcodes that overlap cannot be read."_L1 },
        { "price-class-unknown"_L1, WARNING, "An add-on whose price class belongs to no known group is not counted where add-ons are billed."_L1 },
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
        if (character < u' ')
            character = u' ';
    }
    return u'"' + shown + (text.size() > longest ? u"…\""_s : u"\""_s);
}
