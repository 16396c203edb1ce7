#ifndef RVCATALOGUECHECK_H
#define RVCATALOGUECHECK_H

#include "RVCatalogueExport.h"
#include "RVCatalogueFinding.h"
#include "RVCatalogueRule.h"

#include <QList>
#include <QSharedDataPointer>

class RVCatalogueCheckData;
class RVCatalogueProduct;

/**
 * Which rules a catalogue is checked by: all of them, unless some are disabled. RVCatalogueReader takes one along and
 * gives every product its findings.
 *
 * Fonts are measured to find spines that are too narrow for any text, for which the program needs a QGuiApplication;
 * without one no spine is found to be.
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueCheck
{
public:
    RVCatalogueCheck();
    RVCatalogueCheck(const RVCatalogueCheck &other);
    RVCatalogueCheck(RVCatalogueCheck &&other) noexcept;
    RVCatalogueCheck &operator=(const RVCatalogueCheck &other);
    RVCatalogueCheck &operator=(RVCatalogueCheck &&other) noexcept;
    ~RVCatalogueCheck();

    /// From now on the rule finds nothing.
    void disable(RVCatalogueRule rule);
    bool isEnabled(RVCatalogueRule rule) const; ///< True unless the rule was disabled.

    /// Findings about one product, by the rules that concern it alone, in the order of the file. Any thread.
    QList<RVCatalogueFinding> findings(const RVCatalogueProduct &product) const;

private:
    QSharedDataPointer<RVCatalogueCheckData> d;
};

#endif
