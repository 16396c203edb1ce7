#include "SarifWriter.h"

#include "JsonWriter.h"

#include <QDir>
#include <QUrl>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A file that is named from where the program runs stays so; a colon in its first part would be a scheme.
QString uri(const QString &fileName)
{
    if (QDir::isAbsolutePath(fileName))
        return QUrl::fromLocalFile(fileName).toString(QUrl::FullyEncoded);
    const QString path = QString::fromLatin1(QUrl::toPercentEncoding(fileName, "/"));
    return path.startsWith(u'/') ? u'.' + path : path;
}

void writeMessage(JsonWriter *json, QLatin1StringView key, const QString &text)
{
    json->key(key);
    json->beginObject();
    json->key("text"_L1);
    json->value(text);
    json->endObject();
}

void writeRegion(JsonWriter *json, const RVFilePosition &begin, const std::optional<RVFilePosition> &end)
{
    json->beginObject();
    json->key("startLine"_L1);
    json->value(begin.line);
    json->key("startColumn"_L1);
    json->value(begin.column);
    if (end) {
        json->key("endLine"_L1);
        json->value(end->line);
        json->key("endColumn"_L1);
        json->value(end->column);
    }
    json->endObject();
}

void writeLocations(JsonWriter *json, const QString &fileName, const RVFilePosition &begin,
                    const std::optional<RVFilePosition> &end)
{
    json->key("locations"_L1);
    json->beginArray();
    json->beginObject();
    json->key("physicalLocation"_L1);
    json->beginObject();
    json->key("artifactLocation"_L1);
    json->beginObject();
    json->key("uri"_L1);
    json->value(uri(fileName));
    json->endObject();
    json->key("region"_L1);
    writeRegion(json, begin, end);
    json->endObject();
    json->endObject();
    json->endArray();
}

void writeRule(JsonWriter *json, const RVCatalogueRule &rule)
{
    json->beginObject();
    json->key("id"_L1);
    json->value(rule.name());
    writeMessage(json, "shortDescription"_L1, rule.reason());
    json->key("defaultConfiguration"_L1);
    json->beginObject();
    json->key("level"_L1);
    json->value(rvSeverityName(rule.severity()));
    json->endObject();
    json->endObject();
}

}

void SarifWriter::begin()
{
    JsonWriter json;
    json.beginObject();
    json.key("$schema"_L1);
    json.value("https://json.schemastore.org/sarif-2.1.0.json"_L1);
    json.key("version"_L1);
    json.value("2.1.0"_L1);
    json.key("runs"_L1);
    json.beginArray();
    json.beginObject();
    json.key("tool"_L1);
    json.beginObject();
    json.key("driver"_L1);
    writeDriver(&json);
    json.endObject();
    json.key("columnKind"_L1);
    json.value("utf16CodeUnits"_L1);
    json.key("results"_L1);
    json.beginArray();
    write(json.take());
}

void SarifWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    JsonWriter json;
    json.separator(myIsFirst ? "\n" : ",\n");
    myIsFirst = false;
    json.beginObject();
    json.key("ruleId"_L1);
    json.value(finding.rule().name());
    json.key("ruleIndex"_L1);
    json.value(qint64(myRules.indexOf(finding.rule())));
    json.key("level"_L1);
    json.value(rvSeverityName(finding.severity()));
    writeMessage(&json, "message"_L1, finding.text());
    writeLocations(&json, fileName, finding.range().begin, finding.range().end);
    json.endObject();
    write(json.take());
}

void SarifWriter::unreadable(const QString &fileName, const Problem &problem)
{
    myUnreadable.push_back({ fileName, problem });
}

void SarifWriter::end(const CheckSummary &, int exitCode)
{
    JsonWriter json;
    json.separator("\n],\n");
    json.key("invocations"_L1);
    json.beginArray();
    json.beginObject();
    json.key("executionSuccessful"_L1);
    json.value(myUnreadable.empty());
    json.key("exitCode"_L1);
    json.value(exitCode);
    json.key("toolExecutionNotifications"_L1);
    json.beginArray();
    for (const UnreadableFile &file : myUnreadable) {
        json.beginObject();
        json.key("level"_L1);
        json.value("error"_L1);
        writeMessage(&json, "message"_L1, file.problem.text);
        writeLocations(&json, file.fileName, file.problem.position, std::nullopt);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.endArray();
    json.separator("}]}\n");
    write(json.take());
}

void SarifWriter::writeDriver(JsonWriter *json) const
{
    json->beginObject();
    json->key("name"_L1);
    json->value("rvcatalog"_L1);
    json->key("version"_L1);
    json->value(QLatin1StringView(RVCATALOG_VERSION));
    json->key("rules"_L1);
    json->beginArray();
    for (const RVCatalogueRule &rule : myRules) {
        json->separator(rule == myRules.constFirst() ? "\n" : ",\n");
        writeRule(json, rule);
    }
    json->endArray();
    json->endObject();
}
