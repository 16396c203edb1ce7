#ifndef CATALOGUESERVICES_H
#define CATALOGUESERVICES_H

#include "LoadedCatalogue.h"

#include <RVProductChecker.h>

/// Puts a loaded catalogue behind the two services of the process: it answers for page counts, and it says what is
/// offered. There is one at a time.
class CatalogueServices
{
public:
    /// Without a catalogue nothing has page counts, and nothing is offered.
    CatalogueServices();
    ~CatalogueServices();
    CatalogueServices(const CatalogueServices &) = delete;
    CatalogueServices &operator=(const CatalogueServices &) = delete;

    /// From now on the services answer from this catalogue; what they remember of the one before is forgotten.
    void setCatalogue(const CataloguePointer &catalogue);
    CataloguePointer catalogue() const { return myCatalogue; }
    /// The product of this type in the catalogue; -1 where there is none.
    int indexOf(const RVProductType &type) const;

    /// True for a product that an application would offer: it has a type, an article id and valid page counts.
    static bool isOffered(const RVProductType &type);
    /// The page counts of the type.
    static RVPageCountOrganization pageCounts(const RVProductType &type);

private:
    class Checker : public RVProductChecker
    {
    public:
        explicit Checker(const CatalogueServices *services) : myServices(services) { }
        bool isValid(const RVProductType &type) const override;
        RVProductCheckerType checkerTypes() const override;
        bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const override;

    private:
        const CatalogueServices *myServices;
    };

    CataloguePointer myCatalogue;
    Checker myChecker;
};

#endif
