#include "ProductCondition.h"

#include "Suggestion.h"

#include <RVCatalogueAttribute.h>

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Texts = QStringList (*)(const RVCatalogueProduct &product);
using Number = std::optional<int> (*)(const RVCatalogueProduct &product);

template<typename T>
std::optional<int> numberOf(const T &id)
{
    return id.isValid() ? std::optional<int>(id.id()) : std::nullopt;
}

constexpr struct
{
    QLatin1StringView name;
    Texts texts;
} TEXTS[] = {
    { "type"_L1, [](const RVCatalogueProduct &product) { return QStringList(product.type().toString()); } },
    { "name"_L1, [](const RVCatalogueProduct &product) { return QStringList(product.name()); } },
    { "family"_L1, [](const RVCatalogueProduct &product) { return product.families(); } },
    { "price_class"_L1,
      [](const RVCatalogueProduct &product) { return QStringList(product.priceClass().toString()); } },
    { "page_price_class"_L1,
      [](const RVCatalogueProduct &product) { return QStringList(product.pagePriceClass().toString()); } },
};

constexpr struct
{
    QLatin1StringView name;
    Number number;
} NUMBERS[] = {
    { "article_id"_L1, [](const RVCatalogueProduct &product) { return numberOf(product.articleId()); } },
    { "shipping_group"_L1, [](const RVCatalogueProduct &product) { return numberOf(product.shippingGroup()); } },
    { "pages"_L1, [](const RVCatalogueProduct &product) { return std::optional(product.pageCounts().minPages()); } },
    { "max_pages"_L1,
      [](const RVCatalogueProduct &product) { return std::optional(product.pageCounts().maxPages()); } },
};

template<typename Rows>
auto find(const Rows &rows, const QString &name)
{
    return std::find_if(std::begin(rows), std::end(rows), [&name](const auto &row) { return row.name == name; });
}

QStringList keywordsOf(const RVCatalogueAttribute &attribute)
{
    QStringList result;
    for (const RVCatalogueAttributeValue &value : attribute.values())
        result += QStringList(value.keyword) + value.aliases;
    return result;
}

QString unknownKeyword(const RVCatalogueAttribute &attribute, const QString &piece)
{
    const QString suggestion = didYouMean(piece, keywordsOf(attribute));
    const QString list = u"; \"rvcatalog keywords %1\" lists them"_s.arg(attribute.name());
    return u"\"%1\" is no keyword of %2"_s.arg(piece, attribute.name()) + (suggestion.isEmpty() ? list : suggestion);
}

QString unknownAttribute(const QString &name)
{
    const QStringList known = ProductCondition::attributeNames();
    const QString suggestion = didYouMean(name, known);
    return u"products have no attribute \"%1\""_s.arg(name)
            + (suggestion.isEmpty() ? "; they have: "_L1 + known.join(", "_L1) : suggestion);
}

// A wildcard would stop at the "/" of a path, but names of products are no paths.
QString withoutPaths(QString text)
{
    return text.replace(u'/', QChar::ObjectReplacementCharacter);
}

bool compares(int number, const QString &sign, int wanted)
{
    if (sign == "<"_L1)
        return number < wanted;
    if (sign == "<="_L1)
        return number <= wanted;
    if (sign == ">"_L1)
        return number > wanted;
    if (sign == ">="_L1)
        return number >= wanted;
    return number == wanted;
}

bool isOrder(const QString &sign)
{
    return sign.contains(u'<') || sign.contains(u'>');
}

}

QStringList ProductCondition::attributeNames()
{
    QStringList result;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts())
        result += attribute.name();
    for (const auto &row : TEXTS)
        result += row.name;
    for (const auto &row : NUMBERS)
        result += row.name;
    return result;
}

ProductCondition::ProductCondition(const QString &text)
{
    static const QRegularExpression form(u"^\\s*([^=!<>\\s]+)\\s*(!=|<=|>=|=|<|>)\\s*(.*?)\\s*$"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(text);
    const QString name = match.captured(1);
    const QString sign = match.captured(2);
    if (!match.hasMatch())
        myProblem = u"\"%1\" is no condition; write it like cover_type=HARDCOVER"_s.arg(text);
    else if (const RVCatalogueAttribute attribute = RVCatalogueAttribute::find(name);
             RVCatalogueAttribute::ofProducts().contains(attribute))
        myTest = keywordTest(name, sign, match.captured(3));
    else if (find(NUMBERS, name) != std::end(NUMBERS))
        myTest = numberTest(name, sign, match.captured(3));
    else if (find(TEXTS, name) != std::end(TEXTS))
        myTest = textTest(name, sign, match.captured(3));
    else
        myProblem = unknownAttribute(name);
    if (myProblem.isEmpty() && isOrder(sign) && find(NUMBERS, name) == std::end(NUMBERS))
        myProblem = u"%1 is no number, so \"%2\" cannot compare it"_s.arg(name, sign);
    myIsNegated = sign == "!="_L1;
}

bool ProductCondition::isMetBy(const RVCatalogueProduct &product) const
{
    return myProblem.isEmpty() && myTest(product) != myIsNegated;
}

ProductCondition::Test ProductCondition::keywordTest(const QString &name, const QString &, const QString &value)
{
    const RVCatalogueAttribute attribute = RVCatalogueAttribute::find(name);
    if (value.isEmpty())
        return [attribute](const RVCatalogueProduct &product) { return !attribute.isIn(product); };
    const RVCatalogueAttributeDecoding wanted = attribute.decode(value);
    if (!wanted.unknownPieces.isEmpty())
        myProblem = unknownKeyword(attribute, wanted.unknownPieces.constFirst());
    return [attribute, bits = wanted.value](const RVCatalogueProduct &product) {
        const qint64 has = attribute.value(product);
        return bits == 0 ? has == 0 : (has & bits) == bits;
    };
}

ProductCondition::Test ProductCondition::numberTest(const QString &name, const QString &sign, const QString &value)
{
    const Number number = find(NUMBERS, name)->number;
    if (value.isEmpty() && !isOrder(sign))
        return [number, attribute = name.toLatin1()](const RVCatalogueProduct &product) {
            // Page counts and shipping groups have values that other attributes, or nothing, give them.
            return !number(product) || product.element().utf8(QLatin1StringView(attribute)).isEmpty();
        };
    bool isNumber = false;
    const int wanted = value.toInt(&isNumber);
    if (!isNumber)
        myProblem = u"\"%1\" is no whole number, and %2 is one"_s.arg(value, name);
    return [number, sign, wanted](const RVCatalogueProduct &product) {
        const std::optional<int> has = number(product);
        return has && compares(*has, sign, wanted);
    };
}

ProductCondition::Test ProductCondition::textTest(const QString &name, const QString &, const QString &value)
{
    const Texts texts = find(TEXTS, name)->texts;
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(withoutPaths(value)),
                                     QRegularExpression::CaseInsensitiveOption
                                             | QRegularExpression::DotMatchesEverythingOption);
    pattern.optimize(); // here instead of in the threads that share it
    if (!pattern.isValid())
        myProblem = u"\"%1\" is no pattern: %2"_s.arg(value, pattern.errorString());
    return [texts, pattern](const RVCatalogueProduct &product) {
        const QStringList all = texts(product);
        const auto matches = [&pattern](const QString &text) { return pattern.match(withoutPaths(text)).hasMatch(); };
        return all.isEmpty() ? matches(QString()) : std::any_of(all.begin(), all.end(), matches);
    };
}
