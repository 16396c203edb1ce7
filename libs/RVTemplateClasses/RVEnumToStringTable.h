#ifndef RVENUMTOSTRINGTABLE_H
#define RVENUMTOSTRINGTABLE_H

#include <QByteArray>
#include <QDebug>
#include <QHash>
#include <QList>
#include <QMessageLogger>
#include <QString>
#include <QStringList>

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <type_traits>
#include <typeinfo>

/**
 * The two-way table between the values of one flag enumeration and their keywords, the words in which the products
 * XML, keyword lists and project files carry an attribute.
 *
 * Several keywords may stand for one value (aliases); the first one inserted encodes it. A value is a single bit or a
 * named combination of bits. RVEnumWrapper keeps one table per enumeration for the whole process, which is filled once
 * and read by any number of threads afterwards; a table of one's own can be made and filled just as well.
 *
 * Decoding ignores letter case and white space around a keyword. The value -260570 marks a failed lookup, so no
 * enumeration may use it.
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
    /// Written by encoding where a value has no keyword, also for an empty value. Empty until assigned.
    QString defaultKeyword;
    /// Returned by decoding where a keyword is not known. 0 until assigned.
    ENUM defaultValue = ENUM(0);

    /// The value of one keyword, @p fallback for an unknown or empty one.
    ENUM decode(const QString &keyword, ENUM fallback) const;

    /// The value of one keyword, else the default value. An unknown keyword that is not empty is reported in the
    /// message log where @p warn is true.
    ENUM decodeOneElement(const QString &keyword, bool warn) const;

    /// All values of a comma-separated list combined. An unknown keyword and an empty piece stand for the default
    /// value, so an empty text gives the default value.
    ENUM decodeCSV(const QString &text) const;

    /// The keyword of exactly this value, be it a bit or a named combination, else the default keyword.
    QString encode(ENUM value) const;

    /// One keyword a set bit, lowest bit first; the default keyword for a bit that has none. Empty for a value below 1.
    QStringList encodeAsList(ENUM value) const;

    /// encodeAsList() joined with ", "; the default keyword where that is empty.
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
    static QList<ENUM> splitToBitsSorted(ENUM value);

    /// True while nothing was inserted and no default assigned.
    bool isUntouched() const;

    /// Adds a keyword. The first keyword of a value encodes it, in the letter case given here; a keyword that is
    /// inserted again takes the new value.
    void insert(const QString &keyword, ENUM value);

private:
    using Bits = std::make_signed_t<std::underlying_type_t<ENUM>>;
    static constexpr ENUM NOT_FOUND = ENUM(-260570);

    static void warnUndecodable(const QString &keyword);
};

template<typename ENUM>
ENUM RVEnumToStringTable<ENUM>::decode(const QString &keyword, ENUM fallback) const
{
    return myKeywords.value(keyword.trimmed().toLower(), fallback);
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
    Bits bits = 0;
    for (const QString &keyword : text.split(u','))
        bits |= Bits(decode(keyword, defaultValue));
    return ENUM(bits);
}

template<typename ENUM>
QString RVEnumToStringTable<ENUM>::encode(ENUM value) const
{
    return myEncodings.value(value, defaultKeyword);
}

template<typename ENUM>
QStringList RVEnumToStringTable<ENUM>::encodeAsList(ENUM value) const
{
    QStringList result;
    for (const ENUM bit : splitToBitsSorted(value))
        result += encode(bit);
    return result;
}

template<typename ENUM>
QString RVEnumToStringTable<ENUM>::encodeCSV(ENUM value) const
{
    const QStringList keywords = encodeAsList(value);
    return keywords.isEmpty() ? defaultKeyword : keywords.join(QStringLiteral(", "));
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
    for (const ENUM bit : splitToBitsSorted(value))
        result += keywords(bit);
    return result;
}

template<typename ENUM>
QList<ENUM> RVEnumToStringTable<ENUM>::splitToBitsSorted(ENUM value)
{
    QList<ENUM> result;
    if (Bits(value) < 1)
        return result;
    for (Bits rest = Bits(value); rest != 0; rest &= rest - 1)
        result += ENUM(rest & -rest);
    return result;
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
}

// Log filters of the application know this message by its context, which therefore stays as it is whatever compiler
// built the library and wherever these lines move.
template<typename ENUM>
void RVEnumToStringTable<ENUM>::warnUndecodable(const QString &keyword)
{
    const char *typeName = typeid(ENUM).name();
    const std::unique_ptr<char, decltype(&std::free)> readableName(
            abi::__cxa_demangle(typeName, nullptr, nullptr, nullptr), &std::free);
    const QByteArray function = QByteArrayLiteral("ENUM RVEnumToStringTable<ENUM>::decodeOneElement(const QString&, "
                                                  "bool) const [with ENUM = ")
            + (readableName ? readableName.get() : typeName) + ']';
    QMessageLogger("libs/RVTemplateClasses/RVEnumToStringTable", 186, function.constData()).warning()
            << "undecodable:" << keyword << "(using default in" << typeName << ")";
}

#endif
