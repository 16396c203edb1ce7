#ifndef RVCATALOGUEPARSER_P_H
#define RVCATALOGUEPARSER_P_H

#include "RVCatalogueProduct.h"
#include "RVCatalogueProductData_p.h"
#include "RVStrayElements_p.h"
#include "RVXmlScanner_p.h"

#include <QList>
#include <QStringList>

#include <vector>

/// Makes products from the elements of a catalogue.
class RVCatalogueParser : public RVXmlHandler
{
public:
    void startElement(const RVXmlTag &tag) override;
    void endElement() override;
    void comment(const RVXmlComment &comment) override;
    bool isInPiece() const override { return !myOpenElements.empty(); }
    /// Called at the end of the file.
    void end() { closeWaiting(); }

    /// The products that have ended since the last call.
    QList<RVCatalogueProduct> take();
    /// The groups with comments in front of them that were closed since the last call, inner ones before outer ones.
    std::vector<RVSuppressionScope::Pointer> takeClosedScopes();
    /// True if a comment in front of the root element says that the file need not have products.
    bool isMissingSilenced() const { return myIsMissingSilenced; }

    const RVStrayElements &strayElements() const { return myStrayElements; }

private:
    void openGroup(const RVXmlTag &tag);
    void closeGroup();
    void finishProduct();
    void attachToProduct(bool hasElement);
    void openScope();
    void closeScope();
    void closeWaiting();

    RVCatalogueRows myRows; // of the current product
    std::vector<quint32> myOpenElements; // of the product
    std::vector<bool> myGroups; // around the product; true for those with a name
    QStringList myFamilies;
    std::vector<RVSuppression> myWaiting; // the comments for the next element in the same parent
    std::vector<RVSuppression> mySuppressions; // of the current product
    RVSuppressionScope::Pointer myScope; // the innermost
    std::vector<RVSuppressionScope::Pointer> myClosedScopes;
    bool myIsMissingSilenced = false;
    QList<RVCatalogueProduct> myProducts;
    qint64 myNumber = 0;
    RVStrayElements myStrayElements;
};

#endif
