#include "FindingWriter.h"

#include "JsonWriter.h"

#include <QDir>
#include <QUrl>

#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Unreadable
{
    QString fileName;
    Problem problem;
};

QString counted(qint64 number, QLatin1StringView one, QLatin1StringView many)
{
    return QString::number(number) + u' ' + (number == 1 ? one : many);
}

class TextWriter : public FindingWriter
{
public:
    explicit TextWriter(const Console &console) : FindingWriter(console) { }

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override
    {
        const RVFilePosition position = finding.range().begin;
        const QString line = u"%1:%2:%3: %4: %5 [%6]\n"_s.arg(
                fileName, QString::number(position.line), QString::number(position.column),
                rvSeverityName(finding.severity()), finding.text(), finding.rule().name());
        write(line.toStdString());
    }

    void end(const CheckSummary &summary, int) override
    {
        const QString checked = counted(summary.products, "product"_L1, "products"_L1) + " in "_L1
                + counted(summary.files, "file"_L1, "files"_L1);
        const QString found = counted(summary.errors, "error"_L1, "errors"_L1) + ", "_L1
                + counted(summary.warnings, "warning"_L1, "warnings"_L1) + ", "_L1
                + counted(summary.notes, "note"_L1, "notes"_L1);
        const QString unread = summary.unreadable == 0
                ? QString()
                : ", "_L1 + counted(summary.unreadable, "unreadable file"_L1, "unreadable files"_L1);
        write((checked + ": "_L1 + found + unread + u'\n').toStdString());
    }
};

/// One object: the findings one a line, then the files that could not be read, then the sums.
class JsonFindingWriter : public FindingWriter
{
public:
    explicit JsonFindingWriter(const Console &console) : FindingWriter(console) { }

    void begin() override { write("{\"findings\":["); }

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override
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

    void unreadable(const QString &fileName, const Problem &problem) override
    {
        myUnreadable.push_back({ fileName, problem });
    }

    void end(const CheckSummary &summary, int) override
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
        for (const Unreadable &file : myUnreadable) {
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

private:
    static void writePlace(JsonWriter *json, const QString &fileName, const RVFilePosition &begin,
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

    std::vector<Unreadable> myUnreadable;
    bool myIsFirst = true;
};

/// The Static Analysis Results Interchange Format, version 2.1.0, with one run and one result a line.
class SarifWriter : public FindingWriter
{
public:
    explicit SarifWriter(const Console &console) : FindingWriter(console) { }

    void begin() override
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

    void finding(const QString &fileName, const RVCatalogueFinding &finding) override
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

    void unreadable(const QString &fileName, const Problem &problem) override
    {
        myUnreadable.push_back({ fileName, problem });
    }

    void end(const CheckSummary &, int exitCode) override
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
        for (const Unreadable &file : myUnreadable) {
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

private:
    static void writeMessage(JsonWriter *json, QLatin1StringView key, const QString &text)
    {
        json->key(key);
        json->beginObject();
        json->key("text"_L1);
        json->value(text);
        json->endObject();
    }

    void writeDriver(JsonWriter *json) const
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

    static void writeRule(JsonWriter *json, const RVCatalogueRule &rule)
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

    static void writeLocations(JsonWriter *json, const QString &fileName, const RVFilePosition &begin,
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

    static void writeRegion(JsonWriter *json, const RVFilePosition &begin, const std::optional<RVFilePosition> &end)
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

    /// A file that is named from where the program runs stays so; a colon in its first part would be a scheme.
    static QString uri(const QString &fileName)
    {
        if (QDir::isAbsolutePath(fileName))
            return QUrl::fromLocalFile(fileName).toString(QUrl::FullyEncoded);
        const QString path = QString::fromLatin1(QUrl::toPercentEncoding(fileName, "/"));
        return path.startsWith(u'/') ? u'.' + path : path;
    }

    const QList<RVCatalogueRule> myRules = RVCatalogueRule::all();
    std::vector<Unreadable> myUnreadable;
    bool myIsFirst = true;
};

}

std::unique_ptr<FindingWriter> FindingWriter::create(const QString &format, const Console &console)
{
    if (format == "text"_L1)
        return std::make_unique<TextWriter>(console);
    if (format == "json"_L1)
        return std::make_unique<JsonFindingWriter>(console);
    if (format == "sarif"_L1)
        return std::make_unique<SarifWriter>(console);
    return nullptr;
}

FindingWriter::~FindingWriter() = default;
