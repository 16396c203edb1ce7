#ifndef JSONVALUES_H
#define JSONVALUES_H

#include "Console.h"
#include "JsonWriter.h"
#include "ProductOption.h"

#include <SpineTable.h>

#include <RVCatalogueAttribute.h>
#include <RVCatalogueProduct.h>

/// The JSON that several commands write, so that it looks the same in all of them: lengths in millimetres under keys
/// that end in "_mm", null for missing values, keys in their order. The schema describes each of them.
/// @{
void writeText(JsonWriter &json, const QString &text); ///< Null if it is empty.
void writeTexts(JsonWriter &json, const QStringList &texts);
void writePlace(JsonWriter &json, const QString &fileName, const RVFilePosition &position);
void writeProblem(JsonWriter &json, const QString &fileName, const Problem &problem);
void writePageCounts(JsonWriter &json, const RVPageCountOrganization &counts);
void writeSpineRow(JsonWriter &json, const SpineRow &row);
void writeBarcodes(JsonWriter &json, const RVBarcodeDefinitionList &barcodes);
void writeOption(JsonWriter &json, const ProductOption &option);
/// @}

/// Writes the id; null if it is invalid.
template<typename T>
void writeId(JsonWriter &json, const T &id)
{
    if (id.isValid())
        json.value(id.id());
    else
        json.null();
}

#endif
