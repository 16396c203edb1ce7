#include "CatalogueServices.h"

#include <RVPageOrganizationCalculator.h>
#include <RVPageOrganizationManager.h>
#include <RVProductCheckerRegistry.h>

namespace {

constexpr RVProductCheckerType COMPLETE = 1;

class Calculator : public RVPageOrganizationCalculator
{
public:
    explicit Calculator(const CatalogueServices *services) : myServices(services) { }

    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        const CataloguePointer catalogue = myServices->catalogue();
        const int index = catalogue ? catalogue->indexOf(type) : -1;
        return index < 0 ? RVPageCountOrganization() : catalogue->product(index).pageCounts();
    }

private:
    const CatalogueServices *myServices;
};

}

CatalogueServices::CatalogueServices() : myChecker(this)
{
    RVPageOrganizationManager::instance()->setCalculator(new Calculator(this));
    RVProductCheckerRegistry::instance()->registerChecker(&myChecker);
}

CatalogueServices::~CatalogueServices()
{
    RVProductCheckerRegistry::instance()->unregisterChecker(&myChecker);
    RVPageOrganizationManager::instance()->setCalculator(nullptr);
}

void CatalogueServices::setCatalogue(const CataloguePointer &catalogue)
{
    myCatalogue = catalogue;
    RVPageOrganizationManager::instance()->clearCache();
    RVProductCheckerRegistry::instance()->clearCaches();
}

bool CatalogueServices::isOffered(const RVProductType &type)
{
    return RVProductCheckerRegistry::instance()->isValid(type, COMPLETE);
}

RVPageCountOrganization CatalogueServices::pageCounts(const RVProductType &type)
{
    return RVPageOrganizationManager::instance()->pageCountOrganzation(type);
}

bool CatalogueServices::Checker::isValid(const RVProductType &type) const
{
    const CataloguePointer catalogue = myServices->catalogue();
    const int index = catalogue && type.isValid() ? catalogue->indexOf(type) : -1;
    return index >= 0 && catalogue->at(index).articleId.isValid() && pageCounts(type).isValid();
}

RVProductCheckerType CatalogueServices::Checker::checkerTypes() const
{
    return COMPLETE;
}

bool CatalogueServices::Checker::isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const
{
    const CataloguePointer catalogue = myServices->catalogue();
    const int index = catalogue ? catalogue->indexOf(type) : -1;
    return index >= 0 && catalogue->product(index).options().contains(variants);
}
