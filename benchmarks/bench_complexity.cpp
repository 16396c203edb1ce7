// The growth of the cost with the input.
#include "Catalogue.h"
#include "Comparison.h"

#include <RVArticleVariants.h>
#include <RVBarcodeDefinitionList.h>
#include <RVCatalogueReader.h>
#include <RVConfiguredArticleVariantList.h>
#include <RVPaperType.h>
#include <RVProductTypeList.h>

#include <QBuffer>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Measures the operation on an input of size n, which @p make creates.
template<typename Make, typename Operation>
void add(const char *name, int smallest, int largest, benchmark::BigO expected, Make make, Operation operation)
{
    benchmark::RegisterBenchmark(name,
                                 [=](benchmark::State &state) {
                                     const auto input = make(int(state.range(0)));
                                     for (auto _ : state)
                                         benchmark::DoNotOptimize(operation(input));
                                     state.SetComplexityN(state.range(0));
                                 })
            ->RangeMultiplier(2)
            ->Range(smallest, largest)
            ->Complexity(expected);
}

QString keywordList(int pieces)
{
    QStringList result;
    for (int i = 0; i < pieces; ++i)
        result += i % 2 == 0 ? u" Fotopaper-Glossy"_s : u"indigo"_s;
    return result.join(u',');
}

QString optionText(int pairs)
{
    QStringList result;
    for (int i = 0; i < pairs; ++i)
        result += u"option%1:value%1"_s.arg(i);
    return result.join(u',');
}

int readCatalogue(QByteArray catalogue)
{
    QBuffer buffer(&catalogue);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    int options = 0;
    for (const RVCatalogueProduct &product : reader)
        options += int(product.options().size());
    return options;
}

RVBarcodeDefinitionList barcodes(int count)
{
    RVBarcodeDefinitionList result;
    for (int i = 0; i < count; ++i)
        result += RVBarcodeDefinition(QRect(i, i, 10, 10), i, u"barcode.png"_s);
    return result;
}

RVProductTypeList productTypes(int count)
{
    RVProductTypeList result;
    for (int i = 0; i < count; ++i)
        result += RVProductType(u"VIR%1"_s.arg(i));
    return result;
}

/// Two lists that have every second option in common.
std::pair<RVConfiguredArticleVariantList, RVConfiguredArticleVariantList> optionLists(int count)
{
    std::pair<RVConfiguredArticleVariantList, RVConfiguredArticleVariantList> result;
    for (int i = 0; i < count; ++i) {
        result.first += RVConfiguredArticleVariant(u"key"_s, u"value%1"_s.arg(i));
        result.second += RVConfiguredArticleVariant(u"key"_s, u"value%1"_s.arg(i * 2));
    }
    return result;
}

}

void addBenchmarks()
{
    using benchmark::oN;
    using benchmark::oNSquared;
    add("decodeCSV_over_keywords", 16, 2048, oN, keywordList,
        [paper = RVPaperType()](const QString &text) { return paper.decodeCSV(text); });
    add("createFromKTX_over_pairs", 16, 2048, oN, optionText, RVArticleVariants::createFromKTX);
    add("catalogue_over_products", 4, 256, oN, [](int products) { return catalogueXml(products, 6); }, readCatalogue);
    add("catalogue_over_forms", 16, 1024, oN, [](int forms) { return catalogueXml(1, forms); }, readCatalogue);
    add("updateDefinitions", 16, 512, oNSquared, barcodes, [](const RVBarcodeDefinitionList &other) {
        RVBarcodeDefinitionList list;
        list.updateDefinitions(other);
        return list.size();
    });
    add("addWithoutDoubles", 16, 512, oNSquared, productTypes, [](const RVProductTypeList &types) {
        RVProductTypeList list;
        list.addWithoutDoubles(types);
        return list.size();
    });
    add("intersect", 16, 512, oNSquared, optionLists, [](const auto &lists) {
        RVConfiguredArticleVariantList list = lists.first;
        list.intersect(lists.second);
        return list.size();
    });
}
