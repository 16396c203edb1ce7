#ifndef RVCATALOGUEFINDING_H
#define RVCATALOGUEFINDING_H

#include "RVCatalogueExport.h"
#include "RVCatalogueRule.h"
#include "RVFileEdit.h"
#include "RVFileRange.h"
#include "RVRelatedPlace.h"

#include <QList>
#include <QSharedDataPointer>
#include <QString>

class RVCatalogueFindingData;

/**
 * One place of a catalogue that needs mending, or could be written better. Copies share their data until one of them is
 * changed, also between threads. The default finding is null: it breaks no rule.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueFinding
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueFinding
{
public:
    RVCatalogueFinding();
    /// @p product is the number of the product in the file from 0, or -1 for the file as a whole. The severity is that
    /// of the rule.
    RVCatalogueFinding(RVCatalogueRule rule, const RVFileRange &range, const QString &text, qint64 product = -1);
    RVCatalogueFinding(const RVCatalogueFinding &other);
    RVCatalogueFinding(RVCatalogueFinding &&other) noexcept;
    RVCatalogueFinding &operator=(const RVCatalogueFinding &other);
    RVCatalogueFinding &operator=(RVCatalogueFinding &&other) noexcept;
    ~RVCatalogueFinding();

    bool isNull() const noexcept { return !d; } ///< True for the default one.
    RVCatalogueRule rule() const; ///< The broken rule.
    RVCatalogueSeverity severity() const; ///< The severity of the rule, unless it was set.
    RVFileRange range() const; ///< The wrong attribute; the start tag of the element if it is not one attribute.
    QString text() const; ///< One line, without a full stop, in the language of the program.
    qint64 product() const; ///< The number of the product in the file from 0; -1 for the file as a whole.
    QString productType() const; ///< The type as it stands in the file; empty if the product has none.
    QList<RVRelatedPlace> relatedPlaces() const; ///< The other places that the finding concerns; usually none.
    /// The changes of the file that mend the finding, if there is one safe answer; none otherwise. All of them belong
    /// together.
    QList<RVFileEdit> fix() const;

    /// The setters do nothing to a null finding.
    /// @{
    void setSeverity(RVCatalogueSeverity severity);
    void setProductType(const QString &type);
    void setRelatedPlaces(const QList<RVRelatedPlace> &places);
    void setFix(const QList<RVFileEdit> &edits);
    /// @}

private:
    QSharedDataPointer<RVCatalogueFindingData> d;
};

Q_DECLARE_TYPEINFO(RVCatalogueFinding, Q_RELOCATABLE_TYPE);

#endif
