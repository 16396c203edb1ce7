#ifndef RVPAGEORGANIZATIONMANAGER_H
#define RVPAGEORGANIZATIONMANAGER_H

#include "RVPageCountOrganization.h"
#include "RVProductBaseExport.h"
#include "RVProductType.h"
#include "RVSingleton.h"

#include <QHash>
#include <QObject>
#include <QRecursiveMutex>

class RVPageOrganizationCalculator;
class RVPageOrganizationManager;

extern template class RVPRODUCTBASE_EXPORT RVSingleton<RVPageOrganizationManager>;

/**
 * The page counts of every product type. The manager calls the application's calculator once for each type and caches
 * the result until clearCache().
 *
 * Any thread may call; one lock serialises all operations. Without a calculator every type has the empty, invalid
 * organisation. The QObject belongs to the thread of the application if there is one on first use; otherwise to the
 * calling thread.
 *
 * @par Example
 * @snippet tst_guide_services.cpp pagecounts
 *
 * @ingroup services
 */
class RVPRODUCTBASE_EXPORT RVPageOrganizationManager : public QObject, public RVSingleton<RVPageOrganizationManager>
{
    Q_OBJECT

public:
    /// A manager without a calculator. Applications use instance() instead.
    RVPageOrganizationManager();
    ~RVPageOrganizationManager() override;

    /// Takes ownership and deletes the previous calculator; null removes it. Empties the cache, even if @p calculator
    /// is already set.
    void setCalculator(RVPageOrganizationCalculator *calculator);

    /// The page counts of the type, never null. The object lives as long as the process, even after the cache drops it;
    /// do not delete it. Do not change it either: a change through the pointer affects every result for the type until
    /// the cache is emptied, and is not synchronised with threads that read.
    RVPageCountOrganization *organization(const RVProductType &type);
    /// A copy of the result of organization(), which the caller may change.
    RVPageCountOrganization pageCountOrganzation(const RVProductType &type);
    /// Calls the calculator and bypasses the cache; the caller owns the result.
    RVPageCountOrganization *createPageOrganization(const RVProductType &type) const;

public Q_SLOTS:
    /// Empties the cache, for instance after the catalogue was reloaded.
    void clearCache();

private:
    RVPageCountOrganization *calculate(const RVProductType &type);

    mutable QRecursiveMutex myMutex;
    QHash<RVProductType, RVPageCountOrganization *> myCache;
    RVPageOrganizationCalculator *myCalculator = nullptr;
};

#endif
