#ifndef LOADEDCATALOGUE_H
#define LOADEDCATALOGUE_H

#include "AttributeWords.h"

#include <CatalogueFinding.h>
#include <CatalogueProduct.h>
#include <CatalogueReader.h>

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <memory>

/**
 * A catalogue as it was read. Of each product it keeps what the list shows and what a search looks at; all else stays
 * packed until somebody looks at the product. So a catalogue of 20,000 products needs some 20 MB.
 *
 * It does not change once it is loaded, so any thread may read it.
 */
class LoadedCatalogue
{
public:
    struct Entry
    {
        RVProductType type;
        QString name;
        QString articleId; // empty where it has none
        int group = 0; // index into groups()
        QString searchText; // lower case
        FilePosition position;
        QByteArray element; // packed
    };

    explicit LoadedCatalogue(const QString &fileName) : myFileName(fileName) { }

    /// Adds the next product of the file.
    void append(const QDomElement &product, const FilePosition &position);
    void setFindings(const QList<CatalogueFinding> &findings) { myFindings = findings; }

    QString fileName() const { return myFileName; }
    int size() const { return int(myEntries.size()); }
    const Entry &at(int index) const { return myEntries.at(index); }
    /// The whole product, made from its element in every call.
    CatalogueProduct product(int index) const;
    /// The first product of the type, which is the one that is sold; -1 where there is none.
    int indexOf(const RVProductType &type) const { return myIndexes.value(type, -1); }
    /// The kinds of article that there are, in the order of the file.
    const QStringList &groups() const { return myGroups; }
    const QList<CatalogueFinding> &findings() const { return myFindings; }
    const AttributeWords &words() const { return myWords; }

private:
    int groupIndex(const QString &name);

    QString myFileName;
    AttributeWords myWords;
    QList<Entry> myEntries;
    QStringList myGroups;
    QHash<RVProductType, int> myIndexes;
    QList<CatalogueFinding> myFindings;
};

using CataloguePointer = std::shared_ptr<const LoadedCatalogue>;

#endif
