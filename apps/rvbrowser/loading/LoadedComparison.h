#ifndef LOADEDCOMPARISON_H
#define LOADEDCOMPARISON_H

#include "ComparedProduct.h"
#include "FileCopy.h"
#include "LoadedCatalogue.h"

#include <RVCatalogueComparison.h>

#include <QHash>

/// One of the two files of a comparison.
struct ComparedFile
{
    QString fileName; ///< As people call it.
    QString path; ///< The file that is read; another one where it is a copy.
    std::shared_ptr<const FileCopy> copy = nullptr; ///< Keeps the copy there.
};

struct ComparedFiles
{
    ComparedFile before;
    ComparedFile after;
};

/**
 * The differences between two catalogues. Of a product that both have, its changes are kept; equal changes of several
 * products but once. One that only one of them has is kept packed, so that it can be shown.
 *
 * It does not change once it is loaded, so any thread may read it.
 */
class LoadedComparison
{
public:
    /// Nothing differs before products are added.
    explicit LoadedComparison(const ComparedFiles &files)
        : myFiles(files),
          mySingles(std::make_shared<LoadedCatalogue>(files.before.fileName))
    { }

    void append(const RVProductComparison &product);
    /// Ends the comparison after all its products were added.
    void finish(const RVComparisonCounts &counts);

    const ComparedFiles &files() const { return myFiles; }
    const RVComparisonCounts &counts() const { return myCounts; }
    int size() const { return int(myProducts.size()); }
    const ComparedProduct &at(int index) const { return myProducts.at(index); }
    /// The texts by which products and what has changed of them are found.
    const ProductSearchIndex &searchIndex() const { return mySearchIndex; }

    /// The products that only one of the catalogues has.
    CataloguePointer singles() const { return mySingles; }
    /// The number of the product among them; -1 for one that both have.
    int indexInSingles(int index) const { return mySingleNumbers.value(index, -1); }

private:
    void keepWaiting();
    RVProductChange shared(const RVProductChange &change);

    ComparedFiles myFiles;
    RVComparisonCounts myCounts;
    QList<ComparedProduct> myProducts;
    ProductSearchIndex mySearchIndex;
    std::shared_ptr<LoadedCatalogue> mySingles;
    QHash<int, int> mySingleNumbers;
    QList<RVCatalogueProduct> myWaiting; // to be packed together
    QHash<QString, RVProductChange> myChanges; // while it is made, so that equal ones need memory but once
};

using ComparisonPointer = std::shared_ptr<const LoadedComparison>;

#endif
