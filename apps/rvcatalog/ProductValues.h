#ifndef PRODUCTVALUES_H
#define PRODUCTVALUES_H

#include <SpineFont.h>
#include <SpineTable.h>

#include <RVCatalogueProduct.h>

/// A product, and a cache of values that are used more than once and take long to compute.
struct ProductValues
{
    explicit ProductValues(const RVCatalogueProduct &product_)
        : product(product_),
          type(product.type()),
          pageCounts(product.pageCounts()),
          spine(product.spine()),
          hasSpine(product.hasSpine())
    { }

    RVCatalogueProduct product;
    RVProductType type;
    RVPageCountOrganization pageCounts;
    RVSpineConfig spine;
    bool hasSpine;

    /// A catalogue may have a negative count, which has the spine of 0 pages.
    /// @{
    RVDistance spineWidth(int pages) const { return spine.spineWidth(unsigned(qMax(0, pages))); }
    /// The largest of SpineFont that fits, in points.
    int fontSize(int pages) const { return SpineFont::largestSize(spine, pages); }
    /// Without the font size, which takes long to find.
    SpineRow spineRow(int pages) const
    {
        return { pages, pageCounts.countPackages(pages), spine.additionalPagePackageBlocks(unsigned(qMax(0, pages))),
                 spineWidth(pages).value(DISTANCE_UNIT_MILLIMETRE) };
    }
    /// @}
};

#endif
