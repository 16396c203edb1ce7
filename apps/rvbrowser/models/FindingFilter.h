#ifndef FINDINGFILTER_H
#define FINDINGFILTER_H

#include "LoadedCatalogue.h"

#include <QList>
#include <QString>

#include <vector>

/// The findings that are to be shown; by default all of them.
struct FindingFilter
{
    QString text; ///< Each of its words is in the type of the product, the text or the name of the rule.
    RVCatalogueRule rule; ///< The null rule stands for every rule.
    QList<RVCatalogueSeverity> hidden; ///< Severities that are left out.

    bool isEmpty() const { return text.simplified().isEmpty() && rule.isNull() && hidden.isEmpty(); }
    /// For each finding of the catalogue, whether it is to be seen.
    std::vector<bool> accepted(const LoadedCatalogue &catalogue) const;
};

#endif
