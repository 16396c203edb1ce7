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
 * with increment 0, is invalid. Boxes of prints count photos in the same way. The page counts are read from the
 * products XML.
 *
 * Page counts are pages; a package is the group of pages that one increment adds. Results stay within the int limits.
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
    /// element. The values are not checked; call isValid().
    static RVPageCountOrganization createFromProductsXML(const QDomElement &product);
    /// The same for a box of prints: "pages" (1), "max_pages" ("pages" + 29) and "page_step" (1).
    static RVPageCountOrganization createFromProductsXMLForPictureBox(const QDomElement &product);

    RVIntRange range() const { return myRange; } ///< From the lowest to the highest count.
    int minPages() const noexcept { return myRange.min; } ///< The lowest count.
    int maxPages() const noexcept { return myRange.max; } ///< The highest count; steps from the lowest may miss it.
    int pageIncrement() const noexcept { return myPageIncrement; } ///< The pages of one package.

    /// True for every count from the lowest to the highest, also between the steps.
    bool inRange(int pages) const noexcept;
    /// True for one count that is not 0, or for several with a positive increment.
    bool isValid() const noexcept;
    /// True for a count in range that is a whole number of packages above the lowest; without increment for any count
    /// in range.
    bool isValidPageCount(int pages) const noexcept;
    /// True when it is valid and the increments meet the highest count.
    bool isConsistent() const noexcept;
    /// True when the product can have fewer than two pages.
    bool isOnePageProduct() const noexcept { return minPages() < 2; }

    /// The counts that can be chosen, ascending: 26, 30, … 154 for ([26, 154], 4), and 3 alone for ([3, 3], 0). They
    /// are the rows of RVPageCountOrganizationListModel, and isValidPageCount() accepts each of them.
    ///
    /// Call isValid() first. An invalid organisation offers at most the lowest count, such as 0 by default and 10 for
    /// the range ([10, 20], 0). It offers none if the lowest count is above the highest.
    RVPageCounts pageCounts() const noexcept;
    /// The lowest count plus @p n packages.
    int pagesWithNExtraPackages(int n) const noexcept;
    /// The whole packages above the lowest count; 0 at or below it, and without increment.
    int countPackages(int pages) const noexcept;
    /// The number of counts that can be chosen; 1 without increment. Below 1 only for an invalid organisation.
    int numberOfPackages() const noexcept;
    /// The lowest count of a product with panorama pages: the lowest count plus two packages.
    int minPagesWithPano() const noexcept;
    /// The nearest possible count for @p pages. If isConsistent() is true, that is the next allowed count from @p pages
    /// on, or the highest if there is none: for ([26, 154], 4), 35 becomes 38 and 200 becomes 154.
    ///
    /// Otherwise it can be a count that isValidPageCount() rejects. Rounding up is not clamped, and clamping is not
    /// rounded: for ([26, 29], 4), 28 becomes 30 and 200 becomes 29. Without increment a count in range becomes the
    /// lowest, even if that is less: for ([10, 20], 0), 15 becomes 10 and 30 becomes 20.
    int constrain(int pages) const noexcept;

    /// A copy with the lowest count raised to constrain() of @p pages, so that it offers no smaller count. It is
    /// unchanged if @p pages is not above the lowest, and invalid if constrain() rounds up above the highest count.
    RVPageCountOrganization adaptedTo(int pages) const;
    /// A copy; with @p minOnly it has only the lowest count.
    RVPageCountOrganization clone(bool minOnly = false) const;

    /// Lowers both counts by @p pages, unless the lowest would fall below 1. Returns a copy of the result.
    RVPageCountOrganization operator-=(int pages);

    /// "min: 26; max: 154; increment: 4"
    QString dump() const;

    /// Compares range and increment.
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
