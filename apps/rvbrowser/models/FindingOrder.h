#ifndef FINDINGORDER_H
#define FINDINGORDER_H

#include "LoadedCatalogue.h"

#include <QList>

/// The columns in which findings are shown.
enum FindingColumn {
    FINDING_SEVERITY,
    FINDING_PRODUCT,
    FINDING_TEXT,
    FINDING_PLACE,
    FINDING_RULE,
    FINDING_COLUMN_COUNT,
};

/// The numbers of all findings of the catalogue, sorted by a column; in the order in which they were found for any
/// other number. The most severe ones come first, places are compared as numbers, and so are the digits in texts. Equal
/// ones stay in the order in which they were found, also where the order is descending.
QList<int> sortedFindings(const LoadedCatalogue &catalogue, int column, Qt::SortOrder order);

#endif
