// usage: catalogue_typed CATALOGUE
// Reads every value of every product through the library of catalogues and prints their checksum.
#include "TypedProduct.h"

#include <RVCatalogueReader.h>

#include <QFile>

namespace {

RVPriceClass optionPriceClass(const RVCatalogueProduct &product, const RVConfiguredArticleVariantList &options)
{
    return options.isEmpty() ? RVPriceClass()
                             : product.optionPriceClass(options.constFirst().key(), options.constFirst().value());
}

TypedProduct valuesOf(const RVCatalogueProduct &product)
{
    const RVConfiguredArticleVariantList options = product.options();
    return {
        product.type(),
        product.name(),
        product.articleId(),
        product.articleClass(),
        product.coverType(),
        product.pageBinding(),
        product.paperType(),
        product.fotoPaperType(),
        product.orientation(),
        product.spaceMagnitude(),
        product.shippingGroup(),
        product.pageCounts(),
        product.spine(),
        product.hasSpine(),
        product.barcodes(),
        options,
        optionPriceClass(product, options),
        product.priceClass(),
        product.pagePriceClass(),
        product.families(),
        product.number(),
        product.range().begin.line,
    };
}

}

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    RVCatalogueReader reader(QFile::decodeName(argv[1]));
    ProductChecksum checksum;
    for (const RVCatalogueProduct &product : reader)
        checksum.add(valuesOf(product));
    if (reader.hasError())
        return 2;
    checksum.print();
    return 0;
}
