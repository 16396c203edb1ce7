#include "OrderJson.h"

#include "JsonValues.h"

using namespace Qt::StringLiterals;

namespace {

void writeOptions(JsonWriter &json, const Order &order)
{
    json.beginArray();
    for (const ProductOption &option : order.options())
        writeOption(json, option);
    json.endArray();
}

void writePriceClasses(JsonWriter &json, const QMap<RVPriceClass, qint64> &counted)
{
    json.beginArray();
    for (auto it = counted.begin(); it != counted.end(); ++it) {
        json.beginObject();
        json.key("count"_L1);
        json.value(it.value());
        json.key("free"_L1);
        json.value(it.key().isFree());
        json.key("price_class"_L1);
        json.value(it.key().toString());
        json.endObject();
    }
    json.endArray();
}

void writeSpine(JsonWriter &json, const Order &order)
{
    if (!order.values().hasSpine)
        return json.null();
    SpineRow row = order.values().spineRow(order.pages());
    row.fontSize = order.values().fontSize(order.pages());
    json.beginArray();
    writeSpineRow(json, row);
    json.endArray();
}

void writeOrder(JsonWriter &json, const Order &order, const QString &catalogueName)
{
    const RVArticleVariants variants = order.variants();
    const RVCatalogueProduct &product = order.values().product;
    json.beginObject();
    json.key("chosen_keys"_L1);
    writeTexts(json, order.chosenKeys());
    json.key("name"_L1);
    writeText(json, product.name());
    json.key("options"_L1);
    writeOptions(json, order);
    json.key("order_text"_L1);
    json.value(variants.toOrderTxt());
    json.key("order_transfer"_L1);
    json.value(variants.toXTCI().toKTX());
    json.key("packages"_L1);
    json.value(order.packages());
    json.key("page_count"_L1);
    json.value(order.pages());
    json.key("place"_L1);
    writePlace(json, catalogueName, product.range().begin);
    json.key("price_classes"_L1);
    writePriceClasses(json, order.priceClasses());
    json.key("project_text"_L1);
    json.value(variants.toKTX());
    json.key("spine"_L1);
    writeSpine(json, order);
    json.key("type"_L1);
    writeText(json, order.values().type.toString());
    json.endObject();
}

}

std::string orderJson(const Order *order, const OrderFiles &files, const QList<Problem> &problems)
{
    JsonWriter json;
    json.beginObject();
    json.key("order"_L1);
    if (order)
        writeOrder(json, *order, files.catalogue);
    else
        json.null();
    json.key("problems"_L1);
    json.beginArray();
    for (const Problem &problem : problems)
        writeProblem(json, files.project, problem);
    json.endArray();
    json.endObject();
    return json.take() + '\n';
}
