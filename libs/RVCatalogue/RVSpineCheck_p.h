#ifndef RVSPINECHECK_P_H
#define RVSPINECHECK_P_H

class RVCatalogueProduct;
class RVFindingReport;
struct RVCheckedPageCounts;

/// Checks the spine of a product and the unit of its widths.
class RVSpineCheck
{
public:
    /// @p pageCounts are those of the product.
    RVSpineCheck(RVFindingReport *report, const RVCheckedPageCounts &pageCounts)
        : myReport(report),
          myPageCounts(pageCounts)
    { }

    void check(const RVCatalogueProduct &product);

private:
    struct Spine;

    void readWidths(Spine *spine);
    void checkWidths(const Spine &spine);
    void checkParts(const Spine &spine);
    void checkWidest(const Spine &spine);
    void addNegative(const Spine &spine);
    bool isFinite(const Spine &spine) const;
    bool shrinksTooFar(const Spine &spine) const;

    RVFindingReport *myReport;
    const RVCheckedPageCounts &myPageCounts;
};

#endif
