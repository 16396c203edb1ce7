#ifndef RVPAGECONTEXT_H
#define RVPAGECONTEXT_H

#include "RVPageAlignment.h"
#include "RVPageType.h"
#include "RVProductBaseExport.h"

/// The context of a page in a product: its type and its place in the spread. Both may hold several bits and then stand
/// for each of them.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVPageContext
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVPageContext
{
public:
    /// The page type and the alignment, each with any number of bits.
    RVPageContext(const RVPageType &pageType, const RVPageAlignment &alignment) noexcept;
    RVPageContext(const RVPageContext &) noexcept = default;
    RVPageContext(RVPageContext &&) noexcept = default;
    RVPageContext &operator=(const RVPageContext &) noexcept = default;
    RVPageContext &operator=(RVPageContext &&) noexcept = default;
    virtual ~RVPageContext();

    RVPageType pageType() const noexcept { return myPageType; } ///< The kind of page.
    RVPageAlignment alignment() const noexcept { return myAlignment; } ///< The place in the spread.
    /// True when one bit is common.
    bool hasPageType(const RVPageType &pageType) const noexcept { return myPageType.matches(pageType); }
    /// True when one bit is common.
    bool hasAlignment(const RVPageAlignment &alignment) const noexcept { return myAlignment.matches(alignment); }
    /// True when a bit of the page type and a bit of the alignment are common.
    bool matchesWith(const RVPageContext &other) const noexcept;
    /// True with a page type and an alignment.
    bool isValid() const { return myPageType.isValid() && !myAlignment.isNull(); }

    /// The keywords of alignment and page type, with a blank between them.
    QString dump() const;

    /// Compares exact values.
    /// @{
    bool operator==(const RVPageContext &other) const;
    bool operator!=(const RVPageContext &other) const { return !(*this == other); }
    friend size_t qHash(const RVPageContext &context, size_t seed = 0) noexcept
    {
        return qHashMulti(seed, context.myPageType, context.myAlignment);
    }
    /// @}
    /// Compares the page type, then the alignment.
    bool operator<(const RVPageContext &other) const;

private:
    RVPageType myPageType;
    RVPageAlignment myAlignment;
};

Q_DECLARE_TYPEINFO(RVPageContext, Q_RELOCATABLE_TYPE);

/// Prints dump() in quotes. @relates RVPageContext
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageContext &pageContext);

#endif
