#ifndef RVENUMWRAPPER_H
#define RVENUMWRAPPER_H

#include "RVEnumToStringTable.h"

#include <QDataStream>
#include <QHashFunctions>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>
#include <QtAlgorithms>

#include <atomic>
#include <memory>
#include <type_traits>
#ifdef __cpp_rtti
#    include <typeinfo>
#endif

/**
 * The value of one attribute of a product: a set of bits of the flag enumeration E.
 *
 * 0 is the null value ("nothing chosen"). An attribute class derives from the wrapper over its own enumeration and
 * supplies fillTable(), constructors and operations of its own; keywords are read and written through the table of E,
 * which exists once in the process.
 *
 * Values compare as signed numbers. Distinct objects may be used in distinct threads; the shared table is built under
 * a lock by the first object that needs it.
 *
 * An application and its plug-ins share one table if the shared library that owns E declares `extern template class
 * EXPORT RVEnumWrapper<E>;` in its header and instantiates it in one source.
 *
 * @par Example
 * @snippet tst_examples_platform.cpp RVEnumWrapper
 *
 * @ingroup templates
 */
template<typename E>
class Q_DECL_EXPORT RVEnumWrapper
{
public:
    /// Any bits, whether they have a keyword or not.
    RVEnumWrapper(const E &value) noexcept : myValue(value) { }
    RVEnumWrapper(const RVEnumWrapper &) noexcept = default;
    RVEnumWrapper(RVEnumWrapper &&) noexcept = default;
    RVEnumWrapper &operator=(const RVEnumWrapper &) noexcept = default;
    RVEnumWrapper &operator=(RVEnumWrapper &&) noexcept = default;

    // The order of the virtual operations is part of the binary interface.
    virtual ~RVEnumWrapper() = default;

    /// Compares the values as signed numbers.
    /// @{
    virtual bool operator<(const RVEnumWrapper &other) const { return bits() < other.bits(); }
    virtual bool operator<=(const RVEnumWrapper &other) const { return bits() <= other.bits(); }
    virtual bool operator>(const RVEnumWrapper &other) const { return bits() > other.bits(); }
    virtual bool operator==(const RVEnumWrapper &other) const { return bits() == other.bits(); }
    virtual bool operator==(E value) const { return bits() == Bits(value); }
    virtual bool operator!=(const RVEnumWrapper &other) const { return bits() != other.bits(); }
    virtual bool operator!=(E value) const { return bits() != Bits(value); }
    /// @}
    /// `|=` sets the bits of the argument, `&=` keeps no others.
    /// @{
    virtual RVEnumWrapper &operator|=(const RVEnumWrapper &other) { return assign(bits() | other.bits()); }
    virtual RVEnumWrapper &operator|=(E value) { return assign(bits() | Bits(value)); }
    virtual RVEnumWrapper &operator&=(const RVEnumWrapper &other) { return assign(bits() & other.bits()); }
    virtual RVEnumWrapper &operator&=(E value) { return assign(bits() & Bits(value)); }
    /// @}
    /// `&` gives the common bits, `|` the bits of both, as a bare value.
    /// @{
    virtual E operator&(const RVEnumWrapper &other) const { return E(bits() & other.bits()); }
    virtual E operator|(const RVEnumWrapper &other) const { return E(bits() | other.bits()); }
    /// @}

    /// Clears the bits of the argument.
    /// @{
    virtual RVEnumWrapper &exclude(const RVEnumWrapper &other) { return assign(bits() & ~other.bits()); }
    virtual RVEnumWrapper &exclude(E value) { return assign(bits() & ~Bits(value)); }
    /// @}
    /// Sets the bits of the argument.
    /// @{
    virtual RVEnumWrapper &expandTo(const RVEnumWrapper &other) { return expandTo(other.myValue); }
    virtual RVEnumWrapper &expandTo(E value) { return assign(bits() | Bits(value)); }
    /// @}
    /// Keeps only the bits of the argument.
    virtual RVEnumWrapper &reduceTo(E value) { return assign(bits() & Bits(value)); }
    /// The common bits, the object unchanged.
    virtual E reducedTo(E value) const { return E(bits() & Bits(value)); }
    /// True for every value but 0, unless an attribute class says otherwise.
    virtual bool isValid() const { return bits() != 0; }

    /// Fills the table of E: every attribute class inserts its keywords and assigns the defaults. Runs once in the
    /// process, under the lock of the table, so it must not ask for the table itself. The plain wrapper has no keywords
    /// and leaves the table as it is.
    virtual void fillTable(RVEnumToStringTable<E> *) const { }

    E value() const noexcept { return myValue; } ///< All bits together.
    bool isNull() const noexcept { return bits() == 0; } ///< True for 0, independent of isValid().
    /// True when the value is exactly @p value.
    bool hasValue(const E &value) const noexcept { return myValue == value; }
    /// True when at least one bit is common; never for 0.
    /// @{
    bool matches(E value) const noexcept { return (bits() & Bits(value)) != 0; }
    bool matches(const RVEnumWrapper &other) const noexcept { return matches(other.myValue); }
    /// @}
    /// True when every bit of the argument is set; always for 0.
    /// @{
    bool containsAll(E value) const noexcept { return (bits() & Bits(value)) == Bits(value); }
    bool containsAll(const RVEnumWrapper &other) const noexcept { return containsAll(other.myValue); }
    /// @}

    void setValue(E value) noexcept { myValue = value; } ///< Replaces all bits.
    /// Stores and returns what decodeCSV() reads in @p text. `setValue(0)` comes here as well, because 0 is no
    /// enumerator but can be a null text: it stores the default value of the table, as the constructors of the
    /// attribute classes do for 0; QT_NO_CAST_FROM_ASCII makes both an error. Write `setValue(E(0))`.
    E setValue(const QString &text);
    /// Sets or clears the bits of @p bit.
    RVEnumWrapper &setBit(E bit, bool on) { return on ? expandTo(bit) : exclude(bit); }
    /// Inverts every bit that is set in @p other; none for a value below 1.
    RVEnumWrapper &toggleBits(const RVEnumWrapper &other);

    /// Number of set bits; 0 for a negative value.
    int countBits() const { return preparedBits() < 1 ? 0 : int(qPopulationCount(quint64(bits()))); }
    /// True for one set bit; never for a negative value.
    bool hasExactlyOneBit() const { return preparedBits() > 0 && (bits() & (bits() - 1)) == 0; }
    /// True for two or more set bits; never for a negative value.
    bool isConglumerate() const { return preparedBits() > 0 && (bits() & (bits() - 1)) != 0; }
    /// The single bits, in no particular order; empty for a value below 1.
    QSet<E> splitToBits() const;
    /// The single bits, lowest first; empty for a value below 1.
    QList<E> splitToBitsSorted() const { return enumToStringTable()->splitToBitsSorted(myValue); }

    /// The keyword of exactly this value, otherwise the default keyword.
    QString encode() const { return enumToStringTable()->encode(myValue); }
    /// One keyword for each set bit, lowest first, joined with ", ". The default keyword, which may be empty, stands
    /// for a bit without a keyword and for a value below 1. A keyword of 0 or of a combination is never written.
    QString encodeCSV() const { return enumToStringTable()->encodeCSV(myValue); }
    /// One keyword for each set bit, lowest first.
    QStringList encodeBits() const { return enumToStringTable()->encodeAsList(myValue); }
    /// Reads a comma-separated keyword list without storing it; unknown keywords stand for the default value.
    E decodeCSV(const QString &text) const { return enumToStringTable()->decodeCSV(text); }
    /// Reads one keyword without storing it; an unknown one gives the default value and a warning in the log.
    E decodeOneElement(const QString &keyword) const { return enumToStringTable()->decodeOneElement(keyword, true); }

    /// All keywords of E, lower case, in no particular order.
    QStringList allKnownKeywords() const { return enumToStringTable()->allKnownKeywords(); }
    /// All values of E that have a keyword, in no particular order.
    QList<E> allKnownEnumValues() const { return enumToStringTable()->allKnownEnumValues(); }
    /// The keyword and the aliases of exactly this value, lower case, sorted.
    QStringList allPossibleKeywordsOneElement() const { return enumToStringTable()->keywords(myValue); }
    /// The keyword and the aliases of every set bit, lowest bit first, sorted within a bit.
    QStringList allPossibleKeywords() const { return enumToStringTable()->allPossibleKeywords(myValue); }

    /// The table of E, filled by the class of the first object that needs it. It lives as long as the process. Any
    /// thread.
    const RVEnumToStringTable<E> *enumToStringTable() const
    {
        const RVEnumToStringTable<E> *table = myTable.load(std::memory_order_acquire);
        return table ? table : makeTable();
    }

    /// By value, so that attributes can be in a QSet and keys of a QHash.
    friend size_t qHash(const RVEnumWrapper &wrapper, size_t seed = 0) noexcept { return qHash(wrapper.bits(), seed); }

    /// Writes the bits as a 64-bit integer, whatever the size of E.
    friend QDataStream &operator<<(QDataStream &stream, const RVEnumWrapper &wrapper)
    {
        return stream << qint64(wrapper.bits());
    }
    /// Reads what `<<` wrote. The value is 0 where the stream ends too early, and where the bits do not fit E; the
    /// latter sets the stream's status to QDataStream::ReadCorruptData.
    friend QDataStream &operator>>(QDataStream &stream, RVEnumWrapper &wrapper)
    {
        wrapper.readBits(stream);
        return stream;
    }

private:
    using Bits = std::make_signed_t<std::underlying_type_t<E>>;

    Bits bits() const noexcept { return Bits(myValue); }
    /// The same, for functions about single bits: they build the table, as functions about keywords do.
    Bits preparedBits() const
    {
        enumToStringTable();
        return bits();
    }
    RVEnumWrapper &assign(Bits bits) noexcept
    {
        myValue = E(bits);
        return *this;
    }
    const RVEnumToStringTable<E> *makeTable() const;
    void readBits(QDataStream &stream);

    E myValue;
    static std::atomic<const RVEnumToStringTable<E> *> myTable;
};

template<typename E>
E RVEnumWrapper<E>::setValue(const QString &text)
{
    myValue = decodeCSV(text);
    return myValue;
}

template<typename E>
RVEnumWrapper<E> &RVEnumWrapper<E>::toggleBits(const RVEnumWrapper &other)
{
    for (Bits rest = other.preparedBits(); rest > 0; rest &= rest - 1) {
        const E bit = E(rest & -rest);
        setBit(bit, !matches(bit));
    }
    return *this;
}

template<typename E>
void RVEnumWrapper<E>::readBits(QDataStream &stream)
{
    qint64 bits = 0;
    stream >> bits;
    if (Bits(bits) != bits)
        stream.setStatus(QDataStream::ReadCorruptData);
    assign(stream.status() == QDataStream::Ok ? Bits(bits) : Bits(0));
}

template<typename E>
QSet<E> RVEnumWrapper<E>::splitToBits() const
{
    const QList<E> sorted = splitToBitsSorted();
    return QSet<E>(sorted.begin(), sorted.end());
}

// The static exists once in the process, so it belongs to the library that instantiates E.
template<typename E>
std::atomic<const RVEnumToStringTable<E> *> RVEnumWrapper<E>::myTable { nullptr };

template<typename E>
const RVEnumToStringTable<E> *RVEnumWrapper<E>::makeTable() const
{
    static QMutex theMutex;
    const QMutexLocker locker(&theMutex);
    if (const auto *table = myTable.load(std::memory_order_relaxed))
        return table;

    auto table = std::make_unique<RVEnumToStringTable<E>>();
    fillTable(table.get());
    // A plain wrapper, such as a temporary made from a bare value, must not leave the process without keywords. Without
    // run-time type information, every class that inserts nothing counts as a plain wrapper.
#ifdef __cpp_rtti
    const bool isPlain = typeid(*this) == typeid(RVEnumWrapper);
#else
    const bool isPlain = table->isUntouched();
#endif
    if (isPlain) {
        static const auto *const withoutKeywords = new RVEnumToStringTable<E>;
        return withoutKeywords;
    }
    table->optimize();
    myTable.store(table.get(), std::memory_order_release);
    return table.release();
}

/// Lets the enumerators of one type combine with |, & and ~ and stay of that type.
#define RV_DECLARE_ENUM_OPERATORS(E)                                                                                   \
    constexpr E operator~(E a) noexcept                                                                                \
    {                                                                                                                  \
        return E(~std::underlying_type_t<E>(a));                                                                       \
    }                                                                                                                  \
    constexpr E operator|(E a, E b) noexcept                                                                           \
    {                                                                                                                  \
        return E(std::underlying_type_t<E>(a) | std::underlying_type_t<E>(b));                                         \
    }                                                                                                                  \
    constexpr E operator&(E a, E b) noexcept                                                                           \
    {                                                                                                                  \
        return E(std::underlying_type_t<E>(a) & std::underlying_type_t<E>(b));                                         \
    }                                                                                                                  \
    constexpr E &operator|=(E &a, E b) noexcept                                                                        \
    {                                                                                                                  \
        return a = a | b;                                                                                              \
    }                                                                                                                  \
    constexpr E &operator&=(E &a, E b) noexcept                                                                        \
    {                                                                                                                  \
        return a = a & b;                                                                                              \
    }

#endif
