#ifndef RVCATALOGUEFILESET_H
#define RVCATALOGUEFILESET_H

#include "RVCatalogueExport.h"

#include <QtGlobal>

#include <memory>

class RVDuplicates;

/**
 * Files that are checked together, because the ordering application reads all of them: types and article ids must
 * differ among all of them.
 *
 * @code
 * RVCatalogueFileSet files;
 * for (const QString &fileName : fileNames) {
 *     RVCatalogueReader reader(fileName);
 *     reader.setCheck(RVCatalogueCheck(), &files);
 *     for (const RVCatalogueProduct &product : reader)
 *         report(fileName, product.findings());
 * }
 * @endcode
 *
 * Files belong to it in the order in which their first products are read, and one is read to its end before the next
 * begins. It needs some 30 bytes for each product. All its readers belong to one thread at a time.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueFileSet
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueFileSet
{
    Q_DISABLE_COPY_MOVE(RVCatalogueFileSet)

public:
    RVCatalogueFileSet(); ///< A set without files.
    ~RVCatalogueFileSet();

private:
    friend class RVCatalogueReaderPrivate;

    std::unique_ptr<RVDuplicates> d;
};

#endif
