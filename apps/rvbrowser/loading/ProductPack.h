#ifndef PRODUCTPACK_H
#define PRODUCTPACK_H

#include <RVCatalogueProduct.h>

#include <QByteArray>
#include <QList>

/// Some products in as little memory as they can be read again from. Elements of a catalogue resemble one another, so
/// together they need far less than one by one.
class ProductPack
{
public:
    ProductPack() = default; ///< No products.
    explicit ProductPack(const QList<RVCatalogueProduct> &products);

    int size() const { return int(myEnds.size()); }
    /// Read again in every call: its elements as they were, but without its number, its place in the file, its families
    /// and its findings.
    RVCatalogueProduct product(int index) const;
    /// The memory that the products need.
    qsizetype byteCount() const { return myElements.size() + myEnds.size() * qsizetype(sizeof(int)); }

private:
    QByteArray myElements; // one behind the other, compressed
    QList<int> myEnds; // of each product in them
};

Q_DECLARE_TYPEINFO(ProductPack, Q_RELOCATABLE_TYPE);

#endif
