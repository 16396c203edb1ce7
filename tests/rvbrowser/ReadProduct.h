#ifndef READPRODUCT_H
#define READPRODUCT_H

#include <RVCatalogueProduct.h>
#include <RVCatalogueReader.h>

#include <QBuffer>

/// The product of an element such as "<product type='A'/>".
inline RVCatalogueProduct readProduct(const QByteArray &element)
{
    QByteArray catalogue = "<p>" + element + "</p>";
    QBuffer buffer(&catalogue);
    buffer.open(QIODevice::ReadOnly);
    return RVCatalogueReader(&buffer).next();
}

#endif
