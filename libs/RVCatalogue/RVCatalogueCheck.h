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
 * The rules that a catalogue is checked by, and the additions of a print house. By default no rule is disabled.
 * RVCatalogueReader uses a check to give every product its findings.
 *
 * The check for spines that are too narrow for any text measures fonts. It needs a QGuiApplication and finds no such
 * spine without one.
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

    /// Disables the rule from now on.
    void disable(RVCatalogueRule rule);
    bool isEnabled(RVCatalogueRule rule) const; ///< True unless the rule was disabled.
    /// Sets the severity of the rule's findings from now on, and enables the rule.
    void setSeverity(RVCatalogueRule rule, RVCatalogueSeverity severity);
    RVCatalogueSeverity severity(RVCatalogueRule rule) const; ///< The severity of its findings; its own unless set.

    /// Names of attributes and elements that other programs read, so that they do not count as misspelt. Letter case
    /// matters.
    /// @{
    void addForeignNames(const QStringList &names);
    bool isForeign(const QString &name) const;
    /// @}
    /// Price classes of add-ons that are billed besides those of RVPriceClassSet.
    /// @{
    void addPriceClasses(const QStringList &codes);
    QStringList priceClasses() const; ///< The price classes, sorted.
    /// @}
    /// The page of a product in millimetres; an invalid size if it was not set.
    /// @{
    void setPageSize(const RVProductType &type, const QSizeF &size);
    QSizeF pageSize(const RVProductType &type) const;
    /// @}

    /// Findings about one product, by the rules that concern it alone, in the order of the file, without those that
    /// comments silence. Any thread.
    QList<RVCatalogueFinding> findings(const RVCatalogueProduct &product) const;

private:
    friend class RVCatalogueReaderPrivate;

    QList<RVCatalogueFinding> allFindings(const RVCatalogueProduct &product) const; // silenced ones included

    QSharedDataPointer<RVCatalogueCheckData> d;
};

#endif
