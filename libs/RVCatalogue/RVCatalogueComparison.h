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
    qint64 added = 0; ///< Products only in the new catalogue.
    qint64 removed = 0; ///< Products only in the old catalogue.
    qint64 changed = 0; ///< Products in both with different values, including renamed ones.
    qint64 renamed = 0; ///< The changed products that have a new type.
    qint64 equal = 0; ///< Products in both with the same values.
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
 * Products with the same type belong together, after photo book codes are reduced to their family; of several with one
 * type, the first belongs to the first. Among the remaining ones, two with the same article id are one product that was
 * renamed. A product that only moved is equal.
 *
 * Both files are read once, with the threads of their readers. The comparison keeps some hundred bytes of each old
 * product and of each product that differs. Only one thread at a time may use it.
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
    /// Reads all remaining products of both readers. If the old catalogue cannot be read, it does not read the new one.
    /// The readers are not needed afterwards. A null reader has no products.
    RVCatalogueComparison(RVCatalogueReader *oldCatalogue, RVCatalogueReader *newCatalogue);
    ~RVCatalogueComparison();

    /// True if one of the readers has an error; then nothing is compared.
    bool hasError() const;
    /// The next product that differs, in the order of the new catalogue; a removed product follows the product that
    /// stood before it. A null one at the end.
    RVProductComparison next();
    /// The most products that next() still hands out, so that a program can show how far it is; 0 at the end.
    qint64 remaining() const;
    /// So far; complete at the end.
    RVComparisonCounts counts() const;

private:
    std::unique_ptr<RVCatalogueComparisonPrivate> d;
};

#endif
