#ifndef RVFINDINGREPORT_P_H
#define RVFINDINGREPORT_P_H

#include "RVCatalogueElement.h"
#include "RVCatalogueFinding.h"
#include "RVCatalogueRuleTable_p.h"

#include <QList>
#include <QString>

class RVCatalogueCheck;
class RVCatalogueProduct;

/// The other places of a finding, and the edits that mend it.
struct RVFindingDetails
{
    // NOLINTBEGIN(readability-redundant-member-init): without it the compiler warns of what a list leaves out
    QList<RVRelatedPlace> places = {};
    QList<RVFileEdit> fix = {};
    // NOLINTEND(readability-redundant-member-init)
};

/// Collects the findings of all checks of one product. Findings of disabled rules are dropped.
class RVFindingReport
{
public:
    /// Both outlive the report.
    RVFindingReport(const RVCatalogueCheck &check, const RVCatalogueProduct &product)
        : myCheck(check),
          myProduct(product)
    { }

    const RVCatalogueCheck &check() const { return myCheck; }
    const RVCatalogueProduct &product() const { return myProduct; }

    /// Adds a finding at the start tag, for faults that are not in a single attribute.
    void add(RVCatalogueRuleId rule, const RVCatalogueElement &element, const QString &text,
             const RVFindingDetails &details = {});
    /// Adds a finding at the attribute, or at the start tag if the attribute is missing. An attribute that is present
    /// under another name gives no finding.
    void add(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute,
             const QString &text, const RVFindingDetails &details = {});
    /// Adds a finding at any place.
    void add(RVCatalogueRuleId rule, const RVFileRange &range, const QString &text,
             const RVFindingDetails &details = {});

    /// Records a part with a wrong name or at a wrong place that a finding of @p rule reports already: an attribute of
    /// this element, an attribute of the elements with a name, or an element. Later checks do not call it missing,
    /// unless that finding is switched off or a note.
    /// @{
    void addMeant(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute);
    void addMeant(RVCatalogueRuleId rule, QLatin1StringView elementName, QLatin1StringView attribute = {});
    bool isMeant(const RVCatalogueElement &element, QLatin1StringView attribute) const;
    bool isMeant(QLatin1StringView elementName) const;
    /// @}

    /// The findings in the order of the file; those of one place in the order of their addition.
    QList<RVCatalogueFinding> sorted() const;

private:
    struct Meant
    {
        RVFilePosition position; // of the element, if it has no name here
        QLatin1StringView elementName;
        QLatin1StringView attribute; // empty for the element itself
    };

    void addMeant(RVCatalogueRuleId rule, const Meant &meant);

    const RVCatalogueCheck &myCheck;
    const RVCatalogueProduct &myProduct;
    QList<RVCatalogueFinding> myFindings;
    QList<Meant> myMeant;
};

/// Puts findings in the order of the file.
void rvSort(QList<RVCatalogueFinding> *findings);

/// The start tag of an element as the other place of a finding.
RVRelatedPlace rvPlaceOf(const RVCatalogueElement &element, const QString &text);
/// An attribute as the other place; the start tag if it is missing.
RVRelatedPlace rvPlaceOf(const RVCatalogueElement &element, QLatin1StringView attribute, const QString &text);

/// The edit that replaces some letters of a value by a text, which is escaped. None if XML reads other letters than the
/// file has, if the attribute is not in the file, or if the text is null.
QList<RVFileEdit> rvReplaced(const RVCatalogueElement &element, QLatin1StringView attribute, qsizetype from,
                             qsizetype length, const QString &text);
/// The same for the whole value.
QList<RVFileEdit> rvReplaced(const RVCatalogueElement &element, QLatin1StringView attribute, const QString &text);

/// The number of the line where the element begins.
QString rvLineOf(const RVCatalogueElement &element);

#endif
