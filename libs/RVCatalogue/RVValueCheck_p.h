#ifndef RVVALUECHECK_P_H
#define RVVALUECHECK_P_H

#include "RVCatalogueElement.h"

#include <optional>

class RVFindingReport;

/// Reads a value and reports it where it cannot be read. Returns @p missing where there is no such attribute, and
/// nothing where it cannot be read, or where it is there under another name.
/// @{
std::optional<int> rvCheckedInt(const RVCatalogueElement &element, QLatin1StringView name, int missing,
                                RVFindingReport *report);
std::optional<double> rvCheckedDouble(const RVCatalogueElement &element, QLatin1StringView name, double missing,
                                      RVFindingReport *report);
std::optional<bool> rvCheckedBool(const RVCatalogueElement &element, QLatin1StringView name, bool missing,
                                  RVFindingReport *report);
/// @}

/// Reports "units" where there is no such unit. True where it is missing, too, unless it is there under another name.
bool rvCheckUnit(const RVCatalogueElement &element, RVFindingReport *report);

/// True where the attribute is missing, empty, or white space.
bool rvIsBlank(const RVCatalogueElement &element, QLatin1StringView name);

#endif
