#ifndef RVKEYWORDCHECK_P_H
#define RVKEYWORDCHECK_P_H

class RVCatalogueProduct;
class RVFindingReport;

/// Checks the keyword lists of a product.
class RVKeywordCheck
{
public:
    explicit RVKeywordCheck(RVFindingReport *report) : myReport(report) { }

    void check(const RVCatalogueProduct &product);

private:
    RVFindingReport *myReport;
};

#endif
