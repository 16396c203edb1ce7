#include "CheckFolder.h"
#include "Terminal.h"

#include <RVCatalogueRule.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const char SUMMARY_OF_FAULTS[] = "3 products in 1 file: 1 error, 1 warning, 1 note\n";

/// The output as a JSON object; empty if it is none.
QJsonObject jsonOf(const ProgramRun &run)
{
    return QJsonDocument::fromJson(run.output.toUtf8()).object();
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
    void jsonSummary();
    void jsonWithoutFindings();
    void jsonWithoutProduct();
    void jsonOfUnreadable();
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
    void progressAndFindings();
    void memory();

private:
    QByteArray messagesOnAFullDisk(const QStringList &options);

    CheckFolder myFolder;
};

void tst_check::init()
{
    QVERIFY(myFolder.writeCatalogues());
}

void tst_check::text()
{
    const ProgramRun run = myFolder.check({ u"faults.xml"_s });
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
    const ProgramRun run = myFolder.check({ u"clean.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.output, u"2 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_check::notesAlone()
{
    const ProgramRun run = myFolder.check(
            { u"--disable"_s, u"article-id-invalid"_s, u"--disable=price-class-unknown"_s, u"faults.xml"_s });
    QVERIFY(run.output.endsWith("\n3 products in 1 file: 0 errors, 0 warnings, 1 note\n"_L1));
    QCOMPARE(run.exitCode, 0);
}

void tst_check::warningsAlone()
{
    const ProgramRun run = myFolder.check({ u"--disable"_s, u"article-id-invalid"_s, u"faults.xml"_s });
    QVERIFY(run.output.endsWith("\n3 products in 1 file: 0 errors, 1 warning, 1 note\n"_L1));
    QCOMPARE(run.exitCode, 1);
}

void tst_check::severalFiles()
{
    QVERIFY(myFolder.write(u"other.xml"_s,
                           "<p><product type='X' article_id='7'/><product type='Y' article_id='8'/></p>"));
    const ProgramRun clean = myFolder.check({ u"clean.xml"_s, u"other.xml"_s });
    QCOMPARE(clean.output, u"4 products in 2 files: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(clean.exitCode, 0);

    QVERIFY(myFolder.write(u"more.xml"_s,
                           QByteArray(FAULTS)
                                   .replace("'A'", "'X'")
                                   .replace("'B'", "'Y'")
                                   .replace("'Ä'", "'Ü'")
                                   .replace("'1'", "'7'")
                                   .replace("'3'", "'8'")));
    QVERIFY(myFolder.write(u"clean.xml"_s, QByteArray(CLEAN_CATALOGUE).replace("article_id='1'", "article_id='9'")));
    const ProgramRun run = myFolder.check({ u"faults.xml"_s, u"clean.xml"_s, u"./more.xml"_s });
    const QStringList lines = run.output.split(u'\n');
    QCOMPARE(lines.size(), 8);
    QVERIFY(lines.at(0).startsWith("faults.xml:2:34: "_L1));
    QVERIFY(lines.at(3).startsWith("./more.xml:2:34: "_L1));
    QCOMPARE(lines.at(6), u"8 products in 3 files: 2 errors, 2 warnings, 2 notes"_s);
    QCOMPARE(run.exitCode, 1);
}

void tst_check::standardInput()
{
    const ProgramRun run = myFolder.check({ u"-"_s }, FAULTS);
    QCOMPARE(run.output.count("\n-:"_L1), 2);
    QVERIFY(run.output.startsWith("-:2:34: note: "_L1));
    QVERIFY(run.output.endsWith(QLatin1StringView(SUMMARY_OF_FAULTS)));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(myFolder.check({ u"-"_s }).messages, u"-:1:1: error: the file is empty\n"_s);
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
    const ProgramRun missing = myFolder.check({ u"missing.xml"_s, u"clean.xml"_s });
    QCOMPARE(missing.messages, u"missing.xml:1:1: error: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(missing.output, u"2 products in 2 files: 0 errors, 0 warnings, 0 notes, 1 unreadable file\n"_s);
    QCOMPARE(missing.exitCode, 2);

    const ProgramRun cut = myFolder.check({ u"cut.xml"_s });
    QCOMPARE(cut.messages,
             u"cut.xml:3:4: error: the file ends too early: <p>, which was opened in line 1, is not closed\n"_s);
    QVERIFY(cut.output.startsWith("cut.xml:2:34: note: "_L1));
    QVERIFY(cut.output.endsWith("\n1 product in 1 file: 0 errors, 0 warnings, 1 note, 1 unreadable file\n"_L1));
    QCOMPARE(cut.exitCode, 2);
}

QByteArray tst_check::messagesOnAFullDisk(const QStringList &options)
{
    QProcess process;
    process.setWorkingDirectory(myFolder.path());
    process.setStandardOutputFile(u"/dev/full"_s);
    process.start(QStringLiteral(RVCATALOG), QStringList { u"check"_s } + options + QStringList { u"clean.xml"_s });
    const bool isUnreadable = process.waitForFinished(60000) && process.exitCode() == 2;
    return isUnreadable ? process.readAllStandardError() : "the exit code is not 2"_ba;
}

// An incomplete report that looks complete would let a broken catalogue pass.
void tst_check::fullDisk()
{
    const QByteArray fault = "rvcatalog: cannot write to the standard output\n";
    for (const QString &format : { u"text"_s, u"json"_s, u"sarif"_s, u"github"_s, u"junit"_s })
        QCOMPARE(messagesOnAFullDisk({ u"--format"_s, format }), fault);
    const QByteArray summary = "2 products in 1 file: 0 errors, 0 warnings, 0 notes\n";
    QCOMPARE(messagesOnAFullDisk({ u"--write-baseline"_s, u"-"_s }), summary + fault);
}

void tst_check::jsonFormat()
{
    const ProgramRun run = myFolder.check({ u"--format"_s, u"json"_s, u"faults.xml"_s });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
    QJsonParseError error;
    const QJsonObject document = QJsonDocument::fromJson(run.output.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(document.keys(), (QStringList { u"findings"_s, u"summary"_s, u"unreadable"_s }));
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
    QCOMPARE(document.value("unreadable"_L1).toArray(), QJsonArray());
}

void tst_check::jsonSummary()
{
    const ProgramRun run = myFolder.check({ u"--format=json"_s, u"faults.xml"_s });
    const QJsonObject rules = { { u"article-id-invalid"_s, 1 },
                                { u"keyword-legacy"_s, 1 },
                                { u"price-class-unknown"_s, 1 } };
    const QJsonObject summary = {
        { u"errors"_s, 1 },  { u"files"_s, 1 },    { u"interrupted"_s, false }, { u"notes"_s, 1 },
        { u"omitted"_s, 0 }, { u"products"_s, 3 }, { u"rules"_s, rules },       { u"warnings"_s, 1 },
    };
    QCOMPARE(jsonOf(run).value("summary"_L1).toObject(), summary);
}

void tst_check::jsonWithoutFindings()
{
    const ProgramRun run = myFolder.check({ u"--format=json"_s, u"clean.xml"_s });
    QJsonParseError error;
    const QJsonObject document = QJsonDocument::fromJson(run.output.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), u"no error occurred"_s);
    QCOMPARE(document.value("findings"_L1).toArray(), QJsonArray());
    QCOMPARE(run.exitCode, 0);
}

void tst_check::jsonWithoutProduct()
{
    QVERIFY(myFolder.write(u"empty.xml"_s, "<p/>"));
    const ProgramRun run = myFolder.check({ u"--format=json"_s, u"empty.xml"_s });
    const QJsonObject finding = jsonOf(run).value("findings"_L1)[0].toObject();
    QVERIFY(finding.value("product"_L1).isNull());
    QVERIFY(finding.value("product_type"_L1).isNull());
}

void tst_check::jsonOfUnreadable()
{
    const ProgramRun run = myFolder.check({ u"--format=json"_s, u"cut.xml"_s, u"missing.xml"_s });
    QCOMPARE(run.exitCode, 2);
    const QJsonObject document = jsonOf(run);
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

void tst_check::rules()
{
    const ProgramRun run = myFolder.check({ u"--rules"_s });
    QCOMPARE(run.exitCode, 0);
    QString expected;
    for (const RVCatalogueRule &rule : RVCatalogueRule::all())
        expected += rule.name() + " ("_L1 + rvSeverityName(rule.severity()) + ")\n    "_L1 + rule.reason() + u'\n';
    QCOMPARE(run.output, expected);
}

void tst_check::disable()
{
    const ProgramRun run = myFolder.check({ u"--disable=article-id-invalid"_s, u"--disable"_s, u"keyword-legacy"_s,
                                            u"--disable=price-class-unknown"_s, u"faults.xml"_s });
    QCOMPARE(run.output, u"3 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    QCOMPARE(run.exitCode, 0);
}

void tst_check::disableSeveral()
{
    const ProgramRun run = myFolder.check({ u"--disable=article-id-invalid,keyword-legacy"_s, u"faults.xml"_s });
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
    const ProgramRun run = myFolder.check(arguments + QStringList { u"faults.xml"_s });
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
    QTest::newRow("as many as a number can tell") << u"9223372036854775807"_s << 4 << u" 1 note\n"_s;
}

void tst_check::maxFindings()
{
    QFETCH(QString, most);
    QFETCH(QString, end);
    const ProgramRun run = myFolder.check({ u"--max-findings"_s, most, u"faults.xml"_s });
    QTEST(int(run.output.count(u'\n')), "lines");
    QVERIFY(run.output.startsWith("faults.xml:2:34: "_L1));
    QVERIFY(run.output.contains("\n3 products in 1 file: 1 error, 1 warning, 1 note"_L1));
    QVERIFY2(run.output.endsWith(end), qPrintable(run.output));
    QCOMPARE(run.exitCode, 1);
}

void tst_check::maxFindingsInJson()
{
    const ProgramRun run = myFolder.check({ u"--max-findings=2"_s, u"--format=json"_s, u"faults.xml"_s });
    const QJsonObject document = jsonOf(run);
    QCOMPARE(document.value("findings"_L1).toArray().size(), 2);
    const QJsonObject sums = document.value("summary"_L1).toObject();
    QCOMPARE(sums.value("omitted"_L1).toInt(), 1);
    QCOMPARE(sums.value("warnings"_L1).toInt(), 1);
}

// The numbers of the rules include the findings that are not written.
void tst_check::maxFindingsOfSummary()
{
    const ProgramRun run = myFolder.check({ u"--max-findings=1"_s, u"--summary"_s, u"faults.xml"_s });
    QVERIFY2(run.output.endsWith("\n3 products in 1 file: 1 error, 1 warning, 1 note\n"_L1), qPrintable(run.output));
    QCOMPARE(run.output.count(u'\n'), 4);
}

void tst_check::summary()
{
    QVERIFY(myFolder.write(u"copy.xml"_s, FAULTS));
    const ProgramRun run = myFolder.check({ u"--summary"_s,
                                            u"--select=keyword-legacy,article-id-invalid,price-class-unknown"_s,
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
        const ProgramRun run = myFolder.check({ u"--quiet"_s, u"--format"_s, format, u"faults.xml"_s });
        QCOMPARE(run.output, QString());
        QCOMPARE(run.messages, QString());
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(myFolder.check({ u"--quiet"_s, u"--format"_s, format, u"clean.xml"_s }).exitCode, 0);
    }
    const ProgramRun run = myFolder.check({ u"--quiet"_s, u"missing.xml"_s });
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
    QVERIFY(myFolder.write(u"many.xml"_s, many + "</p>\n"));
    const ProgramRun one = myFolder.check({ u"--jobs"_s, u"1"_s, u"many.xml"_s });
    QCOMPARE(one.output.count("[article-id-invalid]\n"_L1), 20000);
    QVERIFY(one.output.startsWith("many.xml:2:20: error: T1: "_L1));
    for (const QString &jobs : { u"2"_s, u"3"_s, u"20"_s })
        QCOMPARE(myFolder.check({ u"--jobs"_s, jobs, u"many.xml"_s }).output, one.output);
}

void tst_check::helpFitsTerminals()
{
    const QStringList lines = myFolder.check({ u"--help"_s }).output.split(u'\n');
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
    const ProgramRun run = myFolder.check(arguments);
    QCOMPARE(run.output, QString());
    QTEST(run.messages, "message");
    QCOMPARE(run.exitCode, 2);
}

namespace {

/// A thousand products without findings.
void writeProducts(QProcess *process, int thousand)
{
    for (int j = 1; j <= 1000; ++j) {
        const QByteArray number = QByteArray::number(thousand * 1000 + j);
        process->write("<product type='T" + number + "' article_id='" + number + "'/>\n");
    }
}

/// The number of products for which the check of a slow input takes longer than a second.
void writeSlowly(QProcess *process)
{
    process->write("<p>");
    for (int i = 1; i <= 30; ++i) {
        writeProducts(process, i);
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
    Terminal terminal;
    QVERIFY(terminal.descriptor() >= 0);
    QProcess process;
    process.setChildProcessModifier([&terminal] { ::dup2(terminal.descriptor(), STDERR_FILENO); });
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    writeSlowly(&process);
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.readAllStandardOutput(), "30000 products in 1 file: 0 errors, 0 warnings, 0 notes\n");
    QTRY_VERIFY(terminal.shown().endsWith("-\r\033[K"));
    const QByteArray shown = terminal.shown();
    QVERIFY2(shown.startsWith("\r\033[K0 MB -"), shown.constData());
}

// A finding and an error take the place of the progress.
void tst_check::progressAndFindings()
{
    Terminal terminal;
    QVERIFY(terminal.descriptor() >= 0);
    QProcess process;
    process.setProcessEnvironment(environmentWith({ u"TERM=dumb"_s }));
    process.setChildProcessModifier([&terminal] {
        ::dup2(terminal.descriptor(), STDOUT_FILENO);
        ::dup2(terminal.descriptor(), STDERR_FILENO);
    });
    process.start(QStringLiteral(RVCATALOG), { u"check"_s, u"-"_s });
    process.write("<p>");
    for (int i = 1; terminal.shown().isEmpty() && i <= 1000; ++i) {
        writeProducts(&process, i);
        QTest::qWait(60);
    }
    process.write("<product type='X' article_id='x'/>\n");
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(60000));
    QTRY_VERIFY(terminal.shown().endsWith("1 error, 0 warnings, 0 notes, 1 unreadable file\r\n"));
    const QByteArray shown = terminal.shown();
    QVERIFY2(shown.count("\r\033[K-:") == 2, shown.constData());
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
    QFile file(myFolder.path(u"large.xml"_s));
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
    const ProgramRun run = myFolder.check({ u"large.xml"_s });
    QCOMPARE(run.output, u"20000 products in 1 file: 0 errors, 0 warnings, 0 notes\n"_s);
    rusage usage = {};
    QCOMPARE(getrusage(RUSAGE_CHILDREN, &usage), 0);
    QVERIFY2(usage.ru_maxrss < limit * 1024, qPrintable(u"%1 KiB"_s.arg(usage.ru_maxrss)));
}

QTEST_GUILESS_MAIN(tst_check)
#include "tst_check.moc"
