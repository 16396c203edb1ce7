#ifndef PRODUCTSEARCH_H
#define PRODUCTSEARCH_H

#include "Console.h"

#include <RVCatalogueProduct.h>
#include <RVNearestText.h>

#include <optional>

/// A type that is looked for among all that a catalogue has.
class WantedType
{
public:
    explicit WantedType(const RVProductType &type);

    /// One of the types of the catalogue; true where it is the one that is looked for.
    bool offer(const RVProductType &type);
    /// That there is no such type, and which was probably meant; empty where there is.
    QString problem() const;

private:
    RVProductType myType;
    RVNearestText myNearest;
    bool myIsFound = false;
};

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
