#ifndef RVKEYWORDINDEX_H
#define RVKEYWORDINDEX_H

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

#include <algorithm>

/**
 * Keywords in the form in which they are found fastest: those of one length together, in lower case. The values are
 * those of any enumeration.
 *
 * A part of RVEnumToStringTable, which applications ask instead.
 *
 * Letter case and white space around a keyword are ignored, and nothing is allocated to find one. It knows ASCII
 * keywords of up to LONGEST letters only; covers() tells for which texts "not found" is the last word.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVKeywordIndex
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
    struct Keyword
    {
        bool matches(const QChar *letters) const noexcept;

        QString text; // in lower case
        qint64 value;
    };

    static QStringView trimmed(QStringView text) noexcept;
    static char16_t lowerCase(QChar letter) noexcept;

    QList<QList<Keyword>> myKeywords; // by their length
};

template<typename ENUM>
RVKeywordIndex::RVKeywordIndex(const QHash<QString, ENUM> &keywords)
{
    if (keywords.isEmpty())
        return;
    myKeywords.resize(LONGEST + 1);
    for (auto it = keywords.begin(); it != keywords.end(); ++it) {
        if (covers(it.key()))
            myKeywords[it.key().size()].append({ it.key().toLower(), qint64(it.value()) });
    }
}

inline const qint64 *RVKeywordIndex::find(QStringView keyword) const noexcept
{
    const QStringView wanted = trimmed(keyword);
    if (wanted.size() >= myKeywords.size())
        return nullptr;
    for (const Keyword &known : myKeywords.at(wanted.size())) {
        if (known.matches(wanted.data()))
            return &known.value;
    }
    return nullptr;
}

inline bool RVKeywordIndex::covers(QStringView keyword) const noexcept
{
    return !myKeywords.isEmpty() && keyword.size() <= LONGEST
            && std::all_of(keyword.begin(), keyword.end(), [](QChar letter) { return letter.unicode() < 0x80; });
}

// As many letters as the keyword has.
inline bool RVKeywordIndex::Keyword::matches(const QChar *letters) const noexcept
{
    return std::equal(text.begin(), text.end(), letters,
                      [](QChar known, QChar letter) { return known.unicode() == lowerCase(letter); });
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

// Letters beyond ASCII stay, so they match none of a keyword.
inline char16_t RVKeywordIndex::lowerCase(QChar letter) noexcept
{
    return letter >= u'A' && letter <= u'Z' ? char16_t(letter.unicode() + 0x20) : letter.unicode();
}

#endif
