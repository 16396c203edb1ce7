#include "ProgramRun.h"
#include "Terminal.h"
#include "TestFolder.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const char FAULT[] = "<p>\n"
                     "\t<product type='A' article_id='1' cover_type='hard'/>\n"
                     "</p>\n";

const char PLAIN[] = "f.xml:2:35: note: A: \"hard\" is an alias in cover_type; the main keyword is \"hardcover\" "
                     "[keyword-legacy]\n";
const char EXCERPT[] = "    2 |         <product type='A' article_id='1' cover_type='hard'/>\n"
                       "      |                                          ^~~~~~~~~~~~~~~~~\n";
const char COLORED[] =
        "\033[1mf.xml:2:35:\033[0m \033[1;36mnote:\033[0m A: \"hard\" is an alias in cover_type; the main keyword is "
        "\"hardcover\" [keyword-legacy]\n"
        "    2 |         <product type='A' article_id='1' cover_type='hard'/>\n"
        "      |                                          \033[1;36m^~~~~~~~~~~~~~~~~\033[0m\n";
const char SUMMARY[] = "1 product in 1 file: 0 errors, 0 warnings, 1 note\n";

}

class tst_check_terminal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void terminal_data();
    void terminal();
    void pipe_data();
    void pipe();
    void standardInput();
    void severalInOneLine();
    void anyLocale_data();
    void anyLocale();
    void otherFormats();

private:
    void begin(QProcess *process, const QStringList &variables);
    QByteArray shownBy(const QStringList &arguments, const QStringList &variables = {},
                       const QByteArray &input = QByteArray());

    TestFolder myFolder;
};

void tst_check_terminal::init()
{
    QVERIFY(myFolder.write(u"f.xml"_s, FAULT));
}

void tst_check_terminal::begin(QProcess *process, const QStringList &variables)
{
    const QProcessEnvironment environment = environmentWith(QStringList { u"TERM=xterm-256color"_s } + variables);
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(myFolder.path());
}

QByteArray tst_check_terminal::shownBy(const QStringList &arguments, const QStringList &variables,
                                       const QByteArray &input)
{
    Terminal terminal;
    QProcess process;
    begin(&process, variables);
    process.setChildProcessModifier([&terminal] { ::dup2(terminal.descriptor(), STDOUT_FILENO); });
    process.start(QStringLiteral(RVCATALOG), QStringList { u"check"_s } + arguments);
    process.write(input);
    process.closeWriteChannel();
    if (terminal.descriptor() < 0)
        return "no terminal";
    // A terminal buffers only a limited amount of unread output.
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(10))
        terminal.shown();
    return terminal.shown().replace("\r\n", "\n");
}

void tst_check_terminal::terminal_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<QByteArray>("shown");

    const QByteArray withColor = QByteArray(COLORED) + SUMMARY;
    const QByteArray withExcerpt = QByteArray(PLAIN) + EXCERPT + SUMMARY;
    const QByteArray plain = QByteArray(PLAIN) + SUMMARY;
    QTest::newRow("by default") << QStringList() << QStringList() << withColor;
    QTest::newRow("auto") << QStringList { u"--color=auto"_s } << QStringList() << withColor;
    QTest::newRow("always") << QStringList { u"--color=always"_s } << QStringList() << withColor;
    QTest::newRow("never") << QStringList { u"--color=never"_s } << QStringList() << withExcerpt;
    QTest::newRow("NO_COLOR") << QStringList() << QStringList { u"NO_COLOR=1"_s } << withExcerpt;
    QTest::newRow("NO_COLOR that is empty") << QStringList() << QStringList { u"NO_COLOR="_s } << withColor;
    QTest::newRow("NO_COLOR, but always")
            << QStringList { u"--color=always"_s } << QStringList { u"NO_COLOR=1"_s } << withColor;
    QTest::newRow("dumb terminal") << QStringList() << QStringList { u"TERM=dumb"_s } << plain;
    QTest::newRow("dumb terminal, but always")
            << QStringList { u"--color=always"_s } << QStringList { u"TERM=dumb"_s } << withColor;
}

void tst_check_terminal::terminal()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, variables);
    QTEST(shownBy(arguments + QStringList { u"f.xml"_s }, variables), "shown");
}

void tst_check_terminal::pipe_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("output");

    QTest::newRow("by default") << QStringList() << QByteArray(PLAIN) + SUMMARY;
    QTest::newRow("auto") << QStringList { u"--color=auto"_s } << QByteArray(PLAIN) + SUMMARY;
    QTest::newRow("never") << QStringList { u"--color=never"_s } << QByteArray(PLAIN) + SUMMARY;
    QTest::newRow("always") << QStringList { u"--color=always"_s } << QByteArray(COLORED) + SUMMARY;
}

void tst_check_terminal::pipe()
{
    QFETCH(QStringList, arguments);
    QProcess process;
    begin(&process, {});
    process.start(QStringLiteral(RVCATALOG), QStringList { u"check"_s, u"f.xml"_s } + arguments);
    QVERIFY(process.waitForFinished(60000));
    QTEST(process.readAllStandardOutput(), "output");
}

// A pipe cannot be read again.
void tst_check_terminal::standardInput()
{
    const QByteArray shown = shownBy({ u"-"_s }, {}, FAULT);
    QVERIFY2(shown.startsWith("\033[1m-:2:35:\033[0m \033[1;36mnote:\033[0m A: "), shown.constData());
    QVERIFY2(shown.endsWith("[keyword-legacy]\n" + QByteArray(SUMMARY)), shown.constData());
}

void tst_check_terminal::severalInOneLine()
{
    QVERIFY(myFolder.write(
            u"two.xml"_s,
            "<p>\n<product type='A' article_id='1' name='x'/>\n<product type='A' article_id='1'/>\n</p>\n"));
    const QByteArray shown = shownBy({ u"two.xml"_s });
    QCOMPARE(shown.count("    3 | <product type='A' article_id='1'/>\n"), 2);
    QCOMPARE(shown.count("\n      |          \033[1;31m^~~~~~~~\033[0m\n"), 1);
    QCOMPARE(shown.count("\n      |                   \033[1;31m^~~~~~~~~~~~~~\033[0m\n"), 1);
}

void tst_check_terminal::anyLocale_data()
{
    QTest::addColumn<QString>("locale");

    QTest::newRow("UTF-8") << u"C.UTF-8"_s;
    QTest::newRow("ASCII") << u"C"_s;
    QTest::newRow("missing") << u"xx_XX"_s;
}

// The width of a letter on the terminal comes from the locale, which knows only ASCII by default.
void tst_check_terminal::anyLocale()
{
    QFETCH(QString, locale);
    QVERIFY(myFolder.write(u"f.xml"_s, "<p>\n<product type='A' name='Größe' article_id='1' pages='x'/>\n</p>\n"));
    const QByteArray shown = shownBy({ u"f.xml"_s, u"--color=never"_s }, { u"LC_ALL="_s + locale });
    QVERIFY2(shown.contains("    2 | <product type='A' name='Größe' article_id='1' pages='x'/>\n"
                            "      |                                               ^~~~~~~~~\n"),
             shown.constData());
}

// Programs read these formats, also from a terminal.
void tst_check_terminal::otherFormats()
{
    for (const QString &format : { u"json"_s, u"sarif"_s, u"github"_s, u"junit"_s }) {
        const QByteArray shown = shownBy({ u"--format"_s, format, u"--color=always"_s, u"f.xml"_s });
        QVERIFY(shown.contains("keyword-legacy"));
        QVERIFY2(!shown.contains('\033') && !shown.contains("^~"), shown.constData());
    }
}

QTEST_GUILESS_MAIN(tst_check_terminal)
#include "tst_check_terminal.moc"
