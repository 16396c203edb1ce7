#ifndef LOADEDCATALOGUE_H
#define LOADEDCATALOGUE_H

#include "AttributeWords.h"
#include "FileStamp.h"
#include "ProductPack.h"
#include "ProductSearchIndex.h"

#include <RVCatalogueCheck.h>
#include <RVCatalogueFinding.h>
#include <RVCatalogueProduct.h>
#include <RVCheckConfiguration.h>

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <memory>

class RVCatalogueReader;

/**
 * A catalogue as it was read. Of each product it keeps what the list shows and what a search looks at; all else stays
 * packed until the product is shown, and equal texts are kept but once. So 20,000 products of 2 KB, with two
 * findings each, need some 13 MB.
 *
 * It does not change once it is loaded, so any thread may read it.
 */
class LoadedCatalogue
{
public:
    /// The number of findings about a product, and the worst severity of them, in as little memory as a number.
    class FindingCount
    {
    public:
        int count() const { return int(myValue / SEVERITIES); }
        /// A note where there is no finding.
        RVCatalogueSeverity worst() const { return RVCatalogueSeverity(myValue % SEVERITIES); }
        void add(RVCatalogueSeverity severity)
        {
            myValue = quint32(count() + 1) * SEVERITIES + quint32(qMax(worst(), severity));
        }

    private:
        static constexpr quint32 SEVERITIES = quint32(RVCatalogueSeverity::Error) + 1;

        quint32 myValue = 0;
    };

    struct Entry
    {
        RVProductType type;
        QString name;
        RVArticleId articleId;
        RVFilePosition position;
        int group = 0; // index into groups()
        int pack = 0;
        int indexInPack = 0;
        FindingCount findings;
    };

    explicit LoadedCatalogue(const QString &fileName) : myFileName(fileName) { }

    /// Adds the products that follow and what the reader finds wrong, all in one pass and on every core.
    void read(RVCatalogueReader *reader);
    /// Adds products that do not come from the file itself; their places are those that they know.
    void add(const QList<RVCatalogueProduct> &products);
    /// The configuration that the reader checks by, which may be a broken one that it therefore does without.
    void setConfiguration(const RVCheckConfiguration &configuration) { myConfiguration = configuration; }
    const RVCheckConfiguration &configuration() const { return myConfiguration; }
    /// The check with that configuration, which finds what findings() has.
    RVCatalogueCheck check() const;
    /// The state of the file before it was read; that of no file where it was read from somewhere else.
    void setStamp(const FileStamp &stamp) { myStamp = stamp; }
    const FileStamp &stamp() const { return myStamp; }

    QString fileName() const { return myFileName; }
    int size() const { return int(myEntries.size()); }
    const Entry &at(int index) const { return myEntries.at(index); }
    /// The texts by which products are found.
    const ProductSearchIndex &searchIndex() const { return mySearchIndex; }
    /// The whole product, read again in every call; its number, place and findings are to be asked for here.
    RVCatalogueProduct product(int index) const;
    /// The first product of the type, which is the one that is sold; -1 where there is none.
    int indexOf(const RVProductType &type) const { return myIndexes.value(type, -1); }
    /// The product whose start tag stands there, if it is of the type, else the first of the type; -1 where there is
    /// none.
    int indexOf(const RVProductType &type, const RVFilePosition &position) const;
    /// True if no earlier product has the type of this one.
    bool isSold(int index) const { return indexOf(at(index).type) == index; }
    /// The kinds of article that there are, in the order of the file.
    const QStringList &groups() const { return myGroups; }
    const QList<RVCatalogueFinding> &findings() const { return myFindings; }
    /// The texts by which findings are found: the type of the product, the text and the name of the rule.
    const ProductSearchIndex &findingIndex() const { return myFindingIndex; }
    /// The type of the product that a finding is about, as it stands in the file where it does; empty for none.
    QString typeOf(const RVCatalogueFinding &finding) const;
    const AttributeWords &words() const { return myWords; }
    /// The memory that all the products need which are packed.
    qsizetype packedBytes() const;

private:
    struct Batch;

    Batch batch(const QList<RVCatalogueProduct> &products) const;
    void append(Batch batch);
    void append(const RVCatalogueFinding &finding);
    int groupIndex(const QString &name);
    QString shared(const QString &text) { return *myTexts.insert(text); }
    RVCatalogueFinding shared(const RVCatalogueFinding &finding);

    QString myFileName;
    FileStamp myStamp;
    RVCheckConfiguration myConfiguration;
    AttributeWords myWords;
    QList<Entry> myEntries;
    QList<ProductPack> myPacks;
    ProductSearchIndex mySearchIndex;
    QStringList myGroups;
    QHash<RVProductType, int> myIndexes;
    QList<RVCatalogueFinding> myFindings;
    ProductSearchIndex myFindingIndex;
    QSet<QString> myTexts; // while it is read, so that equal texts need memory but once
};

Q_DECLARE_TYPEINFO(LoadedCatalogue::Entry, Q_RELOCATABLE_TYPE);

using CataloguePointer = std::shared_ptr<const LoadedCatalogue>;

#endif
