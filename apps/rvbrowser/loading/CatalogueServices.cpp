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
        const int index = myServices->indexOf(type);
        return index < 0 ? RVPageCountOrganization() : myServices->catalogue()->product(index).pageCounts();
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

int CatalogueServices::indexOf(const RVProductType &type) const
{
    return myCatalogue ? myCatalogue->indexOf(type) : -1;
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
    const int index = myServices->indexOf(type);
    return type.isValid() && index >= 0 && myServices->catalogue()->at(index).articleId.isValid()
            && pageCounts(type).isValid();
}

RVProductCheckerType CatalogueServices::Checker::checkerTypes() const
{
    return COMPLETE;
}

bool CatalogueServices::Checker::isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const
{
    const int index = myServices->indexOf(type);
    return index >= 0 && myServices->catalogue()->product(index).options().contains(variants);
}
