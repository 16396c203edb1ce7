#ifndef RVPAGESIZEKEY_H
#define RVPAGESIZEKEY_H

#include "RVPageContext.h"
#include "RVProductBaseExport.h"

/// The key of a page size: the context of the page, and the number of pages of the product. The application stores page
/// sizes under it.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVPageSizeKey
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVPageSizeKey
{
public:
    /// A key for every alignment.
    RVPageSizeKey(const RVPageType &pageType, int pageCount) noexcept;
    RVPageSizeKey(const RVPageSizeKey &) noexcept = default;
    RVPageSizeKey(RVPageSizeKey &&) noexcept = default;
    RVPageSizeKey &operator=(const RVPageSizeKey &) noexcept = default;
    RVPageSizeKey &operator=(RVPageSizeKey &&) noexcept = default;
    virtual ~RVPageSizeKey();

    RVPageContext pageContext() const noexcept { return myPageContext; } ///< The page and its place in the spread.
    RVPageType pageType() const noexcept { return myPageContext.pageType(); } ///< The kind of page.
    RVPageAlignment alignment() const noexcept { return myPageContext.alignment(); } ///< All alignments together.
    int pageCount() const noexcept { return myPageCount; } ///< The number of pages that the product has.
    /// True with a valid context and a page count that is not negative.
    bool isValid() const { return myPageContext.isValid() && myPageCount >= 0; }

    /// The page context and the page count, with a blank between them.
    QString dump() const;

    /// Compares the page count and the context.
    /// @{
    bool operator==(const RVPageSizeKey &other) const;
    bool operator!=(const RVPageSizeKey &other) const { return !(*this == other); }
    friend size_t qHash(const RVPageSizeKey &key, size_t seed = 0) noexcept
    {
        return qHashMulti(seed, key.myPageContext, key.myPageCount);
    }
    /// @}
    /// No strict order: keys of the same page count are equivalent in all contexts, all others are ordered by
    /// their contexts alone. So a sorted container takes all keys of one page count for the same; take a
    /// QHash.
    bool operator<(const RVPageSizeKey &other) const;

private:
    RVPageContext myPageContext;
    int myPageCount;
};

Q_DECLARE_TYPEINFO(RVPageSizeKey, Q_RELOCATABLE_TYPE);

/// Prints dump() in quotes. @relates RVPageSizeKey
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageSizeKey &key);

#endif
