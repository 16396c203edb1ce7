#ifndef RVCATALOGUEREADER_H
#define RVCATALOGUEREADER_H

#include "RVCatalogueCheck.h"
#include "RVCatalogueExport.h"
#include "RVCatalogueProduct.h"
#include "RVFilePosition.h"

#include <QList>
#include <QString>

#include <cstddef>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

class QIODevice;
class RVCatalogueFileSet;
class RVCatalogueReaderPrivate;

/**
 * Reads a catalogue in one pass, product by product, so that memory does not grow with the file:
 *
 * @code
 * RVCatalogueReader reader(u"products.xml"_s);
 * for (const RVCatalogueProduct &product : reader)
 *     qDebug() << product.type().toString() << product.pageCounts().maxPages();
 * if (reader.hasError())
 *     qWarning() << reader.errorPosition().line << reader.errorString();
 * @endcode
 *
 * Elements named `product` count at any depth, and a `product` in a `product` belongs to the outer one. A file that
 * cannot be opened, is not well-formed, ends too early, is not written in the encoding that it declares, declares
 * entities, nests elements deeper than 256 levels, or has a product, text, comment or declaration larger than 1 MiB
 * ends the reading with one error; the products before it remain valid.
 *
 * A reader belongs to one thread; its products may be used on any thread.
 *
 * @par Example
 * @snippet tst_examples_catalogues.cpp RVCatalogueReader
 *
 * @ingroup catalogues
 */
class RVCATALOGUE_EXPORT RVCatalogueReader
{
    Q_DISABLE_COPY_MOVE(RVCatalogueReader)

public:
    class Iterator;

    /// Opens the file; one that cannot be opened is a catalogue with an error and without products.
    explicit RVCatalogueReader(const QString &fileName);
    /// @p device is open for reading, stays the caller's and outlives the reader. It is read from its current position.
    explicit RVCatalogueReader(QIODevice *device);
    ~RVCatalogueReader();

    /// Sets the check that gives findings to the products and the file. Call it before the first product is read.
    /// @{
    void setCheck(const RVCatalogueCheck &check);
    /// Duplicates of products in @p files, which outlive the reader, are found as well. @p fileName is the name of this
    /// file in findings of later files; by default the name of the opened file.
    void setCheck(const RVCatalogueCheck &check, RVCatalogueFileSet *files, const QString &fileName = QString());
    /// @}

    /// The next product; a null one at the end and after an error.
    RVCatalogueProduct next();
    /// Iterates over the products that follow, once.
    /// @{
    Iterator begin();
    std::nullptr_t end() noexcept { return nullptr; }
    /// @}
    /// All products that follow.
    QList<RVCatalogueProduct> readAll();
    /// The next product of that type; a null one if there is none. The file is not read beyond it.
    RVCatalogueProduct find(const RVProductType &type);
    /// Reads on to the end; false if the rest cannot be read. Findings of the skipped products are lost.
    bool finish();

    /**
     * Reads to the end on the number of threads that setThreadCount() sets: @p work turns some consecutive products
     * into a result, and
     * @p take gets the results in the order of the file, until it returns false.
     *
     * `Result work(const QList<RVCatalogueProduct> &)` is called on several threads at once, so it must not change
     * shared data. `bool take(Result)` is called on the caller's thread. The products in work take at most some hundred
     * kilobytes for each thread.
     */
    template<typename Work, typename Take>
    void map(Work work, Take take);

    /// The highest number of threads that map() uses besides the caller's, at least 1. By default one for each core of
    /// the machine, but at most 8, because more would wait for the reading thread. Call it before map().
    void setThreadCount(int count);

    /// Findings about the file as a whole, about elements outside of products, and about comments in front of groups of
    /// products, in the order of the file. They are complete after the whole file was read.
    QList<RVCatalogueFinding> findings() const;

    /// True when no product follows, also after an error.
    bool atEnd();
    bool hasError() const; ///< True only after the products in front of the error were read.
    QString
    errorString() const; ///< One line, without a full stop, in the language of the program; empty without an error.
    RVFilePosition errorPosition() const; ///< The place of the error; the begin of the file without an error.
    qint64 bytesRead() const; ///< The bytes read so far, for showing progress.
    qint64 size() const; ///< The size of the file in bytes; 0 if it is unknown, as for a pipe.

private:
    using AnyResult = std::shared_ptr<void>;

    void mapAny(const std::function<AnyResult(const QList<RVCatalogueProduct> &)> &work,
                const std::function<bool(const AnyResult &)> &take);

    std::unique_ptr<RVCatalogueReaderPrivate> d;
};

/// The input iterator for range-based for loops; its end is null.
/// @par Example
/// @snippet tst_examples_catalogues.cpp RVCatalogueReader_Iterator
class RVCatalogueReader::Iterator
{
public:
    /// Types for the standard library.
    /// @{
    using iterator_category = std::input_iterator_tag;
    using value_type = RVCatalogueProduct;
    using difference_type = std::ptrdiff_t;
    using pointer = const RVCatalogueProduct *;
    using reference = const RVCatalogueProduct &;
    /// @}

    /// Reads the next product of the reader, which outlives the iterator.
    explicit Iterator(RVCatalogueReader *reader) : myReader(reader), myProduct(reader->next()) { }

    /// The product; a null one at the end.
    /// @{
    reference operator*() const noexcept { return myProduct; }
    pointer operator->() const noexcept { return &myProduct; }
    /// @}
    /// Reads the next product.
    /// @{
    Iterator &operator++()
    {
        myProduct = myReader->next();
        return *this;
    }
    void operator++(int) { ++*this; }
    /// @}

    /// An iterator is equal to null when no product follows.
    /// @{
    friend bool operator==(const Iterator &a, std::nullptr_t) noexcept { return a.myProduct.isNull(); }
    friend bool operator!=(const Iterator &a, std::nullptr_t) noexcept { return !a.myProduct.isNull(); }
    /// @}

private:
    RVCatalogueReader *myReader;
    RVCatalogueProduct myProduct;
};

inline RVCatalogueReader::Iterator RVCatalogueReader::begin()
{
    return Iterator(this);
}

template<typename Work, typename Take>
void RVCatalogueReader::map(Work work, Take take)
{
    using Result = decltype(work(QList<RVCatalogueProduct>()));
    mapAny([&work](const QList<RVCatalogueProduct> &products) { return std::make_shared<Result>(work(products)); },
           [&take](const AnyResult &result) { return bool(take(std::move(*static_cast<Result *>(result.get())))); });
}

#endif
