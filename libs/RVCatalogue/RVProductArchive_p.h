#ifndef RVPRODUCTARCHIVE_P_H
#define RVPRODUCTARCHIVE_P_H

#include "RVCatalogueProduct.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <vector>

/// Some products in a compressed form that can be read again. Products of a catalogue resemble one another, so together
/// they need far less memory than one by one.
class RVProductPack
{
public:
    RVProductPack() = default; ///< No products.
    explicit RVProductPack(const QList<RVCatalogueProduct> &products);

    qint64 size() const { return ends.size(); }

    QByteArray elements; ///< The products one behind the other, compressed; each with the groups around it.
    QList<int> ends; ///< The end of each product in the elements.
    QHash<qint64, RVCatalogueProduct> large; ///< Not compressed, because they may be too large to be read.
};

/// Products that are stored by their numbers from 0.
class RVProductArchive
{
public:
    /// Appends products.
    void append(const RVProductPack &pack);

    qint64 size() const { return mySize; }
    /// The product with a number, read again in every call, with its families. Its own number and place are not those
    /// of the file. Access in the order of the numbers is fastest.
    RVCatalogueProduct product(qint64 number) const;

private:
    struct Place
    {
        RVProductPack pack;
        qint64 first;
    };

    void unpack(std::size_t pack) const;

    std::vector<Place> myPacks;
    qint64 mySize = 0;
    mutable QByteArray myUnpacked; // the elements of the pack that was used last
    mutable std::size_t myUnpackedPack = std::size_t(-1);
};

#endif
