#include "ProductJson.h"

#include "ProductValues.h"

#include <RVCatalogueAttributes.h>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr RVDistanceUnit MILLIMETRE = DISTANCE_UNIT_MILLIMETRE;

void writeBarcodes(JsonWriter &json, const RVBarcodeDefinitionList &barcodes)
{
    const auto inMillimetres = [](int tenths) { return RVDistance(tenths).value(MILLIMETRE); };
    json.beginArray();
    for (const RVBarcodeDefinition &barcode : barcodes) {
        json.beginObject();
        json.key("height_mm"_L1);
        json.value(inMillimetres(barcode.rect().height()));
        json.key("image"_L1);
        json.value(barcode.imageName());
        json.key("left_mm"_L1);
        json.value(inMillimetres(barcode.rect().left()));
        json.key("page"_L1);
        json.value(barcode.pageNr());
        json.key("top_mm"_L1);
        json.value(inMillimetres(barcode.rect().top()));
        json.key("width_mm"_L1);
        json.value(inMillimetres(barcode.rect().width()));
        json.endObject();
    }
    json.endArray();
}

void writeOptions(JsonWriter &json, const RVConfiguredArticleVariantList &options)
{
    const RVArticleVariants defaults = options.defaultVariants();
    json.beginArray();
    for (const RVConfiguredArticleVariant &option : options) {
        const QString key = option.key();
        const QString value = option.value();
        json.beginObject();
        json.key("accountable"_L1);
        json.value(!option.isNotAccountable());
        json.key("default"_L1);
        json.value(defaults.value(key) == value);
        json.key("key"_L1);
        json.value(key);
        json.key("key_name"_L1);
        json.value(option.keyName());
        json.key("value"_L1);
        json.value(value);
        json.key("value_name"_L1);
        json.value(option.visibleName());
        json.endObject();
    }
    json.endArray();
}

void writePages(JsonWriter &json, const RVPageCountOrganization &counts)
{
    json.beginObject();
    json.key("count"_L1);
    json.value(counts.numberOfPackages());
    json.key("highest"_L1);
    json.value(counts.maxPages());
    json.key("lowest"_L1);
    json.value(counts.minPages());
    json.key("step"_L1);
    json.value(counts.pageIncrement());
    json.key("valid"_L1);
    json.value(counts.isValid());
    json.endObject();
}

template<typename T>
void writeId(JsonWriter &json, const T &id)
{
    if (id.isValid())
        json.value(id.id());
    else
        json.null();
}

/// Makes room for a further value; a file in which nothing repeats must not fill the memory.
template<typename Cache>
void limit(Cache *cache)
{
    constexpr qsizetype most = 4096;
    if (cache->size() >= most)
        cache->clear();
}

/// Keywords and name of an attribute of a product.
template<typename T>
std::string attributeJson(const T &attribute, QString (T::*displayName)() const)
{
    if (attribute.isNull())
        return "null";
    JsonWriter json;
    json.beginObject();
    json.key("keywords"_L1);
    json.beginArray();
    for (const QString &keyword : attribute.encodeBits())
        json.value(keyword);
    json.endArray();
    const QString name = displayName ? (attribute.*displayName)() : QString();
    if (!name.isEmpty()) {
        json.key("name"_L1);
        json.value(name);
    }
    json.endObject();
    return json.take();
}

}

/// A key of the object of a product, and what writes its value.
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
        { "name"_L1, [](Json &json, const Values &values) { json.myJson.value(values.product.name()); } },
        { "options"_L1, [](Json &json, const Values &values) { writeOptions(json.myJson, values.product.options()); } },
        { "pages"_L1, [](Json &json, const Values &values) { writePages(json.myJson, values.pageCounts); } },
        { "shipping_group"_L1,
          [](Json &json, const Values &values) { writeId(json.myJson, values.product.shippingGroup()); } },
        { "spine"_L1, [](Json &json, const Values &values) { json.writeSpines(values); } },
        { "type"_L1, [](Json &json, const Values &values) { json.myJson.value(values.type.toString()); } },
    };
    std::apply([&](const auto &...rows) { (addAttribute(&result, rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
    std::sort(result.begin(), result.end(), [](const Member &a, const Member &b) { return a.key < b.key; });
    return result;
}

void ProductJson::write(const ProductValues &values)
{
    static const std::vector<Member> theMembers = members();
    myJson.beginObject();
    for (const Member &member : theMembers) {
        myJson.key(member.key);
        member.write(*this, values);
    }
    myJson.endObject();
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
    myJson.json(*myAttributes.insert(key, attributeJson(attribute, row.displayName)));
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
    myJson.beginObject();
    myJson.key("max_font_size"_L1);
    myJson.value(fontSize(values, pages));
    myJson.key("pages"_L1);
    myJson.value(pages);
    myJson.key("width_mm"_L1);
    myJson.value(values.spineWidth(pages).value(MILLIMETRE));
    myJson.endObject();
}

// The size depends on nothing but the width without the sides.
int ProductJson::fontSize(const ProductValues &values, int pages)
{
    const RVDistance width = values.spineWidth(pages) - values.spine.additionalSpineWidth() * 2.0;
    const auto known = myFontSizes.constFind(width.value());
    if (known != myFontSizes.constEnd())
        return *known;
    limit(&myFontSizes);
    return *myFontSizes.insert(width.value(), values.fontSize(pages));
}
