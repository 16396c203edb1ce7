#ifndef PRODUCTMEMORY_H
#define PRODUCTMEMORY_H

#include "ProductChoice.h"
#include "SettingsGroup.h"

#include <RVProductType.h>

#include <optional>

/// The product that was looked at last in each catalogue, and what was chosen for products: of the newest 50 catalogues
/// and 200 products. Catalogues are known by their absolute file names.
class ProductMemory
{
public:
    static constexpr int CATALOGUE_LIMIT = 50;
    static constexpr int PRODUCT_LIMIT = 200;

    /// The settings must live longer.
    explicit ProductMemory(Settings *settings);

    /// Invalid where none is remembered.
    RVProductType lastProduct(const QString &fileName) const;
    void setLastProduct(const QString &fileName, const RVProductType &type);
    /// As it was chosen, though the product may have changed since.
    std::optional<ProductChoice> choice(const QString &fileName, const RVProductType &type) const;
    void setChoice(const QString &fileName, const RVProductType &type, const ProductChoice &choice);

private:
    SettingsGroup myCatalogues;
    SettingsGroup myProducts;
};

#endif
