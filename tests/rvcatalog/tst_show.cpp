#include "CommandRun.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

CommandRun run(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    return CommandRun(arguments, input);
}

const char CATALOGUE[] =
        "<products><family name='Books'><inner name='Large'>\n"
        "  <product type='DUN9_30' name='Big' article_id='17' article_class='book' cover_type='hard' price_class='PB9' "
        "page_price_class='KEMI62' shipping_group='2' pages='26' max_pages='34' page_step='4'>"
        "<barcodes units='cm'><barcode position_x='1' position_y='3' width='3.8' height='1' pageNr='2' "
        "image='bar.png'/></barcodes><forms>"
        "<form key='cut'/>"
        "<form key='alcolor' key_name='Colour' name='f1' value='black' value_name='Black' editor_name='Jet' "
        "preview='b.png' color='#010203' price_class='LEZ1' preselected='true'/>"
        "<form key='alcolor' key_name='Colour' value='red' color='#80ff0000' not_accountable='true'/>"
        "<form key='alcolor' key_name='Colour' value='black' price_class='LEZ9'/>"
        "</forms></product></inner></family>\n"
        "<product type='VIR1' cover_type='hard,canvas' pages='13'/>\n"
        "<product type='BOX1' photo_box='true' pages='10' page_step='10'/>\n"
        "</products>\n";

QStringList types(const CommandRun &shown)
{
    QStringList result;
    for (const QJsonValue &product : QJsonDocument::fromJson(shown.output.toUtf8()).array())
        result += product[u"type"].toString();
    return result;
}

}

class tst_show : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everything();
    void longSheets();
    void spineOfASheet();
    void twoPageCounts();
    void longName();
    void nameAtTheEndOfTheLine_data();
    void nameAtTheEndOfTheLine();
    void longOptionName();
    void fitsTheTerminal_data();
    void fitsTheTerminal();
    void choice_data();
    void choice();
    void choiceInOrderOfTheFile();
    void problemsOfTheChosenOnly();
    void nothingIsChosen();
    void textsWithControls();
    void wrongCondition();
    void brokenCatalogue();

private:
    QTemporaryDir myFolder;
};

void tst_show::initTestCase()
{
    QVERIFY(QDir::setCurrent(myFolder.path()));
    QFile catalogue(u"c.xml"_s);
    QVERIFY(catalogue.open(QIODevice::WriteOnly));
    catalogue.write(CATALOGUE);
}

void tst_show::everything()
{
    const CommandRun shown = run({ u"show"_s, u"--json"_s, u"c.xml"_s, u"DUN9"_s });
    QCOMPARE(shown.output,
             u"[\n"
             "{\"article_class\":{\"keywords\":[\"book\"],\"value\":1},\"article_id\":17,"
             "\"barcodes\":[{\"height_mm\":10,\"image\":\"bar.png\",\"left_mm\":10,\"page\":2,\"top_mm\":20,"
             "\"width_mm\":38}],"
             "\"cover_type\":{\"keywords\":[\"HARDCOVER\"],\"value\":1},\"families\":[\"Books\",\"Large\"],"
             "\"foto_paper_type\":null,\"name\":\"Big\",\"options\":["
             "{\"accountable\":true,\"color\":\"#010203\",\"default\":true,\"editor_name\":\"Jet\","
             "\"form_name\":\"f1\",\"key\":\"alcolor\",\"key_name\":\"Colour\",\"preview\":\"b.png\","
             "\"price_class\":\"LEZ1\",\"value\":\"black\",\"value_name\":\"Black\"},"
             "{\"accountable\":false,\"color\":\"#80ff0000\",\"default\":false,\"editor_name\":null,"
             "\"form_name\":null,\"key\":\"alcolor\",\"key_name\":\"Colour\",\"preview\":null,"
             "\"price_class\":null,\"value\":\"red\",\"value_name\":null},"
             "{\"accountable\":true,\"color\":null,\"default\":true,\"editor_name\":null,"
             "\"form_name\":null,\"key\":\"alcolor\",\"key_name\":\"Colour\",\"preview\":null,"
             "\"price_class\":\"LEZ9\",\"value\":\"black\",\"value_name\":null}],"
             "\"orientation\":null,\"page_binding\":null,\"page_price_class\":\"KEMI62\","
             "\"pages\":{\"count\":3,\"highest\":34,\"lowest\":26,\"step\":4,\"valid\":true},"
             "\"paper_type\":null,\"photo_box\":false,\"place\":{\"column\":3,\"file\":\"c.xml\",\"line\":2},"
             "\"price_class\":\"PB9\",\"shipping_group\":2,\"space_magnitude\":null,\"spine\":null,"
             "\"type\":\"DUN9\"}\n]\n"_s);
    QCOMPARE(shown.messages, QString());
    QCOMPARE(shown.exitCode, 0);
}

void tst_show::longSheets()
{
    const CommandRun shown = run({ u"show"_s, u"--long"_s, u"c.xml"_s, u"DUN9"_s, u"BOX1"_s });
    QCOMPARE(shown.output,
             u"DUN9  Big\n"
             "  Place           c.xml:2:3\n"
             "  Families        Books > Large\n"
             "  Article         17\n"
             "  Shipping group  2\n"
             "  Class           book\n"
             "  Cover           HARDCOVER\n"
             "  Price class     PB9\n"
             "    of a package  KEMI62\n"
             "  Pages           26-34 by 4 (3 counts)\n"
             "  Barcode         38.0 x 10.0 mm at 10.0, 20.0 on page 2; image bar.png\n"
             "  Option          alcolor (Colour)\n"
             "    black*        Black; editor Jet; form f1; preview b.png; colour #010203;\n"
             "                  price class LEZ1\n"
             "    red           colour #80ff0000; not charged\n"
             "    black*        price class LEZ9\n"
             "\n"
             "BOX1\n"
             "  Place           c.xml:4:1\n"
             "  Pages           10-39 by 10 (3 counts), in a photo box\n"_s);
    QCOMPARE(shown.messages, QString());
    QCOMPARE(shown.exitCode, 0);
}

void tst_show::spineOfASheet()
{
    const CommandRun shown = run({ u"show"_s, u"--long"_s, u"-"_s },
                                 "<p><product type='A' pages='30'><composition units='mm'><spine base_width='4'/>"
                                 "</composition></product></p>");
    QVERIFY2(shown.output.contains("\n  Spine           4.0 mm, font "_L1), qPrintable(shown.output));
}

void tst_show::twoPageCounts()
{
    const CommandRun shown = run({ u"show"_s, u"-"_s },
                                 "<p><product type='A' pages='26' max_pages='30' page_step='4'/></p>");
    QVERIFY2(shown.output.contains("\nA        26-30 by 4       2 "_L1), qPrintable(shown.output));
}

void tst_show::longName()
{
    const CommandRun shown = run(
            { u"show"_s, u"-"_s },
            "<p><product type='A' pages='1' name='A photo book whose name has no room beside the numbers'/></p>");
    QVERIFY2(
            shown.output.endsWith(
                    "\nA        1                1      -           -\n         A photo book whose name has no room beside the numbers\n"_L1),
            qPrintable(shown.output));
}

void tst_show::nameAtTheEndOfTheLine_data()
{
    QTest::addColumn<int>("letters");
    QTest::addColumn<QString>("between");

    QTest::newRow("as long as the room") << 27 << u"       "_s;
    QTest::newRow("a letter longer") << 28 << u"\n         "_s;
}

void tst_show::nameAtTheEndOfTheLine()
{
    QFETCH(int, letters);
    QFETCH(QString, between);
    const QString name(letters, u'x');
    const CommandRun shown = run({ u"show"_s, u"-"_s },
                                 "<p><product type='A' pages='1' name='" + name.toUtf8() + "'/></p>");
    QCOMPARE(shown.output.section(u'\n', 2),
             "A        1                1      -           -"_L1 + between + name + u'\n');
}

void tst_show::longOptionName()
{
    const CommandRun shown = run({ u"show"_s, u"--long"_s, u"-"_s },
                                 "<p><product type='A' pages='1'><forms><form key='k' value='a_value_that_is_long' "
                                 "value_name='V'/></forms></product></p>");
    QVERIFY2(shown.output.contains("\n    a_value_that_is_long*  V\n"_L1), qPrintable(shown.output));
}

void tst_show::fitsTheTerminal_data()
{
    QTest::addColumn<QStringList>("options");

    QTest::newRow("table") << QStringList();
    QTest::newRow("long") << QStringList { u"--long"_s };
}

void tst_show::fitsTheTerminal()
{
    QFETCH(QStringList, options);
    const CommandRun shown = run(QStringList { u"show"_s } + options
                                 + QStringList { QString::fromUtf8(SAMPLES "/products.xml") });
    QCOMPARE(shown.exitCode, 0);
    for (const QString &line : shown.output.split(u'\n')) {
        // The path of the sample depends on the place of the tree.
        if (!line.contains("Place"_L1) && !line.contains("products.xml"_L1))
            QVERIFY2(line.size() <= 80, qPrintable(line));
    }
}

void tst_show::choice_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("chosen");

    QTest::newRow("all") << QStringList() << QStringList { u"DUN9"_s, u"VIR1"_s, u"BOX1"_s };
    QTest::newRow("a code of the family") << QStringList { u"DUN9_1"_s } << QStringList { u"DUN9"_s };
    QTest::newRow("condition") << QStringList { u"--where"_s, u"cover_type=HARDCOVER"_s }
                               << QStringList { u"DUN9"_s, u"VIR1"_s };
    QTest::newRow("two conditions") << QStringList { u"--where"_s, u"cover_type=HARDCOVER"_s, u"--where=pages<20"_s }
                                    << QStringList { u"VIR1"_s };
    QTest::newRow("type and condition") << QStringList { u"VIR1"_s, u"BOX1"_s, u"--where=cover_type="_s }
                                        << QStringList { u"BOX1"_s };
}

void tst_show::choice()
{
    QFETCH(QStringList, arguments);
    const CommandRun shown = run(QStringList { u"show"_s, u"--json"_s, u"c.xml"_s } + arguments);
    QTEST(types(shown), "chosen");
    QCOMPARE(shown.messages, QString());
    QCOMPARE(shown.exitCode, 0);
    // The other spellings select the same products.
    const CommandRun table = run(QStringList { u"show"_s, u"c.xml"_s } + arguments);
    const CommandRun sheets = run(QStringList { u"show"_s, u"--long"_s, u"c.xml"_s } + arguments);
    for (const QString &type : { u"DUN9"_s, u"VIR1"_s, u"BOX1"_s }) {
        QCOMPARE(table.output.contains(u'\n' + type + u' '), types(shown).contains(type));
        const bool hasSheet = QString(u'\n' + sheets.output).contains(QRegularExpression(u"\n%1(\n|  )"_s.arg(type)));
        QCOMPARE(hasSheet, types(shown).contains(type));
    }
}

void tst_show::choiceInOrderOfTheFile()
{
    QCOMPARE(types(run({ u"show"_s, u"--json"_s, u"c.xml"_s, u"BOX1"_s, u"DUN9"_s, u"BOX1"_s })),
             (QStringList { u"DUN9"_s, u"BOX1"_s }));
}

void tst_show::problemsOfTheChosenOnly()
{
    const QByteArray catalogue = "<p><product/>\n<product type='A' pages='9' max_pages='3' page_step='1'/>\n"
                                 "<product type='B' pages='2'/></p>";
    const CommandRun good = run({ u"show"_s, u"-"_s, u"B"_s }, catalogue);
    QCOMPARE(good.messages, QString());
    QCOMPARE(good.exitCode, 0);
    const CommandRun bad = run({ u"show"_s, u"-"_s, u"A"_s }, catalogue);
    QCOMPARE(bad.messages, u"-:2:1: the product has no valid page counts (min: 9; max: 3; increment: 1)\n"_s);
    QCOMPARE(bad.exitCode, 1);
}

void tst_show::nothingIsChosen()
{
    const CommandRun unknown = run({ u"show"_s, u"--json"_s, u"c.xml"_s, u"VIR1"_s, u"DUN8"_s });
    QCOMPARE(types(unknown), QStringList { u"VIR1"_s });
    QCOMPARE(unknown.messages, u"c.xml:1:1: the catalogue has no product of type \"DUN8\"; did you mean \"DUN9\"?\n"_s);
    QCOMPARE(unknown.exitCode, 1);
    const CommandRun none = run({ u"show"_s, u"--json"_s, u"c.xml"_s, u"--where"_s, u"pages>1000"_s });
    QCOMPARE(none.output, u"[\n]\n"_s);
    QCOMPARE(none.messages, u"c.xml:1:1: no product meets the conditions\n"_s);
    QCOMPARE(none.exitCode, 1);
    const CommandRun empty = run({ u"show"_s, u"-"_s, u"DUN8"_s }, "<p/>");
    QCOMPARE(empty.messages, u"-:1:1: there is no product in this file\n"_s);
    QCOMPARE(empty.exitCode, 1);
}

void tst_show::wrongCondition()
{
    const CommandRun shown = run({ u"show"_s, u"none.xml"_s, u"--where"_s, u"cover_type=leader"_s });
    QCOMPARE(shown.messages,
             u"rvcatalog: \"leader\" is no keyword of cover_type; did you mean \"LEATHER\"?\n"
             "Try \"rvcatalog show --help\".\n"_s);
    QCOMPARE(shown.output, QString());
    QCOMPARE(shown.exitCode, 2);
}

// The products before the break are complete, and so is the JSON.
void tst_show::brokenCatalogue()
{
    const CommandRun shown = run({ u"show"_s, u"--json"_s, u"-"_s },
                                 "<p><product type='A' pages='1'/><product type='B'");
    QCOMPARE(types(shown), QStringList { u"A"_s });
    QVERIFY(shown.output.endsWith("\n]\n"_L1));
    QCOMPARE(shown.exitCode, 2);
}

// A text of the catalogue can neither break a line nor control the terminal.
void tst_show::textsWithControls()
{
    const QByteArray catalogue = "<p><product type='A' name='a&#10;b&#x9b;31m' pages='1'><forms>"
                                 "<form key='k&#10;l' value='v' value_name='x&#9;y'/></forms></product></p>";
    const CommandRun table = run({ u"show"_s, u"-"_s }, catalogue);
    QCOMPARE(table.output.section(u'\n', 2),
             u"A        1                1      -           -       a b 31m\n         k l: v*\n"_s);
    const CommandRun sheet = run({ u"show"_s, u"--long"_s, u"-"_s }, catalogue);
    QCOMPARE(sheet.output,
             u"A  a b 31m\n"
             "  Place           -:1:4\n"
             "  Pages           1 (1 count)\n"
             "  Option          k l\n"
             "    v*            x y\n"_s);
}

QTEST_MAIN(tst_show)
#include "tst_show.moc"
