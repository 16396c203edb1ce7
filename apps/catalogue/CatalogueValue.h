#ifndef CATALOGUEVALUE_H
#define CATALOGUEVALUE_H

#include "CatalogueBatch.h"

#include <optional>

/// What an attribute says by the rules of the library's XML reader; nothing where it is missing or cannot be read, for
/// which the reader takes its default.
/// @{
std::optional<int> intValue(const CatalogueElement &element, QLatin1StringView name);
std::optional<double> doubleValue(const CatalogueElement &element, QLatin1StringView name);
std::optional<bool> boolValue(const CatalogueElement &element, QLatin1StringView name);
/// @}

#endif
