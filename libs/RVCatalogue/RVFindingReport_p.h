#ifndef RVFINDINGREPORT_P_H
#define RVFINDINGREPORT_P_H

#include "RVCatalogueElement.h"
#include "RVCatalogueFinding.h"
#include "RVCatalogueRuleTable_p.h"

#include <QList>
#include <QString>

class RVCatalogueCheck;
class RVCatalogueProduct;

/// Other places that a finding is about, and what mends it.
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
    /// At the attribute; at the start tag where the attribute is missing. A missing one that was meant is no finding.
    void add(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute,
             const QString &text, const RVFindingDetails &details = {});
    /// At any place.
    void add(RVCatalogueRuleId rule, const RVFileRange &range, const QString &text,
             const RVFindingDetails &details = {});

    /// Something that is there under a wrong name or at a wrong place, which a finding of @p rule says already. Nothing
    /// calls it missing then, unless that finding is switched off or a mere note: an attribute of this element, an
    /// attribute of the elements of a name, or an element.
    /// @{
    void addMeant(RVCatalogueRuleId rule, const RVCatalogueElement &element, QLatin1StringView attribute);
    void addMeant(RVCatalogueRuleId rule, QLatin1StringView elementName, QLatin1StringView attribute = {});
    bool isMeant(const RVCatalogueElement &element, QLatin1StringView attribute) const;
    bool isMeant(QLatin1StringView elementName) const;
    /// @}

    /// In the order of the file; those of one place as they were added.
    QList<RVCatalogueFinding> sorted() const;

private:
    struct Meant
    {
        RVFilePosition position; // of the element, where it has no name here
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
/// An attribute as the other place; the start tag where it is missing.
RVRelatedPlace rvPlaceOf(const RVCatalogueElement &element, QLatin1StringView attribute, const QString &text);

/// The edit that puts a text in the place of some letters of a value: escaped, and nothing where XML reads other
/// letters than stand in the file, where the attribute is not in the file, or where the text is null.
QList<RVFileEdit> rvReplaced(const RVCatalogueElement &element, QLatin1StringView attribute, qsizetype from,
                             qsizetype length, const QString &text);
/// The same for the whole value.
QList<RVFileEdit> rvReplaced(const RVCatalogueElement &element, QLatin1StringView attribute, const QString &text);

/// The number of the line where the element begins.
QString rvLineOf(const RVCatalogueElement &element);

#endif
