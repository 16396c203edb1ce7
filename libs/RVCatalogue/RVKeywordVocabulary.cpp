#include "RVKeywordVocabulary_p.h"

#include "RVForeignLetters_p.h"
#include "RVNearestTexts_p.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The highest number of pieces; a real list has fewer.
constexpr qsizetype MOST_FAULTS = 100;

/// The keyword in lower case if the piece is in lower case, otherwise unchanged.
QString spelledLike(const QString &piece, const QString &keyword)
{
    return piece == piece.toLower() ? keyword.toLower() : keyword;
}

bool isNumber(const QString &keyword)
{
    return std::all_of(keyword.begin(), keyword.end(), [](QChar letter) { return letter.isDigit(); });
}

/// The keywords of an attribute in lower case, each with the main keyword of its value. If that is only a number, an
/// alias is clearer and counts as a main keyword.
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

/// The keyword to write for a value.
QString writtenKeyword(const RVCatalogueAttributeValue &value)
{
    return isNumber(value.keyword) && !value.aliases.isEmpty() ? value.aliases.first() : value.keyword;
}

/// Display names are words, or begins of words that end with a hyphen.
QString foldedName(const QString &name)
{
    const QString word = name.trimmed();
    return (word.endsWith(u'-') ? word.chopped(1) : word).normalized(QString::NormalizationForm_C).toCaseFolded();
}

/// The text in lower case, without separators of words.
QString withoutSeparators(const QString &text)
{
    static const QRegularExpression theSeparators(u"[\\s_-]+"_s);
    return text.toLower().remove(theSeparators);
}

/// The separators of other lists.
const QRegularExpression &otherSeparators()
{
    static const QRegularExpression theSeparators(u"[;|/+&]"_s);
    return theSeparators;
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
    for (const QString &keyword : std::as_const(myGuesses))
        mySqueezed[withoutSeparators(keyword)] += keyword;
    for (const RVCatalogueAttributeValue &value : attribute.values()) {
        myKeywords += writtenKeyword(value);
        if (!value.displayName.isEmpty())
            myKeywordsOfNames[foldedName(value.displayName)] += writtenKeyword(value);
    }
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
    const QStringView whole(list);
    for (const QStringView part : whole.split(u',')) {
        const QStringView piece = part.trimmed();
        std::optional<RVKeywordFault> fault = faultOf(piece.toString());
        if (!fault)
            continue;
        fault->from = (piece.isEmpty() ? part : piece).data() - whole.data();
        result += *fault;
        if (result.size() == MOST_FAULTS)
            break;
    }
    return result;
}

std::optional<RVKeywordFault> RVKeywordVocabulary::faultOf(const QString &piece) const
{
    const QString lower = piece.toLower();
    const auto known = myMainKeywords.constFind(lower);
    if (known == myMainKeywords.constEnd())
        return unknownKeyword(piece);
    if (!isAlias(lower, *known))
        return std::nullopt;
    RVKeywordFault fault;
    fault.kind = RVKeywordFault::Alias;
    fault.piece = piece;
    fault.betterKeywords += spelledLike(piece, *known);
    fault.mended = fault.betterKeywords.first();
    return fault;
}

RVKeywordFault RVKeywordVocabulary::unknownKeyword(const QString &piece) const
{
    RVKeywordFault fault;
    fault.piece = piece;
    if (piece.isEmpty()) {
        fault.kind = RVKeywordFault::Empty;
        return fault;
    }
    const RVForeignLetters letters(piece);
    fault.letters = letters.text();
    const QString plain = letters.isEmpty() ? piece : letters.plain().trimmed();
    if (!explainSpelling(plain, &fault) && !explainName(plain, &fault) && !explainSeparators(plain, &fault)
        && !explainMistake(plain, &fault) && plain.contains(otherSeparators()))
        fault.kind = RVKeywordFault::Separated;
    return fault;
}

/// Keywords with the separators of other lists between them. Blanks and dashes also separate the words of a keyword, so
/// "indigo glossy" may be one or two.
bool RVKeywordVocabulary::explainSeparators(const QString &plain, RVKeywordFault *fault) const
{
    static const QRegularExpression theSeparators(u"\\s*[;|/+&]\\s*|\\s+"_s);
    static const QRegularExpression theBlankBehind(u"[;|/+&]\\s"_s);
    const QStringList pieces = plain.split(theSeparators, Qt::SkipEmptyParts);
    const qsizetype known = countKeywords(pieces);
    const bool areKeywords = known == pieces.size();
    const bool hasSign = plain.contains(otherSeparators());
    if (pieces.size() < 2 || (hasSign ? known == 0 : !areKeywords))
        return false;
    fault->kind = RVKeywordFault::Separated;
    if (!areKeywords)
        return true;
    QStringList faultlessPieces;
    for (const QString &piece : pieces)
        faultlessPieces += faultless(piece, piece.toLower());
    const QLatin1StringView comma = plain.contains(theBlankBehind) ? ", "_L1 : ","_L1;
    fault->mended = faultlessPieces.join(comma);
    fault->betterKeywords += fault->mended;
    return true;
}

qsizetype RVKeywordVocabulary::countKeywords(const QStringList &pieces) const
{
    return std::count_if(pieces.begin(), pieces.end(),
                         [this](const QString &piece) { return myMainKeywords.contains(piece.toLower()); });
}

/// Keywords that differ only in blanks, dashes and letters of the same look or sound.
bool RVKeywordVocabulary::explainSpelling(const QString &plain, RVKeywordFault *fault) const
{
    const QString squeezed = withoutSeparators(plain);
    const QStringList keywords = mySqueezed.value(squeezed);
    const QStringList sounds = mySqueezed.value(QString(squeezed).replace("ph"_L1, "f"_L1));
    if (keywords.isEmpty() && sounds.isEmpty())
        return false;
    guess(plain, keywords.isEmpty() ? sounds : keywords, fault);
    // Two keywords side by side may also be meant as two.
    const QStringList words = plain.split(u' ', Qt::SkipEmptyParts);
    if (keywords.isEmpty() || (words.size() > 1 && countKeywords(words) == words.size()))
        fault->mended = QString();
    return true;
}

bool RVKeywordVocabulary::explainName(const QString &plain, RVKeywordFault *fault) const
{
    const QStringList keywords = myKeywordsOfNames.value(foldedName(plain));
    if (keywords.isEmpty() || keywords.size() > 3)
        return false;
    fault->kind = RVKeywordFault::Named;
    for (const QString &keyword : keywords)
        fault->betterKeywords += spelledLike(plain, keyword);
    if (keywords.size() == 1)
        fault->mended = fault->betterKeywords.first();
    return true;
}

bool RVKeywordVocabulary::explainMistake(const QString &plain, RVKeywordFault *fault) const
{
    RVNearestTexts nearest(plain);
    for (const QString &keyword : myGuesses)
        nearest.offer(keyword);
    // Several mistakes that begin with the first letter make another word.
    constexpr int FEW_MISTAKES = 2;
    if (nearest.texts().isEmpty()
        || (nearest.distance() > FEW_MISTAKES
            && !nearest.texts().constFirst().startsWith(plain.at(0), Qt::CaseInsensitive)))
        return false;
    // If the keywords are more than one letter away, the first guess is as good as any other.
    guess(plain, nearest.distance() > 1 ? nearest.texts().first(1) : nearest.texts(), fault);
    if (nearest.distance() > 1 || !fault->letters.isEmpty())
        fault->mended = QString();
    return true;
}

/// Keywords of one value are one guess.
void RVKeywordVocabulary::guess(const QString &plain, const QStringList &keywords, RVKeywordFault *fault) const
{
    fault->kind = RVKeywordFault::Mistyped;
    QStringList values;
    for (const QString &keyword : keywords) {
        const QString value = myMainKeywords[keyword];
        if (values.contains(value))
            continue;
        values += value;
        fault->betterKeywords += isAlias(keyword, value) ? keyword : spelledLike(plain, value);
    }
    if (values.size() > 1)
        return;
    fault->mended = spelledLike(plain, values.first());
    if (isAlias(keywords.first(), values.first()))
        fault->meaning = fault->mended;
}

/// The main keyword of a keyword in lower case; in the letter case of the piece if that is the main keyword.
QString RVKeywordVocabulary::faultless(const QString &piece, const QString &keyword) const
{
    const QString mainKeyword = myMainKeywords[keyword];
    return isAlias(keyword, mainKeyword) ? spelledLike(piece, mainKeyword) : piece;
}
