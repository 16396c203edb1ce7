#ifndef RVPRODUCTARCHIVE_P_H
#define RVPRODUCTARCHIVE_P_H

#include "RVCatalogueProduct.h"

#include <QByteArray>
#include <QHash>
#include <QList>

#include <vector>

/// Some products in as little memory as they can be read again from. Those of a catalogue resemble one another, so
/// together they need far less than one by one.
class RVProductPack
{
public:
    RVProductPack() = default; ///< No products.
    explicit RVProductPack(const QList<RVCatalogueProduct> &products);

    qint64 size() const { return ends.size(); }

    QByteArray elements; ///< One behind the other, compressed; each with the groups around it.
    QList<int> ends; ///< Of each product in them.
    QHash<qint64, RVCatalogueProduct> large; ///< Kept as they are, since they might be too large to be read again.
};

/// Products that are kept until they are asked for, by their numbers from 0.
class RVProductArchive
{
public:
    /// Takes products that follow those that are there.
    void append(const RVProductPack &pack);

    qint64 size() const { return mySize; }
    /// Read again in every call, with its families, but its number and place are not to be relied on. Products that are
    /// asked for in their order are found quickest.
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
    mutable QByteArray myUnpacked; // the elements of the pack that was asked last
    mutable std::size_t myUnpackedPack = std::size_t(-1);
};

#endif
