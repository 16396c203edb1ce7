#ifndef RVCATALOGUECOMPARISON_H
#define RVCATALOGUECOMPARISON_H

#include "RVCatalogueExport.h"
#include "RVProductComparison.h"

#include <memory>

class RVCatalogueComparisonPrivate;
class RVCatalogueReader;

/// The numbers of products in a comparison.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVComparisonCounts
/// @ingroup catalogues
struct RVComparisonCounts
{
    qint64 added = 0; ///< Only in the new catalogue.
    qint64 removed = 0; ///< Only in the old one.
    qint64 changed = 0; ///< In both, with other values; also those that were renamed.
    qint64 renamed = 0; ///< Those of the changed ones that have another type.
    qint64 equal = 0; ///< In both, with the same values.
};

/**
 * The differences between two catalogues, product by product:
 *
 * @code
 * RVCatalogueReader before(u"old.xml"_s);
 * RVCatalogueReader after(u"new.xml"_s);
 * RVCatalogueComparison comparison(&before, &after);
 * for (auto product = comparison.next(); !product.isNull(); product = comparison.next())
 *     qDebug() << product.product().type().toString() << product.changes().size();
 * @endcode
 *
 * Products are found by their types, after photo book codes are reduced to their family; of several with one type, the
 * first belongs to the first. Of those that are left, two with the same article id are one product that was renamed. A
 * product that only moved is equal.
 *
 * Both files are read once, on every core. Of the old products and of those that differ, some hundred bytes each are
 * kept. For one thread at a time.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueComparison
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueComparison
{
    Q_DISABLE_COPY_MOVE(RVCatalogueComparison)

public:
    /// Reads all products that follow in both, and nothing of the new catalogue where the old one cannot be read. The
    /// readers are not needed afterwards. A null reader has no products.
    RVCatalogueComparison(RVCatalogueReader *oldCatalogue, RVCatalogueReader *newCatalogue);
    ~RVCatalogueComparison();

    /// True where one of the readers has an error; nothing is compared then.
    bool hasError() const;
    /// The next product that differs, in the order of the new catalogue, removed ones behind the product that stood
    /// before them; a null one at the end.
    RVProductComparison next();
    /// The most products that next() still hands out, so that a program can show how far it is; 0 at the end.
    qint64 remaining() const;
    /// So far; complete at the end.
    RVComparisonCounts counts() const;

private:
    std::unique_ptr<RVCatalogueComparisonPrivate> d;
};

#endif
