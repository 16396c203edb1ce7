#include "CommandRun.h"
#include "WrittenFile.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// A catalogue with a note, a warning and an error.
const char CATALOGUE[] = "<products>\n"
                         "  <product type='DUN9' article_id='1' cover_type='hard'/>\n"
                         "  <product type='DUN5' article_id='2' page_price_class='TAS1'/>\n"
                         "  <product type='VIR1' article_id='x'/>\n"
                         "</products>\n";

/// The rules and severities of findings, in the order in which they are written.
QStringList findingsOf(const QString &output)
{
    static const QRegularExpression finding(u"^([^:]+):\\d+:\\d+: (\\w+): .* \\[([a-z-]+)\\]$"_s);
    QStringList result;
    for (const QString &line : output.split(u'\n')) {
        const QRegularExpressionMatch match = finding.match(line);
        if (match.hasMatch())
            result += match.captured(2) + u' ' + match.captured(3);
    }
    return result;
}

}

/// "rvcatalog check" with configuration files.
class tst_configuration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rules_data();
    void rules();
    void everyCatalogueHasItsOwn();
    void standardInput();
    void option();
    void fromTheInput();
    void fromAPipe();
    void none();
    void commandLineComesLast();
    void broken_data();
    void broken();
    void brokenOneIsToldOnce();
    void formats_data();
    void formats();
    void contradictions_data();
    void contradictions();
    void otherCommands_data();
    void otherCommands();

private:
    void write(const QString &name, const QByteArray &content);

    std::unique_ptr<QTemporaryDir> myFolder;
};

void tst_configuration::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(myFolder->path()));
    write(u"c.xml"_s, CATALOGUE);
}

void tst_configuration::cleanup()
{
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

void tst_configuration::write(const QString &name, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    QVERIFY(writeFile(name, content));
}

void tst_configuration::rules_data()
{
    QTest::addColumn<QByteArray>("configuration");
    QTest::addColumn<QStringList>("findings");
    QTest::addColumn<int>("exitCode");

    const QString note = u"note keyword-legacy"_s;
    const QString warning = u"warning price-class-unknown"_s;
    const QString error = u"error article-id-invalid"_s;
    QTest::newRow("empty configuration") << QByteArray() << QStringList { note, warning, error } << 1;
    QTest::newRow("one rule off") << QByteArray("rules.keyword-legacy = 'off'") << QStringList { warning, error } << 1;
    QTest::newRow("note as an error") << QByteArray("rules.keyword-legacy = 'error'")
                                      << QStringList { u"error keyword-legacy"_s, warning, error } << 1;
    QTest::newRow("all of them notes")
            << QByteArray("[rules]\nprice-class-unknown = 'note'\narticle-id-invalid = 'note'")
            << QStringList { note, u"note price-class-unknown"_s, u"note article-id-invalid"_s } << 0;
    QTest::newRow("all of them off") << QByteArray(
            "[rules]\nprice-class-unknown = 'off'\narticle-id-invalid = 'off'\nkeyword-legacy = 'off'")
                                     << QStringList() << 0;
}

void tst_configuration::rules()
{
    QFETCH(QByteArray, configuration);
    write(u"rvcatalog.toml"_s, configuration);
    const CommandRun run({ u"check"_s, u"c.xml"_s });
    QTEST(findingsOf(run.output), "findings");
    QTEST(run.exitCode, "exitCode");
    QCOMPARE(run.messages, QString());
}

void tst_configuration::everyCatalogueHasItsOwn()
{
    write(u"rvcatalog.toml"_s, "rules.keyword-legacy = 'off'");
    write(u"a/c.xml"_s, CATALOGUE);
    write(u"b/rvcatalog.json"_s, R"({"rules": {"article-id-invalid": "note", "price-class-unknown": "off"}})");
    write(u"b/b/c.xml"_s, QByteArray(CATALOGUE).replace("DUN", "TOS").replace("VIR", "KAL").replace("id='", "id='1"));
    const CommandRun run({ u"check"_s, u"a/c.xml"_s, u"b/b/c.xml"_s });
    QCOMPARE(findingsOf(run.output),
             (QStringList { u"warning price-class-unknown"_s, u"error article-id-invalid"_s, u"note keyword-legacy"_s,
                            u"note article-id-invalid"_s }));
    QCOMPARE(CommandRun({ u"check"_s, u"b/b/c.xml"_s }).exitCode, 0);
}

void tst_configuration::standardInput()
{
    write(u"rvcatalog.toml"_s, "rules.keyword-legacy = 'off'");
    QVERIFY(QDir().mkpath(u"a"_s));
    QVERIFY(QDir::setCurrent(u"a"_s));
    const CommandRun run({ u"check"_s, u"-"_s }, CATALOGUE);
    QCOMPARE(findingsOf(run.output), (QStringList { u"warning price-class-unknown"_s, u"error article-id-invalid"_s }));
}

void tst_configuration::option()
{
    write(u"rvcatalog.toml"_s, "rules.keyword-legacy = 'off'");
    write(u"other/strict.json"_s, R"({"rules": {"keyword-legacy": "error"}})");
    const CommandRun run({ u"check"_s, u"--config"_s, u"other/strict.json"_s, u"c.xml"_s });
    QCOMPARE(findingsOf(run.output).value(0), u"error keyword-legacy"_s);
    const CommandRun missing({ u"check"_s, u"--config"_s, u"none.toml"_s, u"c.xml"_s });
    QCOMPARE(missing.exitCode, 2);
    QCOMPARE(missing.output, QString());
    QCOMPARE(missing.messages, u"none.toml: error: cannot open the file: No such file or directory\n"_s);
}

void tst_configuration::fromTheInput()
{
    const QStringList arguments { u"check"_s, u"--config"_s, u"-"_s, u"c.xml"_s };
    const CommandRun run(arguments, "rules.keyword-legacy = 'error'");
    QCOMPARE(findingsOf(run.output).value(0), u"error keyword-legacy"_s);
    const CommandRun broken(arguments, "rule.keyword-legacy = 'error'");
    QCOMPARE(broken.messages, u"-:1:1: error: there is no entry \"rule\"; did you mean \"rules\"?\n"_s);
    QCOMPARE(broken.exitCode, 2);
    const CommandRun twice({ u"check"_s, u"--config=-"_s, u"-"_s }, CATALOGUE);
    QVERIFY(twice.messages.startsWith("rvcatalog: only one file can be the standard input\n"_L1));
}

// A shell makes a pipe of "--config <(command)". All catalogues use what it says.
void tst_configuration::fromAPipe()
{
    int ends[2] = {};
    QCOMPARE(::pipe(ends), 0);
    QVERIFY(QFile::copy(u"c.xml"_s, u"d.xml"_s));
    std::thread writer([end = ends[1]] {
        for (const QByteArray &piece :
             { QByteArray("rules.price-class-unknown = 'off'\n"), QByteArray("rules.keyword-legacy = 'error'\n") }) {
            [[maybe_unused]] const auto written = ::write(end, piece.constData(), std::size_t(piece.size()));
            QTest::qSleep(100);
        }
        ::close(end);
    });
    const CommandRun run({ u"check"_s, u"--config"_s, u"/dev/fd/%1"_s.arg(ends[0]), u"c.xml"_s, u"d.xml"_s });
    writer.join();
    QCOMPARE(::close(ends[0]), 0);
    QCOMPARE(findingsOf(run.output).count(u"error keyword-legacy"_s), 2);
    QVERIFY(!run.output.contains(u"price-class-unknown"_s));
}

void tst_configuration::none()
{
    write(u"rvcatalog.toml"_s, "no TOML");
    const CommandRun run({ u"check"_s, u"--no-config"_s, u"c.xml"_s });
    QCOMPARE(findingsOf(run.output).value(0), u"note keyword-legacy"_s);
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
}

void tst_configuration::commandLineComesLast()
{
    write(u"rvcatalog.toml"_s, "[rules]\nkeyword-legacy = 'error'\narticle-id-invalid = 'off'\n");
    const CommandRun run({ u"check"_s, u"--disable"_s, u"keyword-legacy"_s, u"c.xml"_s });
    QCOMPARE(findingsOf(run.output), QStringList { u"warning price-class-unknown"_s });
}

void tst_configuration::broken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");

    QTest::newRow("misspelt rule") << u"rvcatalog.toml"_s << QByteArray("[rules]\nkeyword-legcy = 'off'\n")
                                   << u":2:1: error: there is no rule \"keyword-legcy\"; did you mean "
                                      "\"keyword-legacy\"?\n"_s;
    QTest::newRow("misspelt rule in JSON")
            << u"rvcatalog.json"_s << QByteArray(R"({"rules": {"keyword-legcy": "off"}})")
            << u": error: there is no rule \"keyword-legcy\"; did you mean "
               "\"keyword-legacy\"?\n"_s;
    QTest::newRow("number as a severity") << u"rvcatalog.toml"_s << QByteArray("rules.keyword-legacy = 0\n")
                                          << u":1:24: error: rules.keyword-legacy must be a text, but is a number\n"_s;
}

void tst_configuration::broken()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    write(name, text);
    const CommandRun run({ u"check"_s, u"c.xml"_s });
    QCOMPARE(run.messages, QDir::current().absoluteFilePath(name) + message);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 2);
}

void tst_configuration::brokenOneIsToldOnce()
{
    write(u"a.xml"_s, CATALOGUE);
    write(u"rvcatalog.toml"_s, "rules = 1");
    const CommandRun run({ u"check"_s, u"c.xml"_s, u"a.xml"_s });
    QCOMPARE(run.messages.count(u'\n'), 1);
    QCOMPARE(run.exitCode, 2);
}

void tst_configuration::formats_data()
{
    QTest::addColumn<QString>("format");

    QTest::newRow("JSON") << u"json"_s;
    QTest::newRow("SARIF") << u"sarif"_s;
}

void tst_configuration::formats()
{
    QFETCH(QString, format);
    write(u"rvcatalog.toml"_s, "[rules]\nprice-class-unknown = 'off'\nkeyword-legacy = 'off'\n");
    const QStringList arguments { u"check"_s, u"--format"_s, format, u"c.xml"_s };
    const CommandRun run(arguments);
    QVERIFY(QJsonDocument::fromJson(run.output.toUtf8()).isObject());
    QCOMPARE(run.output.count(u"\\\"x\\\""_s), 1);
    QVERIFY(!run.output.contains(u"TAS1"_s));
    QVERIFY(CommandRun(arguments + QStringList(u"--no-config"_s)).output.contains(u"TAS1"_s));
}

void tst_configuration::contradictions_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("message");

    QTest::newRow("configuration and --no-config") << QStringList { u"--config"_s, u"c.toml"_s, u"--no-config"_s }
                                                   << u"--config and --no-config contradict each other"_s;
    QTest::newRow("empty name") << QStringList { u"--config"_s, QString() } << u"--config needs the name of a file"_s;
}

void tst_configuration::contradictions()
{
    QFETCH(QStringList, options);
    QFETCH(QString, message);
    const CommandRun run(QStringList { u"check"_s, u"c.xml"_s } + options);
    QVERIFY2(run.messages.startsWith(u"rvcatalog: "_s + message), qPrintable(run.messages));
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 2);
}

// The list of rules does not depend on the catalogue.
void tst_configuration::otherCommands_data()
{
    QTest::addColumn<QStringList>("arguments");

    QTest::newRow("show") << QStringList { u"show"_s, u"c.xml"_s };
    QTest::newRow("keywords") << QStringList { u"keywords"_s, u"cover_type"_s };
}

void tst_configuration::otherCommands()
{
    QFETCH(QStringList, arguments);
    const CommandRun before(arguments);
    write(u"rvcatalog.toml"_s, "no TOML");
    const CommandRun after(arguments);
    QCOMPARE(after.output, before.output);
    QCOMPARE(after.messages, QString());
    QCOMPARE(after.exitCode, 0);
}

QTEST_MAIN(tst_configuration)
#include "tst_configuration.moc"
