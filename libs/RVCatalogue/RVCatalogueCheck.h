#ifndef RVCATALOGUECHECK_H
#define RVCATALOGUECHECK_H

#include "RVCatalogueExport.h"
#include "RVCatalogueFinding.h"
#include "RVCatalogueRule.h"

#include <QAnyStringView>
#include <QList>
#include <QSharedDataPointer>
#include <QSizeF>
#include <QStringList>

class RVCatalogueCheckData;
class RVCatalogueProduct;
class RVProductType;

/**
 * The rules that a catalogue is checked by, which are all of them, unless some are disabled, and what a print house
 * has of its own. RVCatalogueReader takes one along and gives every product its findings.
 *
 * Fonts are measured to find spines that are too narrow for any text, for which the program needs a QGuiApplication;
 * without one no spine is found to be.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueCheck
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
    /// From now on findings of the rule have this severity, and the rule is enabled.
    void setSeverity(RVCatalogueRule rule, RVCatalogueSeverity severity);
    RVCatalogueSeverity severity(RVCatalogueRule rule) const; ///< Of the findings of a rule; its own unless it was set.

    /// Names of attributes and elements that other programs read, so that they are no misspelt ones. Letter case
    /// counts.
    /// @{
    void addForeignNames(const QStringList &names);
    bool isForeign(const QString &name) const;
    /// @}
    /// Price classes of add-ons that are billed besides those of RVPriceClassSet.
    /// @{
    void addPriceClasses(const QStringList &codes);
    QStringList priceClasses() const; ///< Sorted.
    /// @}
    /// The page of a product in millimetres; an invalid size where nobody said it.
    /// @{
    void setPageSize(const RVProductType &type, const QSizeF &size);
    QSizeF pageSize(const RVProductType &type) const;
    /// @}

    /// Findings about one product, by the rules that concern it alone, in the order of the file, without those that
    /// comments silence. Any thread.
    QList<RVCatalogueFinding> findings(const RVCatalogueProduct &product) const;

private:
    friend class RVCatalogueReaderPrivate;

    QList<RVCatalogueFinding> allFindings(const RVCatalogueProduct &product) const; // also those that are silenced

    QSharedDataPointer<RVCatalogueCheckData> d;
};

#endif
