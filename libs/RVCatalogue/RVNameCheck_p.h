#ifndef RVNAMECHECK_P_H
#define RVNAMECHECK_P_H

#include "RVCatalogueElement.h"
#include "RVCatalogueRuleTable_p.h"
#include "RVNameGuess_p.h"

#include <QVarLengthArray>

class RVCatalogueProduct;
class RVFindingReport;

/**
 * Checks the names of elements and attributes of a product that are not read, though they were probably meant to be:
 * misspelt ones, and known ones at a wrong place. A name that is near no known name is foreign, and so is everything in
 * a foreign element. Attributes with a prefix are foreign, too.
 *
 * It runs first, because the parts that it finds are missing elsewhere.
 */
class RVNameCheck
{
public:
    explicit RVNameCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueProduct &product);

private:
    struct Attribute;
    using Names = QVarLengthArray<QLatin1StringView, 2>;

    void checkElement(const RVCatalogueElement &element, const RVKnownElement &known);
    void checkAttributes(const RVCatalogueElement &element, const RVKnownElement &known);
    bool checkPlace(const Attribute &attribute);
    void checkSpelling(const Attribute &attribute, Names *mended);
    void checkChild(const RVCatalogueElement &child, const RVCatalogueElement &parent, const RVKnownElement &known);
    void checkUnknownChild(const RVCatalogueElement &child, const RVKnownElement &parent);
    void addElement(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView meant,
                    const QString &text);

    RVFindingReport *myReport;
};

#endif
