#include "ProductSearch.h"

#include "CatalogueFile.h"

using namespace Qt::StringLiterals;

// A code with more than half of its letters changed is a different code.
WantedType::WantedType(const RVProductType &type)
    : myType(type),
      myNearest(type.toString(), int(type.toString().size() + 1) / 2)
{ }

bool WantedType::offer(const RVProductType &type)
{
    const bool isWanted = type == myType;
    myIsFound = myIsFound || isWanted;
    if (!myIsFound)
        myNearest.offer(type.toString());
    return isWanted;
}

QString WantedType::problem() const
{
    if (myIsFound)
        return QString();
    const QString text = u"the catalogue has no product of type \"%1\""_s.arg(myType.orderTxtName());
    return myNearest.text().isEmpty() ? text : text + u"; did you mean \"%1\"?"_s.arg(myNearest.text());
}

std::optional<ProductSearch> findProduct(const QString &catalogueName, const RVProductType &type,
                                         const Console &console)
{
    CatalogueFile file(catalogueName, console);
    ProductSearch result;
    WantedType wanted(type);
    for (const RVCatalogueProduct &product : file.reader()) {
        if (!wanted.offer(product.type()))
            continue;
        result.product = product;
        break;
    }
    if (!file.finish())
        return std::nullopt;
    result.problem = wanted.problem();
    return result;
}
