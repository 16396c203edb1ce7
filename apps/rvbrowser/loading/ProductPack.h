#ifndef PRODUCTPACK_H
#define PRODUCTPACK_H

#include <RVCatalogueProduct.h>

#include <QByteArray>
#include <QList>

/// Some products, packed into little memory. Elements of a catalogue resemble one another, so
/// together they need far less than one by one.
class ProductPack
{
public:
    ProductPack() = default; ///< No products.
    explicit ProductPack(const QList<RVCatalogueProduct> &products);

    int size() const { return int(myEnds.size()); }
    /// A product, which every call reads again. It has its elements, but not its number, its place in the file, its
    /// families and its findings.
    RVCatalogueProduct product(int index) const;
    /// The memory that the products need.
    qsizetype byteCount() const { return myElements.size() + myEnds.size() * qsizetype(sizeof(int)); }

private:
    QByteArray myElements; // one behind the other, compressed
    QList<int> myEnds; // of each product in them
};

Q_DECLARE_TYPEINFO(ProductPack, Q_RELOCATABLE_TYPE);

#endif
