#ifndef PRODUCTSEARCH_H
#define PRODUCTSEARCH_H

#include "Console.h"

#include <RVCatalogueProduct.h>

#include <optional>

/// The result of a search for a product.
struct ProductSearch
{
    RVCatalogueProduct product; ///< the first of the type; null where there is none
    QString problem; ///< that there is none, and which type was probably meant; empty where there is one
};

/// Looks for a product by its type. Reads the catalogue to its end, so that a broken one is noticed; nothing, with a
/// message, where that is impossible.
std::optional<ProductSearch> findProduct(const QString &catalogueName, const RVProductType &type,
                                         const Console &console);

#endif
