#include "CheckFolder.h"

#include <RVCatalogueRule.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QStringList LEVELS = { u"none"_s, u"note"_s, u"warning"_s, u"error"_s };

/// Checks the requirements of the format for a location, and returns
/// "uri:line:column", followed by "-line:column" if it has an end.
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
    const bool hasEnd = region.keys() == allNames;
    if (physical.keys() != QStringList { u"artifactLocation"_s, u"region"_s }
        || artifact.keys() != QStringList { u"uri"_s } || (!hasEnd && region.keys() != beginNames)
        || !QUrl(uri, QUrl::StrictMode).isValid() || number("startLine"_L1) < 1 || number("startColumn"_L1) < 1)
        return u"no location"_s;
    const QString begin = uri + u":%1:%2"_s.arg(number("startLine"_L1)).arg(number("startColumn"_L1));
    return hasEnd ? begin + u"-%1:%2"_s.arg(number("endLine"_L1)).arg(number("endColumn"_L1)) : begin;
}

QString messageOf(const QJsonObject &object)
{
    return object.value("message"_L1).toObject().value("text"_L1).toString();
}

// The properties that SARIF 2.1.0 requires of each written object, and their
// allowed values.
void compareLog(const QJsonObject &log)
{
    QCOMPARE(log.keys(), (QStringList { u"$schema"_s, u"runs"_s, u"version"_s }));
    QCOMPARE(log.value("version"_L1).toString(), u"2.1.0"_s);
    QVERIFY(QUrl(log.value("$schema"_L1).toString(), QUrl::StrictMode).isValid());
    const QJsonArray runs = log.value("runs"_L1).toArray();
    QCOMPARE(runs.size(), 1);
    const QJsonObject run = runs.at(0).toObject();
    QCOMPARE(run.keys(), (QStringList { u"columnKind"_s, u"invocations"_s, u"results"_s, u"tool"_s }));
    QCOMPARE(run.value("columnKind"_L1).toString(), u"utf16CodeUnits"_s);
}

void compareRule(const QJsonObject &rule, const RVCatalogueRule &described)
{
    QCOMPARE(rule.keys(),
             (QStringList { u"defaultConfiguration"_s, u"fullDescription"_s, u"help"_s, u"helpUri"_s, u"id"_s,
                            u"shortDescription"_s }));
    QCOMPARE(rule.value("fullDescription"_L1).toObject().value("text"_L1).toString(), described.reason());
    QCOMPARE(rule.value("help"_L1).toObject().value("text"_L1).toString(), described.explanation());
    QCOMPARE(rule.value("help"_L1).toObject().value("markdown"_L1).toString(), described.explanationAsMarkdown());
    const QUrl help(rule.value("helpUri"_L1).toString(), QUrl::StrictMode);
    QCOMPARE(help.scheme(), u"file"_s);
    QVERIFY(help.path().endsWith("/doc/rvcatalog/rules.md"_L1));
    QCOMPARE(help.fragment(), described.name());
    QCOMPARE(rule.value("id"_L1).toString(), described.name());
    QVERIFY(!rule.value("shortDescription"_L1).toObject().value("text"_L1).toString().isEmpty());
    QVERIFY(LEVELS.contains(rule.value("defaultConfiguration"_L1).toObject().value("level"_L1).toString()));
}

void compareTool(const QJsonObject &tool)
{
    QCOMPARE(tool.keys(), QStringList { u"driver"_s });
    const QJsonObject driver = tool.value("driver"_L1).toObject();
    QCOMPARE(driver.keys(), (QStringList { u"name"_s, u"rules"_s, u"version"_s }));
    QCOMPARE(driver.value("name"_L1).toString(), u"rvcatalog"_s);
    QVERIFY(driver.value("version"_L1).isString());
    const QJsonArray rules = driver.value("rules"_L1).toArray();
    QCOMPARE(rules.size(), RVCatalogueRule::all().size());
    for (int i = 0; i < rules.size() && !QTest::currentTestFailed(); ++i)
        compareRule(rules.at(i).toObject(), RVCatalogueRule::all().at(i));
}

void compareResult(const QJsonObject &result, const QJsonArray &rules)
{
    QStringList names { u"level"_s, u"locations"_s, u"message"_s, u"partialFingerprints"_s };
    if (result.value("ruleId"_L1).toString() == "keyword-legacy"_L1)
        names.prepend(u"fixes"_s);
    if (result.contains("properties"_L1))
        names += u"properties"_s;
    QCOMPARE(result.keys(), names + (QStringList { u"ruleId"_s, u"ruleIndex"_s }));
    QVERIFY(LEVELS.contains(result.value("level"_L1).toString()));
    QVERIFY(!messageOf(result).isEmpty());
    const int index = result.value("ruleIndex"_L1).toInt(-1);
    QCOMPARE(rules.at(index).toObject().value("id"_L1), result.value("ruleId"_L1));
}

void compareResults(const QJsonObject &run, const QStringList &expected)
{
    const QJsonArray rules = run.value("tool"_L1)["driver"_L1]["rules"_L1].toArray();
    const QJsonArray results = run.value("results"_L1).toArray();
    QStringList found;
    for (const QJsonValue &value : results) {
        const QJsonObject result = value.toObject();
        compareResult(result, rules);
        found += location(result.value("locations"_L1)) + u' ' + result.value("level"_L1).toString() + u' '
                + result.value("ruleId"_L1).toString();
    }
    QCOMPARE(found, expected);
}

void compareInvocation(const QJsonObject &run, int exitCode, const QStringList &notifications)
{
    QCOMPARE(run.value("invocations"_L1).toArray().size(), 1);
    const QJsonObject invocation = run.value("invocations"_L1).toArray().at(0).toObject();
    QCOMPARE(invocation.keys(),
             (QStringList { u"executionSuccessful"_s, u"exitCode"_s, u"toolExecutionNotifications"_s }));
    QVERIFY(invocation.value("executionSuccessful"_L1).isBool());
    QCOMPARE(invocation.value("executionSuccessful"_L1).toBool(), notifications.isEmpty());
    QCOMPARE(invocation.value("exitCode"_L1).toInt(-1), exitCode);
    QStringList notified;
    const QJsonArray sent = invocation.value("toolExecutionNotifications"_L1).toArray();
    for (const QJsonValue &value : sent) {
        const QJsonObject notification = value.toObject();
        QCOMPARE(notification.keys(), (QStringList { u"level"_s, u"locations"_s, u"message"_s }));
        QCOMPARE(notification.value("level"_L1).toString(), u"error"_s);
        notified += location(notification.value("locations"_L1)) + u' ' + messageOf(notification);
    }
    QCOMPARE(notified, notifications);
}

void compareSarif(const QString &output, int exitCode, const QStringList &results,
                  const QStringList &notifications = {})
{
    QJsonParseError error;
    const QJsonObject log = QJsonDocument::fromJson(output.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    compareLog(log);
    const QJsonObject run = log.value("runs"_L1)[0].toObject();
    compareTool(run.value("tool"_L1).toObject());
    compareResults(run, results);
    compareInvocation(run, exitCode, notifications);
}

} // namespace

/// The format for code review.
class tst_check_sarif : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void findings();
    void clean();
    void unreadable();
    void uris();

private:
    CheckFolder myFolder;
};

void tst_check_sarif::initTestCase()
{
    QVERIFY(myFolder.writeCatalogues());
}

void tst_check_sarif::findings()
{
    const ProgramRun run = myFolder.check({ u"--format"_s, u"sarif"_s, u"faults.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
    compareSarif(run.output, 1,
                 { u"faults.xml:2:34-2:51 note keyword-legacy"_s, u"faults.xml:3:23-3:37 error article-id-invalid"_s,
                   u"faults.xml:4:34-4:56 warning price-class-unknown"_s });
}

void tst_check_sarif::clean()
{
    const ProgramRun run = myFolder.check({ u"--format=sarif"_s, u"clean.xml"_s });
    QCOMPARE(run.exitCode, 0);
    compareSarif(run.output, 0, {});
}

void tst_check_sarif::unreadable()
{
    const ProgramRun run = myFolder.check({ u"--format=sarif"_s, u"cut.xml"_s, u"missing.xml"_s });
    QCOMPARE(run.exitCode, 2);
    compareSarif(run.output, 2, { u"cut.xml:2:34-2:51 note keyword-legacy"_s },
                 { u"cut.xml:3:4 the file ends too early: <p>, which was opened in line 1, is not closed"_s,
                   u"missing.xml:1:1 cannot open the file: No such file or directory"_s });
}

void tst_check_sarif::uris()
{
    const QString name = u"a b:ä#%.xml"_s;
    QVERIFY(myFolder.write(name, "<p/>"));
    compareSarif(myFolder.check({ u"--format=sarif"_s, name }).output, 1,
                 { u"a%20b%3A%C3%A4%23%25.xml:1:1-1:1 error products-missing"_s });
    QVERIFY(QDir().mkpath(myFolder.path(u"d"_s)));
    QVERIFY(myFolder.write(u"d/e.xml"_s, "<p/>"));
    QVERIFY(myFolder.write(u"d/f.xml"_s, "<p/>"));
    compareSarif(myFolder.check({ u"--format=sarif"_s, u"d/e.xml"_s, myFolder.path(u"d/f.xml"_s) }).output, 1,
                 { u"d/e.xml:1:1-1:1 error products-missing"_s,
                   QUrl::fromLocalFile(myFolder.path(u"d/f.xml"_s)).toString(QUrl::FullyEncoded)
                           + u":1:1-1:1 error products-missing"_s });
}

QTEST_GUILESS_MAIN(tst_check_sarif)
#include "tst_check_sarif.moc"
