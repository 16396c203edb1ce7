#include "ProductSearch.h"

#include "CatalogueFile.h"

#include <RVNearestText.h>

using namespace Qt::StringLiterals;

std::optional<ProductSearch> findProduct(const QString &catalogueName, const RVProductType &type,
                                         const Console &console)
{
    CatalogueFile file(catalogueName, console);
    ProductSearch result;
    RVNearestText nearest(type.toString());
    for (const RVCatalogueProduct &product : file.reader()) {
        const RVProductType found = product.type();
        if (found == type) {
            result.product = product;
            break;
        }
        nearest.offer(found.toString());
    }
    if (!file.finish())
        return std::nullopt;
    if (!result.product.isNull())
        return result;
    result.problem = u"the catalogue has no product of type \"%1\""_s.arg(type.orderTxtName());
    if (!nearest.text().isEmpty())
        result.problem += u"; did you mean \"%1\"?"_s.arg(nearest.text());
    return result;
}
