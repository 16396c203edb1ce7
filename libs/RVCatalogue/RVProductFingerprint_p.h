#ifndef RVPRODUCTFINGERPRINT_P_H
#define RVPRODUCTFINGERPRINT_P_H

#include <QtGlobal>

#include <array>

class RVCatalogueProduct;

/// Products with equal fingerprints have equal elements, attributes and families, in any order of the attributes and
/// with any text between the tags. Products with different fingerprints may still have the same values.
class RVProductFingerprint
{
public:
    RVProductFingerprint() = default; ///< The fingerprint of no product.
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
