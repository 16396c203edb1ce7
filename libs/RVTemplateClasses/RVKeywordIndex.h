#ifndef RVKEYWORDINDEX_H
#define RVKEYWORDINDEX_H

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>
#include <QtMath>

#include <algorithm>
#include <cstring>

/**
 * Keywords in the form in which they are found fastest: a flat hash table that reads and compares four letters at a
 * time. The values are those of any enumeration.
 *
 * A part of RVEnumToStringTable, which applications ask instead.
 *
 * Letter case and white space around a keyword are ignored, and nothing is allocated to find one. It knows ASCII
 * keywords of up to LONGEST letters only; covers() tells for which texts "not found" is the last word.
 *
 * @ingroup templates
 */
class RVKeywordIndex
{
public:
    /// In UTF-16 code units.
    static constexpr qsizetype LONGEST = 32;

    /// Without keywords.
    RVKeywordIndex() = default;
    /// The keywords that it covers, which may be in any letter case but not differ in it alone.
    template<typename ENUM>
    explicit RVKeywordIndex(const QHash<QString, ENUM> &keywords);

    /// The value of the keyword; null for one that it does not know. Any number of threads may ask.
    const qint64 *find(QStringView keyword) const noexcept;

    /// True for ASCII texts of up to LONGEST letters; for none where it was made without keywords.
    bool covers(QStringView keyword) const noexcept;

private:
    static constexpr quint64 EACH = 0x0001'0001'0001'0001; // puts a number into each of the four letters of a word
    static constexpr quint64 CASE = 0x20 * EACH; // tells "a" from "A"
    static constexpr quint64 GOLDEN_RATIO = 0x9e37'79b9'7f4a'7c15; // a part of 2^64; spreads what differs in few bits

    struct Slot
    {
        bool isFree() const noexcept { return length < 0; }
        bool holds(QStringView keyword) const noexcept;

        quint64 words[LONGEST / 4] = {};
        qsizetype length = -1;
        qint64 value = 0;
    };

    static QStringView trimmed(QStringView text) noexcept;
    static quint64 word(QStringView text, qsizetype number) noexcept;
    static quint64 lowerCase(quint64 word) noexcept;
    static qsizetype wordCount(QStringView text) noexcept { return (text.size() + 3) / 4; }
    qsizetype position(QStringView keyword) const noexcept;
    void insert(QStringView keyword, qint64 value);

    QList<Slot> mySlots; // as many as a power of two, half of them or more free
};

template<typename ENUM>
RVKeywordIndex::RVKeywordIndex(const QHash<QString, ENUM> &keywords)
{
    if (keywords.isEmpty())
        return;
    mySlots.resize(qsizetype(qNextPowerOfTwo(quint64(keywords.size()) * 2 - 1)));
    for (auto it = keywords.begin(); it != keywords.end(); ++it) {
        if (covers(it.key()))
            insert(it.key(), qint64(it.value()));
    }
}

inline void RVKeywordIndex::insert(QStringView keyword, qint64 value)
{
    Slot &slot = mySlots[position(keyword)];
    for (qsizetype i = 0; i < wordCount(keyword); ++i)
        slot.words[i] = lowerCase(word(keyword, i));
    slot.length = keyword.size();
    slot.value = value;
}

inline const qint64 *RVKeywordIndex::find(QStringView keyword) const noexcept
{
    if (mySlots.isEmpty())
        return nullptr;
    const Slot &slot = mySlots.at(position(trimmed(keyword)));
    return slot.isFree() ? nullptr : &slot.value;
}

inline bool RVKeywordIndex::covers(QStringView keyword) const noexcept
{
    return !mySlots.isEmpty() && keyword.size() <= LONGEST
            && std::all_of(keyword.begin(), keyword.end(), [](QChar letter) { return letter.unicode() < 0x80; });
}

// Where the keyword is, else the free slot where it would be. First and last letters tell most keywords apart.
inline qsizetype RVKeywordIndex::position(QStringView keyword) const noexcept
{
    const quint64 first = word(keyword, 0) | CASE;
    const quint64 last = word(keyword, wordCount(keyword) - 1) | CASE;
    const quint64 hash = (first + 31 * last + quint64(keyword.size())) * GOLDEN_RATIO;
    const Slot *const all = mySlots.constData();
    const qsizetype mask = mySlots.size() - 1;
    qsizetype i = qsizetype(hash >> 32) & mask;
    while (!all[i].isFree() && !all[i].holds(keyword))
        i = (i + 1) & mask;
    return i;
}

// A letter beyond ASCII keeps the bits that tell it from every letter of a keyword.
inline bool RVKeywordIndex::Slot::holds(QStringView keyword) const noexcept
{
    if (length != keyword.size())
        return false;
    for (qsizetype i = 0; i < wordCount(keyword); ++i) {
        if (lowerCase(word(keyword, i)) != words[i])
            return false;
    }
    return true;
}

// The white space of ASCII.
inline QStringView RVKeywordIndex::trimmed(QStringView text) noexcept
{
    const auto isSpace = [](QChar letter) { return letter == u' ' || (letter >= u'\t' && letter <= u'\r'); };
    while (!text.isEmpty() && isSpace(text.back()))
        text.chop(1);
    while (!text.isEmpty() && isSpace(text.front()))
        text = text.sliced(1);
    return text;
}

// Four letters. Those of the last word come from the end of the text, so some may be in the word before it as well.
inline quint64 RVKeywordIndex::word(QStringView text, qsizetype number) noexcept
{
    const char16_t *const letters = text.utf16();
    quint64 result = 0;
    if (text.size() >= 4) {
        std::memcpy(&result, letters + std::min(number * 4, text.size() - 4), sizeof result);
        return result;
    }
    for (qsizetype i = 0; i < text.size(); ++i)
        result = result << 16 | letters[i];
    return result;
}

// Bit 7 of an ASCII letter is free. It becomes set where a letter is moved up far enough: from "A", and behind "Z".
// What comes of other letters does not matter, as long as no bit of theirs is cleared.
inline quint64 RVKeywordIndex::lowerCase(quint64 word) noexcept
{
    const quint64 fromA = word + (0x80 - u'A') * EACH;
    const quint64 behindZ = word + (0x80 - (u'Z' + 1)) * EACH;
    const quint64 upperCase = fromA & ~behindZ & 0x80 * EACH;
    return word | upperCase >> 2; // in the place of CASE
}

#endif
