#ifndef RVPRICECLASS_H
#define RVPRICECLASS_H

#include "RVProductBaseExport.h"

#include <QHash>
#include <QString>

class QDataStream;
class QDebug;

/**
 * The billing code of a chargeable item or add-on, such as "KUR2" or "premium_design", exactly as the catalogue gives
 * it. The empty code is no price class. Codes are case-sensitive and ordered as strings: "KUR10" before "KUR2".
 *
 * @par Example
 * @snippet tst_examples_articles.cpp RVPriceClass
 *
 * @ingroup pricing
 */
class RVPRODUCTBASE_EXPORT RVPriceClass
{
public:
    RVPriceClass() = default; ///< No price class.
    RVPriceClass(const QString &code); ///< The code unchanged, blanks included.

    /// The same as the constructor.
    static RVPriceClass create(const QString &code);

    bool isEmpty() const noexcept { return myCode.isEmpty(); } ///< True without a code.
    bool isValid() const noexcept { return !myCode.isEmpty(); } ///< True with a code, whether it is known or not.
    /// True for the empty code and for every code that begins with the digit 0: nothing is charged.
    bool isFree() const noexcept;

    QString toString() const { return myCode; } ///< The code as it was given.

    /// Compares the codes; letter case matters.
    /// @{
    friend bool operator==(const RVPriceClass &a, const RVPriceClass &b) noexcept { return a.myCode == b.myCode; }
    friend bool operator!=(const RVPriceClass &a, const RVPriceClass &b) noexcept { return a.myCode != b.myCode; }
    RVPRODUCTBASE_EXPORT friend bool operator<(const RVPriceClass &a, const RVPriceClass &b) noexcept;
    /// @}

    /// Writes and reads toString().
    /// @{
    RVPRODUCTBASE_EXPORT friend QDataStream &operator<<(QDataStream &stream, const RVPriceClass &priceClass);
    RVPRODUCTBASE_EXPORT friend QDataStream &operator>>(QDataStream &stream, RVPriceClass &priceClass);
    /// @}

private:
    QString myCode;
};

Q_DECLARE_TYPEINFO(RVPriceClass, Q_RELOCATABLE_TYPE);

/// Hashes the code. @relates RVPriceClass
inline size_t qHash(const RVPriceClass &priceClass, size_t seed = 0) noexcept
{
    return seed ^ qHash(priceClass.toString(), 0);
}

/// Prints the code in quotes. @relates RVPriceClass
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPriceClass &priceClass);

#endif
