#include <Completion.h>

#include <Commands.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList words(const Completion &completion)
{
    QStringList result;
    for (const CompletionCandidate &candidate : completion.candidates)
        result += candidate.word;
    return result;
}

}

class tst_Completion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void candidates_data();
    void candidates();
    void files_data();
    void files();
    void descriptions();
    void everyCommandAndOption();

private:
    QTemporaryDir myFolder;
};

void tst_Completion::initTestCase()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
    QFile catalogue(u"c.xml"_s);
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    catalogue.write(
            "<p><product type='DUN9_30' name='Big'/><product type='DUN1'/><product/><product type='VIR1'/></p>");
}

void tst_Completion::candidates_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("command") << u"sp"_s << QStringList { u"spine"_s };
    QTest::newRow("help") << u"hel"_s << QStringList { u"help"_s };
    QTest::newRow("option of the program") << u"--v"_s << QStringList { u"--version"_s };
    QTest::newRow("unknown command") << u"sing --"_s << QStringList();
    QTest::newRow("command to be explained") << u"help dec"_s << QStringList { u"decode"_s };
    QTest::newRow("second command behind help") << u"help decode sp"_s << QStringList();
    QTest::newRow("options") << u"spine --"_s << QStringList { u"--format"_s, u"--plot"_s, u"--json"_s, u"--help"_s };
    QTest::newRow("option") << u"show c.xml --wh"_s << QStringList { u"--where"_s };
    QTest::newRow("no option behind a double dash") << u"keywords -- --js"_s << QStringList();
    QTest::newRow("formats") << u"show --format "_s << QStringList { u"text"_s, u"json"_s };
    QTest::newRow("format in one word") << u"show --format=j"_s << QStringList { u"--format=json"_s };
    QTest::newRow("rule") << u"check --disable barcode-o"_s
                          << QStringList { u"barcode-outside-page"_s, u"barcode-overlap"_s,
                                           u"barcode-off-usual-page"_s };
    QTest::newRow("rule to be explained")
            << u"explain barcode-o"_s
            << QStringList { u"barcode-outside-page"_s, u"barcode-overlap"_s, u"barcode-off-usual-page"_s };
    QTest::newRow("attribute") << u"keywords page_b"_s << QStringList { u"page_binding"_s };
    QTest::newRow("no second attribute") << u"keywords page_binding page_b"_s << QStringList();
    QTest::newRow("keyword") << u"decode page_binding lay"_s << QStringList { u"layflat"_s };
    QTest::newRow("keyword in a list") << u"decode page_binding glue,LAY"_s << QStringList { u"glue,layflat"_s };
    QTest::newRow("keyword of no attribute") << u"decode nothing lay"_s << QStringList();
    QTest::newRow("types") << u"show c.xml "_s << QStringList { u"DUN9"_s, u"DUN1"_s, u"VIR1"_s };
    QTest::newRow("second type") << u"show c.xml DUN9 v"_s << QStringList { u"VIR1"_s };
    QTest::newRow("type behind an option") << u"spine --plot x.svg c.xml VI"_s << QStringList { u"VIR1"_s };
    QTest::newRow("type behind a switch") << u"spine --json c.xml VI"_s << QStringList { u"VIR1"_s };
    QTest::newRow("types of no file") << u"show none.xml D"_s << QStringList();
    QTest::newRow("types of the standard input") << u"show - D"_s << QStringList();
    QTest::newRow("condition") << u"show c.xml --where max"_s << QStringList { u"max_pages="_s };
    QTest::newRow("keyword of a condition")
            << u"show --where page_binding=l"_s << QStringList { u"page_binding=layflat"_s };
    QTest::newRow("keyword in a list of a condition")
            << u"show --where page_binding=glue,LAY"_s << QStringList { u"page_binding=glue,layflat"_s };
    QTest::newRow("keyword behind !=") << u"show --where page_binding!=gl"_s << QStringList { u"page_binding!=glue"_s };
    QTest::newRow("condition in one word")
            << u"show --where=page_binding=gl"_s << QStringList { u"--where=page_binding=glue"_s };
    QTest::newRow("condition on a text") << u"show --where name=l"_s << QStringList();
}

void tst_Completion::candidates()
{
    QFETCH(QString, line);
    const Completion completion = complete(line.split(u' '));
    QTEST(words(completion), "expected");
    QVERIFY(!completion.areFilesMeant);
}

void tst_Completion::files_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("areMeant");

    QTest::newRow("catalogue") << u"show "_s << true;
    QTest::newRow("further catalogue") << u"check a.xml b"_s << true;
    QTest::newRow("project") << u"order c.xml "_s << true;
    QTest::newRow("third file of an order") << u"order c.xml p.xml "_s << false;
    QTest::newRow("plot") << u"spine --plot "_s << true;
    QTest::newRow("plot in one word") << u"spine --plot=D"_s << true;
    QTest::newRow("type") << u"spine c.xml "_s << false;
    QTest::newRow("attribute") << u"keywords "_s << false;
    QTest::newRow("command") << QString() << false;
}

void tst_Completion::files()
{
    QFETCH(QString, line);
    QTEST(complete(line.split(u' ')).areFilesMeant, "areMeant");
}

void tst_Completion::descriptions()
{
    const auto describe = [](const QStringList &line) { return complete(line).candidates.constFirst().description; };
    QCOMPARE(describe({ u"keyw"_s }), u"list the keywords of the attributes"_s);
    QCOMPARE(describe({ u"show"_s, u"c.xml"_s, u"DUN9"_s }), u"Big"_s);
    QCOMPARE(describe({ u"show"_s, u"--h"_s }), u"Displays this help."_s);
    // The description is on one line, though the help needs two.
    QCOMPARE(
            describe({ u"show"_s, u"--whe"_s }),
            u"List only products that meet this condition, such as cover_type=HARDCOVER; may be given several times."_s);
}

// Every word of the program can be completed, so a new command or option needs no row here.
void tst_Completion::everyCommandAndOption()
{
    QCOMPARE(words(complete({ QString() })), commandNames() + QStringList { u"help"_s });
    for (const QString &command : commandNames()) {
        const QStringList options = words(complete({ command, u"--"_s }));
        QVERIFY2(options.contains(u"--help"_s), qPrintable(command));
        if (options.contains(u"--format"_s))
            QVERIFY2(words(complete({ command, u"--format"_s, QString() })).contains(u"text"_s), qPrintable(command));
    }
}

QTEST_MAIN(tst_Completion)
#include "tst_Completion.moc"
