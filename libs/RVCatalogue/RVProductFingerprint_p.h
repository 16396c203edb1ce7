#ifndef RVPRODUCTFINGERPRINT_P_H
#define RVPRODUCTFINGERPRINT_P_H

#include <QtGlobal>

#include <array>

class RVCatalogueProduct;

/// Products with equal fingerprints have equal elements, attributes and families, however their attributes are ordered
/// and whatever stands between the tags. Products with unequal ones may still have the same values.
class RVProductFingerprint
{
public:
    RVProductFingerprint() = default; ///< That of no product.
    explicit RVProductFingerprint(const RVCatalogueProduct &product);

    friend bool operator==(const RVProductFingerprint &a, const RVProductFingerprint &b)
    {
        return a.myHash == b.myHash;
    }
    friend bool operator!=(const RVProductFingerprint &a, const RVProductFingerprint &b) { return !(a == b); }

private:
    std::array<quint64, 2> myHash {}; // 128 bits of a cryptographic hash
};

Q_DECLARE_TYPEINFO(RVProductFingerprint, Q_PRIMITIVE_TYPE);

#endif
