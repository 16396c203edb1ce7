#include "RVKeywordVocabulary_p.h"

#include "RVNearestText.h"

#include <algorithm>

namespace {

/// Nobody mistypes a longer word so that it could be guessed, and a list has no more pieces than this in earnest.
constexpr qsizetype LONGEST_GUESS = 40;
constexpr qsizetype MOST_FAULTS = 100;

/// In the letter case of a piece that is all lower case, else as it is.
QString spelledLike(const QString &piece, const QString &keyword)
{
    return piece == piece.toLower() ? keyword.toLower() : keyword;
}

bool isNumber(const QString &keyword)
{
    return std::all_of(keyword.begin(), keyword.end(), [](QChar letter) { return letter.isDigit(); });
}

/// The keywords of an attribute in lower case, each with the one that is written for its value. Where that is a bare
/// number an alias tells more, and is as good.
QHash<QString, QString> mainKeywords(RVCatalogueAttribute attribute)
{
    QHash<QString, QString> result;
    for (const RVCatalogueAttributeValue &value : attribute.values()) {
        result.insert(value.keyword.toLower(), value.keyword);
        for (const QString &alias : value.aliases)
            result.insert(alias, isNumber(value.keyword) ? alias : value.keyword);
    }
    return result;
}

bool isAlias(const QString &keyword, const QString &mainKeyword)
{
    return keyword != mainKeyword.toLower();
}

}

const std::vector<RVKeywordVocabulary> &RVKeywordVocabulary::ofProducts()
{
    static const std::vector<RVKeywordVocabulary> theVocabularies = [] {
        std::vector<RVKeywordVocabulary> result;
        for (const RVCatalogueAttribute attribute : RVCatalogueAttribute::ofProducts())
            result.emplace_back(attribute);
        return result;
    }();
    return theVocabularies;
}

RVKeywordVocabulary::RVKeywordVocabulary(RVCatalogueAttribute attribute)
    : myAttribute(attribute),
      myMainKeywords(mainKeywords(attribute)),
      myGuesses(myMainKeywords.keys())
{
    std::sort(myGuesses.begin(), myGuesses.end());
    const auto aliases = std::stable_partition(myGuesses.begin(), myGuesses.end(), [this](const QString &keyword) {
        return !isAlias(keyword, myMainKeywords[keyword]);
    });
    std::transform(myGuesses.begin(), aliases, std::back_inserter(myFaultless),
                   [](const QString &keyword) { return keyword.toUtf8(); });
    std::sort(myFaultless.begin(), myFaultless.end());
}

bool RVKeywordVocabulary::hasAll(QByteArrayView list) const
{
    const char *piece = list.begin();
    for (;;) {
        const char *end = std::find(piece, list.end(), ',');
        if (!has(QByteArrayView(piece, end).trimmed()))
            return false;
        if (end == list.end())
            return true;
        piece = end + 1;
    }
}

bool RVKeywordVocabulary::has(QByteArrayView piece) const
{
    const auto found = std::lower_bound(myFaultless.begin(), myFaultless.end(), piece,
                                        [](const QByteArray &keyword, QByteArrayView wanted) {
                                            return wanted.compare(keyword, Qt::CaseInsensitive) > 0;
                                        });
    return found != myFaultless.end() && piece.compare(*found, Qt::CaseInsensitive) == 0;
}

QList<RVKeywordFault> RVKeywordVocabulary::faults(const QString &list) const
{
    QList<RVKeywordFault> result;
    for (const QStringView part : QStringView(list).split(u',')) {
        const QString piece = part.trimmed().toString();
        const QString lower = piece.toLower();
        const auto known = myMainKeywords.constFind(lower);
        const bool isKnown = known != myMainKeywords.constEnd();
        if (isKnown && !isAlias(lower, *known))
            continue;
        result += isKnown ? RVKeywordFault { piece, spelledLike(piece, *known), QString(), true }
                          : unknownKeyword(piece);
        if (result.size() == MOST_FAULTS)
            break;
    }
    return result;
}

RVKeywordFault RVKeywordVocabulary::unknownKeyword(const QString &piece) const
{
    const QString nearest = nearestTo(piece);
    if (nearest.isNull())
        return { piece, QString(), QString(), false };
    const QString mainKeyword = myMainKeywords[nearest];
    const QString meaning = spelledLike(piece, mainKeyword);
    return isAlias(nearest, mainKeyword) ? RVKeywordFault { piece, nearest, meaning, false }
                                         : RVKeywordFault { piece, meaning, QString(), false };
}

/// None where half of the letters differ.
QString RVKeywordVocabulary::nearestTo(const QString &piece) const
{
    if (piece.size() > LONGEST_GUESS)
        return QString();
    RVNearestText nearest(piece, int(piece.size() + 1) / 2);
    for (const QString &keyword : myGuesses)
        nearest.offer(keyword);
    return nearest.text();
}
