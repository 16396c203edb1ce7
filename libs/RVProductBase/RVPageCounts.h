#ifndef RVPAGECOUNTS_H
#define RVPAGECOUNTS_H

#include <QtGlobal>

#include <cstddef>
#include <iterator>

/**
 * The page counts that a product offers, ascending. RVPageCountOrganization::pageCounts() returns them; the default is
 * empty.
 *
 *     for (int pages : organization.pageCounts())
 *         list->addItem(QString::number(pages));
 *
 * The counts are computed on access, so two billion of them need no memory. For a list of them, write
 * `QList<int>(counts.begin(), counts.end())`.
 *
 * @par Example
 * @snippet tst_examples_geometry.cpp RVPageCounts
 *
 * @ingroup geometry
 */
class RVPageCounts
{
public:
    /// Goes through the counts, any number of times.
    /// @par Example
    /// @snippet tst_examples_geometry.cpp RVPageCounts_const_iterator
    class const_iterator
    {
    public:
        /// Types for the standard library.
        /// @{
        using iterator_category = std::input_iterator_tag; // it makes its values
        using iterator_concept = std::forward_iterator_tag;
        using value_type = int;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = int;
        /// @}

        constexpr const_iterator() noexcept = default; ///< An iterator without counts.

        constexpr int operator*() const noexcept { return int(myPages); } ///< The count.
        /// Moves to the next count.
        /// @{
        constexpr const_iterator &operator++() noexcept
        {
            myPages += myIncrement;
            return *this;
        }
        constexpr const_iterator operator++(int) noexcept
        {
            const const_iterator before = *this;
            ++*this;
            return before;
        }
        /// @}

        /// Compares the places; both must belong to the same counts.
        /// @{
        friend constexpr bool operator==(const_iterator a, const_iterator b) noexcept { return a.myPages == b.myPages; }
        friend constexpr bool operator!=(const_iterator a, const_iterator b) noexcept { return !(a == b); }
        /// @}

    private:
        friend class RVPageCounts;

        constexpr const_iterator(qint64 pages, qint64 increment) noexcept : myPages(pages), myIncrement(increment) { }

        qint64 myPages = 0; // behind the last one it may be no int
        qint64 myIncrement = 1;
    };
    /// Types for the standard library.
    /// @{
    using iterator = const_iterator;
    using value_type = int;
    /// @}

    constexpr RVPageCounts() noexcept = default; ///< No counts.

    /// From the lowest count to behind the highest.
    /// @{
    constexpr const_iterator begin() const noexcept { return const_iterator(myLowest, myIncrement); }
    constexpr const_iterator end() const noexcept { return const_iterator(pages(mySize), myIncrement); }
    /// @}

    /// The number of counts; more than an int holds for the largest ranges.
    constexpr qint64 size() const noexcept { return mySize; }
    constexpr bool isEmpty() const noexcept { return mySize == 0; } ///< True without any count.
    /// The count at a place, counted from 0. A place beyond the ends counts as the end; 0 without any count.
    constexpr int at(qint64 index) const noexcept
    {
        const qint64 atMost = index < mySize ? index : mySize - 1;
        return int(pages(atMost > 0 ? atMost : 0));
    }
    constexpr int first() const noexcept { return at(0); } ///< The lowest; 0 without any count.
    constexpr int last() const noexcept { return at(mySize - 1); } ///< The highest; 0 without any count.

    /// Compares the counts themselves, not the ranges that they were made from.
    /// @{
    friend constexpr bool operator==(const RVPageCounts &a, const RVPageCounts &b) noexcept
    {
        return a.mySize == b.mySize && (a.isEmpty() || (a.first() == b.first() && a.last() == b.last()));
    }
    friend constexpr bool operator!=(const RVPageCounts &a, const RVPageCounts &b) noexcept { return !(a == b); }
    /// @}

private:
    friend class RVPageCountOrganization;

    /// The counts from @p lowest on, at least one; the increment is above 0 if there are several.
    constexpr RVPageCounts(int lowest, int increment, qint64 size) noexcept
        : myLowest(lowest),
          myIncrement(size > 1 ? increment : 1),
          mySize(size)
    { }

    constexpr qint64 pages(qint64 index) const noexcept { return myLowest + index * myIncrement; }

    int myLowest = 0;
    int myIncrement = 1;
    qint64 mySize = 0;
};

Q_DECLARE_TYPEINFO(RVPageCounts, Q_RELOCATABLE_TYPE);

#endif
