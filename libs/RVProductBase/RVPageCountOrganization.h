#ifndef RVPAGECOUNTORGANIZATION_H
#define RVPAGECOUNTORGANIZATION_H

#include "RVIntRange.h"
#include "RVPageCounts.h"
#include "RVProductBaseExport.h"

class QDebug;
class QDomElement;
class QString;

/**
 * The page counts that a product may have: from a lowest to a highest count in steps of the page increment. A photo
 * book with 26 to 154 pages in steps of 4 is ([26, 154], 4); an increment of 0 means a fixed count. The default, [0, 0]
 * with increment 0, is invalid. Boxes of prints count photos in the same way. Read from the products XML.
 *
 * Page counts are pages; a package is what one increment adds. Results stay within the int limits.
 *
 * @par Example
 * @snippet tst_examples_geometry.cpp RVPageCountOrganization
 *
 * @ingroup geometry
 */
class RVPRODUCTBASE_EXPORT RVPageCountOrganization
{
public:
    /// [0, 0], invalid.
    RVPageCountOrganization() = default;
    /// Any range and increment, also invalid ones.
    RVPageCountOrganization(const RVIntRange &range, int pageIncrement);
    RVPageCountOrganization(const RVPageCountOrganization &) = default;
    RVPageCountOrganization(RVPageCountOrganization &&) = default;
    RVPageCountOrganization &operator=(const RVPageCountOrganization &) = default;
    RVPageCountOrganization &operator=(RVPageCountOrganization &&) = default;
    virtual ~RVPageCountOrganization();

    /// [25, 25], fixed.
    static RVPageCountOrganization createForAdventCalendarWithDoorBackPrint();
    /// [3, 3], fixed.
    static RVPageCountOrganization createForCardWithInsertedFoto();
    /// Reads "pages" (1), "max_pages" ("pages"), both multiplied by "pieces" (1), and "page_step" (0) of a product
    /// element. What was read is not checked; ask isValid().
    static RVPageCountOrganization createFromProductsXML(const QDomElement &product);
    /// The same for a box of prints: "pages" (1), "max_pages" ("pages" + 29) and "page_step" (1).
    static RVPageCountOrganization createFromProductsXMLForPictureBox(const QDomElement &product);

    RVIntRange range() const { return myRange; } ///< From the lowest to the highest count.
    int minPages() const noexcept { return myRange.min; } ///< The lowest count.
    int maxPages() const noexcept { return myRange.max; } ///< The highest count; the increments need not meet it.
    int pageIncrement() const noexcept { return myPageIncrement; } ///< The pages of one package.

    /// True from the lowest to the highest count, whether the increments meet it or not.
    bool inRange(int pages) const noexcept;
    /// True for one count that is not 0, or for several with a positive increment.
    bool isValid() const noexcept;
    /// True for a count in range that is a whole number of packages above the lowest; any in range without increment.
    bool isValidPageCount(int pages) const noexcept;
    /// True when it is valid and the increments meet the highest count.
    bool isConsistent() const noexcept;
    /// True when fewer than two pages are enough.
    bool isOnePageProduct() const noexcept { return minPages() < 2; }

    /// The counts that can be chosen, ascending: 26, 30, … 154 for ([26, 154], 4), and 3 alone for ([3, 3], 0). They
    /// are the rows of RVPageCountOrganizationListModel, and isValidPageCount() accepts each of them.
    ///
    /// Ask isValid() first: of an invalid organisation they are the lowest count at most, such as 0 by default and 10
    /// for the range ([10, 20], 0). There are none where the lowest count is above the highest.
    RVPageCounts pageCounts() const noexcept;
    /// The lowest count and @p n packages.
    int pagesWithNExtraPackages(int n) const noexcept;
    /// Whole packages above the lowest count; 0 at or below it, and without increment.
    int countPackages(int pages) const noexcept;
    /// The number of counts that can be chosen; 1 without increment. Below 1 only for an invalid organisation.
    int numberOfPackages() const noexcept;
    /// The lowest count of a product with panorama pages: the lowest count and two packages.
    int minPagesWithPano() const noexcept;
    /// The count to take where @p pages are wanted. If isConsistent() is true, that is the next allowed count from
    /// @p pages on, or the highest where there is none: 38 for 35 and 154 for 200 of ([26, 154], 4).
    ///
    /// Otherwise it can be a count that isValidPageCount() denies. Rounding up is not clamped, and clamping is not
    /// rounded: of ([26, 29], 4), 28 becomes 30 and 200 becomes 29. Without increment a count in range becomes the
    /// lowest, even if that is less: of ([10, 20], 0), 15 becomes 10 and 30 becomes 20.
    int constrain(int pages) const noexcept;

    /// With the lowest count raised to what constrain() makes of @p pages, so that no smaller count is offered.
    /// Unchanged where @p pages is not above the lowest. Invalid where constrain() rounds up above the highest count.
    RVPageCountOrganization adaptedTo(int pages) const;
    /// A copy; with @p minOnly the lowest count is the only one.
    RVPageCountOrganization clone(bool minOnly = false) const;

    /// Lowers both counts by @p pages, unless the lowest would fall below 1. Returns a copy of the result.
    RVPageCountOrganization operator-=(int pages);

    /// "min: 26; max: 154; increment: 4"
    QString dump() const;

    /// By range and increment.
    /// @{
    friend bool operator==(const RVPageCountOrganization &a, const RVPageCountOrganization &b)
    {
        return a.myRange == b.myRange && a.myPageIncrement == b.myPageIncrement;
    }
    friend bool operator!=(const RVPageCountOrganization &a, const RVPageCountOrganization &b) { return !(a == b); }
    friend size_t qHash(const RVPageCountOrganization &organization, size_t seed = 0) noexcept
    {
        return qHashMulti(seed, organization.myRange, organization.myPageIncrement);
    }
    /// @}

    /// Writes and reads the lowest count, the highest and the increment as 32-bit integers.
    /// @{
    friend QDataStream &operator<<(QDataStream &stream, const RVPageCountOrganization &organization)
    {
        return stream << organization.myRange << qint32(organization.myPageIncrement);
    }
    friend QDataStream &operator>>(QDataStream &stream, RVPageCountOrganization &organization)
    {
        return stream >> organization.myRange >> organization.myPageIncrement;
    }
    /// @}

private:
    RVIntRange myRange;
    int myPageIncrement = 0;
};

Q_DECLARE_TYPEINFO(RVPageCountOrganization, Q_RELOCATABLE_TYPE);

/// Prints dump() in quotes. @relates RVPageCountOrganization
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVPageCountOrganization &organization);

#endif
