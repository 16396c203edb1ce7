#include "LoadedCatalogue.h"

#include "ProductFacts.h"

#include <RVCatalogueReader.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

/// The texts of a product that hardly any other has.
QString ownTexts(const LoadedCatalogue::Entry &entry)
{
    QStringList texts { entry.type.toString(), entry.name };
    if (entry.articleId.isValid())
        texts += entry.articleId.toString();
    return texts.join(u'\n');
}

}

/// Products that follow one another, and all that is kept of them but their places among the others.
struct LoadedCatalogue::Batch
{
    QList<Entry> entries;
    QStringList groups; // one for each entry
    QStringList words; // by which a search finds it, besides its type, name and article id
    ProductPack pack;
    QList<RVCatalogueFinding> findings;
};

void LoadedCatalogue::read(RVCatalogueReader *reader)
{
    reader->map([this](const QList<RVCatalogueProduct> &products) { return batch(products); },
                [this](Batch batch) {
                    append(std::move(batch));
                    return true;
                });
    for (const RVCatalogueFinding &finding : reader->findings())
        append(finding);
    myTexts.clear();
}

RVCatalogueCheck LoadedCatalogue::check() const
{
    RVCatalogueCheck result;
    myConfiguration.apply(&result);
    return result;
}

QString LoadedCatalogue::typeOf(const RVCatalogueFinding &finding) const
{
    if (!finding.productType().isEmpty())
        return finding.productType();
    return myEntries.value(finding.product()).type.orderTxtName();
}

void LoadedCatalogue::add(const QList<RVCatalogueProduct> &products)
{
    append(batch(products));
}

RVCatalogueProduct LoadedCatalogue::product(int index) const
{
    const Entry &entry = myEntries.at(index);
    return myPacks.at(entry.pack).product(entry.indexInPack);
}

int LoadedCatalogue::indexOf(const RVProductType &type, const RVFilePosition &position) const
{
    const auto isBefore = [](const Entry &entry, const RVFilePosition &place) { return entry.position < place; };
    const auto found = std::lower_bound(myEntries.begin(), myEntries.end(), position, isBefore);
    if (found != myEntries.end() && found->position == position && found->type == type)
        return int(found - myEntries.begin());
    return indexOf(type);
}

qsizetype LoadedCatalogue::packedBytes() const
{
    return std::accumulate(myPacks.begin(), myPacks.end(), qsizetype(0),
                           [](qsizetype sum, const ProductPack &pack) { return sum + pack.byteCount(); });
}

LoadedCatalogue::Batch LoadedCatalogue::batch(const QList<RVCatalogueProduct> &products) const
{
    Batch result;
    result.pack = ProductPack(products);
    for (const RVCatalogueProduct &product : products) {
        Entry entry;
        entry.type = product.type();
        entry.name = product.name();
        entry.articleId = product.articleId();
        entry.position = product.range().begin;
        entry.indexInPack = int(result.entries.size());
        result.entries += entry;
        result.words += ProductFacts(product, myWords).searchText();
        result.groups += ProductFacts::group(product.articleClass());
        result.findings += product.findings();
    }
    return result;
}

void LoadedCatalogue::append(Batch batch)
{
    for (qsizetype i = 0; i < batch.entries.size(); ++i) {
        Entry &entry = batch.entries[i];
        entry.group = groupIndex(batch.groups.at(i));
        entry.type = shared(entry.type.toString());
        entry.name = shared(entry.name);
        mySearchIndex.append(ownTexts(entry), batch.words.at(i));
        entry.pack = int(myPacks.size());
        if (!myIndexes.contains(entry.type))
            myIndexes.insert(entry.type, size());
        myEntries += std::move(entry);
    }
    myPacks += std::move(batch.pack);
    for (const RVCatalogueFinding &finding : std::as_const(batch.findings))
        append(finding);
}

void LoadedCatalogue::append(const RVCatalogueFinding &finding)
{
    const qint64 product = finding.product();
    if (product >= 0)
        myEntries[product].findings.add(finding.severity());
    myFindingIndex.append(typeOf(finding), finding.text() + u'\n' + finding.rule().name());
    myFindings += shared(finding);
}

RVCatalogueFinding LoadedCatalogue::shared(const RVCatalogueFinding &finding)
{
    RVCatalogueFinding result(finding.rule(), finding.range(), shared(finding.text()), finding.product());
    result.setSeverity(finding.severity());
    result.setProductType(shared(finding.productType()));
    QList<RVRelatedPlace> places = finding.relatedPlaces();
    for (RVRelatedPlace &place : places)
        place.text = shared(place.text);
    result.setRelatedPlaces(places);
    QList<RVFileEdit> edits = finding.fix();
    for (RVFileEdit &edit : edits)
        edit.text = shared(edit.text);
    result.setFix(edits);
    return result;
}

int LoadedCatalogue::groupIndex(const QString &name)
{
    const auto index = myGroups.indexOf(name);
    if (index >= 0)
        return int(index);
    myGroups += name;
    return int(myGroups.size()) - 1;
}
