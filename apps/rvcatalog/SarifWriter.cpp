#include "SarifWriter.h"

#include "FindingFingerprint.h"
#include "FindingLine.h"

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

std::string ruleJson(const RVCatalogueRule &rule)
{
    JsonWriter json;
    json.beginObject();
    json.key("id"_L1);
    json.value(rule.name());
    writeMessage(&json, "shortDescription"_L1, rule.reason());
    writeMessage(&json, "fullDescription"_L1, rule.reason());
    writeHelp(&json, rule);
    json.key("defaultConfiguration"_L1);
    json.beginObject();
    json.key("level"_L1);
    json.value(rvSeverityName(rule.severity()));
    json.endObject();
    json.endObject();
    return json.take();
}

}

void SarifWriter::begin()
{
    myJson.beginObject();
    myJson.key("$schema"_L1);
    myJson.value("https://json.schemastore.org/sarif-2.1.0.json"_L1);
    myJson.key("version"_L1);
    myJson.value("2.1.0"_L1);
    myJson.key("runs"_L1);
    myJson.beginArray();
    myJson.beginObject();
    myJson.key("tool"_L1);
    myJson.beginObject();
    myJson.key("driver"_L1);
    writeDriver();
    myJson.endObject();
    myJson.key("columnKind"_L1);
    myJson.value("utf16CodeUnits"_L1);
    myJson.key("results"_L1);
    myJson.beginArray();
    write(myJson.take());
}

void SarifWriter::finding(const QString &fileName, const RVCatalogueFinding &finding)
{
    write(myIsFirst ? "\n" : ",\n");
    myIsFirst = false;
    JsonWriter json;
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
    write("\n");
    myJson.endArray();
    myJson.key("invocations"_L1);
    myJson.beginArray();
    myJson.beginObject();
    myJson.key("executionSuccessful"_L1);
    myJson.value(myUnreadable.empty() && summary.signal == 0);
    myJson.key("exitCode"_L1);
    myJson.value(exitCode);
    myJson.key("toolExecutionNotifications"_L1);
    myJson.beginArray();
    writeNotifications(summary);
    myJson.endArray();
    myJson.endObject();
    myJson.endArray();
    myJson.endObject();
    myJson.endArray();
    myJson.endObject();
    write(myJson.take() + '\n');
}

void SarifWriter::writeNotifications(const CheckSummary &summary)
{
    for (const UnreadableFile &file : myUnreadable) {
        myJson.beginObject();
        myJson.key("level"_L1);
        myJson.value("error"_L1);
        writeMessage(&myJson, "message"_L1, file.problem.text);
        writeLocations(&myJson, file.fileName, file.problem.position, std::nullopt);
        myJson.endObject();
    }
    if (summary.signal == 0 && summary.omitted == 0)
        return;
    myJson.beginObject();
    myJson.key("level"_L1);
    myJson.value(summary.signal != 0 ? "error"_L1 : "note"_L1);
    writeMessage(&myJson, "message"_L1, summary.text());
    myJson.endObject();
}

void SarifWriter::writeDriver()
{
    QList<std::string> rules;
    for (const RVCatalogueRule &rule : myRules)
        rules += ruleJson(rule);
    myJson.beginObject();
    myJson.key("name"_L1);
    myJson.value("rvcatalog"_L1);
    myJson.key("version"_L1);
    myJson.value(QLatin1StringView(RVCATALOG_VERSION));
    myJson.key("rules"_L1);
    myJson.lines(rules);
    myJson.endObject();
}
