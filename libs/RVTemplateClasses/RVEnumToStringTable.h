#ifndef RVENUMTOSTRINGTABLE_H
#define RVENUMTOSTRINGTABLE_H

#include "RVKeywordIndex.h"

#include <QByteArray>
#include <QDebug>
#include <QHash>
#include <QList>
#include <QMessageLogger>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QtAlgorithms>

#include <algorithm>
#include <cstring>
#include <type_traits>

#if defined(__cpp_rtti) && __has_include(<cxxabi.h>)
#    include <cxxabi.h>

#    include <cstdlib>
#    include <memory>
#    include <typeinfo>
#else
#    include <QMetaType>
#endif

/**
 * The two-way table between the values of one flag enumeration and their keywords, the words in which the products
 * XML, keyword lists and project files carry an attribute.
 *
 * Several keywords may stand for one value (aliases); the first one inserted encodes it. A value is a single bit or a
 * named combination of bits. RVEnumWrapper keeps one table per enumeration for the whole process, which is filled once
 * and read by any number of threads afterwards; applications can also create and fill tables of their own.
 *
 * Decoding ignores letter case and white space around a keyword.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVEnumToStringTable
 *
 * @ingroup templates
 */
template<typename ENUM>
class Q_DECL_EXPORT RVEnumToStringTable
{
    static_assert(std::is_enum_v<ENUM>, "a keyword table belongs to an enumeration");

    QHash<QString, ENUM> myKeywords; // lower case
    QHash<ENUM, QString> myEncodings;

public:
    /// Marks a failed look-up, so no enumeration may use it.
    static constexpr ENUM NOT_FOUND = ENUM(-260570);

    /// The text that encoding writes for a value without a keyword, also for an empty value. Empty until assigned.
    QString defaultKeyword;
    /// The value that decoding returns for an unknown keyword. 0 until assigned.
    ENUM defaultValue = ENUM(0);

    /// A table without keywords.
    RVEnumToStringTable() = default;
    // A moved-from table stays consistent. A move of its members one by one would break that.
    RVEnumToStringTable(const RVEnumToStringTable &) = default;
    RVEnumToStringTable &operator=(const RVEnumToStringTable &) = default;

    /// The value of one keyword, @p fallback for an unknown or empty one.
    ENUM decode(const QString &keyword, ENUM fallback) const { return decodePiece(keyword, fallback); }

    /// The value of one keyword, otherwise the default value. If @p warn is true, the message log reports an unknown
    /// keyword that is not empty.
    ENUM decodeOneElement(const QString &keyword, bool warn) const;

    /// All values of a comma-separated list combined. An unknown keyword and an empty piece stand for the default
    /// value, so an empty text gives the default value.
    ENUM decodeCSV(const QString &text) const;

    /// The keyword of exactly this value, a bit or a named combination, otherwise the default keyword.
    QString encode(ENUM value) const { return encoding(value); }

    /// One keyword for each set bit, lowest bit first; the default keyword for a bit that has none. Empty for a value
    /// below 1.
    QStringList encodeAsList(ENUM value) const;

    /// encodeAsList() joined with ", "; the default keyword if that is empty.
    QString encodeCSV(ENUM value) const;

    /// The keyword and the aliases of exactly this value, lower case, sorted.
    QStringList keywords(ENUM value) const;

    /// The keyword and the aliases of every set bit, lowest bit first, sorted within a bit.
    QStringList allPossibleKeywords(ENUM value) const;

    /// Every keyword, lower case, in no particular order.
    QStringList allKnownKeywords() const { return myKeywords.keys(); }

    /// Every value that has a keyword, in no particular order.
    QList<ENUM> allKnownEnumValues() const { return myEncodings.keys(); }

    /// The single bits of a value, lowest first; none for a value below 1.
    QList<ENUM> splitToBitsSorted(ENUM value) const;

    /// True while nothing was inserted and no default assigned.
    bool isUntouched() const;

    /// Adds a keyword. The first keyword of a value encodes it, in the letter case given here; a keyword that is
    /// inserted again decodes to the new value, but still encodes the old one. White space around a keyword is kept, so
    /// decoding never finds such a keyword.
    void insert(const QString &keyword, ENUM value);

    /// Makes look-ups faster without changing their results. Call it after the table was filled; inserting another
    /// keyword undoes it.
    void optimize();

private:
    using Bits = std::make_signed_t<std::underlying_type_t<ENUM>>;
    using UnsignedBits = std::make_unsigned_t<Bits>;

    ENUM decodePiece(QStringView piece, ENUM fallback) const
    {
        const qint64 *const indexed = myIndex.find(piece);
        return indexed ? ENUM(*indexed) : decodeUnindexed(piece, fallback);
    }
    ENUM decodeUnindexed(QStringView piece, ENUM fallback) const;
    const QString &encoding(ENUM value) const
    {
        const auto bits = UnsignedBits(value);
        const bool isIndexed = (bits & myIndexedBits) != 0 && (bits & (bits - 1)) == 0;
        return isIndexed ? myBitKeywords[qCountTrailingZeroBits(bits)] : findEncoding(value);
    }
    const QString &findEncoding(ENUM value) const;
    // The function is hidden, because otherwise a copy of it for each visitor would be part of the binary interface.
    template<typename Visitor>
    Q_DECL_HIDDEN static void visitBits(ENUM value, Visitor visit);
    Q_DECL_HIDDEN static QChar *copy(const QString &keyword, QChar *to);
    static void warnUndecodable(const QString &keyword);

    // Derived from the two maps by optimize().
    RVKeywordIndex myIndex;
    UnsignedBits myIndexedBits = 0;
    QString myBitKeywords[sizeof(ENUM) * 8]; // of the indexed bits, by their numbers
};

// A keyword that the index does not cover is trimmed and converted to lower case by the rules of Unicode, for example a
// text with a no-break space around it or with a Kelvin sign for a "k".
template<typename ENUM>
ENUM RVEnumToStringTable<ENUM>::decodeUnindexed(QStringView piece, ENUM fallback) const
{
    if (myIndex.covers(piece))
        return fallback;
    return myKeywords.value(piece.trimmed().toString().toLower(), fallback);
}

template<typename ENUM>
ENUM RVEnumToStringTable<ENUM>::decodeOneElement(const QString &keyword, bool warn) const
{
    const ENUM value = decode(keyword, NOT_FOUND);
    if (value != NOT_FOUND)
        return value;
    if (warn && !keyword.isEmpty())
        warnUndecodable(keyword);
    return defaultValue;
}

template<typename ENUM>
ENUM RVEnumToStringTable<ENUM>::decodeCSV(const QString &text) const
{
    const QChar *piece = text.begin();
    const QChar *comma = std::find(piece, text.end(), u',');
    Bits bits = Bits(decodePiece({ piece, comma }, defaultValue));
    while (comma != text.end()) {
        piece = comma + 1;
        comma = std::find(piece, text.end(), u',');
        bits |= Bits(decodePiece({ piece, comma }, defaultValue));
    }
    return ENUM(bits);
}

template<typename ENUM>
const QString &RVEnumToStringTable<ENUM>::findEncoding(ENUM value) const
{
    const auto found = myEncodings.constFind(value);
    return found != myEncodings.constEnd() ? *found : defaultKeyword;
}

template<typename ENUM>
QStringList RVEnumToStringTable<ENUM>::encodeAsList(ENUM value) const
{
    QStringList result;
    visitBits(value, [&](ENUM bit) { result += encoding(bit); });
    return result;
}

// The keywords are measured first, so that the text is allocated once.
template<typename ENUM>
QString RVEnumToStringTable<ENUM>::encodeCSV(ENUM value) const
{
    if (Bits(value) < 1)
        return defaultKeyword;
    constexpr QStringView SEPARATOR = u", ";
    const QString *keywords[sizeof(ENUM) * 8];
    int count = 0;
    qsizetype size = -SEPARATOR.size();
    visitBits(value, [&](ENUM bit) {
        const QString &keyword = encoding(bit);
        size += keyword.size() + SEPARATOR.size();
        keywords[count++] = &keyword;
    });
    if (size == 0) // a single empty keyword gives a null text, as an empty list does
        return QString();
    QString result(size, Qt::Uninitialized);
    QChar *end = result.data();
    for (int i = 0; i < count; ++i) {
        if (i != 0)
            end = std::copy(SEPARATOR.begin(), SEPARATOR.end(), end);
        end = copy(*keywords[i], end);
    }
    return result;
}

// Returns the place behind the copy. It copies four letters in each step, and may copy the last four twice. Keywords
// are so short that a call of memcpy for each would take as long as the rest of encodeCSV().
template<typename ENUM>
QChar *RVEnumToStringTable<ENUM>::copy(const QString &keyword, QChar *to)
{
    constexpr qsizetype STEP = 4;
    const QChar *from = keyword.begin();
    if (keyword.size() < STEP)
        return std::copy(from, keyword.end(), to);
    QChar *const end = to + keyword.size();
    const QChar *const lastStep = keyword.end() - STEP;
    for (; from < lastStep; from += STEP, to += STEP)
        std::memcpy(static_cast<void *>(to), from, STEP * sizeof *from);
    std::memcpy(static_cast<void *>(end - STEP), lastStep, STEP * sizeof *lastStep);
    return end;
}

template<typename ENUM>
QStringList RVEnumToStringTable<ENUM>::keywords(ENUM value) const
{
    QStringList result = myKeywords.keys(value);
    result.sort();
    return result;
}

template<typename ENUM>
QStringList RVEnumToStringTable<ENUM>::allPossibleKeywords(ENUM value) const
{
    QStringList result;
    visitBits(value, [&](ENUM bit) { result += keywords(bit); });
    return result;
}

template<typename ENUM>
QList<ENUM> RVEnumToStringTable<ENUM>::splitToBitsSorted(ENUM value) const
{
    QList<ENUM> result;
    if (Bits(value) > 0)
        result.reserve(qPopulationCount(UnsignedBits(value)));
    visitBits(value, [&](ENUM bit) { result += bit; });
    return result;
}

// Calls visit(bit) for each bit of a value, lowest first; never for a value below 1.
template<typename ENUM>
template<typename Visitor>
void RVEnumToStringTable<ENUM>::visitBits(ENUM value, Visitor visit)
{
    for (Bits rest = Bits(value); rest > 0; rest &= rest - 1)
        visit(ENUM(rest & -rest));
}

template<typename ENUM>
bool RVEnumToStringTable<ENUM>::isUntouched() const
{
    return myKeywords.isEmpty() && defaultKeyword.isNull() && defaultValue == ENUM(0);
}

template<typename ENUM>
void RVEnumToStringTable<ENUM>::insert(const QString &keyword, ENUM value)
{
    myKeywords.insert(keyword.toLower(), value);
    if (!myEncodings.contains(value))
        myEncodings.insert(value, keyword);
    myIndex = RVKeywordIndex();
    myIndexedBits = 0;
}

template<typename ENUM>
void RVEnumToStringTable<ENUM>::optimize()
{
    myIndex = RVKeywordIndex(myKeywords);
    for (auto it = myEncodings.begin(); it != myEncodings.end(); ++it) {
        const auto bits = UnsignedBits(it.key());
        if (qPopulationCount(bits) != 1)
            continue;
        myIndexedBits |= bits;
        myBitKeywords[qCountTrailingZeroBits(bits)] = it.value();
    }
}

// Log filters of the application recognise this message by its context. So the context does not depend on the compiler
// or on the place of these lines. A name outside of namespaces, such as that of every attribute, is the same without
// run-time type information.
template<typename ENUM>
void RVEnumToStringTable<ENUM>::warnUndecodable(const QString &keyword)
{
#if defined(__cpp_rtti) && __has_include(<cxxabi.h>)
    const char *typeName = typeid(ENUM).name();
    const std::unique_ptr<char, decltype(&std::free)> demangledName(
            abi::__cxa_demangle(typeName, nullptr, nullptr, nullptr), &std::free);
    const char *readableName = demangledName ? demangledName.get() : typeName;
#else
    const char *readableName = QMetaType::fromType<ENUM>().name();
    const QByteArray mangledName = QByteArray::number(qstrlen(readableName)) + readableName;
    const char *typeName = mangledName.constData();
#endif
    const QByteArray function = QByteArrayLiteral("ENUM RVEnumToStringTable<ENUM>::decodeOneElement(const QString&, "
                                                  "bool) const [with ENUM = ")
            + readableName + ']';
    QMessageLogger("libs/RVTemplateClasses/RVEnumToStringTable", 186, function.constData()).warning()
            << "undecodable:" << keyword << "(using default in" << typeName << ")";
}

#endif
