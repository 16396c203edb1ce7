#ifndef RVSPINECONFIGIMPL_H
#define RVSPINECONFIGIMPL_H

#include "RVDistance.h"
#include "RVPageCountOrganization.h"
#include "RVProductBaseExport.h"

#include <QSharedData>

class QDomElement;
class QString;

/// The shared data of RVSpineConfig, which documents the operations.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVSpineConfigImpl
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVSpineConfigImpl : public QSharedData
{
public:
    /// The operations of RVSpineConfig.
    /// @{
    RVSpineConfigImpl() = default;
    RVSpineConfigImpl(const RVPageCountOrganization &pageCountOrganization, int packagesPerBlock,
                      const RVDistance &baseWidth, const RVDistance &blockWidth, const RVDistance &additionalWidth);
    RVSpineConfigImpl(const RVSpineConfigImpl &) = default;
    virtual ~RVSpineConfigImpl();

    static RVSpineConfigImpl createFromProductsXML(const QDomElement &product);

    bool isValid() const;
    int additionalPagePackageBlocks(unsigned pages) const;
    /// @}
    /// The width that the pages above the lowest count add to the spine.
    RVDistance additionalWithForPages(unsigned pages) const;
    /// The operations of RVSpineConfig.
    /// @{
    RVDistance spineWidth(unsigned pages) const;
    RVDistance additionalSpineWidth() const { return additionalWidth; }
    int coverReduceSize() const;
    int highestLine(unsigned pages) const;
    int spineMaxFontHeigth(unsigned pages, const QString &fontFamily) const;
    static bool canMeasureText();
    bool hasRoomForText(unsigned pages, const QString &fontFamily) const;

    bool operator==(const RVSpineConfigImpl &other) const;
    bool operator!=(const RVSpineConfigImpl &other) const { return !(*this == other); }
    /// @}

    RVPageCountOrganization pageCountOrganization; ///< the page counts of the product
    int packagesPerBlock = 0; ///< 0: the spine does not grow
    RVDistance baseWidth; ///< at the lowest page count
    RVDistance blockWidth; ///< added for every whole block of packages
    RVDistance additionalWidth; ///< on each side of the spine
};

#endif
