#ifndef RVCATALOGUEVALUES_P_H
#define RVCATALOGUEVALUES_P_H

#include "RVCatalogueElement.h"

#include <optional>

/// The value of an attribute by the rules of RVXMLParser; nothing if it is missing or cannot be read. Readers of
/// products then take their default.
/// @{
std::optional<int> rvIntValue(const RVCatalogueElement &element, QLatin1StringView name);
std::optional<double> rvDoubleValue(const RVCatalogueElement &element, QLatin1StringView name);
std::optional<bool> rvBoolValue(const RVCatalogueElement &element, QLatin1StringView name);
/// @}

#endif
