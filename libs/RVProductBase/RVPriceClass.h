#ifndef RVPRICECLASS_H
#define RVPRICECLASS_H

#include <QHash>
#include <QString>

/**
 * The billing code of a chargeable item or add-on, such as "KUR2" or "premium_design", exactly as the catalogue gives
 * it. The empty code is no price class. Codes are case-sensitive and ordered as strings: "KUR10" before "KUR2".
 */
class RVPriceClass
{
public:
    RVPriceClass() = default;
    RVPriceClass(const QString &code) : myCode(code) { }

    static RVPriceClass create(const QString &code) { return RVPriceClass(code); }

    bool isEmpty() const noexcept { return myCode.isEmpty(); }
    bool isValid() const noexcept { return !myCode.isEmpty(); }
    /// True for the empty code and for every code that begins with the digit 0: nothing is charged.
    bool isFree() const noexcept { return myCode.isEmpty() || myCode.front() == u'0'; }

    QString toString() const { return myCode; }

    friend bool operator==(const RVPriceClass &a, const RVPriceClass &b) noexcept { return a.myCode == b.myCode; }
    friend bool operator!=(const RVPriceClass &a, const RVPriceClass &b) noexcept { return a.myCode != b.myCode; }
    friend bool operator<(const RVPriceClass &a, const RVPriceClass &b) noexcept { return a.myCode < b.myCode; }

private:
    QString myCode;
};

Q_DECLARE_TYPEINFO(RVPriceClass, Q_RELOCATABLE_TYPE);

inline size_t qHash(const RVPriceClass &priceClass, size_t seed = 0) noexcept
{
    return seed ^ qHash(priceClass.toString(), 0);
}

#endif
