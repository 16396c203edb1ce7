#ifndef RVSPINECONFIG_H
#define RVSPINECONFIG_H

#include "RVProductBaseExport.h"
#include "RVSpineConfigImpl.h"

#include <QExplicitlySharedDataPointer>

class QDomElement;
class QString;

/**
 * The spine of a bound product, whose width grows with the page count:
 *
 *     base width + block width × whole blocks of added packages + 2 × additional width
 *
 * A spine has 9 mm at 26 and 30 pages and 10 mm at 34 and 38 with a lowest count of 26 pages, an increment of 4, 2
 * packages per block, 8 mm base, 1 mm block and 0.5 mm additional width.
 *
 * It is read from the products XML. By default it does not grow, and all widths are 0. It never changes, so copies
 * share their data, also between threads. A move construction shares the data as well; a move assignment exchanges the
 * two objects.
 *
 * @par Example
 * @snippet tst_examples_geometry.cpp RVSpineConfig
 *
 * @ingroup geometry
 */
class RVPRODUCTBASE_EXPORT RVSpineConfig
{
public:
    RVSpineConfig(); ///< An invalid spine without any width.
    /// @p packagesPerBlock packages of pages make one block of growth; 0 for a spine that does not grow.
    RVSpineConfig(const RVPageCountOrganization &pageCountOrganization, int packagesPerBlock,
                  const RVDistance &baseWidth, const RVDistance &blockWidth, const RVDistance &additionalWidth);

    RVSpineConfig(const RVSpineConfig &) = default;
    RVSpineConfig &operator=(const RVSpineConfig &) = default;
    /// Exchanges the two.
    RVSpineConfig &operator=(RVSpineConfig &&other) noexcept
    {
        d.swap(other.d);
        return *this;
    }

    /// Reads the page counts of a product element and, of "spine" in its "composition", "packages_per_block" (0),
    /// "base_width", "block_width" and "additional_width" (0), in the "units" ("mm") of the composition.
    static RVSpineConfig createFromProductsXML(const QDomElement &product);

    /// True when the page counts are valid.
    bool isValid() const;
    /// Whole blocks of packages above the lowest page count; negative only where the page increment or the packages per
    /// block are.
    int additionalPagePackageBlocks(unsigned pages) const;
    /// The whole width, sides included, for any count; a count below the lowest gives the width at the lowest. A
    /// negative int turns into some four billion pages here.
    RVDistance spineWidth(unsigned pages) const;
    /// The extra width on each side of the spine.
    RVDistance additionalSpineWidth() const;
    /// The reduction of the cover, in whole tenths of a millimetre: the additional width, truncated.
    int coverReduceSize() const;
    /// The height of the highest line of text that fits the spine: 85 % of its width without its sides, rounded, in
    /// tenths of a millimetre.
    int highestLine(unsigned pages) const;
    /// The largest of the editor's font sizes, in points, whose line spacing in pixels is at most highestLine(). The
    /// result is at least the smallest size, and 0 if there are no sizes. An empty family is the default one. If
    /// texts cannot be measured, the result is the smallest size.
    int spineMaxFontHeigth(unsigned pages, const QString &fontFamily) const;
    /// True if texts can be measured, which needs a QGuiApplication.
    static bool canMeasureText();
    /// True if the smallest of the editor's font sizes fits the spine by that measure. Also true without sizes,
    /// and if texts cannot be measured.
    bool hasRoomForText(unsigned pages, const QString &fontFamily = QString()) const;

    /// Compares page counts, blocks and widths; widths as RVDistance does.
    /// @{
    bool operator==(const RVSpineConfig &other) const;
    bool operator!=(const RVSpineConfig &other) const { return !(*this == other); }
    /// @}

private:
    explicit RVSpineConfig(const RVSpineConfigImpl *data);

    QExplicitlySharedDataPointer<const RVSpineConfigImpl> d;
};

Q_DECLARE_TYPEINFO(RVSpineConfig, Q_RELOCATABLE_TYPE);

#endif
