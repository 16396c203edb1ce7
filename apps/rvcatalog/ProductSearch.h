#ifndef PRODUCTSEARCH_H
#define PRODUCTSEARCH_H

#include "Console.h"

#include <RVCatalogueProduct.h>
#include <RVNearestText.h>

#include <optional>

/// The search for a type among all types of a catalogue.
class WantedType
{
public:
    explicit WantedType(const RVProductType &type);

    /// Takes one of the types of the catalogue; true if it is the wanted one.
    bool offer(const RVProductType &type);
    /// The message that there is no such type, with the one that was probably meant; empty if there is.
    QString problem() const;

private:
    RVProductType myType;
    RVNearestText myNearest;
    bool myIsFound = false;
};

/// The result of a search for a product.
struct ProductSearch
{
    RVCatalogueProduct product; ///< the first of the type; null if there is none
    QString problem; ///< the message that there is none; empty if there is one
};

/// Looks for a product by its type. Reads the catalogue to its end, so that a broken one is noticed; nothing, with a
/// message, if that is impossible.
std::optional<ProductSearch> findProduct(const QString &catalogueName, const RVProductType &type,
                                         const Console &console);

#endif
