#include "FaultPlace.h"

namespace {

FaultPlace placeAt(const RVFilePosition &position, const RVCatalogueElement &product)
{
    FaultPlace result;
    for (int i = 0; i < product.attributeCount(); ++i) {
        const RVFileRange range = product.attributeRange(i);
        if (!(position < range.begin) && position < range.end)
            result.attribute = QString::fromUtf8(product.attributeName(i));
    }
    for (auto child = product.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        if (!(position < child.position()))
            result.element = child.name();
    }
    return result;
}

}

FaultPlace FaultPlace::of(const RVCatalogueFinding &finding, const RVCatalogueProduct &product,
                          const RVCatalogueCheck &check)
{
    for (const RVCatalogueFinding &found : check.findings(product)) {
        if (found.rule() == finding.rule() && found.text() == finding.text())
            return placeAt(found.range().begin, product.element());
    }
    return FaultPlace();
}
