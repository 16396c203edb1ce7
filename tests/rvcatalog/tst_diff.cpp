#include "DiffCatalogues.h"
#include "ProgramRun.h"
#include "Terminal.h"
#include "TestFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTextDocument>
#include <QTextTable>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString DIFFERENCES = u"~ DUN9 \"Fotobuch\"\n"
                            "  ~ Cover: HARDCOVER -> SOFTCOVER\n"
                            "  + Option alcolor:red: \"alcolor:red\"\n"
                            "  + Default of alcolor: \"red\"\n"
                            "- DUN5 \"Groß\", article 2\n"
                            "~ VIR2 -> VIR3 \"Neu\"\n"
                            "  ~ Type: \"VIR2\" -> \"VIR3\"\n"
                            "  + Name: \"Neu\"\n"
                            "+ TOS1, article 5\n"
                            "1 added, 1 removed, 2 changed (1 renamed), 1 equal\n"_s;

/// The cells of the first table of a document, one line for each row.
QStringList tableOf(const QString &markdown)
{
    QTextDocument document;
    document.setMarkdown(markdown);
    QStringList rows;
    for (auto frame = document.rootFrame()->begin(); !frame.atEnd(); ++frame) {
        const auto *table = qobject_cast<QTextTable *>(frame.currentFrame());
        for (int row = 0; table && row < table->rows(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columns(); ++column)
                cells += table->cellAt(row, column).firstCursorPosition().block().text();
            rows += cells.join(u" ¦ "_s);
        }
    }
    return rows;
}

}

class tst_diff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void text();
    void equal();
    void standardInput();
    void color_data();
    void color();
    void colorOnATerminal_data();
    void colorOnATerminal();
    void lineWidth();
    void controlCharacters();
    void json();
    void jsonInGerman();
    void jsonOfEqualCatalogues();
    void markdown();
    void markdownMarks();
    void unreadable_data();
    void unreadable();
    void fullDisk();
    void wrongUsage_data();
    void wrongUsage();
    void help();
    void memory();

private:
    ProgramRun diff(const QStringList &arguments, const QStringList &variables = {}, const QByteArray &input = {}) const
    {
        return runProgram(myFolder.path(), QStringLiteral(RVCATALOG), QStringList { u"diff"_s } + arguments, input,
                          environmentWith(variables));
    }

    TestFolder myFolder;
};

void tst_diff::initTestCase()
{
    QVERIFY(myFolder.write(u"old.xml"_s, OLD_CATALOGUE));
    QVERIFY(myFolder.write(u"new.xml"_s, NEW_CATALOGUE));
    QVERIFY(myFolder.write(u"broken.xml"_s, "<products>\n<product type='A'/>\n</product>\n"));
}

void tst_diff::text()
{
    const ProgramRun run = diff({ u"old.xml"_s, u"new.xml"_s });
    QCOMPARE(run.output, DIFFERENCES);
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 1);
}

void tst_diff::equal()
{
    const ProgramRun run = diff({ u"old.xml"_s, u"old.xml"_s });
    QCOMPARE(run.output, u"0 added, 0 removed, 0 changed, 4 equal\n"_s);
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
}

void tst_diff::standardInput()
{
    QCOMPARE(diff({ u"-"_s, u"new.xml"_s }, {}, OLD_CATALOGUE).output, DIFFERENCES);
    QCOMPARE(diff({ u"old.xml"_s, u"-"_s }, {}, NEW_CATALOGUE).output, DIFFERENCES);
}

void tst_diff::color_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<bool>("hasColor");
    QTest::newRow("not a terminal") << QStringList() << QStringList() << false;
    QTest::newRow("auto") << QStringList { u"--color=auto"_s } << QStringList() << false;
    QTest::newRow("always") << QStringList { u"--color=always"_s } << QStringList() << true;
    QTest::newRow("always, against the environment")
            << QStringList { u"--color=always"_s } << QStringList { u"NO_COLOR=1"_s, u"TERM=dumb"_s } << true;
    QTest::newRow("pager of git, but not called by git")
            << QStringList() << QStringList { u"GIT_PAGER_IN_USE=true"_s } << false;
    QTest::newRow("never") << QStringList { u"--color=never"_s } << QStringList() << false;
    QTest::newRow("JSON") << QStringList { u"--color=always"_s, u"--format=json"_s } << QStringList() << false;
}

void tst_diff::color()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, variables);
    QFETCH(bool, hasColor);
    const QString output = diff(arguments + QStringList { u"old.xml"_s, u"new.xml"_s }, variables).output;
    QVERIFY(output.contains(u"DUN9"_s));
    QCOMPARE(output.contains(u'\033'), hasColor);
    QCOMPARE(output.contains(u"  ~ Cover: \033[31mHARDCOVER\033[m -> \033[32mSOFTCOVER\033[m\n"
                             "\033[32m  + Option alcolor:red: \"alcolor:red\"\033[m\n"_s),
             hasColor);
    QCOMPARE(output.contains(u"\033[1;31m- DUN5 \"Groß\", article 2\033[m\n"_s), hasColor);
}

void tst_diff::colorOnATerminal_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<bool>("hasColor");
    QTest::newRow("terminal") << QStringList { u"TERM=xterm"_s } << true;
    QTest::newRow("terminal without colours") << QStringList { u"TERM=dumb"_s } << false;
    QTest::newRow("NO_COLOR") << QStringList { u"TERM=xterm"_s, u"NO_COLOR=1"_s } << false;
    QTest::newRow("empty NO_COLOR") << QStringList { u"TERM=xterm"_s, u"NO_COLOR="_s } << true;
}

void tst_diff::colorOnATerminal()
{
    QFETCH(QStringList, variables);
    Terminal terminal;
    QVERIFY(terminal.descriptor() >= 0);
    QProcess process;
    process.setProcessEnvironment(environmentWith(variables));
    process.setWorkingDirectory(myFolder.path());
    process.setChildProcessModifier([&terminal] { ::dup2(terminal.descriptor(), STDOUT_FILENO); });
    process.start(QStringLiteral(RVCATALOG), { u"diff"_s, u"old.xml"_s, u"new.xml"_s });
    QVERIFY(process.waitForFinished(60000));
    QTRY_VERIFY(terminal.shown().contains("1 equal"));
    QTEST(terminal.shown().contains("\033[32m"), "hasColor");
}

void tst_diff::lineWidth()
{
    const auto withName = [](const QString &name) {
        return u"<p><product type='A' article_id='1' name='%1'/></p>"_s.arg(name).toUtf8();
    };
    const QString words = u"Fotobuch im Hochformat "_s.repeated(8).trimmed();
    QVERIFY(myFolder.write(u"words.xml"_s, withName(words)));
    QVERIFY(myFolder.write(u"letters.xml"_s, withName(QString(200, u'x'))));
    const QString output = diff({ u"words.xml"_s, u"letters.xml"_s }).output;
    const QStringList lines = output.split(u'\n');
    QVERIFY(std::all_of(lines.begin(), lines.end(), [](const QString &line) { return line.size() <= 80; }));
    QVERIFY2(output.contains(u"  ~ Name:\n"
                             "    - \"Fotobuch im Hochformat Fotobuch im Hochformat Fotobuch im Hochformat\n"
                             "      Fotobuch im Hochformat Fotobuch im Hochformat Fotobuch im Hochformat\n"
                             "      Fotobuch im Hochformat Fotobuch im Hochformat\"\n"
                             "    + \"xxx"_s),
             qPrintable(output));
    QCOMPARE(output.count(u'x'), 400);
}

void tst_diff::controlCharacters()
{
    QVERIFY(myFolder.write(u"plain.xml"_s, "<p><product type='A'/></p>"));
    QVERIFY(myFolder.write(u"control.xml"_s, "<p><product type='A' name='a&#10;b&#9;c\u009b31m'/></p>"));
    QCOMPARE(diff({ u"plain.xml"_s, u"control.xml"_s }).output,
             u"~ A \"a b c 31m\"\n  + Name: \"a b c 31m\"\n0 added, 0 removed, 1 changed, 0 equal\n"_s);
}

void tst_diff::json()
{
    const ProgramRun run = diff({ u"--format"_s, u"json"_s, u"old.xml"_s, u"new.xml"_s });
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output,
             u"{\"new\":\"new.xml\",\"old\":\"old.xml\",\"products\":[\n"
             "{\"article_id\":1,\"change\":\"changed\",\"changes\":["
             "{\"change\":\"changed\",\"item\":null,\"new\":[\"SOFTCOVER\"],\"old\":[\"HARDCOVER\"],"
             "\"subject\":\"cover_type\"},"
             "{\"change\":\"added\",\"item\":{\"key\":\"alcolor\",\"value\":\"red\"},"
             "\"new\":{\"accountable\":true,\"color\":null,\"editor_name\":\"\",\"key\":\"alcolor\",\"key_name\":\"\","
             "\"name\":\"\",\"preselected\":false,\"preview\":\"\",\"price_class\":null,\"value\":\"red\","
             "\"value_name\":\"\"},\"old\":null,\"subject\":\"option\"},"
             "{\"change\":\"added\",\"item\":{\"key\":\"alcolor\"},\"new\":\"red\",\"old\":null,"
             "\"subject\":\"option.default\"}],"
             "\"name\":\"Fotobuch\",\"new\":{\"column\":1,\"line\":3,\"type\":\"DUN9\"},"
             "\"old\":{\"column\":1,\"line\":2,\"type\":\"DUN9\"},\"renamed\":false,\"type\":\"DUN9\"},\n"
             "{\"article_id\":2,\"change\":\"removed\",\"changes\":[],\"name\":\"Groß\",\"new\":null,"
             "\"old\":{\"column\":1,\"line\":3,\"type\":\"DUN5\"},\"renamed\":false,\"type\":\"DUN5\"},\n"
             "{\"article_id\":4,\"change\":\"changed\",\"changes\":["
             "{\"change\":\"changed\",\"item\":null,\"new\":\"VIR3\",\"old\":\"VIR2\",\"subject\":\"type\"},"
             "{\"change\":\"added\",\"item\":null,\"new\":\"Neu\",\"old\":null,\"subject\":\"name\"}],"
             "\"name\":\"Neu\",\"new\":{\"column\":1,\"line\":4,\"type\":\"VIR3\"},"
             "\"old\":{\"column\":1,\"line\":5,\"type\":\"VIR2\"},\"renamed\":true,\"type\":\"VIR3\"},\n"
             "{\"article_id\":5,\"change\":\"added\",\"changes\":[],\"name\":\"\","
             "\"new\":{\"column\":1,\"line\":5,\"type\":\"TOS1\"},\"old\":null,\"renamed\":false,\"type\":\"TOS1\"}\n"
             "],\n\"summary\":{\"added\":1,\"changed\":2,\"equal\":1,\"removed\":1,\"renamed\":1}}\n"_s);
    QVERIFY(QJsonDocument::fromJson(run.output.toUtf8()).isObject());
}

void tst_diff::jsonInGerman()
{
    QVERIFY(myFolder.write(u"matt.xml"_s, "<p><product type='A' foto_paper_type='matt'/></p>"));
    QVERIFY(myFolder.write(u"glossy.xml"_s, "<p><product type='A' foto_paper_type='glossy'/></p>"));
    const QStringList files { u"matt.xml"_s, u"glossy.xml"_s };
    const auto json = [&](const QString &language) {
        return diff(QStringList { u"--format=json"_s } + files, { u"LC_ALL="_s + language }).output;
    };
    QCOMPARE(json(u"de_DE.UTF-8"_s), json(u"en_US.UTF-8"_s));
    QVERIFY(json(u"de_DE.UTF-8"_s).contains(u"\"new\":[\"1\"],\"old\":[\"2\"],\"subject\":\"foto_paper_type\""_s));
    QVERIFY(diff(files, { u"LC_ALL=de_DE.UTF-8"_s }).output.contains(u"Matt -> Glänzend"_s));
    QVERIFY(diff(files, { u"LC_ALL=en_US.UTF-8"_s }).output.contains(u"Matt -> Glossy"_s));
}

void tst_diff::jsonOfEqualCatalogues()
{
    const ProgramRun run = diff({ u"--format=json"_s, u"old.xml"_s, u"old.xml"_s });
    QCOMPARE(run.exitCode, 0);
    const QJsonObject object = QJsonDocument::fromJson(run.output.toUtf8()).object();
    QCOMPARE(object.keys(), (QStringList { u"new"_s, u"old"_s, u"products"_s, u"summary"_s }));
    QCOMPARE(object.value("products"_L1), QJsonArray());
    QCOMPARE(object.value("summary"_L1).toObject().value("equal"_L1), 4);
}

void tst_diff::markdown()
{
    const ProgramRun run = diff({ u"--format=markdown"_s, u"old.xml"_s, u"new.xml"_s });
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.output.startsWith(u"| Product | Change | Old | New |\n| --- | --- | --- | --- |\n"_s));
    QVERIFY(run.output.endsWith(u"|\n\n1 added, 1 removed, 2 changed (1 renamed), 1 equal\n"_s));
    const QStringList expected = { u"Product ¦ Change ¦ Old ¦ New"_s,
                                   u"DUN9 \"Fotobuch\" ¦ Cover ¦ HARDCOVER ¦ SOFTCOVER"_s,
                                   u"DUN9 \"Fotobuch\" ¦ Option alcolor:red ¦  ¦ \"alcolor:red\""_s,
                                   u"DUN9 \"Fotobuch\" ¦ Default of alcolor ¦  ¦ \"red\""_s,
                                   u"DUN5 \"Groß\" ¦ removed ¦ article 2 ¦ "_s,
                                   u"VIR2 -> VIR3 \"Neu\" ¦ Type ¦ \"VIR2\" ¦ \"VIR3\""_s,
                                   u"VIR2 -> VIR3 \"Neu\" ¦ Name ¦  ¦ \"Neu\""_s,
                                   u"TOS1 ¦ added ¦  ¦ article 5"_s };
    QCOMPARE(tableOf(run.output), expected);
    QCOMPARE(diff({ u"--format=markdown"_s, u"old.xml"_s, u"old.xml"_s }).output,
             u"0 added, 0 removed, 0 changed, 4 equal\n"_s);
}

void tst_diff::markdownMarks()
{
    const QString name = u"a|b *c* _d_ `e` <b>f</b> \\ [g](h) ~~i~~ &amp; # !"_s;
    QVERIFY(myFolder.write(u"bare.xml"_s, "<p><product type='A'/></p>"));
    QVERIFY(myFolder.write(u"marks.xml"_s, "<p><product type='A' name='" + name.toHtmlEscaped().toUtf8() + "'/></p>"));
    const QStringList rows = tableOf(diff({ u"--format=markdown"_s, u"bare.xml"_s, u"marks.xml"_s }).output);
    QCOMPARE(rows.value(1), u"A \"%1\" ¦ Name ¦  ¦ \"%1\""_s.arg(name));
}

void tst_diff::unreadable_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("message");
    const QString broken = u"broken.xml:3:1: </product> closes <products>, which was opened in line 1\n"_s;
    QTest::newRow("old") << u"broken.xml"_s << u"new.xml"_s << broken;
    QTest::newRow("new") << u"old.xml"_s << u"broken.xml"_s << broken;
    QTest::newRow("missing") << u"old.xml"_s << u"missing.xml"_s
                             << u"missing.xml:1:1: cannot open the file: No such file or directory\n"_s;
    QTest::newRow("nothing") << u"/dev/null"_s << u"new.xml"_s << u"/dev/null:1:1: the file is empty\n"_s;
}

void tst_diff::unreadable()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    for (const QString &format : { u"text"_s, u"json"_s, u"markdown"_s }) {
        const ProgramRun run = diff({ u"--format"_s, format, before, after });
        QTEST(run.messages, "message");
        QCOMPARE(run.output, QString());
        QCOMPARE(run.exitCode, 2);
    }
}

void tst_diff::fullDisk()
{
    for (const QString &format : { u"text"_s, u"json"_s, u"markdown"_s }) {
        QProcess process;
        process.setWorkingDirectory(myFolder.path());
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(RVCATALOG), { u"diff"_s, u"--format"_s, format, u"old.xml"_s, u"new.xml"_s });
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.readAllStandardError(), QByteArray("rvcatalog: cannot write to the standard output\n"));
        QCOMPARE(process.exitCode(), 2);
    }
}

void tst_diff::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("one file") << QStringList { u"old.xml"_s } << u"expected 2 arguments, got 1"_s;
    QTest::newRow("three files") << QStringList { u"a"_s, u"b"_s, u"c"_s } << u"expected 2 arguments, got 3"_s;
    QTest::newRow("format") << QStringList { u"--format=xml"_s, u"old.xml"_s, u"new.xml"_s }
                            << u"there is no format \"xml\"; there are: text, json, markdown"_s;
    QTest::newRow("colour") << QStringList { u"--color=red"_s, u"old.xml"_s, u"new.xml"_s }
                            << u"there is no color \"red\"; there are: auto, always, never"_s;
    QTest::newRow("two standard inputs") << QStringList { u"-"_s, u"-"_s }
                                         << u"only one file can be the standard input"_s;
    QTest::newRow("git with two files") << QStringList { u"--git"_s, u"old.xml"_s, u"new.xml"_s }
                                        << u"expected 7 arguments, got 2"_s;
    QTest::newRow("JSON for git") << QStringList { u"--git"_s, u"--format=json"_s, u"a"_s }
                                  << u"--git writes several comparisons, which are no JSON"_s;
}

void tst_diff::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const ProgramRun run = diff(arguments);
    QCOMPARE(run.messages, u"rvcatalog: %1\nTry \"rvcatalog diff --help\".\n"_s.arg(message));
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 2);
}

void tst_diff::help()
{
    const ProgramRun run = diff({ u"--help"_s });
    QCOMPARE(run.exitCode, 0);
    for (const QString &word :
         { u"--format"_s, u"--color"_s, u"--git"_s, u"--exit-code"_s, u"OLD.xml"_s, u"NEW.xml"_s })
        QVERIFY2(run.output.contains(word), qPrintable(word));
}

// Both files are larger than the allowed memory.
void tst_diff::memory()
{
#ifdef __SANITIZE_ADDRESS__
    constexpr long limit = 800; // most of it is memory that was given back
#else
    constexpr long limit = 64;
#endif
    constexpr int count = 20000;
    // The program's peak is never below that of the test, so the test stays small.
    for (const QByteArray &pages : { QByteArray("26"), QByteArray("27") }) {
        QFile file(myFolder.path(pages == "26" ? u"large.xml"_s : u"dear.xml"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<p>");
        for (int i = 1; i <= count; ++i) {
            file.write("<product type='T" + QByteArray::number(i) + "' pages='" + pages + "'><forms>");
            for (int j = 0; j < 15; ++j)
                file.write("<form key='k" + QByteArray::number(j) + "' value='v' value_name='" + QByteArray(100, 'y')
                           + "'/>\n");
            file.write("</forms></product>\n");
        }
        file.write("</p>");
    }
    QCOMPARE(diff({ u"large.xml"_s, u"large.xml"_s }).output, u"0 added, 0 removed, 0 changed, 20000 equal\n"_s);
    QVERIFY(diff({ u"large.xml"_s, u"dear.xml"_s }).output.endsWith(u"0 added, 0 removed, 20000 changed, 0 equal\n"_s));
    rusage usage = {};
    QCOMPARE(getrusage(RUSAGE_CHILDREN, &usage), 0);
    QVERIFY2(usage.ru_maxrss < limit * 1024, qPrintable(u"%1 KiB"_s.arg(usage.ru_maxrss)));
}

QTEST_MAIN(tst_diff)
#include "tst_diff.moc"
