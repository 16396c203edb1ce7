#include "LoadedCatalogue.h"

#include "ProductFacts.h"

#include <QTextStream>

namespace {

/// The elements of a catalogue resemble one another, so little effort is enough.
constexpr int PACKING_EFFORT = 1;

QByteArray packed(const QDomElement &element)
{
    QByteArray text;
    QTextStream stream(&text);
    element.save(stream, 0);
    stream.flush();
    return qCompress(text, PACKING_EFFORT);
}

}

void LoadedCatalogue::append(const QDomElement &product, const FilePosition &position)
{
    const CatalogueProduct values(product);
    if (!myIndexes.contains(values.type))
        myIndexes.insert(values.type, size());
    Entry entry;
    entry.type = values.type;
    entry.name = values.name;
    if (values.articleId.isValid())
        entry.articleId = values.articleId.toString();
    entry.group = groupIndex(ProductFacts::group(values.articleClass));
    entry.searchText = ProductFacts(values, myWords).searchText();
    entry.position = position;
    entry.element = packed(product);
    myEntries += entry;
}

CatalogueProduct LoadedCatalogue::product(int index) const
{
    QDomDocument document;
    document.setContent(qUncompress(myEntries.at(index).element));
    return CatalogueProduct(document.documentElement());
}

int LoadedCatalogue::groupIndex(const QString &name)
{
    const auto index = myGroups.indexOf(name);
    if (index >= 0)
        return int(index);
    myGroups += name;
    return int(myGroups.size()) - 1;
}
