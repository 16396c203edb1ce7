#include "ProductPack.h"

#include <RVCatalogueReader.h>

#include <QBuffer>

namespace {

/// The level of compression. A higher one takes noticeably longer, and a lower one saves no time.
constexpr int EFFORT = 3;

}

ProductPack::ProductPack(const QList<RVCatalogueProduct> &products)
{
    QByteArray elements;
    myEnds.reserve(products.size());
    for (const RVCatalogueProduct &product : products) {
        elements += product.toXml();
        myEnds += int(elements.size());
    }
    myElements = qCompress(elements, EFFORT);
    myElements.squeeze();
}

RVCatalogueProduct ProductPack::product(int index) const
{
    const int begin = index == 0 ? 0 : myEnds.at(index - 1);
    QByteArray element = qUncompress(myElements).sliced(begin, myEnds.at(index) - begin);
    QBuffer buffer(&element);
    buffer.open(QIODevice::ReadOnly);
    return RVCatalogueReader(&buffer).next();
}
