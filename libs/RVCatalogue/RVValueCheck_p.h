#ifndef RVVALUECHECK_P_H
#define RVVALUECHECK_P_H

#include "RVCatalogueElement.h"

#include <optional>

class RVFindingReport;

/// Reads a value and reports it if it cannot be read. Returns @p missing if there is no such attribute, and nothing if
/// it cannot be read or has another name.
/// @{
std::optional<int> rvCheckedInt(const RVCatalogueElement &element, QLatin1StringView name, int missing,
                                RVFindingReport *report);
std::optional<double> rvCheckedDouble(const RVCatalogueElement &element, QLatin1StringView name, double missing,
                                      RVFindingReport *report);
std::optional<bool> rvCheckedBool(const RVCatalogueElement &element, QLatin1StringView name, bool missing,
                                  RVFindingReport *report);
/// @}

/// Reports "units" if there is no such unit. True also if the attribute is missing, unless it has another name.
bool rvCheckUnit(const RVCatalogueElement &element, RVFindingReport *report);

/// True if the attribute is missing, empty, or white space.
bool rvIsBlank(const RVCatalogueElement &element, QLatin1StringView name);

#endif
