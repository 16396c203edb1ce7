#ifndef RVDUPLICATES_P_H
#define RVDUPLICATES_P_H

#include "RVCatalogueFinding.h"
#include "RVFirstPlaces_p.h"
#include "RVPackedPlaces_p.h"

#include <QList>
#include <QStringList>

class RVCatalogueCheck;
class RVCatalogueElement;
class RVCatalogueProduct;
class RVFindingReport;

/// Finds types and article ids that occur twice in files that are read one after the other. Photo book codes are
/// reduced to their family first. A type is known by its hash, which has 64 bits.
class RVDuplicates
{
public:
    /// @p name appears in findings if a product of another file has the same id.
    void beginFile(const QString &name);

    /// Findings about ids that an earlier product has. Call it once for each product, in the order of the file.
    QList<RVCatalogueFinding> findings(const RVCatalogueCheck &check, const RVCatalogueProduct &product);

private:
    void checkType(const RVCatalogueProduct &product, RVFindingReport *report);
    void checkArticleId(const RVCatalogueProduct &product, RVFindingReport *report);
    quint64 placeOf(const RVCatalogueElement &product, QLatin1StringView attribute);
    QString lineText(const RVPackedPlaces::Place &place) const;
    RVRelatedPlace related(const RVPackedPlaces::Place &place, const QString &text) const;
    bool isThisFile(const RVPackedPlaces::Place &place) const { return place.file == myFileNames.size() - 1; }

    QStringList myFileNames;
    RVPackedPlaces myPlaces;
    RVFirstPlaces<quint64> myTypes;
    RVFirstPlaces<quint32> myArticleIds;
};

#endif
