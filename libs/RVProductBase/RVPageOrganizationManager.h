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
 * Knows the page counts of every product type: asks the application's calculator once per type and remembers the
 * answer until clearCache().
 *
 * Any thread may call; one lock serialises all operations. Without a calculator every type has the empty, invalid
 * organisation. Whichever thread asks first, the QObject belongs to the thread of the application, if there is one by
 * then.
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
    /// Without a calculator. Applications take instance() instead.
    RVPageOrganizationManager();
    ~RVPageOrganizationManager() override;

    /// Takes ownership and deletes the previous calculator; null removes it. Empties the cache, also when
    /// @p calculator is the one that is set already.
    void setCalculator(RVPageOrganizationCalculator *calculator);

    /// The page counts of the type, never null. The object lives as long as the process, even when the cache or the
    /// manager forgets it; nobody may delete it. Leave it unchanged: a change through the pointer shows in every answer
    /// for the type until the cache is emptied, and nothing synchronises it with threads that read.
    RVPageCountOrganization *organization(const RVProductType &type);
    /// A copy of what organization() points to, free to be changed.
    RVPageCountOrganization pageCountOrganzation(const RVProductType &type);
    /// Asks the calculator, past the cache; the caller owns the result.
    RVPageCountOrganization *createPageOrganization(const RVProductType &type) const;

public Q_SLOTS:
    /// Forgets every answer, for instance after the catalogue was reloaded.
    void clearCache();

private:
    RVPageCountOrganization *calculate(const RVProductType &type);

    mutable QRecursiveMutex myMutex;
    QHash<RVProductType, RVPageCountOrganization *> myCache;
    RVPageOrganizationCalculator *myCalculator = nullptr;
};

#endif
