#include "JsonFindingWriter.h"

#include "JsonWriter.h"

#include <optional>
#include <utility>

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

}

void JsonFindingWriter::begin()
{
    write("{\"findings\":[");
}

void JsonFindingWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    JsonWriter json;
    json.separator(myIsFirst ? "\n" : ",\n");
    myIsFirst = false;
    json.beginObject();
    writePlace(&json, fileName, finding.range().begin, finding.range().end);
    json.key("product"_L1);
    if (finding.product() < 0)
        json.null();
    else
        json.value(finding.product());
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
    JsonWriter json;
    json.separator("\n],\n");
    json.key("summary"_L1);
    json.beginObject();
    const std::pair<QLatin1StringView, qint64> sums[] = {
        { "errors"_L1, summary.errors },     { "files"_L1, summary.files },       { "notes"_L1, summary.notes },
        { "products"_L1, summary.products }, { "warnings"_L1, summary.warnings },
    };
    for (const auto &[name, sum] : sums) {
        json.key(name);
        json.value(sum);
    }
    json.endObject();
    json.key("unreadable"_L1);
    json.beginArray();
    for (const UnreadableFile &file : myUnreadable) {
        json.beginObject();
        writePlace(&json, file.fileName, file.problem.position, std::nullopt);
        json.key("text"_L1);
        json.value(file.problem.text);
        json.endObject();
    }
    json.endArray();
    json.separator("}\n");
    write(json.take());
}
