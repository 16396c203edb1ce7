#ifndef RVCATALOGUEPARSER_P_H
#define RVCATALOGUEPARSER_P_H

#include "RVCatalogueProduct.h"
#include "RVCatalogueProductData_p.h"
#include "RVStrayElements_p.h"
#include "RVXmlScanner_p.h"

#include <QList>
#include <QStringList>

#include <vector>

/// Makes products of the elements of a catalogue.
class RVCatalogueParser : public RVXmlHandler
{
public:
    void startElement(const RVXmlTag &tag) override;
    void endElement() override;
    bool isInPiece() const override { return !myOpenElements.empty(); }

    /// The products that have come to their end since the last call.
    QList<RVCatalogueProduct> take();

    const RVStrayElements &strayElements() const { return myStrayElements; }

private:
    void openGroup(const RVXmlTag &tag);
    void finishProduct();

    RVCatalogueRows myRows; // of the product that has begun
    std::vector<quint32> myOpenElements; // of the product
    std::vector<bool> myGroups; // around the product; true for those with a name
    QStringList myFamilies;
    QList<RVCatalogueProduct> myProducts;
    qint64 myNumber = 0;
    RVStrayElements myStrayElements;
};

#endif
