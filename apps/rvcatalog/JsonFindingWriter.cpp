#include "JsonFindingWriter.h"

#include "FindingLine.h"

#include <QMap>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

void writePlace(JsonWriter *json, const QString &fileName, const RVFilePosition &begin,
                const std::optional<RVFilePosition> &end)
{
    json->key("column"_L1);
    json->value(begin.column);
    if (end) {
        json->key("end_column"_L1);
        json->value(end->column);
        json->key("end_line"_L1);
        json->value(end->line);
    }
    json->key("file"_L1);
    json->value(fileName);
    json->key("line"_L1);
    json->value(begin.line);
}

void writePiece(JsonWriter *json, const QString &fileName, const RVFileRange &range, const QString &text)
{
    json->beginObject();
    writePlace(json, fileName, range.begin, range.end);
    json->key("text"_L1);
    json->value(text);
    json->endObject();
}

void writeFix(JsonWriter *json, const QString &fileName, const RVCatalogueFinding &finding)
{
    json->key("fix"_L1);
    json->beginArray();
    const QList<RVFileEdit> edits = finding.fix();
    for (const RVFileEdit &edit : edits)
        writePiece(json, fileName, edit.range, edit.text);
    json->endArray();
}

void writeRelated(JsonWriter *json, const QString &fileName, const RVCatalogueFinding &finding)
{
    json->key("related"_L1);
    json->beginArray();
    const QList<RVRelatedPlace> places = finding.relatedPlaces();
    for (const RVRelatedPlace &place : places)
        writePiece(json, fileOf(place, fileName), place.range, place.text);
    json->endArray();
}

/// The number and the type of the product, or null if the finding concerns the file. A product with a misspelt element
/// has no number, but a type.
void writeProduct(JsonWriter *json, const RVCatalogueFinding &finding)
{
    json->key("product"_L1);
    if (finding.product() < 0)
        json->null();
    else
        json->value(finding.product());
    json->key("product_type"_L1);
    if (finding.product() < 0 && finding.productType().isEmpty())
        json->null();
    else
        json->value(finding.productType());
}

void writeRules(JsonWriter *json, const QMap<QLatin1StringView, RuleCount> &rules)
{
    json->key("rules"_L1);
    json->beginObject();
    for (auto rule = rules.begin(); rule != rules.end(); ++rule) {
        json->key(rule.key());
        json->value(rule.value().count);
    }
    json->endObject();
}

void writeSummary(JsonWriter *json, const CheckSummary &summary)
{
    const auto writeCount = [json](QLatin1StringView name, qint64 count) {
        json->key(name);
        json->value(count);
    };
    json->key("summary"_L1);
    json->beginObject();
    writeCount("errors"_L1, summary.errors);
    writeCount("files"_L1, summary.files);
    json->key("interrupted"_L1);
    json->value(summary.signal != 0);
    writeCount("notes"_L1, summary.notes);
    writeCount("omitted"_L1, summary.omitted);
    writeCount("products"_L1, summary.products);
    writeRules(json, summary.rules);
    writeCount("warnings"_L1, summary.warnings);
    json->endObject();
}

}

void JsonFindingWriter::begin()
{
    myJson.beginObject();
    myJson.key("findings"_L1);
    myJson.beginArray();
    write(myJson.take());
}

void JsonFindingWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    write(myIsFirst ? "\n" : ",\n");
    myIsFirst = false;
    JsonWriter json;
    json.beginObject();
    writePlace(&json, fileName, finding.range().begin, finding.range().end);
    writeFix(&json, fileName, finding);
    writeProduct(&json, finding);
    writeRelated(&json, fileName, finding);
    json.key("rule"_L1);
    json.value(finding.rule().name());
    json.key("severity"_L1);
    json.value(rvSeverityName(finding.severity()));
    json.key("text"_L1);
    json.value(finding.text());
    json.endObject();
    write(json.take());
}

void JsonFindingWriter::unreadable(const QString &fileName, const Problem &problem)
{
    myUnreadable.push_back({ fileName, problem });
}

void JsonFindingWriter::end(const CheckSummary &summary, int)
{
    write("\n");
    myJson.endArray();
    writeSummary(&myJson, summary);
    myJson.key("unreadable"_L1);
    myJson.beginArray();
    for (const UnreadableFile &file : myUnreadable) {
        myJson.beginObject();
        writePlace(&myJson, file.fileName, file.problem.position, std::nullopt);
        myJson.key("text"_L1);
        myJson.value(file.problem.text);
        myJson.endObject();
    }
    myJson.endArray();
    myJson.endObject();
    write(myJson.take() + '\n');
}
