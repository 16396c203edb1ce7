#include "RVNameGuess_p.h"

#include "RVNearestText.h"

#include <QString>
#include <QStringList>
#include <QtAlgorithms>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// Known names from this length on may need two changes.
constexpr int LONG_NAME = 10;
constexpr qsizetype SHORT_NAME = 4;
/// Words up to this length may need one change, even in a long name.
constexpr qsizetype SHORT_WORD = 5;
/// Words that are near these known names by chance: `height`, `preview`, `base_width`, `composition` and `product`.
constexpr QLatin1StringView OTHER_WORDS[] = { QLatin1StringView("weight"), QLatin1StringView("review"),
                                              QLatin1StringView("case_width"), QLatin1StringView("competition"),
                                              QLatin1StringView("produce") };
constexpr RVNameList OTHER_NAMES(OTHER_WORDS);
constexpr int TOO_MANY = std::numeric_limits<int>::max();

bool isSign(char letter)
{
    return letter == '_' || letter == '-' || letter == '.';
}

/// The letters of a name in any order; they distinguish nearly all foreign names from the known ones.
class LetterSet
{
public:
    explicit LetterSet(QByteArrayView name)
    {
        for (const char letter : name) {
            if (isSign(letter))
                continue;
            myLetters |= bit(letter);
            myBytes |= uchar(letter);
            ++mySize;
        }
    }

    int size() const { return mySize; }
    /// False if one cannot become the other with this number of changes and "ph" for "f".
    bool mayBe(const LetterSet &known, int changes) const
    {
        const quint32 interchangeable = bit('p') | bit('h') | bit('f');
        const quint32 others = (myLetters ^ known.myLetters) & ~interchangeable;
        return myBytes > 0x7F || int(qPopulationCount(others)) <= 2 * changes;
    }

private:
    /// One of 32, which is the same for a capital and a small letter.
    static quint32 bit(char letter) { return 1U << (letter & 0x1F); }

    quint32 myLetters {};
    uchar myBytes {}; // combined
    int mySize = 0;
};

/// A name without the parts that do not count.
QString folded(QByteArrayView name)
{
    QString result = QString::fromUtf8(name).toCaseFolded();
    result.removeIf([](QChar letter) { return isSign(letter.toLatin1()); });
    return result;
}

/// The number of changes that turn one into the other, with or without "ph" as "f"; at most the limit.
int distanceBetween(QString name, QString known, int limit)
{
    RVNearestText nearest(name, limit);
    nearest.offer(known);
    RVNearestText nearestSound(name.replace("ph"_L1, "f"_L1), nearest.distance());
    nearestSound.offer(known.replace("ph"_L1, "f"_L1));
    return nearestSound.distance();
}

/// True if letters beyond ASCII replace up to half of the letters.
bool looksLike(const QString &name, const QString &known)
{
    if (name.size() != known.size())
        return false;
    qsizetype others = 0;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool isAscii = name.at(i).unicode() < 0x80;
        if (isAscii && name.at(i) != known.at(i))
            return false;
        others += isAscii ? 0 : 1;
    }
    return others * 2 <= name.size();
}

/// True for two texts that differ by a replaced letter, not by an added, removed or swapped one.
bool isReplaced(QString a, QString b)
{
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return a.size() == b.size() && a != b;
}

/// The words of a name in lower case. A sign, or a capital letter behind a small one, begins a word.
QStringList words(QByteArrayView name)
{
    QString text;
    bool isBehindSmallLetter = false;
    for (const QChar letter : QString::fromUtf8(name)) {
        if (isBehindSmallLetter && letter.isUpper())
            text += u'_';
        text += isSign(letter.toLatin1()) ? QChar(u'_') : letter.toLower();
        isBehindSmallLetter = letter.isLower();
    }
    return text.split(u'_', Qt::SkipEmptyParts);
}

/// True for a known name with a word in front of it or behind it, or with a number behind it, which is another name.
bool isExtended(const QStringList &words, const QStringList &knownWords)
{
    const QString text = words.join(QString());
    const QString known = knownWords.join(QString());
    const QStringView rest = QStringView(text).sliced(text.startsWith(known) ? known.size() : text.size());
    const bool isNumbered = !rest.isEmpty()
            && std::all_of(rest.begin(), rest.end(), [](QChar letter) { return letter.isDigit(); });
    if (isNumbered || words.size() != knownWords.size() + 1)
        return isNumbered;
    return words.first(knownWords.size()) == knownWords || words.last(knownWords.size()) == knownWords;
}

/// False if a short word differs too much.
bool areLikeWords(const QStringList &words, const QStringList &knownWords)
{
    if (words.size() != knownWords.size())
        return true;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const bool isShort = qMin(words.at(i).size(), knownWords.at(i).size()) <= SHORT_WORD;
        RVNearestText nearest(words.at(i), 2);
        nearest.offer(knownWords.at(i));
        if (isShort && nearest.text().isNull())
            return false;
    }
    return true;
}

/// True for a name that is nearly the known one, but means something else.
bool isOtherName(QByteArrayView name, QLatin1StringView known, int changes)
{
    const QStringList ours = words(name);
    const QStringList theirs = words(QByteArrayView(known.data(), known.size()));
    return OTHER_NAMES.contains(ours.join(u'_').toUtf8()) || isExtended(ours, theirs)
            || (changes > 1 && !areLikeWords(ours, theirs));
}

/// The number of changes that turn a name into a known name.
int changesTo(QLatin1StringView known, QByteArrayView name, const LetterSet &letters)
{
    const QByteArrayView knownName(known.data(), known.size());
    const LetterSet knownLetters(knownName);
    const int limit = knownLetters.size() < LONG_NAME ? 1 : 2;
    if (!letters.mayBe(knownLetters, limit))
        return TOO_MANY;
    const QString text = folded(name);
    const QString knownText = folded(knownName);
    if (looksLike(text, knownText))
        return text == knownText ? 0 : 1;
    const int changes = distanceBetween(text, knownText, limit + 1);
    const bool isOther = changes > limit || (knownText.size() <= SHORT_NAME && isReplaced(text, knownText))
            || isOtherName(name, known, changes);
    return isOther ? TOO_MANY : changes;
}

}

RVNameGuess rvGuessName(QByteArrayView name, const RVNameList &knownNames)
{
    RVNameGuess result;
    result.changes = TOO_MANY;
    const LetterSet letters(name);
    for (const QLatin1StringView known : knownNames) {
        const int changes = changesTo(known, name, letters);
        if (changes == TOO_MANY || changes > result.changes)
            continue;
        if (changes < result.changes)
            result.names.clear();
        result.changes = changes;
        result.names += known;
    }
    return result;
}
