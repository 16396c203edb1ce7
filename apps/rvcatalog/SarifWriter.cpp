#include "SarifWriter.h"

#include "FindingFingerprint.h"
#include "FindingLine.h"
#include "JsonWriter.h"

#include <QDir>
#include <QUrl>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A path relative to the current folder stays relative; a colon in its first part would be a scheme.
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

void writeArtifact(JsonWriter *json, const QString &fileName)
{
    json->key("artifactLocation"_L1);
    json->beginObject();
    json->key("uri"_L1);
    json->value(uri(fileName));
    json->endObject();
}

void writePhysicalLocation(JsonWriter *json, const QString &fileName, const RVFilePosition &begin,
                           const std::optional<RVFilePosition> &end)
{
    json->key("physicalLocation"_L1);
    json->beginObject();
    writeArtifact(json, fileName);
    json->key("region"_L1);
    writeRegion(json, begin, end);
    json->endObject();
}

void writeLocations(JsonWriter *json, const QString &fileName, const RVFilePosition &begin,
                    const std::optional<RVFilePosition> &end)
{
    json->key("locations"_L1);
    json->beginArray();
    json->beginObject();
    writePhysicalLocation(json, fileName, begin, end);
    json->endObject();
    json->endArray();
}

void writeRelatedLocations(JsonWriter *json, const QString &fileName, const QList<RVRelatedPlace> &places)
{
    if (places.isEmpty())
        return;
    json->key("relatedLocations"_L1);
    json->beginArray();
    for (const RVRelatedPlace &place : places) {
        json->beginObject();
        writePhysicalLocation(json, fileOf(place, fileName), place.range.begin, place.range.end);
        writeMessage(json, "message"_L1, place.text);
        json->endObject();
    }
    json->endArray();
}

void writeReplacement(JsonWriter *json, const RVFileEdit &edit)
{
    json->beginObject();
    json->key("deletedRegion"_L1);
    writeRegion(json, edit.range.begin, edit.range.end);
    writeMessage(json, "insertedContent"_L1, edit.text);
    json->endObject();
}

void writeFixes(JsonWriter *json, const QString &fileName, const QList<RVFileEdit> &edits)
{
    if (edits.isEmpty())
        return;
    json->key("fixes"_L1);
    json->beginArray();
    json->beginObject();
    json->key("artifactChanges"_L1);
    json->beginArray();
    json->beginObject();
    writeArtifact(json, fileName);
    json->key("replacements"_L1);
    json->beginArray();
    for (const RVFileEdit &edit : edits)
        writeReplacement(json, edit);
    json->endArray();
    json->endObject();
    json->endArray();
    json->endObject();
    json->endArray();
}

void writeFingerprint(JsonWriter *json, const RVCatalogueFinding &finding)
{
    json->key("partialFingerprints"_L1);
    json->beginObject();
    json->key("rvcatalogFinding/v1"_L1);
    json->value(QLatin1StringView(findingFingerprint(finding)));
    json->endObject();
}

void writeProperties(JsonWriter *json, const RVCatalogueFinding &finding)
{
    if (finding.product() < 0 && finding.productType().isEmpty())
        return;
    json->key("properties"_L1);
    json->beginObject();
    json->key("productType"_L1);
    json->value(finding.productType());
    json->endObject();
}

QString helpUri(const RVCatalogueRule &rule)
{
    QUrl url = QUrl::fromLocalFile(QStringLiteral(RVCATALOG_DOC "/rules.md"));
    url.setFragment(rule.name());
    return url.toString(QUrl::FullyEncoded);
}

void writeHelp(JsonWriter *json, const RVCatalogueRule &rule)
{
    json->key("help"_L1);
    json->beginObject();
    json->key("text"_L1);
    json->value(rule.explanation());
    json->key("markdown"_L1);
    json->value(rule.explanationAsMarkdown());
    json->endObject();
    json->key("helpUri"_L1);
    json->value(helpUri(rule));
}

void writeRule(JsonWriter *json, const RVCatalogueRule &rule)
{
    json->beginObject();
    json->key("id"_L1);
    json->value(rule.name());
    writeMessage(json, "shortDescription"_L1, rule.reason());
    writeMessage(json, "fullDescription"_L1, rule.reason());
    writeHelp(json, rule);
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
    writeMessage(&json, "message"_L1, typedText(finding));
    writeLocations(&json, fileName, finding.range().begin, finding.range().end);
    writeRelatedLocations(&json, fileName, finding.relatedPlaces());
    writeFingerprint(&json, finding);
    writeFixes(&json, fileName, finding.fix());
    writeProperties(&json, finding);
    json.endObject();
    write(json.take());
}

void SarifWriter::unreadable(const QString &fileName, const Problem &problem)
{
    myUnreadable.push_back({ fileName, problem });
}

void SarifWriter::end(const CheckSummary &summary, int exitCode)
{
    JsonWriter json;
    json.separator("\n],\n");
    json.key("invocations"_L1);
    json.beginArray();
    json.beginObject();
    json.key("executionSuccessful"_L1);
    json.value(myUnreadable.empty() && summary.signal == 0);
    json.key("exitCode"_L1);
    json.value(exitCode);
    json.key("toolExecutionNotifications"_L1);
    json.beginArray();
    writeNotifications(&json, summary);
    json.endArray();
    json.endObject();
    json.endArray();
    json.separator("}]}\n");
    write(json.take());
}

void SarifWriter::writeNotifications(JsonWriter *json, const CheckSummary &summary) const
{
    for (const UnreadableFile &file : myUnreadable) {
        json->beginObject();
        json->key("level"_L1);
        json->value("error"_L1);
        writeMessage(json, "message"_L1, file.problem.text);
        writeLocations(json, file.fileName, file.problem.position, std::nullopt);
        json->endObject();
    }
    if (summary.signal == 0 && summary.omitted == 0)
        return;
    json->beginObject();
    json->key("level"_L1);
    json->value(summary.signal != 0 ? "error"_L1 : "note"_L1);
    writeMessage(json, "message"_L1, summary.text());
    json->endObject();
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
