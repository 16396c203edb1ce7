#include "RVCatalogue/SampleProduct.h"
#include "WrittenFile.h"

#include <RVCatalogueRule.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int exitCode = -1;
    QString output;
    QString messages;
};

const char FAULTS[] = "<p>\n"
                      "<product type='A' article_id='1' cover_type='hard'/>\n"
                      "<x/><product type='B' article_id='0'/>\n"
                      "<product type='Ä' article_id='3' page_price_class='\"x\"'/>\n"
                      "</p>\n";

const char SUMMARY_OF_FAULTS[] = "3 products in 1 file: 1 error, 1 warning, 1 note\n";

QStringList propertyNames(const QJsonObject &object)
{
    return object.keys();
}

/// Checks the requirements of the format for a location, and returns "uri:line:column", followed by "-line:column" if
/// it has an end.
QString location(const QJsonValue &value)
{
    const QJsonArray locations = value.toArray();
    if (locations.size() != 1)
        return u"%1 locations"_s.arg(locations.size());
    const QJsonObject physical = locations.at(0).toObject().value("physicalLocation"_L1).toObject();
    const QJsonObject artifact = physical.value("artifactLocation"_L1).toObject();
    const QJsonObject region = physical.value("region"_L1).toObject();
    const QString uri = artifact.value("uri"_L1).toString();
    const auto number = [&region](QLatin1StringView name) { return region.value(name).toInt(); };
    static const QStringList beginNames = { u"startColumn"_s, u"startLine"_s };
    static const QStringList allNames = QStringList { u"endColumn"_s, u"endLine"_s } + beginNames;
    const bool hasEnd = propertyNames(region) == allNames;
    if (propertyNames(physical) != QStringList { u"artifactLocation"_s, u"region"_s }
        || propertyNames(artifact) != QStringList { u"uri"_s } || (!hasEnd && propertyNames(region) != beginNames)
        || !QUrl(uri, QUrl::StrictMode).isValid() || number("startLine"_L1) < 1 || number("startColumn"_L1) < 1)
        return u"no location"_s;
    const QString begin = uri + u":%1:%2"_s.arg(number("startLine"_L1)).arg(number("startColumn"_L1));
    return hasEnd ? begin + u"-%1:%2"_s.arg(number("endLine"_L1)).arg(number("endColumn"_L1)) : begin;
}

}

class tst_check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void text();
    void clean();
    void notesAlone();
    void warningsAlone();
    void severalFiles();
    void standardInput();
    void noStandardInput();
    void unreadable();
    void fullDisk();
    void jsonFormat();
    void jsonOfUnreadable();
    void sarifFormat();
    void sarifOfUnreadable();
    void sarifUris();
    void rules();
    void disable();
    void disableSeveral();
    void select_data();
    void select();
    void maxFindings_data();
    void maxFindings();
    void maxFindingsInJson();
    void maxFindingsOfSummary();
    void summary();
    void quiet();
    void jobs();
    void helpFitsTerminals();
    void wrongUsage_data();
    void wrongUsage();
    void noProgressInAFile();
    void progressOnATerminal();
    void memory();

private:
    void write(const QString &name, const QByteArray &content);
    Run check(const QStringList &arguments, const QByteArray &input = QByteArray());
    static void compareSarif(const QString &output, bool isSuccessful, int exitCode, const QStringList &results,
                             const QStringList &notifications);

    QTemporaryDir myFolder;
};

void tst_check::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(myFolder.filePath(name), content));
}

Run tst_check::check(const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.start(QStringLiteral(RVCATALOG), QStringList { u"check"_s } + arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return Run();
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

void tst_check::init()
{
    write(u"clean.xml"_s, CLEAN_CATALOGUE);
    write(u"faults.xml"_s, FAULTS);
    write(u"cut.xml"_s, QByteArray(FAULTS).left(60));
}

void tst_check::text()
{
    const Run run = check({ u"faults.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.output,
             u"faults.xml:2:34: note: A: \"hard\" is an alias in cover_type; the main keyword is \"hardcover\" "
             "[keyword-legacy]\n"
             "faults.xml:3:23: error: B: the article id \"0\" is no whole number above 0; write 1 or more "
             "[article-id-invalid]\n"
             "faults.xml:4:34: warning: Ä: the price class \"\"x\"\" belongs to no known group; write one of a "
             "group, or one that begins with 0 if nothing is billed [price-class-unknown]\n"_s
                     + QLatin1StringView(SUMMARY_OF_FAULTS));
    QCOMPARE(run.exitCode, 1);
}

void tst_check::clean()
{
    const Run run = check({ u"clean.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.output, u"2 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_check::notesAlone()
{
    const Run run = check(
            { u"--disable"_s, u"article-id-invalid"_s, u"--disable=price-class-unknown"_s, u"faults.xml"_s });
    QVERIFY(run.output.endsWith("\n3 products in 1 file: 0 errors, 0 warnings, 1 note\n"_L1));
    QCOMPARE(run.exitCode, 0);
}

void tst_check::warningsAlone()
{
    const Run run = check({ u"--disable"_s, u"article-id-invalid"_s, u"faults.xml"_s });
    QVERIFY(run.output.endsWith("\n3 products in 1 file: 0 errors, 1 warning, 1 note\n"_L1));
    QCOMPARE(run.exitCode, 1);
}

void tst_check::severalFiles()
{
    write(u"other.xml"_s, "<p><product type='X' article_id='7'/><product type='Y' article_id='8'/></p>");
    const Run clean = check({ u"clean.xml"_s, u"other.xml"_s });
    QCOMPARE(clean.output, u"4 products in 2 files: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(clean.exitCode, 0);

    write(u"more.xml"_s,
          QByteArray(FAULTS)
                  .replace("'A'", "'X'")
                  .replace("'B'", "'Y'")
                  .replace("'Ä'", "'Ü'")
                  .replace("'1'", "'7'")
                  .replace("'3'", "'8'"));
    write(u"clean.xml"_s, QByteArray(CLEAN_CATALOGUE).replace("article_id='1'", "article_id='9'"));
    const Run run = check({ u"faults.xml"_s, u"clean.xml"_s, u"./more.xml"_s });
    const QStringList lines = run.output.split(u'\n');
    QCOMPARE(lines.size(), 8);
    QVERIFY(lines.at(0).startsWith("faults.xml:2:34: "_L1));
    QVERIFY(lines.at(3).startsWith("./more.xml:2:34: "_L1));
    QCOMPARE(lines.at(6), u"8 products in 3 files: 2 errors, 2 warnings, 2 notes"_s);
    QCOMPARE(run.exitCode, 1);
}

void tst_check::standardInput()
{
    const Run run = check({ u"-"_s }, FAULTS);
    QCOMPARE(run.output.count("\n-:"_L1), 2);
    QVERIFY(run.output.startsWith("-:2:34: note: "_L1));
    QVERIFY(run.output.endsWith(QLatin1StringView(SUMMARY_OF_FAULTS)));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(check({ u"-"_s }).messages, u"-:1:1: error: the file is empty\n"_s);
}

void tst_check::noStandardInput()
{
    QProcess process;
    process.setChildProcessModifier([] { ::close(STDIN_FILENO); });
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.readAllStandardError(), QByteArray("-:1:1: error: cannot read on: Bad file descriptor\n"));
    QCOMPARE(process.exitCode(), 2);
}

void tst_check::unreadable()
{
    const Run missing = check({ u"missing.xml"_s, u"clean.xml"_s });
    QCOMPARE(missing.messages, u"missing.xml:1:1: error: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(missing.output, u"2 products in 2 files: 0 errors, 0 warnings, 0 notes, 1 unreadable file\n"_s);
    QCOMPARE(missing.exitCode, 2);

    const Run cut = check({ u"cut.xml"_s });
    QCOMPARE(cut.messages,
             u"cut.xml:3:4: error: the file ends too early: <p>, which was opened in line 1, is not closed\n"_s);
    QVERIFY(cut.output.startsWith("cut.xml:2:34: note: "_L1));
    QVERIFY(cut.output.endsWith("\n1 product in 1 file: 0 errors, 0 warnings, 1 note, 1 unreadable file\n"_L1));
    QCOMPARE(cut.exitCode, 2);
}

// An incomplete report that looks complete would let a broken catalogue pass.
void tst_check::fullDisk()
{
    for (const QString &format : { u"text"_s, u"json"_s, u"sarif"_s, u"github"_s, u"junit"_s }) {
        QProcess process;
        process.setWorkingDirectory(myFolder.path());
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"--format"_s, format, u"clean.xml"_s });
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 2);
        QCOMPARE(process.readAllStandardError(), QByteArray("rvcatalog: cannot write to the standard output\n"));
    }
}

void tst_check::jsonFormat()
{
    const Run run = check({ u"--format"_s, u"json"_s, u"faults.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
    QJsonParseError error;
    const QJsonObject document = QJsonDocument::fromJson(run.output.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(propertyNames(document), (QStringList { u"findings"_s, u"summary"_s, u"unreadable"_s }));
    const QJsonArray findings = document.value("findings"_L1).toArray();
    QCOMPARE(findings.size(), 3);
    const QJsonObject expected = {
        { u"column"_s, 23 },
        { u"end_column"_s, 37 },
        { u"end_line"_s, 3 },
        { u"file"_s, u"faults.xml"_s },
        { u"fix"_s, QJsonArray() },
        { u"line"_s, 3 },
        { u"product"_s, 1 },
        { u"product_type"_s, u"B"_s },
        { u"related"_s, QJsonArray() },
        { u"rule"_s, u"article-id-invalid"_s },
        { u"severity"_s, u"error"_s },
        { u"text"_s, u"the article id \"0\" is no whole number above 0; write 1 or more"_s },
    };
    QCOMPARE(findings.at(1).toObject(), expected);
    const QJsonObject rules = { { u"article-id-invalid"_s, 1 },
                                { u"keyword-legacy"_s, 1 },
                                { u"price-class-unknown"_s, 1 } };
    const QJsonObject summary = {
        { u"errors"_s, 1 },  { u"files"_s, 1 },    { u"interrupted"_s, false }, { u"notes"_s, 1 },
        { u"omitted"_s, 0 }, { u"products"_s, 3 }, { u"rules"_s, rules },       { u"warnings"_s, 1 },
    };
    QCOMPARE(document.value("summary"_L1).toObject(), summary);
    QCOMPARE(document.value("unreadable"_L1).toArray(), QJsonArray());

    const Run clean = check({ u"--format=json"_s, u"clean.xml"_s });
    const QJsonObject cleanDocument = QJsonDocument::fromJson(clean.output.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(cleanDocument.value("findings"_L1).toArray(), QJsonArray());
    QCOMPARE(clean.exitCode, 0);

    write(u"empty.xml"_s, "<p/>");
    const Run empty = check({ u"--format=json"_s, u"empty.xml"_s });
    const QJsonObject finding =
            QJsonDocument::fromJson(empty.output.toUtf8()).object().value("findings"_L1).toArray().at(0).toObject();
    QVERIFY(finding.value("product"_L1).isNull());
    QVERIFY(finding.value("product_type"_L1).isNull());
}

void tst_check::jsonOfUnreadable()
{
    const Run run = check({ u"--format=json"_s, u"cut.xml"_s, u"missing.xml"_s });
    QCOMPARE(run.exitCode, 2);
    const QJsonObject document = QJsonDocument::fromJson(run.output.toUtf8()).object();
    QCOMPARE(document.value("findings"_L1).toArray().size(), 1);
    const QJsonArray unreadable = document.value("unreadable"_L1).toArray();
    const QJsonObject expected = { { u"column"_s, 4 },
                                   { u"file"_s, u"cut.xml"_s },
                                   { u"line"_s, 3 },
                                   { u"text"_s,
                                     u"the file ends too early: <p>, which was opened in line 1, is not closed"_s } };
    QCOMPARE(unreadable.at(0).toObject(), expected);
    QCOMPARE(unreadable.at(1).toObject().value("file"_L1).toString(), u"missing.xml"_s);
}

// The properties that SARIF 2.1.0 requires of each written object, and their allowed values.
void tst_check::compareSarif(const QString &output, bool isSuccessful, int exitCode, const QStringList &results,
                             const QStringList &notifications)
{
    QJsonParseError error;
    const QJsonObject log = QJsonDocument::fromJson(output.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(propertyNames(log), (QStringList { u"$schema"_s, u"runs"_s, u"version"_s }));
    QCOMPARE(log.value("version"_L1).toString(), u"2.1.0"_s);
    QVERIFY(QUrl(log.value("$schema"_L1).toString(), QUrl::StrictMode).isValid());
    QCOMPARE(log.value("runs"_L1).toArray().size(), 1);
    const QJsonObject run = log.value("runs"_L1).toArray().at(0).toObject();
    QCOMPARE(propertyNames(run), (QStringList { u"columnKind"_s, u"invocations"_s, u"results"_s, u"tool"_s }));
    QCOMPARE(run.value("columnKind"_L1).toString(), u"utf16CodeUnits"_s);

    static const QStringList levels = { u"none"_s, u"note"_s, u"warning"_s, u"error"_s };
    const QJsonObject tool = run.value("tool"_L1).toObject();
    QCOMPARE(propertyNames(tool), QStringList { u"driver"_s });
    const QJsonObject driver = tool.value("driver"_L1).toObject();
    QCOMPARE(propertyNames(driver), (QStringList { u"name"_s, u"rules"_s, u"version"_s }));
    QCOMPARE(driver.value("name"_L1).toString(), u"rvcatalog"_s);
    QVERIFY(driver.value("version"_L1).isString());
    const QJsonArray rules = driver.value("rules"_L1).toArray();
    QCOMPARE(rules.size(), RVCatalogueRule::all().size());
    for (int i = 0; i < rules.size(); ++i) {
        const QJsonObject rule = rules.at(i).toObject();
        QCOMPARE(propertyNames(rule),
                 (QStringList { u"defaultConfiguration"_s, u"fullDescription"_s, u"help"_s, u"helpUri"_s, u"id"_s,
                                u"shortDescription"_s }));
        const RVCatalogueRule described = RVCatalogueRule::all().at(i);
        QCOMPARE(rule.value("fullDescription"_L1).toObject().value("text"_L1).toString(), described.reason());
        QCOMPARE(rule.value("help"_L1).toObject().value("text"_L1).toString(), described.explanation());
        QCOMPARE(rule.value("help"_L1).toObject().value("markdown"_L1).toString(), described.explanationAsMarkdown());
        const QUrl help(rule.value("helpUri"_L1).toString(), QUrl::StrictMode);
        QCOMPARE(help.scheme(), u"file"_s);
        QVERIFY(help.path().endsWith("/doc/rvcatalog/rules.md"_L1));
        QCOMPARE(help.fragment(), described.name());
        QCOMPARE(rule.value("id"_L1).toString(), RVCatalogueRule::all().at(i).name());
        QVERIFY(!rule.value("shortDescription"_L1).toObject().value("text"_L1).toString().isEmpty());
        QVERIFY(levels.contains(rule.value("defaultConfiguration"_L1).toObject().value("level"_L1).toString()));
    }

    QStringList described;
    const QJsonArray found = run.value("results"_L1).toArray();
    for (const QJsonValue &value : found) {
        const QJsonObject result = value.toObject();
        QStringList names { u"level"_s, u"locations"_s, u"message"_s, u"partialFingerprints"_s };
        if (result.value("ruleId"_L1).toString() == "keyword-legacy"_L1)
            names.prepend(u"fixes"_s);
        if (result.contains("properties"_L1))
            names += u"properties"_s;
        QCOMPARE(propertyNames(result), names + (QStringList { u"ruleId"_s, u"ruleIndex"_s }));
        const QString level = result.value("level"_L1).toString();
        QVERIFY(levels.contains(level));
        QVERIFY(!result.value("message"_L1).toObject().value("text"_L1).toString().isEmpty());
        const int index = result.value("ruleIndex"_L1).toInt(-1);
        QCOMPARE(rules.at(index).toObject().value("id"_L1), result.value("ruleId"_L1));
        described += location(result.value("locations"_L1)) + u' ' + level + u' '
                + result.value("ruleId"_L1).toString();
    }
    QCOMPARE(described, results);

    QCOMPARE(run.value("invocations"_L1).toArray().size(), 1);
    const QJsonObject invocation = run.value("invocations"_L1).toArray().at(0).toObject();
    QCOMPARE(propertyNames(invocation),
             (QStringList { u"executionSuccessful"_s, u"exitCode"_s, u"toolExecutionNotifications"_s }));
    QVERIFY(invocation.value("executionSuccessful"_L1).isBool());
    QCOMPARE(invocation.value("executionSuccessful"_L1).toBool(), isSuccessful);
    QCOMPARE(invocation.value("exitCode"_L1).toInt(-1), exitCode);
    QStringList notified;
    const QJsonArray sent = invocation.value("toolExecutionNotifications"_L1).toArray();
    for (const QJsonValue &value : sent) {
        const QJsonObject notification = value.toObject();
        QCOMPARE(propertyNames(notification), (QStringList { u"level"_s, u"locations"_s, u"message"_s }));
        QCOMPARE(notification.value("level"_L1).toString(), u"error"_s);
        notified += location(notification.value("locations"_L1)) + u' '
                + notification.value("message"_L1).toObject().value("text"_L1).toString();
    }
    QCOMPARE(notified, notifications);
}

void tst_check::sarifFormat()
{
    const Run run = check({ u"--format"_s, u"sarif"_s, u"faults.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
    compareSarif(run.output, true, 1,
                 { u"faults.xml:2:34-2:51 note keyword-legacy"_s, u"faults.xml:3:23-3:37 error article-id-invalid"_s,
                   u"faults.xml:4:34-4:56 warning price-class-unknown"_s },
                 {});
    const Run clean = check({ u"--format=sarif"_s, u"clean.xml"_s });
    QCOMPARE(clean.exitCode, 0);
    compareSarif(clean.output, true, 0, {}, {});
}

void tst_check::sarifOfUnreadable()
{
    const Run run = check({ u"--format=sarif"_s, u"cut.xml"_s, u"missing.xml"_s });
    QCOMPARE(run.exitCode, 2);
    compareSarif(run.output, false, 2, { u"cut.xml:2:34-2:51 note keyword-legacy"_s },
                 { u"cut.xml:3:4 the file ends too early: <p>, which was opened in line 1, is not closed"_s,
                   u"missing.xml:1:1 cannot open the file: No such file or directory"_s });
}

void tst_check::sarifUris()
{
    const QString name = u"a b:ä#%.xml"_s;
    write(name, "<p/>");
    compareSarif(check({ u"--format=sarif"_s, name }).output, true, 1,
                 { u"a%20b%3A%C3%A4%23%25.xml:1:1-1:1 error products-missing"_s }, {});
    QVERIFY(QDir().mkpath(myFolder.filePath(u"d"_s)));
    write(u"d/e.xml"_s, "<p/>");
    write(u"d/f.xml"_s, "<p/>");
    compareSarif(check({ u"--format=sarif"_s, u"d/e.xml"_s, myFolder.filePath(u"d/f.xml"_s) }).output, true, 1,
                 { u"d/e.xml:1:1-1:1 error products-missing"_s,
                   QUrl::fromLocalFile(myFolder.filePath(u"d/f.xml"_s)).toString(QUrl::FullyEncoded)
                           + u":1:1-1:1 error products-missing"_s },
                 {});
}

void tst_check::rules()
{
    const Run run = check({ u"--rules"_s });
    QCOMPARE(run.exitCode, 0);
    QString expected;
    for (const RVCatalogueRule &rule : RVCatalogueRule::all())
        expected += rule.name() + " ("_L1 + rvSeverityName(rule.severity()) + ")\n    "_L1 + rule.reason() + u'\n';
    QCOMPARE(run.output, expected);
}

void tst_check::disable()
{
    const Run run = check({ u"--disable=article-id-invalid"_s, u"--disable"_s, u"keyword-legacy"_s,
                            u"--disable=price-class-unknown"_s, u"faults.xml"_s });
    QCOMPARE(run.output, u"3 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_check::disableSeveral()
{
    const Run run = check({ u"--disable=article-id-invalid,keyword-legacy"_s, u"faults.xml"_s });
    QCOMPARE(run.output.count(u'\n'), 2);
    QVERIFY(run.output.contains("[price-class-unknown]"_L1));
}

void tst_check::select_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("summary");

    QTest::newRow("one") << QStringList { u"--select=keyword-legacy"_s } << u"0 errors, 0 warnings, 1 note"_s;
    QTest::newRow("two in one option") << QStringList { u"--select"_s, u"keyword-legacy,article-id-invalid"_s }
                                       << u"1 error, 0 warnings, 1 note"_s;
    QTest::newRow("two options") << QStringList { u"--select=keyword-legacy"_s, u"--select=price-class-unknown"_s }
                                 << u"0 errors, 1 warning, 1 note"_s;
    QTest::newRow("rule without findings")
            << QStringList { u"--select=type-missing"_s } << u"0 errors, 0 warnings, 0 notes"_s;
    QTest::newRow("rule that is also disabled")
            << QStringList { u"--select=keyword-legacy"_s, u"--disable=keyword-legacy"_s }
            << u"0 errors, 0 warnings, 0 notes"_s;
}

void tst_check::select()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, summary);
    const Run run = check(arguments + QStringList { u"faults.xml"_s });
    QVERIFY2(run.output.endsWith("3 products in 1 file: "_L1 + summary + u'\n'), qPrintable(run.output));
}

void tst_check::maxFindings_data()
{
    QTest::addColumn<QString>("most");
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("end");

    QTest::newRow("fewer") << u"1"_s << 2 << u", 2 of them not shown\n"_s;
    QTest::newRow("as many as there are") << u"3"_s << 4 << u" 1 note\n"_s;
    QTest::newRow("more") << u"4"_s << 4 << u" 1 note\n"_s;
}

void tst_check::maxFindings()
{
    QFETCH(QString, most);
    QFETCH(QString, end);
    const Run run = check({ u"--max-findings"_s, most, u"faults.xml"_s });
    QTEST(int(run.output.count(u'\n')), "lines");
    QVERIFY(run.output.startsWith("faults.xml:2:34: "_L1));
    QVERIFY(run.output.contains("\n3 products in 1 file: 1 error, 1 warning, 1 note"_L1));
    QVERIFY2(run.output.endsWith(end), qPrintable(run.output));
    QCOMPARE(run.exitCode, 1);
}

void tst_check::maxFindingsInJson()
{
    const Run run = check({ u"--max-findings=2"_s, u"--format=json"_s, u"faults.xml"_s });
    const QJsonObject document = QJsonDocument::fromJson(run.output.toUtf8()).object();
    QCOMPARE(document.value("findings"_L1).toArray().size(), 2);
    const QJsonObject sums = document.value("summary"_L1).toObject();
    QCOMPARE(sums.value("omitted"_L1).toInt(), 1);
    QCOMPARE(sums.value("warnings"_L1).toInt(), 1);
}

// The numbers of the rules include the findings that are not written.
void tst_check::maxFindingsOfSummary()
{
    const Run run = check({ u"--max-findings=1"_s, u"--summary"_s, u"faults.xml"_s });
    QVERIFY2(run.output.endsWith("\n3 products in 1 file: 1 error, 1 warning, 1 note\n"_L1), qPrintable(run.output));
    QCOMPARE(run.output.count(u'\n'), 4);
}

void tst_check::summary()
{
    write(u"copy.xml"_s, FAULTS);
    const Run run = check({ u"--summary"_s, u"--select=keyword-legacy,article-id-invalid,price-class-unknown"_s,
                            u"faults.xml"_s, u"copy.xml"_s, u"clean.xml"_s, u"cut.xml"_s });
    QVERIFY(run.messages.startsWith("cut.xml:3:4: error: "_L1));
    QVERIFY2(run.output.startsWith("       3  note     keyword-legacy\n"
                                   "       2  error    article-id-invalid\n"
                                   "       2  warning  price-class-unknown\n"_L1),
             qPrintable(run.output));
    QVERIFY(!run.output.contains("faults.xml"_L1));
    QVERIFY(run.output.endsWith(" in 4 files: 2 errors, 2 warnings, 3 notes, 1 unreadable file\n"_L1));
    QCOMPARE(run.exitCode, 2);
}

void tst_check::quiet()
{
    for (const QString &format : { u"text"_s, u"json"_s, u"sarif"_s, u"github"_s, u"junit"_s }) {
        const Run run = check({ u"--quiet"_s, u"--format"_s, format, u"faults.xml"_s });
        QCOMPARE(run.output, QString());
        QCOMPARE(run.messages, QString());
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(check({ u"--quiet"_s, u"--format"_s, format, u"clean.xml"_s }).exitCode, 0);
    }
    const Run run = check({ u"--quiet"_s, u"missing.xml"_s });
    QCOMPARE(run.output, QString());
    QCOMPARE(run.messages, u"missing.xml:1:1: error: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(run.exitCode, 2);
}

// The findings are the same with any number of threads, and in the order of the file.
void tst_check::jobs()
{
    QByteArray many = "<p>\n";
    for (int i = 1; i <= 20000; ++i)
        many += "<product type='T" + QByteArray::number(i) + "' article_id='x'/>\n";
    write(u"many.xml"_s, many + "</p>\n");
    const Run one = check({ u"--jobs"_s, u"1"_s, u"many.xml"_s });
    QCOMPARE(one.output.count("[article-id-invalid]\n"_L1), 20000);
    QVERIFY(one.output.startsWith("many.xml:2:20: error: T1: "_L1));
    for (const QString &jobs : { u"2"_s, u"3"_s, u"20"_s })
        QCOMPARE(check({ u"--jobs"_s, jobs, u"many.xml"_s }).output, one.output);
}

void tst_check::helpFitsTerminals()
{
    const QStringList lines = check({ u"--help"_s }).output.split(u'\n');
    QVERIFY(lines.size() > 10);
    for (const QString &line : lines)
        QVERIFY2(line.size() <= 80, qPrintable(line));
}

void tst_check::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const QString hint = u"\nTry \"rvcatalog check --help\".\n"_s;
    QTest::newRow("no file") << QStringList() << u"rvcatalog: expected at least 1 argument, got 0"_s + hint;
    QTest::newRow("unknown rule") << QStringList { u"--disable"_s, u"foo"_s, u"clean.xml"_s }
                                  << u"rvcatalog: there is no rule \"foo\"; \"rvcatalog explain\" lists them"_s + hint;
    QTest::newRow("unknown format") << QStringList {
        u"--format"_s, u"xml"_s, u"clean.xml"_s
    } << u"rvcatalog: there is no format \"xml\"; there are: text, json, sarif, github, junit"_s + hint;
    QTest::newRow("misspelt rule") << QStringList { u"--disable"_s, u"type-mising"_s, u"clean.xml"_s }
                                   << u"rvcatalog: there is no rule \"type-mising\"; did you mean \"type-missing\"?"_s
                    + hint;
    QTest::newRow("unknown rule behind a comma")
            << QStringList { u"--select=type-missing,foo"_s, u"clean.xml"_s }
            << u"rvcatalog: there is no rule \"foo\"; \"rvcatalog explain\" lists them"_s + hint;
    QTest::newRow("no rule to select") << QStringList { u"--select="_s, u"clean.xml"_s }
                                       << u"rvcatalog: --select names no rule"_s + hint;
    QTest::newRow("no threads") << QStringList { u"--jobs=0"_s, u"clean.xml"_s }
                                << u"rvcatalog: --jobs takes a whole number from 1, not \"0\""_s + hint;
    QTest::newRow("number of threads that is too large")
            << QStringList { u"--jobs=3000000000"_s, u"clean.xml"_s }
            << u"rvcatalog: --jobs takes a whole number from 1, not \"3000000000\""_s + hint;
    QTest::newRow("no number") << QStringList { u"--max-findings"_s, u"few"_s, u"clean.xml"_s }
                               << u"rvcatalog: --max-findings takes a whole number from 1, not \"few\""_s + hint;
    QTest::newRow("unknown choice of colours")
            << QStringList { u"--color=sometimes"_s, u"clean.xml"_s }
            << u"rvcatalog: there is no color \"sometimes\"; there are: auto, always, never"_s + hint;
    QTest::newRow("summary in JSON") << QStringList { u"--summary"_s, u"--format=json"_s, u"clean.xml"_s }
                                     << u"rvcatalog: --summary is for the format text; other formats have their own"_s
                    + hint;
    QTest::newRow("unknown option") << QStringList { u"--foo"_s } << u"rvcatalog: Unknown option 'foo'."_s + hint;
}

void tst_check::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const Run run = check(arguments);
    QCOMPARE(run.output, QString());
    QTEST(run.messages, "message");
    QCOMPARE(run.exitCode, 2);
}

namespace {

/// The number of products for which the check of a slow input takes longer than a second.
void writeSlowly(QProcess *process)
{
    process->write("<p>");
    for (int i = 1; i <= 30; ++i) {
        for (int j = 1; j <= 1000; ++j)
            process->write("<product type='T" + QByteArray::number(i * 1000 + j) + "' article_id='"
                           + QByteArray::number(i * 1000 + j) + "'/>\n");
        QTest::qWait(60);
    }
    process->write("</p>");
    process->closeWriteChannel();
}

}

void tst_check::noProgressInAFile()
{
    QProcess process;
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    writeSlowly(&process);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.readAllStandardError(), QByteArray());
    QCOMPARE(process.readAllStandardOutput(), "30000 products in 1 file: 0 errors, 0 warnings, 0 notes\n");
}

void tst_check::progressOnATerminal()
{
    const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    QVERIFY(terminal >= 0);
    QCOMPARE(::grantpt(terminal), 0);
    QCOMPARE(::unlockpt(terminal), 0);
    const int userSide = ::open(::ptsname(terminal), O_RDWR | O_NOCTTY);
    QVERIFY(userSide >= 0);
    QProcess process;
    process.setChildProcessModifier([userSide] { ::dup2(userSide, STDERR_FILENO); });
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    writeSlowly(&process);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.readAllStandardOutput(), "30000 products in 1 file: 0 errors, 0 warnings, 0 notes\n");
    // The terminal splits the output into its own pieces.
    QByteArray shown;
    const auto readMore = [&] {
        char piece[4096];
        const auto size = ::read(terminal, piece, sizeof piece);
        return size > 0 ? shown.append(piece, size) : shown;
    };
    QTRY_VERIFY(readMore().endsWith("-\r\033[K"));
    ::close(userSide);
    ::close(terminal);
    QVERIFY2(shown.startsWith("\r\033[K0 MB -"), shown.constData());
}

// A document of these products takes over a gigabyte.
void tst_check::memory()
{
#ifdef __SANITIZE_ADDRESS__
    constexpr long limit = 800; // most of it is memory that was given back
#else
    constexpr long limit = 64;
#endif
    constexpr int count = 20000;
    QFile file(myFolder.filePath(u"large.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<products>");
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        file.write("<product type='T" + number + "' article_id='" + number + "' name='" + QByteArray(200, 'x')
                   + "' pages='26' max_pages='154' page_step='4'><forms>\n");
        for (int j = 0; j < 10; ++j)
            file.write("<form key='k" + QByteArray::number(j) + "' value='v' preselected='true' value_name='"
                       + QByteArray(100, 'y') + "'/>\n");
        file.write("</forms></product>\n");
    }
    file.write("</products>");
    file.close();
    const Run run = check({ u"large.xml"_s });
    QCOMPARE(run.output, u"20000 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    rusage usage = {};
    QCOMPARE(getrusage(RUSAGE_CHILDREN, &usage), 0);
    QVERIFY2(usage.ru_maxrss < limit * 1024, qPrintable(u"%1 KiB"_s.arg(usage.ru_maxrss)));
}

QTEST_GUILESS_MAIN(tst_check)
#include "tst_check.moc"
