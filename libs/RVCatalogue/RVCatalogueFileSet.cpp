#include "RVCatalogueFileSet.h"

#include "RVDuplicates_p.h"

RVCatalogueFileSet::RVCatalogueFileSet() : d(std::make_unique<RVDuplicates>()) { }

RVCatalogueFileSet::~RVCatalogueFileSet() = default;
