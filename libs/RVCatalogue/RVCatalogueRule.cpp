#include "RVCatalogueRule.h"
RVCatalogueRule RVCatalogueRule::find(QStringView) { return RVCatalogueRule(); }
RVCatalogueSeverity RVCatalogueRule::severity() const { return RVCatalogueSeverity::Error; }
