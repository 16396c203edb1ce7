#include "ProductJson.h"

#include "JsonValues.h"
#include "ProductValues.h"

#include <RVCatalogueAttributes.h>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// Makes room for a further value; a file without repetitions must not fill the memory.
template<typename Cache>
void limit(Cache *cache)
{
    constexpr qsizetype most = 4096;
    if (cache->size() >= most)
        cache->clear();
}

/// Keywords and number of an attribute of a product.
template<typename T>
std::string attributeJson(const T &attribute)
{
    if (attribute.isNull())
        return "null";
    JsonWriter json;
    json.beginObject();
    json.key("keywords"_L1);
    writeTexts(json, attribute.encodeBits());
    json.key("value"_L1);
    json.value(qint64(attribute.value()));
    json.endObject();
    return json.take();
}

}

/// A key of the object of a product, and the function that writes its value.
struct ProductJson::Member
{
    QLatin1StringView key;
    void (*write)(ProductJson &json, const ProductValues &values);
};

template<typename T>
void ProductJson::addAttribute(std::vector<Member> *members, const RVCatalogueAttributeRow<T> &row)
{
    if (row.isOfProducts)
        members->push_back(
                { row.name, [](ProductJson &json, const ProductValues &values) { json.writeAttribute<T>(values); } });
}

std::vector<ProductJson::Member> ProductJson::members()
{
    using Json = ProductJson;
    using Values = ProductValues;
    std::vector<Member> result = {
        { "article_id"_L1, [](Json &json, const Values &values) { writeId(json.myJson, values.product.articleId()); } },
        { "barcodes"_L1,
          [](Json &json, const Values &values) { writeBarcodes(json.myJson, values.product.barcodes()); } },
        { "families"_L1, [](Json &json, const Values &values) { writeTexts(json.myJson, values.product.families()); } },
        { "name"_L1, [](Json &json, const Values &values) { writeText(json.myJson, values.product.name()); } },
        { "options"_L1, [](Json &json, const Values &values) { json.writeOptions(values.product); } },
        { "page_price_class"_L1,
          [](Json &json, const Values &values) {
              writeText(json.myJson, values.product.pagePriceClass().toString());
          } },
        { "pages"_L1, [](Json &json, const Values &values) { writePageCounts(json.myJson, values.pageCounts); } },
        { "photo_box"_L1, [](Json &json, const Values &values) { json.myJson.value(values.product.isPhotoBox()); } },
        { "place"_L1,
          [](Json &json, const Values &values) {
              writePlace(json.myJson, json.myFileName, values.product.range().begin);
          } },
        { "price_class"_L1,
          [](Json &json, const Values &values) { writeText(json.myJson, values.product.priceClass().toString()); } },
        { "shipping_group"_L1,
          [](Json &json, const Values &values) { writeId(json.myJson, values.product.shippingGroup()); } },
        { "spine"_L1, [](Json &json, const Values &values) { json.writeSpines(values); } },
        { "type"_L1, [](Json &json, const Values &values) { writeText(json.myJson, values.type.toString()); } },
    };
    std::apply([&](const auto &...rows) { (addAttribute(&result, rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
    std::sort(result.begin(), result.end(), [](const Member &a, const Member &b) { return a.key < b.key; });
    return result;
}

std::string ProductJson::object(const ProductValues &values)
{
    static const std::vector<Member> theMembers = members();
    myJson.beginObject();
    for (const Member &member : theMembers) {
        myJson.key(member.key);
        member.write(*this, values);
    }
    myJson.endObject();
    return myJson.take();
}

template<typename T>
void ProductJson::writeAttribute(const ProductValues &values)
{
    const auto &row = std::get<RVCatalogueAttributeRow<T>>(RV_CATALOGUE_ATTRIBUTES);
    const T attribute = (values.product.*row.value)();
    const std::pair key(row.name, qint64(attribute.value()));
    const auto known = myAttributes.constFind(key);
    if (known != myAttributes.constEnd())
        return myJson.json(*known);
    limit(&myAttributes);
    myJson.json(*myAttributes.insert(key, attributeJson(attribute)));
}

void ProductJson::writeSpines(const ProductValues &values)
{
    if (!values.hasSpine)
        return myJson.null();
    myJson.beginArray();
    writeSpine(values, values.pageCounts.minPages());
    writeSpine(values, values.pageCounts.maxPages());
    myJson.endArray();
}

void ProductJson::writeSpine(const ProductValues &values, int pages)
{
    SpineRow row = values.spineRow(pages);
    row.fontSize = fontSize(values, pages);
    writeSpineRow(myJson, row);
}

void ProductJson::writeOptions(const RVCatalogueProduct &product)
{
    myJson.beginArray();
    for (const ProductOption &option : ProductOption::of(product))
        writeOption(myJson, option);
    myJson.endArray();
}

// The size depends only on the width without the sides.
int ProductJson::fontSize(const ProductValues &values, int pages)
{
    const RVDistance width = values.spineWidth(pages) - values.spine.additionalSpineWidth() * 2.0;
    const auto known = myFontSizes.constFind(width.value());
    if (known != myFontSizes.constEnd())
        return *known;
    limit(&myFontSizes);
    return *myFontSizes.insert(width.value(), values.fontSize(pages));
}
