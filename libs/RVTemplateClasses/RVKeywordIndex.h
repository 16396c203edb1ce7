#ifndef RVKEYWORDINDEX_H
#define RVKEYWORDINDEX_H

#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

#include <algorithm>

/**
 * Keywords in the form that is fastest to search: grouped by length, in lower case. The values are those of any
 * enumeration.
 *
 * It is a part of RVEnumToStringTable; applications use the table instead.
 *
 * A search ignores letter case and white space around a keyword, and allocates nothing. The index has only ASCII
 * keywords of up to LONGEST letters; covers() says for which texts "not found" is final.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVKeywordIndex
 *
 * @ingroup templates
 */
class RVKeywordIndex
{
public:
    /// The length in UTF-16 code units.
    static constexpr qsizetype LONGEST = 32;

    /// An index without keywords.
    RVKeywordIndex() = default;
    /// The covered keywords, in any letter case; two of them must not differ only in letter case.
    template<typename ENUM>
    explicit RVKeywordIndex(const QHash<QString, ENUM> &keywords);

    /// The value of the keyword; null for an unknown one. Any number of threads may call it.
    const qint64 *find(QStringView keyword) const noexcept;

    /// True for ASCII texts of up to LONGEST letters; always false for an index without keywords.
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

// The number of letters is that of the keyword.
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

// Letters beyond ASCII stay as they are, so they match no letter of a keyword.
inline char16_t RVKeywordIndex::lowerCase(QChar letter) noexcept
{
    return letter >= u'A' && letter <= u'Z' ? char16_t(letter.unicode() + 0x20) : letter.unicode();
}

#endif
