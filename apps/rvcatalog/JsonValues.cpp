#include "JsonValues.h"

#include <SpineFont.h>

using namespace Qt::StringLiterals;

namespace {

double inMillimetres(int tenths)
{
    return RVDistance(tenths).value(DISTANCE_UNIT_MILLIMETRE);
}

void writeBarcode(JsonWriter &json, const RVBarcodeDefinition &barcode)
{
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

}

void writeText(JsonWriter &json, const QString &text)
{
    if (text.isEmpty())
        json.null();
    else
        json.value(text);
}

void writeTexts(JsonWriter &json, const QStringList &texts)
{
    json.beginArray();
    for (const QString &text : texts)
        json.value(text);
    json.endArray();
}

void writePlace(JsonWriter &json, const QString &fileName, const RVFilePosition &position)
{
    json.beginObject();
    json.key("column"_L1);
    json.value(position.column);
    json.key("file"_L1);
    json.value(fileName);
    json.key("line"_L1);
    json.value(position.line);
    json.endObject();
}

void writeProblem(JsonWriter &json, const QString &fileName, const Problem &problem)
{
    json.beginObject();
    json.key("place"_L1);
    writePlace(json, fileName, problem.position);
    json.key("text"_L1);
    json.value(problem.text);
    json.endObject();
}

void writePageCounts(JsonWriter &json, const RVPageCountOrganization &counts)
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

void writeSpineRow(JsonWriter &json, const SpineRow &row)
{
    json.beginObject();
    json.key("blocks"_L1);
    json.value(row.blocks);
    json.key("font_family"_L1);
    writeText(json, SpineFont::family());
    json.key("max_font_size"_L1);
    json.value(row.fontSize);
    json.key("packages"_L1);
    json.value(row.packages);
    json.key("page_count"_L1);
    json.value(row.pages);
    json.key("width_mm"_L1);
    json.value(row.width);
    json.endObject();
}

void writeBarcodes(JsonWriter &json, const RVBarcodeDefinitionList &barcodes)
{
    json.beginArray();
    for (const RVBarcodeDefinition &barcode : barcodes)
        writeBarcode(json, barcode);
    json.endArray();
}

void writeOption(JsonWriter &json, const ProductOption &option)
{
    const RVConfiguredArticleVariant &variant = option.option;
    json.beginObject();
    json.key("accountable"_L1);
    json.value(!variant.isNotAccountable());
    json.key("color"_L1);
    writeText(json, option.colorText());
    json.key("default"_L1);
    json.value(option.isDefault);
    json.key("editor_name"_L1);
    writeText(json, variant.editorName());
    json.key("form_name"_L1);
    writeText(json, option.formName);
    json.key("key"_L1);
    json.value(variant.key());
    json.key("key_name"_L1);
    writeText(json, variant.keyName());
    json.key("preview"_L1);
    writeText(json, variant.preview());
    json.key("price_class"_L1);
    writeText(json, option.priceClass.toString());
    json.key("value"_L1);
    json.value(variant.value());
    json.key("value_name"_L1);
    writeText(json, variant.visibleName());
    json.endObject();
}
