#ifndef RVFINDINGREPORT_P_H
#define RVFINDINGREPORT_P_H

#include "RVCatalogueElement.h"
#include "RVCatalogueFinding.h"
#include "RVCatalogueRuleTable_p.h"

#include <QList>
#include <QString>

class RVCatalogueCheck;

/// Collects the findings of all checks of one product. Findings of disabled rules are dropped.
class RVFindingReport
{
public:
    /// @p check outlives the report. @p product is the number of the product in the file.
    RVFindingReport(const RVCatalogueCheck &check, qint64 product) : myCheck(check), myProduct(product) { }

    /// Adds a finding at the start tag, for faults that are not in a single attribute.
    void add(RVCatalogueRuleId rule, const RVCatalogueElement &element, const QString &text);
    /// At the attribute; at the start tag where the attribute is missing.
    void add(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute,
             const QString &text);

    /// In the order of the file; those of one place as they were added.
    QList<RVCatalogueFinding> sorted() const;

private:
    const RVCatalogueCheck &myCheck;
    qint64 myProduct;
    QList<RVCatalogueFinding> myFindings;
};

/// The number of the line where the element begins.
QString rvLineOf(const RVCatalogueElement &element);

#endif
