#include "ProductJson.h"

#include "CatalogueBatch.h"
#include "CatalogueOption.h"

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

void writeOptions(JsonWriter &json, const CatalogueElement &product)
{
    const CatalogueOptions options(product);
    json.beginArray();
    for (const CatalogueOption &option : options) {
        json.beginObject();
        json.key("accountable"_L1);
        json.value(!option.isNotAccountable);
        json.key("default"_L1);
        json.value(options.isDefault(option));
        json.key("key"_L1);
        json.value(option.key);
        json.key("key_name"_L1);
        json.value(option.keyName);
        json.key("value"_L1);
        json.value(option.value);
        json.key("value_name"_L1);
        json.value(option.valueName);
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

}

template<typename T, typename Name>
void ProductJson::writeAttribute(QLatin1StringView key, const T &attribute, Name name)
{
    myJson.key(key);
    if (attribute.isNull())
        return myJson.null();
    std::string &known = myAttributes[{ key, qint64(attribute.value()) }];
    if (known.empty()) {
        JsonWriter json;
        json.beginObject();
        json.key("keywords"_L1);
        json.beginArray();
        for (const QString &keyword : attribute.encodeBits())
            json.value(keyword);
        json.endArray();
        if (const QString text = name(attribute); !text.isEmpty()) {
            json.key("name"_L1);
            json.value(text);
        }
        json.endObject();
        known = json.take();
    }
    myJson.json(known);
}

// The size depends on nothing but the width without the sides.
int ProductJson::fontSize(const RVSpineConfig &spine, unsigned pages)
{
    const RVDistance width = spine.spineWidth(pages) - spine.additionalSpineWidth() * 2.0;
    const auto known = myFontSizes.constFind(width.value());
    if (known != myFontSizes.constEnd())
        return *known;
    return *myFontSizes.insert(width.value(), spine.spineMaxFontHeigth(pages, QString()));
}

void ProductJson::writeSpine(const CatalogueProduct &product, int pageCount)
{
    const unsigned pages = unsigned(qMax(0, pageCount));
    myJson.beginObject();
    myJson.key("max_font_size"_L1);
    myJson.value(fontSize(product.spine, pages));
    myJson.key("pages"_L1);
    myJson.value(pageCount);
    myJson.key("width_mm"_L1);
    myJson.value(product.spine.spineWidth(pages).value(MILLIMETRE));
    myJson.endObject();
}

void ProductJson::write(const CatalogueProduct &product, const CatalogueElement &element)
{
    const auto humanReadableName = [](const auto &attribute) { return attribute.humanReadableName(); };
    const auto noName = [](const auto &) { return QString(); };

    myJson.beginObject();
    writeAttribute("article_class"_L1, product.articleClass,
                   [](const RVArticleClass &attribute) { return attribute.toHumanReadable(); });
    myJson.key("article_id"_L1);
    writeId(myJson, product.articleId);
    myJson.key("barcodes"_L1);
    writeBarcodes(myJson, product.barcodes);
    writeAttribute("cover_type"_L1, product.coverType, humanReadableName);
    writeAttribute("foto_paper_type"_L1, product.fotoPaperType, humanReadableName);
    myJson.key("name"_L1);
    myJson.value(product.name);
    myJson.key("options"_L1);
    writeOptions(myJson, element);
    writeAttribute("orientation"_L1, product.orientation, noName);
    writeAttribute("page_binding"_L1, product.pageBinding, humanReadableName);
    myJson.key("pages"_L1);
    writePages(myJson, product.pageCounts);
    writeAttribute("paper_type"_L1, product.paperType, humanReadableName);
    myJson.key("shipping_group"_L1);
    writeId(myJson, product.shippingGroup);
    writeAttribute("space_magnitude"_L1, product.spaceMagnitude, humanReadableName);
    myJson.key("spine"_L1);
    if (product.hasSpine()) {
        myJson.beginArray();
        writeSpine(product, product.pageCounts.minPages());
        writeSpine(product, product.pageCounts.maxPages());
        myJson.endArray();
    } else {
        myJson.null();
    }
    myJson.key("type"_L1);
    myJson.value(product.type.toString());
    myJson.endObject();
}
