#include "RVPageOrganizationManager.h"

#include "RVPageOrganizationCalculator.h"

#include <QCoreApplication>
#include <QList>
#include <QMutex>
#include <QMutexLocker>

#include <utility>

template class RVSingleton<RVPageOrganizationManager>;

namespace {

/// Callers keep the pointers that they got, so a returned organisation is never deleted. This list keeps it, so that it
/// is no leak.
void keepForever(RVPageCountOrganization *organization)
{
    static QBasicMutex mutex;
    static auto *const handedOut = new QList<RVPageCountOrganization *>;
    const QMutexLocker locker(&mutex);
    handedOut->append(organization);
}

}

// The thread of the first caller may end soon, and connections to clearCache() would then no longer be delivered.
RVPageOrganizationManager::RVPageOrganizationManager()
{
    if (const auto *application = QCoreApplication::instance())
        moveToThread(application->thread());
}

RVPageOrganizationManager::~RVPageOrganizationManager()
{
    // Its destructor may still ask for page counts.
    delete std::exchange(myCalculator, nullptr);
}

void RVPageOrganizationManager::setCalculator(RVPageOrganizationCalculator *calculator)
{
    const QMutexLocker locker(&myMutex);
    if (calculator != myCalculator)
        delete std::exchange(myCalculator, calculator);
    clearCache();
}

RVPageCountOrganization *RVPageOrganizationManager::organization(const RVProductType &type)
{
    const QMutexLocker locker(&myMutex);
    RVPageCountOrganization *const cached = myCache.value(type);
    return cached ? cached : calculate(type);
}

RVPageCountOrganization *RVPageOrganizationManager::calculate(const RVProductType &type)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a calculator may change the caller's object.
    const RVProductType key = type;
    RVPageCountOrganization *const created = createPageOrganization(type);
    keepForever(created);
    myCache.insert(key, created);
    return created;
}

RVPageCountOrganization RVPageOrganizationManager::pageCountOrganzation(const RVProductType &type)
{
    const QMutexLocker locker(&myMutex);
    return *organization(type);
}

RVPageCountOrganization *RVPageOrganizationManager::createPageOrganization(const RVProductType &type) const
{
    const QMutexLocker locker(&myMutex);
    return new RVPageCountOrganization(myCalculator ? myCalculator->calculate(type) : RVPageCountOrganization());
}

void RVPageOrganizationManager::clearCache()
{
    const QMutexLocker locker(&myMutex);
    myCache.clear();
}
