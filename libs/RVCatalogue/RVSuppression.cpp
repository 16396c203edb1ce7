#include "RVSuppression_p.h"

#include "RVNearestText.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto PROGRAM = "rvcatalog"_L1;
constexpr auto VERB = "ignore"_L1;
constexpr qsizetype MOST_UNKNOWN_NAMES = 100;

/// The parts of a comment.
struct Words
{
    QString program;
    bool hasColon;
    QString verb;
    QStringList names;

    bool isForProgram() const { return program == PROGRAM; }
    bool isVerbRight() const { return verb == VERB; }
    bool namesRule() const
    {
        return std::any_of(names.begin(), names.end(),
                           [](const QString &name) { return !RVCatalogueRule::find(name).isNull(); });
    }
};

/// Most comments begin with another letter, and cost nothing more.
bool mayBeMeant(QByteArrayView comment)
{
    const QByteArrayView text = comment.trimmed();
    return text.startsWith('r') || text.startsWith('R');
}

/// True for a word that is the program's name, also with a typing mistake.
bool isNearProgram(const QString &word)
{
    constexpr int tooFar = 3;
    RVNearestText nearest(word, tooFar);
    nearest.offer(PROGRAM);
    return !nearest.text().isNull();
}

/// Splits a comment, ignoring letter case; nothing for a comment that begins with another word.
std::optional<Words> wordsOf(QByteArrayView comment)
{
    static const QRegularExpression form(uR"(^\s*(r\w{1,11})\s*([:-]?)\s*(\w*)\s*:?(.*)$)"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression separator(u"[\\s,;]+"_s);
    const QRegularExpressionMatch match = form.match(QString::fromUtf8(comment).toLower());
    if (!match.hasMatch() || !isNearProgram(match.captured(1)))
        return std::nullopt;
    return Words { match.captured(1), match.capturedView(2) == ":"_L1, match.captured(3),
                   match.captured(4).split(separator, Qt::SkipEmptyParts) };
}

/// True for a comment that would silence a rule with the right spelling. Ordinary sentences about the program are
/// different.
bool isMisspelt(const Words &words)
{
    return words.isForProgram() ? words.hasColon || words.namesRule() : words.isVerbRight() || words.namesRule();
}

void addNames(const QStringList &names, RVSuppression *suppression)
{
    QStringList &unknown = suppression->unknownNames;
    for (const QString &name : names) {
        const RVCatalogueRule rule = RVCatalogueRule::find(name);
        if (!rule.isNull())
            suppression->rules.set(std::size_t(RVCatalogueRuleRow::of(rule)->id));
        else if (unknown.size() < MOST_UNKNOWN_NAMES && !unknown.contains(name))
            unknown += name;
    }
}

}

std::optional<RVSuppression> RVSuppression::read(QByteArrayView comment, const RVFileRange &range)
{
    if (!mayBeMeant(comment))
        return std::nullopt;
    const std::optional<Words> words = wordsOf(comment);
    if (!words)
        return std::nullopt;
    RVSuppression result;
    result.range = range;
    result.isReadable = words->isForProgram() && words->isVerbRight();
    if (result.isReadable)
        addNames(words->names, &result);
    else if (!isMisspelt(*words))
        return std::nullopt;
    return result;
}
