#include "CommandRun.h"
#include "WrittenFile.h"

#include <Baseline.h>

#include <RVCatalogueCheck.h>
#include <RVCatalogueFinding.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Two equal faults in the first product, one that names a line and one in another product.
const char CATALOGUE[] = "<products>\n"
                         "  <product type='DUN9' article_id='1'><forms>\n"
                         "    <form key='a' value='1' color='rde'/>\n"
                         "    <form key='a' value='2' color='rde' preselected='true'/>\n"
                         "    <form key='a' value='2'/>\n"
                         "  </forms></product>\n"
                         "  <product type='DUN5' article_id='x'/>\n"
                         "</products>\n";

/// The number of findings in the output of "check" as text.
qsizetype findings(const CommandRun &run)
{
    return run.output.count(u"]\n"_s); // other lines name no rule
}

}

class tst_Baseline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fileAsWritten();
    void noFindings();
    void knownFindings_data();
    void knownFindings();
    void changes_data();
    void changes();
    void formats_data();
    void formats();
    void quietly();
    void mostFindings();
    void severalCatalogues();
    void anotherFolder();
    void folderBehindALink();
    void nameOfAnotherCatalogue();
    void standardInput();
    void ruleThatIsOff();
    void sameCatalogueTwice();
    void mergedFile();
    void largestCount();
    void unreadableCatalogue();
    void broken_data();
    void broken();
    void largestFile_data();
    void largestFile();
    void notWritable();
    void notReplaceable_data();
    void notReplaceable();
    void pipe();
    void standardStreams();
    void contradictions_data();
    void contradictions();

private:
    void write(const QString &name, const QByteArray &content);

    std::unique_ptr<QTemporaryDir> myFolder;
};

void tst_Baseline::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(myFolder->path()));
    write(u"c.xml"_s, CATALOGUE);
}

void tst_Baseline::cleanup()
{
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
}

void tst_Baseline::write(const QString &name, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    QVERIFY(writeFile(name, content));
}

void tst_Baseline::fileAsWritten()
{
    Baseline baseline(u"b/known.json"_s);
    QVERIFY(QDir().mkpath(u"b"_s));
    RVCatalogueFinding finding(RVCatalogueRule::find(u"option-duplicate"), {}, u"already there in line 12"_s, 0);
    finding.setRelatedPlaces({ { {}, u"the first"_s, QString() }, { {}, u"another"_s, u"z.xml"_s } });
    baseline.add(u"b/z.xml"_s, finding);
    finding.setProductType(u"DÜN9"_s);
    baseline.add(u"b/z.xml"_s, finding);
    baseline.add(u"b/z.xml"_s, finding);
    baseline.add(u"c.xml"_s, RVCatalogueFinding(RVCatalogueRule::find(u"type-missing"), {}, u"\"no\" type"_s));
    QCOMPARE(baseline.size(), 4);
    QVERIFY(baseline.write(Console()));
    QCOMPARE(QString::fromUtf8(readFile(u"b/known.json"_s)), uR"({
  "version": 1,
  "findings": [
    {"file":"../c.xml","rule":"type-missing","text":"\"no\" type"},
    {"file":"z.xml","rule":"option-duplicate","text":"already there in line"},
    {"count":2,"file":"z.xml","product":"DÜN9","rule":"option-duplicate","text":"already there in line"}
  ]
}
)"_s);

    Baseline other(u"b/known.json"_s);
    QVERIFY(other.read(Console()));
    QCOMPARE(other.size(), 4);
    QVERIFY(other.take(u"./b/../b/z.xml"_s, finding));
    QVERIFY(other.take(u"b/z.xml"_s, finding));
    QVERIFY(!other.take(u"b/z.xml"_s, finding)); // it is known twice
    QVERIFY(!other.take(u"c.xml"_s, finding));
    QCOMPARE(other.mended(), 0);
    other.finish(u"b/z.xml"_s, RVCatalogueCheck());
    QCOMPARE(other.mended(), 1);
}

void tst_Baseline::noFindings()
{
    write(u"c.xml"_s, "<products><product type='DUN9' article_id='1'/></products>");
    const CommandRun run({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(run.messages, u"rvcatalog: note: wrote 0 findings to b.json\n"_s);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(readFile(u"b.json"_s), QByteArray("{\n  \"version\": 1,\n  \"findings\": [\n  ]\n}\n"));
    const CommandRun again({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(again.messages, QString());
    QCOMPARE(again.exitCode, 0);
}

void tst_Baseline::knownFindings_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");

    QTest::newRow("same catalogue") << QByteArray() << QByteArray();
    QTest::newRow("other lines") << QByteArray("<products>\n") << QByteArray("<!-- a\ncomment -->\n\n<products>\n");
    QTest::newRow("other columns") << QByteArray("    <form") << QByteArray("\t<form");
    QTest::newRow("new product without fault")
            << QByteArray("<products>\n") << QByteArray("<products>\n<product type='DUN7' article_id='7'/>\n");
}

void tst_Baseline::knownFindings()
{
    const CommandRun written({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(written.messages, u"rvcatalog: note: wrote 4 findings to b.json\n"_s);
    QCOMPARE(written.exitCode, 0);
    QCOMPARE(findings(written), 0);
    QCOMPARE(readFile(u"b.json"_s).count("\"count\":2"), 1);

    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace(from, to));
    QCOMPARE(findings(CommandRun({ u"check"_s, u"c.xml"_s })), 4);
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(findings(run), 0);
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
}

void tst_Baseline::changes_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<int>("newFindings");
    QTest::addColumn<int>("mended");

    QTest::newRow("fault in a new product")
            << QByteArray("</products>") << QByteArray("<product type='X'/></products>") << 1 << 0;
    QTest::newRow("same fault in another product")
            << QByteArray("article_id='1'") << QByteArray("article_id='x'") << 1 << 0;
    QTest::newRow("equal fault a third time")
            << QByteArray("value='2'/>") << QByteArray("value='2' color='rde'/>") << 1 << 0;
    QTest::newRow("other value of the same fault") << QByteArray("'x'") << QByteArray("'y'") << 1 << 1;
    QTest::newRow("one of two equal faults mended") << QByteArray("'1' color='rde'") << QByteArray("'1'") << 0 << 1;
    QTest::newRow("both mended") << QByteArray("color='rde'") << QByteArray() << 0 << 2;
    QTest::newRow("other type") << QByteArray("DUN5") << QByteArray("DUN7") << 1 << 1;
    QTest::newRow("product removed") << QByteArray("  <product type='DUN5' article_id='x'/>\n") << QByteArray() << 0
                                     << 1;
}

void tst_Baseline::changes()
{
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 0);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(int, newFindings);
    QFETCH(int, mended);
    QVERIFY(QByteArray(CATALOGUE).contains(from));
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace(from, to));
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(findings(run), newFindings);
    const QString text = mended == 1
            ? u"rvcatalog: note: 1 finding of the baseline b.json is mended; write it again\n"_s
            : u"rvcatalog: note: 2 findings of the baseline b.json are mended; write it "
              "again\n"_s;
    QCOMPARE(run.messages, mended == 0 ? QString() : text);
    QCOMPARE(run.exitCode, newFindings == 0 ? 0 : 1);
}

void tst_Baseline::formats_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("known");
    QTest::addColumn<QString>("found");

    QTest::newRow("text") << u"text"_s << u"\"x\""_s << u"\"y\""_s;
    QTest::newRow("JSON") << u"json"_s << u"\\\"x\\\""_s << u"\\\"y\\\""_s;
    QTest::newRow("SARIF") << u"sarif"_s << u"\\\"x\\\""_s << u"\\\"y\\\""_s;
    QTest::newRow("GitHub") << u"github"_s << u"\"x\""_s << u"\"y\""_s;
    QTest::newRow("JUnit") << u"junit"_s << u"&quot;x&quot;"_s << u"&quot;y&quot;"_s;
}

void tst_Baseline::formats()
{
    QFETCH(QString, format);
    QFETCH(QString, known);
    QFETCH(QString, found);
    const QStringList arguments { u"check"_s, u"--format"_s, format, u"c.xml"_s };
    QVERIFY(CommandRun(arguments).output.contains(known));
    QCOMPARE(CommandRun(arguments + QStringList { u"--write-baseline"_s, u"b.json"_s }).exitCode, 0);
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace("</products>", "<product type='X' article_id='y'/></products>"));
    const CommandRun run(arguments + QStringList { u"--baseline"_s, u"b.json"_s });
    QVERIFY2(run.output.contains(found), qPrintable(run.output));
    QVERIFY2(!run.output.contains(known), qPrintable(run.output));
    QCOMPARE(run.exitCode, 1);
}

void tst_Baseline::quietly()
{
    const QStringList quietly { u"check"_s, u"--quiet"_s, u"c.xml"_s };
    const CommandRun written(quietly + QStringList { u"--write-baseline"_s, u"b.json"_s });
    QCOMPARE(written.messages, QString());
    QCOMPARE(written.exitCode, 0);
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace("'x'", "'7'"));
    const CommandRun mended(quietly + QStringList { u"--baseline"_s, u"b.json"_s });
    QCOMPARE(mended.messages + mended.output, QString());
    QCOMPARE(mended.exitCode, 0);
}

// Only new findings are counted.
void tst_Baseline::mostFindings()
{
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 0);
    write(u"c.xml"_s, QByteArray(CATALOGUE).replace("</products>", "<product type='X' article_id='y'/></products>"));
    const CommandRun run({ u"check"_s, u"--max-findings"_s, u"1"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QVERIFY2(run.output.contains(u"\"y\""_s), qPrintable(run.output));
    QCOMPARE(findings(run), 1);
}

void tst_Baseline::severalCatalogues()
{
    write(u"a/d.xml"_s, CATALOGUE);
    const CommandRun written({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s, u"a/d.xml"_s });
    QCOMPARE(written.exitCode, 0);
    const QJsonArray entries = QJsonDocument::fromJson(readFile(u"b.json"_s)).object().value("findings"_L1).toArray();
    QCOMPARE(entries.first().toObject().value("file"_L1).toString(), u"a/d.xml"_s);
    QCOMPARE(entries.last().toObject().value("file"_L1).toString(), u"c.xml"_s);

    // A catalogue that is not checked has no mended findings.
    const CommandRun one({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(one.messages, QString());
    QCOMPARE(one.exitCode, 0);
    // A baseline that knows one catalogue does not know another.
    write(u"e.xml"_s, CATALOGUE);
    const CommandRun other({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s, u"e.xml"_s });
    QVERIFY(findings(other) >= 4);
    QVERIFY(!other.output.contains(u"c.xml:3:"_s));
}

void tst_Baseline::anotherFolder()
{
    write(u"a/c.xml"_s, CATALOGUE);
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"a/b.json"_s, u"a/c.xml"_s }).exitCode, 0);
    QVERIFY(!readFile(u"a/b.json"_s).contains(myFolder->path().toUtf8()));
    QVERIFY(readFile(u"a/b.json"_s).contains("\"file\":\"c.xml\""));
    QVERIFY(QDir().rename(u"a"_s, u"elsewhere"_s));
    QVERIFY(QDir::setCurrent(u"elsewhere"_s));
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, QDir::current().filePath(u"c.xml"_s) });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
}

// A product in two catalogues has the same finding in both.
void tst_Baseline::folderBehindALink()
{
    QVERIFY(QDir().mkpath(u"real"_s));
    QVERIFY(QFile::link(u"real"_s, u"link"_s));
    QVERIFY(QFile::copy(u"c.xml"_s, u"real/c.xml"_s));
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"real/b.json"_s, u"real/c.xml"_s }).exitCode, 0);
    for (const QString &baseline : { u"real/b.json"_s, u"link/b.json"_s }) {
        for (const QString &catalogue : { u"real/c.xml"_s, u"link/c.xml"_s })
            QCOMPARE(CommandRun({ u"check"_s, u"--baseline"_s, baseline, catalogue }).exitCode, 0);
    }
}

void tst_Baseline::nameOfAnotherCatalogue()
{
    const QString path = QDir::current().filePath(u"a/d.xml"_s);
    RVCatalogueFinding finding(RVCatalogueRule::find(u"type-duplicate"), {}, u"already in line 7 of "_s + path, 0);
    finding.setRelatedPlaces({ { {}, u"the first"_s, path } });
    Baseline baseline(u"a/b.json"_s);
    QVERIFY(QDir().mkpath(u"a"_s));
    baseline.add(u"c.xml"_s, finding);
    QVERIFY(baseline.write(Console()));
    QVERIFY(readFile(u"a/b.json"_s).contains("\"text\":\"already in line of d.xml\""));
    RVCatalogueFinding other(finding.rule(), {}, u"already in line 9 of a/d.xml"_s, 4);
    other.setRelatedPlaces({ { {}, u"the first"_s, u"a/d.xml"_s } });
    Baseline known(u"a/b.json"_s);
    QVERIFY(known.read(Console()));
    QVERIFY(known.take(u"c.xml"_s, other));
}

void tst_Baseline::standardInput()
{
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"-"_s }, CATALOGUE).exitCode, 0);
    QVERIFY(readFile(u"b.json"_s).contains("\"file\":\"-\""));
    QCOMPARE(CommandRun({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"-"_s }, CATALOGUE).exitCode, 0);
    QCOMPARE(CommandRun({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 1);
}

// Findings of disabled rules do not count as mended.
void tst_Baseline::ruleThatIsOff()
{
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 0);
    const QStringList arguments { u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s };
    const CommandRun disabled(arguments + QStringList { u"--disable"_s, u"option-color-invalid"_s });
    QCOMPARE(disabled.messages, QString());
    const CommandRun selected(arguments + QStringList { u"--select"_s, u"type-missing"_s });
    QCOMPARE(selected.messages, QString());
    write(u"rvcatalog.toml"_s, "rules.option-color-invalid = 'off'");
    const CommandRun configured(arguments);
    QCOMPARE(configured.messages, QString());
    QCOMPARE(configured.exitCode, 0);
}

void tst_Baseline::sameCatalogueTwice()
{
    const RVCatalogueFinding there(RVCatalogueRule::find(u"option-duplicate"), {}, u"there"_s, 0);
    const RVCatalogueFinding mended(RVCatalogueRule::find(u"option-duplicate"), {}, u"mended"_s, 0);
    Baseline written(u"b.json"_s);
    written.add(u"c.xml"_s, there);
    written.add(u"c.xml"_s, mended);
    QVERIFY(written.write(Console()));
    Baseline baseline(u"b.json"_s);
    QVERIFY(baseline.read(Console()));
    for (const int expected : { 1, 2 }) {
        QVERIFY(baseline.take(u"c.xml"_s, there));
        QVERIFY(!baseline.take(u"c.xml"_s, there));
        baseline.finish(u"c.xml"_s, RVCatalogueCheck());
        QCOMPARE(baseline.mended(), expected);
    }
}

// Equal lines count together, and the order does not matter.
void tst_Baseline::mergedFile()
{
    const QByteArray color = R"({"file":"c.xml","product":"DUN9","rule":"option-color-invalid","text":")";
    const CommandRun plain({ u"check"_s, u"c.xml"_s });
    static const QRegularExpression text(u"warning: (?:DUN9: )?(.*) \\[option-color-invalid\\]"_s);
    const QByteArray entry = color + text.match(plain.output).captured(1).replace(u'"', u"\\\""_s).toUtf8() + "\"}";
    write(u"b.json"_s, R"({"findings":[)" + entry + ",\n" + entry + R"(],"version":1})");
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QVERIFY(!run.output.contains(u"option-color-invalid"_s));
    QCOMPARE(run.messages, QString());
    QCOMPARE(findings(run), 2);
}

void tst_Baseline::largestCount()
{
    write(u"b.json"_s, R"({"version":1,"findings":[{"file":"c.xml","rule":"x","text":"y","count":2147483647}]})");
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(run.messages,
             u"rvcatalog: note: 2147483647 findings of the baseline b.json are mended; write it again\n"_s);
    QCOMPARE(findings(run), 4);
    QCOMPARE(run.exitCode, 1);
}

void tst_Baseline::unreadableCatalogue()
{
    write(u"b.json"_s, "{}");
    const CommandRun run({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s, u"none.xml"_s });
    QCOMPARE(run.exitCode, 2);
    QVERIFY(run.messages.endsWith(u"rvcatalog: no baseline was written, because not everything was checked\n"_s));
    QCOMPARE(readFile(u"b.json"_s), QByteArray("{}"));

    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 0);
    write(u"c.xml"_s, "<products>");
    const CommandRun broken({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(broken.exitCode, 2);
    QVERIFY(!broken.messages.contains(u"mended"_s));
}

void tst_Baseline::broken_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message"); // behind the name of the file

    const QString noBaseline = u": error: this is no baseline of version 1\n"_s;
    QTest::newRow("conflict of a merge") << QByteArray(
            "{\n  \"version\": 1,\n  \"findings\": [\n<<<<<<< HEAD\n  ]\n}\n")
                                         << u":4:1: error: this is no JSON: "_s;
    QTest::newRow("fault within a line") << QByteArray("{\"version\": 1, \"findings\": [\n  <")
                                         << u":2:3: error: this is no JSON: "_s;
    QTest::newRow("empty file") << QByteArray() << u":1:1: error: this is no JSON: "_s;
    QTest::newRow("list") << QByteArray("[]") << noBaseline;
    QTest::newRow("newer version") << QByteArray(R"({"version":2,"findings":[]})") << noBaseline;
    QTest::newRow("no findings") << QByteArray(R"({"version":1})") << noBaseline;
    QTest::newRow("text for a finding") << QByteArray(R"({"version":1,"findings":["x"]})")
                                        << u": error: finding 1 of the baseline has no \"file\"\n"_s;
    QTest::newRow("finding without text") << QByteArray(
            R"({"version":1,"findings":[{"file":"c.xml","rule":"x","text":"y"},{"file":"c.xml","rule":"x"}]})")
                                          << u": error: finding 2 of the baseline has no \"text\"\n"_s;
    QTest::newRow("number for a product")
            << QByteArray(R"({"version":1,"findings":[{"file":"c.xml","rule":"x","text":"y","product":9}]})")
            << u": error: finding 1 of the baseline has a \"product\" that is no text\n"_s;
    QTest::newRow("count of 0.5")
            << QByteArray(R"({"version":1,"findings":[{"file":"c.xml","rule":"x","text":"y","count":0.5}]})")
            << u": error: finding 1 of the baseline has a \"count\" that is no number above 0\n"_s;
    QTest::newRow("count of 0") << QByteArray(
            R"({"version":1,"findings":[{"file":"c.xml","rule":"x","text":"y","count":0}]})")
                                << u": error: finding 1 of the baseline has a \"count\" that is no number above 0\n"_s;
    QTest::newRow("count that is too large")
            << QByteArray(R"({"version":1,"findings":[{"file":"c.xml","rule":"x","text":"y","count":2147483648}]})")
            << u": error: finding 1 of the baseline has a \"count\" that is no number above 0\n"_s;
}

void tst_Baseline::broken()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    write(u"b.json"_s, text);
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QVERIFY2(run.messages.startsWith(u"b.json"_s + message), qPrintable(run.messages));
    QCOMPARE(run.messages.count(u'\n'), 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 2);
}

void tst_Baseline::largestFile_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("message");

    QTest::newRow("256 MiB") << (qint64(256) << 20) << u": error: this is no JSON: "_s;
    QTest::newRow("one byte more") << (qint64(256) << 20) + 1
                                   << u"b.json: error: the baseline is larger than 256 MiB\n"_s;
}

void tst_Baseline::largestFile()
{
    QFETCH(qint64, size);
    QFETCH(QString, message);
    write(u"b.json"_s, QByteArray());
    QVERIFY(QFile::resize(u"b.json"_s, size)); // a hole, which takes no room on the disk
    const CommandRun run({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QVERIFY2(run.messages.contains(message), qPrintable(run.messages));
    QCOMPARE(run.exitCode, 2);
}

void tst_Baseline::notWritable()
{
    const CommandRun missing({ u"check"_s, u"--baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(missing.messages, u"b.json: error: cannot open the baseline: No such file or directory\n"_s);
    QCOMPARE(missing.exitCode, 2);
    const CommandRun run({ u"check"_s, u"--write-baseline"_s, u"no/such/b.json"_s, u"c.xml"_s });
    QVERIFY2(run.messages.startsWith(u"no/such/b.json: error: cannot write the baseline: "_s),
             qPrintable(run.messages));
    QCOMPARE(run.exitCode, 2);
}

void tst_Baseline::notReplaceable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isReplaced");

    QTest::newRow("catalogue") << QByteArray("<p/>") << false;
    QTest::newRow("catalogue with a byte order mark") << QByteArray("\xef\xbb\xbf<p/>") << false;
    QTest::newRow("catalogue with a blank in front") << QByteArray("\n <p/>") << false;
    QTest::newRow("baseline with a blank in front") << QByteArray("\n {}") << true;
    QTest::newRow("other text") << QByteArray("findings:") << false;
    QTest::newRow("empty file") << QByteArray() << true;
    QTest::newRow("conflict of a merge") << QByteArray("{\n<<<<<<< HEAD\n") << true;
    QTest::newRow("newer version") << QByteArray(R"({"version":2,"findings":[]})") << true;
}

void tst_Baseline::notReplaceable()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isReplaced);
    write(u"b.json"_s, content);
    const CommandRun run({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s });
    QCOMPARE(run.exitCode, isReplaced ? 0 : 2);
    QCOMPARE(readFile(u"b.json"_s) == content, !isReplaced);
    if (!isReplaced)
        QCOMPARE(run.messages, u"b.json: error: this is no baseline, so it is not replaced\n"_s);
}

// A pipe gets the baseline and stays a pipe. It gives a baseline in pieces.
void tst_Baseline::pipe()
{
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 0);
    QCOMPARE(::mkfifo("pipe", 0600), 0);
    const int reader = ::open("pipe", O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"pipe"_s, u"c.xml"_s }).exitCode, 0);
    QFile pipe;
    QVERIFY(pipe.open(reader, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
    QCOMPARE(pipe.readAll(), readFile(u"b.json"_s));
    QVERIFY(!QFileInfo(u"pipe"_s).isFile());

    std::thread writer([text = readFile(u"b.json"_s)] {
        QFile end(u"pipe"_s);
        if (!end.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return;
        end.write(text.left(text.size() / 2));
        QTest::qSleep(100);
        end.write(text.mid(text.size() / 2));
    });
    const CommandRun compared({ u"check"_s, u"--baseline"_s, u"pipe"_s, u"c.xml"_s });
    writer.join();
    QCOMPARE(compared.messages, QString());
    QCOMPARE(compared.exitCode, 0);
}

void tst_Baseline::standardStreams()
{
    QCOMPARE(CommandRun({ u"check"_s, u"--write-baseline"_s, u"b.json"_s, u"c.xml"_s }).exitCode, 0);
    const CommandRun written({ u"check"_s, u"--write-baseline"_s, u"-"_s, u"c.xml"_s });
    QCOMPARE(written.output.toUtf8(), readFile(u"b.json"_s));
    QVERIFY(written.messages.contains(u"0 errors"_s));
    QCOMPARE(written.exitCode, 0);
    QVERIFY(!QFile::exists(u"-"_s));
    const CommandRun compared({ u"check"_s, u"--baseline"_s, u"-"_s, u"c.xml"_s }, readFile(u"b.json"_s));
    QCOMPARE(compared.messages, QString());
    QCOMPARE(compared.exitCode, 0);
    const CommandRun broken({ u"check"_s, u"--baseline"_s, u"-"_s, u"c.xml"_s }, "[]");
    QCOMPARE(broken.messages, u"-: error: this is no baseline of version 1\n"_s);
}

void tst_Baseline::contradictions_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("message");

    QTest::newRow("both baselines") << QStringList { u"--baseline=b.json"_s, u"--write-baseline=b.json"_s }
                                    << u"--baseline and --write-baseline contradict each other"_s;
    QTest::newRow("diff") << QStringList { u"--diff"_s, u"--write-baseline=b.json"_s }
                          << u"--diff and --write-baseline contradict each other"_s;
    QTest::newRow("no name") << QStringList { u"--baseline="_s } << u"--baseline needs the name of a file"_s;
    QTest::newRow("baseline and catalogue from the input")
            << QStringList { u"--baseline=-"_s, u"-"_s } << u"only one file can be the standard input"_s;
    QTest::newRow("baseline and configuration from the input")
            << QStringList { u"--baseline=-"_s, u"--config=-"_s } << u"only one file can be the standard input"_s;
    QTest::newRow("baseline and mended catalogue to the output")
            << QStringList { u"--write-baseline=-"_s, u"--fix"_s, u"-"_s }
            << u"only one file can be the standard output"_s;
}

void tst_Baseline::contradictions()
{
    QFETCH(QStringList, options);
    QFETCH(QString, message);
    const CommandRun run(QStringList { u"check"_s, u"c.xml"_s } + options, CATALOGUE);
    QCOMPARE(run.messages.section(u'\n', 0, 0), u"rvcatalog: "_s + message);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 2);
}

QTEST_MAIN(tst_Baseline)
#include "tst_Baseline.moc"
