#include "RVCatalogueCheck.h"
#include <QSharedData>
class RVCatalogueCheckData : public QSharedData { };
RVCatalogueCheck::RVCatalogueCheck() : d(new RVCatalogueCheckData) { }
RVCatalogueCheck::RVCatalogueCheck(const RVCatalogueCheck &) = default;
RVCatalogueCheck::RVCatalogueCheck(RVCatalogueCheck &&) noexcept = default;
RVCatalogueCheck &RVCatalogueCheck::operator=(const RVCatalogueCheck &) = default;
RVCatalogueCheck &RVCatalogueCheck::operator=(RVCatalogueCheck &&) noexcept = default;
RVCatalogueCheck::~RVCatalogueCheck() = default;
bool RVCatalogueCheck::isEnabled(RVCatalogueRule) const { return true; }
QList<RVCatalogueFinding> RVCatalogueCheck::findings(const RVCatalogueProduct &) const { return {}; }
