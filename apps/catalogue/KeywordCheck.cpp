#include "KeywordCheck.h"

#include "CatalogueAttribute.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Nobody mistypes a longer word so that it could be guessed, and a list has no more pieces than this in earnest.
constexpr qsizetype LONGEST_GUESS = 40;
constexpr qsizetype MOST_FAULTS = 100;

/// The keywords of one attribute in lower case, each with the main keyword of its value.
using MainKeywords = QHash<QString, QString>;

/// What an alias means has a keyword that tells more, unless that is a bare number.
QString mainKeyword(const AttributeValue &value, const QString &alias)
{
    const bool isNumber = std::all_of(value.keyword.begin(), value.keyword.end(),
                                      [](QChar character) { return character.isDigit(); });
    return isNumber ? alias : value.keyword;
}

MainKeywords mainKeywords(const CatalogueAttribute &attribute)
{
    MainKeywords result;
    for (const AttributeValue &value : attribute.values()) {
        result.insert(value.keyword.toLower(), value.keyword);
        for (const QString &alias : value.aliases)
            result.insert(alias, mainKeyword(value, alias));
    }
    return result;
}

const MainKeywords &mainKeywordsOf(QLatin1StringView attribute)
{
    static const auto theKeywords = [] {
        QHash<QString, MainKeywords> result;
        for (const CatalogueAttribute &each : catalogueAttributes())
            result.insert(each.name, mainKeywords(each));
        return result;
    }();
    return *theKeywords.constFind(attribute);
}

bool isAlias(MainKeywords::const_iterator keyword)
{
    return keyword.key() != keyword.value().toLower();
}

/// Of the keywords that are equally near, a main one, then the first of the alphabet; none where half of the letters
/// differ.
MainKeywords::const_iterator nearestKeyword(const QString &piece, const MainKeywords &keywords)
{
    auto nearest = keywords.end();
    if (piece.size() > LONGEST_GUESS)
        return nearest;
    int best = int(piece.size() + 1) / 2;
    for (auto it = keywords.begin(); it != keywords.end(); ++it) {
        if (qAbs(piece.size() - it.key().size()) > best)
            continue;
        const int distance = editDistance(piece, it.key());
        const auto rank = [](auto keyword) { return std::pair(isAlias(keyword), keyword.key()); };
        if (distance < best || (distance == best && nearest != keywords.end() && rank(it) < rank(nearest))) {
            best = distance;
            nearest = it;
        }
    }
    return nearest;
}

/// In the letter case of a piece that is all lower case, else as it is.
QString spelledLike(const QString &piece, const QString &keyword)
{
    return piece == piece.toLower() ? keyword.toLower() : keyword;
}

KeywordFault unknownKeyword(const QString &piece, const MainKeywords &keywords)
{
    const auto nearest = nearestKeyword(piece.toLower(), keywords);
    if (nearest == keywords.end())
        return { piece, QString(), QString(), false };
    const QString meaning = spelledLike(piece, nearest.value());
    return isAlias(nearest) ? KeywordFault { piece, nearest.key(), meaning, false }
                            : KeywordFault { piece, meaning, QString(), false };
}

}

const QList<QLatin1StringView> &keywordAttributesOfProducts()
{
    static const QList<QLatin1StringView> theNames = {
        "article_class"_L1,   "cover_type"_L1,  "page_binding"_L1,    "paper_type"_L1,
        "foto_paper_type"_L1, "orientation"_L1, "space_magnitude"_L1,
    };
    return theNames;
}

QList<KeywordFault> keywordFaults(QLatin1StringView attribute, const QString &list)
{
    const MainKeywords &keywords = mainKeywordsOf(attribute);
    QList<KeywordFault> result;
    for (const QString &part : list.split(u',')) {
        const QString piece = part.trimmed();
        const QString lower = piece.toLower();
        const auto known = keywords.constFind(lower);
        const bool isKnown = known != keywords.constEnd();
        if (isKnown && known->toLower() == lower)
            continue;
        result += isKnown ? KeywordFault { piece, spelledLike(piece, *known), QString(), true }
                          : unknownKeyword(piece, keywords);
        if (result.size() == MOST_FAULTS)
            break;
    }
    return result;
}

int editDistance(QStringView a, QStringView b)
{
    // Three rows of the table of distances between the beginnings of both texts.
    std::vector<int> beforeLast(std::size_t(b.size()) + 1);
    std::vector<int> last(beforeLast.size());
    std::vector<int> row(beforeLast.size());
    for (std::size_t j = 0; j < row.size(); ++j)
        row[j] = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = int(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto at = std::size_t(j);
            row[at] = std::min({ last[at] + 1, row[at - 1] + 1, last[at - 1] + (a[i - 1] == b[j - 1] ? 0 : 1) });
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return row.back();
}
