#ifndef RVCATALOGUEVALUES_P_H
#define RVCATALOGUEVALUES_P_H

#include "RVCatalogueElement.h"

#include <optional>

/// What an attribute says by the rules of RVXMLParser; nothing where it is missing or cannot be read, for which the
/// readers of products take their default.
/// @{
std::optional<int> rvIntValue(const RVCatalogueElement &element, QLatin1StringView name);
std::optional<double> rvDoubleValue(const RVCatalogueElement &element, QLatin1StringView name);
std::optional<bool> rvBoolValue(const RVCatalogueElement &element, QLatin1StringView name);
/// @}

#endif
