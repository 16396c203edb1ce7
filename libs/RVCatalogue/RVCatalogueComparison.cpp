#include "RVCatalogueComparison.h"

#include "RVCatalogueReader.h"
#include "RVProductArchive_p.h"
#include "RVProductFingerprint_p.h"

#include <QHash>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

constexpr int NONE = -1;

/// The facts of a product that find its other version and tell if the two are equal.
struct Facts
{
    explicit Facts(const RVCatalogueProduct &product)
        : type(product.type().calcHashValue()),
          fingerprint(product),
          articleId(product.articleId().id()),
          line(quint32(product.element().position().line)),
          column(quint32(product.element().position().column))
    { }

    RVFilePosition position() const { return { line, column }; }

    quint64 type; // the hash of the type
    RVProductFingerprint fingerprint;
    int articleId;
    quint32 line;
    quint32 column;
};

struct OldProduct
{
    Facts facts;
    int newNumber = NONE; // the number of its new version
};

/// A new product that is not known to be equal.
struct NewProduct
{
    Facts facts;
    int number; // the number in its catalogue
    int oldNumber; // the number of its old version
};

/// Products that were read together, and their facts.
template<typename Products>
struct ReadProducts
{
    std::vector<Facts> facts;
    Products products;
};

template<typename Products>
ReadProducts<Products> readProducts(const QList<RVCatalogueProduct> &products)
{
    ReadProducts<Products> result { {}, Products(products) };
    for (const RVCatalogueProduct &product : products)
        result.facts.emplace_back(product);
    return result;
}

/// Numbers of products by a key that several of them may share. All numbers are below a count.
class Queues
{
public:
    Queues() = default;
    explicit Queues(std::size_t count) : myNext(count, NONE) { }

    /// Adds a number in front of those with the same key.
    void prepend(quint64 key, int number)
    {
        const auto first = myFirst.find(key);
        if (first == myFirst.end())
            myFirst.insert(key, number);
        else
            myNext[std::size_t(number)] = std::exchange(*first, number);
    }
    /// Removes and returns the first number; NONE if there is none.
    int take(quint64 key)
    {
        const auto found = myFirst.find(key);
        if (found == myFirst.end() || *found == NONE)
            return NONE;
        return std::exchange(*found, myNext[std::size_t(*found)]);
    }

private:
    QHash<quint64, int> myFirst;
    std::vector<int> myNext;
};

/// A product of the output: its place and its two versions.
struct Row
{
    int newNumber; // for a removed product, the number of the product before it
    int oldNumber; // NONE for an added product
    int different; // its index among the new products that differ; NONE for a removed one

    friend bool operator<(const Row &a, const Row &b)
    {
        return std::pair(a.newNumber, a.oldNumber) < std::pair(b.newNumber, b.oldNumber);
    }
};

}

class RVCatalogueComparisonPrivate
{
public:
    void readOld(RVCatalogueReader *reader);
    void readNew(RVCatalogueReader *reader);
    /// Called after both files were read.
    void finish();

    RVProductComparison next();
    qint64 remaining() const { return qint64(myRows.size() - myNextRow); }

    RVComparisonCounts counts;
    bool hasError = false;

private:
    void add(const Facts &facts, const RVCatalogueProduct &product);
    void keepWaiting();
    void findRenamed();
    void sortRows();
    RVProductComparison compare(const Row &row);
    void count(const RVProductComparison &product);

    std::vector<OldProduct> myOld;
    std::vector<NewProduct> myDifferent;
    RVProductArchive myOldArchive;
    RVProductArchive myDifferentArchive;
    QList<RVCatalogueProduct> myWaiting; // for the archive
    Queues myTypes;
    int myNewCount = 0;
    std::vector<Row> myRows;
    std::size_t myNextRow = 0;
};

void RVCatalogueComparisonPrivate::readOld(RVCatalogueReader *reader)
{
    reader->map(readProducts<RVProductPack>, [this](const ReadProducts<RVProductPack> &read) {
        for (const Facts &facts : read.facts)
            myOld.push_back({ facts });
        myOldArchive.append(read.products);
        return true;
    });
    hasError = reader->hasError();
    myTypes = Queues(myOld.size());
    for (int i = int(myOld.size()) - 1; i >= 0; --i)
        myTypes.prepend(myOld[std::size_t(i)].facts.type, i);
}

void RVCatalogueComparisonPrivate::readNew(RVCatalogueReader *reader)
{
    using Products = QList<RVCatalogueProduct>;
    reader->map(readProducts<Products>, [this](const ReadProducts<Products> &read) {
        for (qsizetype i = 0; i < read.products.size(); ++i)
            add(read.facts[std::size_t(i)], read.products.at(i));
        return true;
    });
    hasError = reader->hasError();
}

void RVCatalogueComparisonPrivate::add(const Facts &facts, const RVCatalogueProduct &product)
{
    constexpr qsizetype mostWaiting = 32;
    const int oldNumber = myTypes.take(facts.type);
    const int newNumber = myNewCount++;
    if (oldNumber != NONE)
        myOld[std::size_t(oldNumber)].newNumber = newNumber;
    if (oldNumber != NONE && myOld[std::size_t(oldNumber)].facts.fingerprint == facts.fingerprint) {
        ++counts.equal;
        return;
    }
    myDifferent.push_back({ facts, newNumber, oldNumber });
    myWaiting += product;
    if (myWaiting.size() >= mostWaiting)
        keepWaiting();
}

void RVCatalogueComparisonPrivate::keepWaiting()
{
    myDifferentArchive.append(RVProductPack(myWaiting));
    myWaiting.clear();
}

void RVCatalogueComparisonPrivate::finish()
{
    keepWaiting();
    findRenamed();
    sortRows();
}

// An article whose type changed belongs together with its old version.
void RVCatalogueComparisonPrivate::findRenamed()
{
    Queues articles(myOld.size());
    for (int i = int(myOld.size()) - 1; i >= 0; --i) {
        const OldProduct &old = myOld[std::size_t(i)];
        if (old.newNumber == NONE)
            articles.prepend(quint64(old.facts.articleId), i);
    }
    for (NewProduct &product : myDifferent) {
        if (product.oldNumber == NONE && product.facts.articleId > 0)
            product.oldNumber = articles.take(quint64(product.facts.articleId));
        if (product.oldNumber != NONE)
            myOld[std::size_t(product.oldNumber)].newNumber = product.number;
    }
}

void RVCatalogueComparisonPrivate::sortRows()
{
    for (std::size_t i = 0; i < myDifferent.size(); ++i)
        myRows.push_back({ myDifferent[i].number, myDifferent[i].oldNumber, int(i) });
    int before = NONE;
    for (std::size_t i = 0; i < myOld.size(); ++i) {
        if (myOld[i].newNumber == NONE)
            myRows.push_back({ before, int(i), NONE });
        else
            before = myOld[i].newNumber;
    }
    std::sort(myRows.begin(), myRows.end());
}

RVProductComparison RVCatalogueComparisonPrivate::next()
{
    while (myNextRow < myRows.size()) {
        const RVProductComparison result = compare(myRows[myNextRow++]);
        count(result);
        if (result.kind() != RVChangeKind::None)
            return result;
    }
    return RVProductComparison();
}

RVProductComparison RVCatalogueComparisonPrivate::compare(const Row &row)
{
    RVCatalogueProduct before;
    RVCatalogueProduct after;
    if (row.oldNumber != NONE)
        before = myOldArchive.product(row.oldNumber);
    if (row.different != NONE)
        after = myDifferentArchive.product(row.different);
    RVProductComparison result(before, after);
    if (row.oldNumber != NONE)
        result.myOldPosition = myOld[std::size_t(row.oldNumber)].facts.position();
    if (row.different != NONE)
        result.myNewPosition = myDifferent[std::size_t(row.different)].facts.position();
    return result;
}

void RVCatalogueComparisonPrivate::count(const RVProductComparison &product)
{
    switch (product.kind()) {
    case RVChangeKind::Added:
        ++counts.added;
        break;
    case RVChangeKind::Removed:
        ++counts.removed;
        break;
    case RVChangeKind::Changed:
        ++counts.changed;
        counts.renamed += product.isRenamed() ? 1 : 0;
        break;
    case RVChangeKind::None:
        ++counts.equal;
        break;
    }
}

RVCatalogueComparison::RVCatalogueComparison(RVCatalogueReader *oldCatalogue, RVCatalogueReader *newCatalogue)
    : d(std::make_unique<RVCatalogueComparisonPrivate>())
{
    if (oldCatalogue)
        d->readOld(oldCatalogue);
    if (newCatalogue && !d->hasError)
        d->readNew(newCatalogue);
    if (!d->hasError)
        d->finish();
}

RVCatalogueComparison::~RVCatalogueComparison() = default;

bool RVCatalogueComparison::hasError() const
{
    return d->hasError;
}

RVProductComparison RVCatalogueComparison::next()
{
    return d->next();
}

qint64 RVCatalogueComparison::remaining() const
{
    return d->remaining();
}

RVComparisonCounts RVCatalogueComparison::counts() const
{
    return d->counts;
}
