#ifndef RVPRODUCTTYPE_H
#define RVPRODUCTTYPE_H

#include "RVProductBaseExport.h"
#include "RVRegularExpression.h"

#include <QString>

#include <cstddef>
#include <utility>

class QDataStream;
class QDebug;
class QDomElement;
class RVPriceClass;

/**
 * The catalogue's code for a kind of product, such as "DUN9" for a photo book family or "VIR29" for an agenda. It is
 * the key under which page counts and product checks are cached. An empty code is the unknown type.
 *
 * Photo book codes are reduced to their family, so every size and variant of one book is one type: "DUN9_30" is
 * "DUN9".
 *
 * @par Example
 * @snippet tst_examples_geometry.cpp RVProductType
 *
 * @ingroup geometry
 */
class RVPRODUCTBASE_EXPORT RVProductType
{
public:
    /// Finds the family in a photo book code, for applications that search texts. The constructor finds the same family
    /// faster.
    static const RVRegularExpression myBookRegExp;

    RVProductType() = default; ///< The unknown type.
    /// Any code; that of a photo book is reduced to its family.
    RVProductType(const QString &code);

    RVProductType(const RVProductType &) = default;
    RVProductType &operator=(const RVProductType &) = default;
    /// A moved-from type becomes the unknown type, or after a move assignment the other type.
    /// @{
    RVProductType(RVProductType &&other) noexcept { swap(other); }
    RVProductType &operator=(RVProductType &&other) noexcept
    {
        swap(other);
        return *this;
    }
    /// @}
    /// Exchanges the text together with its hash.
    void swap(RVProductType &other) noexcept
    {
        myName.swap(other.myName);
        std::swap(myHashValue, other.myHashValue);
    }

    /// From the billing code of a product.
    static RVProductType fromPriceClass(const RVPriceClass &priceClass);
    /// From the attribute "productname" of a project element; a project without one is a "DUN9".
    static RVProductType fromKtx(const QDomElement &project);

    bool isUnknown() const noexcept { return myName.isEmpty(); } ///< True without a code.
    bool isValid() const noexcept { return !myName.isEmpty(); } ///< True with a code, known or not.
    bool isAgenda() const; ///< True for exactly "VIR29" and "VIR30".
    /// True for every code that begins with "VIR", including agendas.
    bool isCalendar() const;
    /// The stored hash; 0 for the unknown type.
    std::size_t calcHashValue() const noexcept { return myHashValue; }

    /// The code; empty for the unknown type.
    QString toString() const { return myName; }
    /// The code; "UNKNOWN" for the unknown type.
    QString orderTxtName() const;

    /// Compares the names case-insensitively, but only if the case-sensitive hashes are equal: "dun" and "DUN" differ.
    /// @{
    friend bool operator==(const RVProductType &a, const RVProductType &b)
    {
        return a.myHashValue == b.myHashValue && (a.sharesTextOf(b) || a.hasNameOf(b));
    }
    friend bool operator!=(const RVProductType &a, const RVProductType &b) { return !(a == b); }
    /// @}
    /// Compares the hash, then the name. The order is the same in every run, but of no use for display.
    RVPRODUCTBASE_EXPORT friend bool operator<(const RVProductType &a, const RVProductType &b);

    /// Writes and reads toString().
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVProductType &type);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVProductType &type);
    /// @}

private:
    /// True for copies of one type; these are the usual keys of the caches.
    bool sharesTextOf(const RVProductType &other) const
    {
        return myName.constData() == other.myName.constData() && myName.size() == other.myName.size();
    }
    bool hasNameOf(const RVProductType &other) const;

    QString myName;
    quint64 myHashValue = 0;
};

Q_DECLARE_TYPEINFO(RVProductType, Q_RELOCATABLE_TYPE);

/// Returns calcHashValue(). @relates RVProductType
inline std::size_t qHash(const RVProductType &type, std::size_t seed = 0) noexcept
{
    return seed ^ type.calcHashValue();
}

/// Prints the code in quotes. @relates RVProductType
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVProductType &type);

#endif
