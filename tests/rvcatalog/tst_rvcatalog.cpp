#include "ProgramRun.h"
#include "WrittenFile.h"

#include <RVCatalogueAttribute.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Runs the program, by default without a run-time directory, UTF-8 and a display.
ProgramRun rvcatalog(const QStringList &arguments, const QString &folder = QString(), const QString &locale = u"C"_s)
{
    QProcessEnvironment environment;
    environment.insert(u"LC_ALL"_s, locale);
    return runProgram(folder, QStringLiteral(RVCATALOG), arguments, QByteArray(), environment);
}

QStringList attributeNames()
{
    QStringList result;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::all())
        result += attribute.name();
    return result;
}

const QString SAMPLE_CATALOGUE = QString::fromUtf8(SAMPLES "/products.xml");
const QString SAMPLE_PROJECT = QString::fromUtf8(SAMPLES "/project.xml");

const char CATALOGUE[] =
        "<products>\n"
        "<product type='DUN9' name='Groß' price_class='PB9' page_price_class='KEMI62' pages='26' max_pages='154' "
        "page_step='4' article_id='17' article_class='book' cover_type='hard' page_binding='lay_flat' "
        "paper_type='glossy' orientation='portrait,square' space_magnitude='A4' shipping_group='2'>"
        "<barcodes units='cm'><barcode position_x='1' position_y='3' width='3.8' height='1' pageNr='2'/>"
        "<barcode width='0'/></barcodes>"
        "<composition><spine packages_per_block='2' base_width='8' block_width='1' additional_width='0.5'/>"
        "</composition><forms>"
        "<form key='alcolor' key_name='Farbe' value='black' value_name='Schwarz' preselected='true' "
        "price_class='LEZ1'/>"
        "<form key='alcolor' key_name='Farbe' value='red' value_name='Rot' price_class='LEZ2'/>"
        "<form key='a;b' key_name='Box' value='x;y' value_name='Holz' preselected='true' not_accountable='true' "
        "price_class='VEL4'/>"
        "</forms></product>\n"
        "<product type='VIR1' pages='13'/>\n"
        "<product type='FOT1' article_class='premiumfoto'/>\n"
        "</products>\n";

}

class tst_rvcatalog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void usage_data();
    void usage();
    void showTable();
    void showJson();
    void showJsonAttributes();
    void sampleHasEveryAttribute();
    void keywords();
    void keywordsInEnglish();
    void decodes_data();
    void decodes();
    void showSample();
    void showProblems();
    void showUnreadable_data();
    void showUnreadable();
    void order();
    void orderDefaults();
    void orderHugePageCount();
    void orderNegativePageCount();
    void orderOfTextsWithControls();
    void orderSample();
    void orderProblems_data();
    void orderProblems();
    void orderSeveralProblems();
    void orderOfWrongPageCounts();
    void orderUnreadable();

private:
    void write(const QString &name, const QByteArray &content);

    QTemporaryDir myFolder;
};

void tst_rvcatalog::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(myFolder.filePath(name), content));
}

void tst_rvcatalog::init()
{
    write(u"c.xml"_s, CATALOGUE);
}

void tst_rvcatalog::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("messages");

    QTest::newRow("help") << QStringList { u"--help"_s } << 0 << u"usage: rvcatalog COMMAND"_s << QString();
    QTest::newRow("version") << QStringList { u"--version"_s } << 0 << u"rvcatalog 0."_s << QString();
    QTest::newRow("help of show") << QStringList { u"show"_s, u"--help"_s } << 0
                                  << u"Usage: rvcatalog show [options] CATALOGUE.xml [TYPE...]"_s << QString();
    QTest::newRow("help of order") << QStringList { u"order"_s, u"-h"_s } << 0
                                   << u"Usage: rvcatalog order [options] CATALOGUE.xml PROJECT.xml"_s << QString();
    QTest::newRow("help of keywords") << QStringList { u"keywords"_s, u"--help"_s } << 0
                                      << u"Usage: rvcatalog keywords [options] [ATTRIBUTE]"_s << QString();
    QTest::newRow("help of decode") << QStringList { u"decode"_s, u"--help"_s } << 0
                                    << u"Usage: rvcatalog decode [options] ATTRIBUTE TEXT"_s << QString();
    QTest::newRow("two attributes") << QStringList { u"keywords"_s, u"a"_s, u"b"_s } << 2 << QString()
                                    << u"expected at most 1 argument, got 2"_s;
    QTest::newRow("no text") << QStringList { u"decode"_s, u"cover_type"_s } << 2 << QString()
                             << u"expected 2 arguments, got 1"_s;
    QTest::newRow("nothing") << QStringList() << 2 << QString() << u"usage: rvcatalog COMMAND"_s;
    QTest::newRow("unknown command") << QStringList { u"sing"_s } << 2 << QString()
                                     << u"there is no command \"sing\""_s;
    QTest::newRow("unknown option") << QStringList { u"show"_s, u"--sing"_s } << 2 << QString()
                                    << u"rvcatalog: Unknown option 'sing'.\n"_s;
    QTest::newRow("file missing") << QStringList { u"show"_s } << 2 << QString()
                                  << u"expected at least 1 argument, got 0"_s;
    QTest::newRow("one file too many") << QStringList { u"order"_s, u"a"_s, u"b"_s, u"c"_s } << 2 << QString()
                                       << u"expected 2 arguments, got 3"_s;
}

void tst_rvcatalog::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, output);
    QFETCH(QString, messages);
    const ProgramRun run = rvcatalog(arguments);
    QTEST(run.exitCode, "exitCode");
    QVERIFY2(run.output.startsWith(output), qPrintable(run.output));
    QCOMPARE(run.output.isEmpty(), output.isEmpty());
    QVERIFY2(run.messages.contains(messages), qPrintable(run.messages));
    QCOMPARE(run.messages.isEmpty(), messages.isEmpty());
}

void tst_rvcatalog::showTable()
{
    const ProgramRun run = rvcatalog({ u"show"_s, u"c.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    QStringList lines = run.output.split(u'\n');
    QVERIFY2(lines.at(2).startsWith("DUN9     26-154 by 4      33     9.0-25.0    "_L1), qPrintable(lines.at(2)));
    QVERIFY2(lines.at(2).endsWith(u"   Groß"_s), qPrintable(lines.at(2)));
    lines.removeAt(2); // it has font sizes, which depend on the machine
    QCOMPARE(lines,
             (QStringList {
                     u"TYPE     PAGES            COUNTS SPINE mm    FONT pt NAME"_s,
                     u"         ATTRIBUTES, OPTIONS (* is the default)"_s,
                     u"         class book; cover HARDCOVER; binding layflat; paper indigo-glossy;"_s,
                     u"         orientation portrait, square; size 600cm2; shipping group 2;"_s,
                     u"         article 17; price class PB9; page price class KEMI62"_s,
                     u"         barcode 38.0 x 10.0 mm at 10.0, 20.0 on page 2"_s,
                     u"         a;b: x;y* (not charged)"_s,
                     u"         alcolor: black* (LEZ1), red (LEZ2)"_s,
                     u"VIR1     13               1      -           -"_s,
                     u"FOT1     1                1      -           -"_s,
                     u"         class premiumfoto; photo paper Glänzend; shipping group 18"_s,
                     u""_s,
             }));
}

void tst_rvcatalog::showJson()
{
    const ProgramRun run = rvcatalog({ u"show"_s, u"--json"_s, u"c.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    const QJsonArray products = QJsonDocument::fromJson(run.output.toUtf8()).array();
    QCOMPARE(products.size(), 3);
    const QJsonObject book = products.at(0).toObject();
    QCOMPARE(book.value("type"_L1), QJsonValue(u"DUN9"_s));
    QCOMPARE(book.value("name"_L1), QJsonValue(u"Groß"_s));
    const QJsonObject pages {
        { u"lowest"_s, 26 }, { u"highest"_s, 154 }, { u"step"_s, 4 }, { u"count"_s, 33 }, { u"valid"_s, true }
    };
    QCOMPARE(book.value("pages"_L1).toObject(), pages);
    const QJsonArray spine = book.value("spine"_L1).toArray();
    QCOMPARE(spine.at(0)["width_mm"_L1].toDouble(), 9.0);
    QCOMPARE(spine.at(1)["width_mm"_L1].toDouble(), 25.0);
    QVERIFY(spine.at(0)["max_font_size"_L1].toInt() < spine.at(1)["max_font_size"_L1].toInt());
    QCOMPARE(book.value("options"_L1).toArray().size(), 3);
    QCOMPARE(book.value("options"_L1).toArray().at(1)["default"_L1], QJsonValue(false));
    QCOMPARE(book.value("options"_L1).toArray().at(2)["accountable"_L1], QJsonValue(false));
    QVERIFY(products.at(1).toObject().value("spine"_L1).isNull());
}

void tst_rvcatalog::showJsonAttributes()
{
    const ProgramRun run = rvcatalog({ u"show"_s, u"--json"_s, u"c.xml"_s }, myFolder.path());
    const QJsonArray products = QJsonDocument::fromJson(run.output.toUtf8()).array();
    const QJsonObject book = products.at(0).toObject();
    const auto attribute = [](const QStringList &keywords, qint64 value) {
        return QJsonObject { { u"keywords"_s, QJsonArray::fromStringList(keywords) }, { u"value"_s, value } };
    };
    QCOMPARE(book.value("article_id"_L1), QJsonValue(17));
    QCOMPARE(book.value("article_class"_L1), QJsonValue(attribute({ u"book"_s }, 1)));
    QCOMPARE(book.value("cover_type"_L1), QJsonValue(attribute({ u"HARDCOVER"_s }, 1)));
    QCOMPARE(book.value("page_binding"_L1), QJsonValue(attribute({ u"layflat"_s }, 2)));
    QCOMPARE(book.value("paper_type"_L1), QJsonValue(attribute({ u"indigo-glossy"_s }, 2)));
    QCOMPARE(book.value("foto_paper_type"_L1), QJsonValue());
    QCOMPARE(book.value("orientation"_L1), QJsonValue(attribute({ u"portrait"_s, u"square"_s }, 5)));
    QCOMPARE(book.value("space_magnitude"_L1), QJsonValue(attribute({ u"600cm2"_s }, 128)));
    QCOMPARE(book.value("shipping_group"_L1), QJsonValue(2));
    const QJsonObject barcode { { u"page"_s, 2 },      { u"left_mm"_s, 10 },   { u"top_mm"_s, 20 },
                                { u"width_mm"_s, 38 }, { u"height_mm"_s, 10 }, { u"image"_s, u"dummy-barcode.png"_s } };
    QCOMPARE(book.value("barcodes"_L1), QJsonValue(QJsonArray { barcode }));

    const QJsonObject calendar = products.at(1).toObject();
    for (const QString &name :
         { u"article_id"_s, u"article_class"_s, u"cover_type"_s, u"page_binding"_s, u"paper_type"_s,
           u"foto_paper_type"_s, u"orientation"_s, u"space_magnitude"_s, u"shipping_group"_s }) {
        QVERIFY(calendar.contains(name));
        QVERIFY(calendar.value(name).isNull());
    }
    const QJsonObject print = products.at(2).toObject();
    QCOMPARE(print.value("foto_paper_type"_L1), QJsonValue(attribute({ u"1"_s }, 1)));
    QCOMPARE(print.value("shipping_group"_L1), QJsonValue(18));
}

void tst_rvcatalog::sampleHasEveryAttribute()
{
    const ProgramRun run = rvcatalog({ u"show"_s, u"--json"_s, SAMPLE_CATALOGUE });
    const QJsonArray products = QJsonDocument::fromJson(run.output.toUtf8()).array();
    for (const QString &name :
         { u"article_id"_s, u"article_class"_s, u"cover_type"_s, u"page_binding"_s, u"paper_type"_s,
           u"foto_paper_type"_s, u"orientation"_s, u"space_magnitude"_s, u"shipping_group"_s, u"barcodes"_s }) {
        const auto has = [&name](const QJsonValue &product) {
            const QJsonValue value = product.toObject().value(name);
            return !value.isNull() && !(value.isArray() && value.toArray().isEmpty());
        };
        QVERIFY2(std::any_of(products.begin(), products.end(), has), qPrintable(name));
    }
}

void tst_rvcatalog::keywords()
{
    const ProgramRun one = rvcatalog({ u"keywords"_s, u"page_binding"_s });
    QCOMPARE(one.messages, QString());
    QCOMPARE(one.exitCode, 0);
    QCOMPARE(one.output,
             u"page_binding\n"
             "VALUE  KEYWORD  ALIASES   NAME\n"
             "0x0    unknown\n"
             "0x1    glue     glued     klassische Buchbindung\n"
             "0x2    layflat  lay_flat  Lay-Flat-Bindung\n"
             "0x4    stapled            Rückstichbindung\n"
             "0x8    spiral\n"_s);
    const ProgramRun all = rvcatalog({ u"keywords"_s });
    QCOMPARE(all.exitCode, 0);
    QVERIFY(all.output.contains(one.output));
    const QStringList blocks = all.output.split(u"\n\n"_s);
    QStringList names;
    for (const QString &block : blocks)
        names += block.section(u'\n', 0, 0);
    QCOMPARE(names, attributeNames());
    // One line for each value that has a keyword, behind the name and the heading.
    QList<qsizetype> sizes;
    for (const QString &block : blocks)
        sizes += block.trimmed().count(u'\n') - 1;
    QCOMPARE(sizes, (QList<qsizetype> { 48, 32, 5, 9, 3, 7, 14, 34, 7, 6, 5, 12, 5 }));
}

void tst_rvcatalog::keywordsInEnglish()
{
    const ProgramRun run = rvcatalog({ u"keywords"_s, u"page_binding"_s }, QString(), u"en_GB.UTF-8"_s);
    QVERIFY2(run.output.contains("0x4    stapled            saddle-stitch binding\n"_L1), qPrintable(run.output));
    const ProgramRun french = rvcatalog({ u"keywords"_s, u"page_binding"_s }, QString(), u"fr_FR.UTF-8"_s);
    QVERIFY(french.output.contains(u"Rückstichbindung"_s));
}

void tst_rvcatalog::decodes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("messages");
    QTest::addColumn<int>("exitCode");

    QTest::newRow("one") << QStringList { u"cover_type"_s, u" LEATHER"_s }
                         << u"Value     0x8\nKeyword   LEATHER\nBits      LEATHER\nName      Leder\n"_s << QString()
                         << 0;
    QTest::newRow("alias in a list") << QStringList { u"cover_type"_s, u"hard, canvas"_s }
                                     << u"Value     0x1001\nBits      HARDCOVER, canvas\n"_s << QString() << 0;
    QTest::newRow("named combination")
            << QStringList { u"page_type"_s, u"panoramapages"_s }
            << u"Value     0x600000\nKeyword   PanoramaPages\nBits      panorama_base, panorama_wing\n"_s << QString()
            << 0;
    QTest::newRow("unknown pieces")
            << QStringList { u"cover_type"_s, u"hard,Leinen,"_s }
            << u"Value     0x1\nKeyword   HARDCOVER\nBits      HARDCOVER\nName      Hardcover\n"_s
            << u"rvcatalog: \"Leinen\" is no keyword of cover_type; it stands for the default value\n"
               "rvcatalog: an empty piece is no keyword of cover_type; it stands for the default value\n"_s
            << 1;
    QTest::newRow("unknown, with a default") << QStringList { u"page_alignment"_s, u"above"_s }
                                             << u"Value     0x1\nKeyword   left\nBits      left\nName      links\n"_s
                                             << u"rvcatalog: \"above\" is no keyword of page_alignment; it stands for "
                                                "the default value\n"_s
                                             << 1;
    QTest::newRow("keyword of the value 0") << QStringList { u"page_binding"_s, u"unknown"_s }
                                            << u"Value     0x0\nKeyword   unknown\n"_s << QString() << 0;
    QTest::newRow("no attribute") << QStringList { u"colour"_s, u"red"_s } << QString()
                                  << u"rvcatalog: there is no attribute \"colour\"; there are: %1\n"_s.arg(
                                             attributeNames().join(u", "_s))
                                  << 2;
}

void tst_rvcatalog::decodes()
{
    QFETCH(QStringList, arguments);
    const ProgramRun run = rvcatalog(QStringList { u"decode"_s } + arguments);
    QTEST(run.output, "output");
    QTEST(run.messages, "messages");
    QTEST(run.exitCode, "exitCode");
}

void tst_rvcatalog::showSample()
{
    const ProgramRun table = rvcatalog({ u"show"_s, SAMPLE_CATALOGUE });
    QCOMPARE(table.messages, QString());
    QCOMPARE(table.exitCode, 0);
    for (const QString &line : table.output.split(u'\n'))
        QVERIFY2(line.size() <= 100, qPrintable(line));
    const ProgramRun json = rvcatalog({ u"show"_s, u"--json"_s, SAMPLE_CATALOGUE });
    QVERIFY(QJsonDocument::fromJson(json.output.toUtf8()).array().size() >= 40);
}

void tst_rvcatalog::showProblems()
{
    write(u"bad.xml"_s, "<p>\n <product type='A' pages='10' max_pages='20'/>\n <product pages='3'/>\n</p>");
    const ProgramRun run = rvcatalog({ u"show"_s, u"bad.xml"_s }, myFolder.path());
    QCOMPARE(run.messages,
             u"bad.xml:2:2: the product has no valid page counts (min: 10; max: 20; increment: 0)\n"
             "bad.xml:3:2: the product has no type\n"_s);
    QCOMPARE(run.exitCode, 1);
    write(u"none.xml"_s, "<p/>");
    const ProgramRun none = rvcatalog({ u"show"_s, u"none.xml"_s }, myFolder.path());
    QCOMPARE(none.messages, u"none.xml:1:1: there is no product in this file\n"_s);
    QCOMPARE(none.exitCode, 1);
}

void tst_rvcatalog::showUnreadable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("messages");

    QTest::newRow("missing") << u"missing.xml"_s << QByteArray()
                             << u"missing.xml:1:1: cannot open the file: No such file or directory\n"_s;
    QTest::newRow("empty") << u"x.xml"_s << QByteArray("") << u"x.xml:1:1: the file is empty\n"_s;
    QTest::newRow("no XML") << u"x.xml"_s << QByteArray("hello") << u"x.xml:1:1: this is no XML\n"_s;
    QTest::newRow("cut off")
            << u"x.xml"_s << QByteArray(CATALOGUE).left(300)
            << u"x.xml:2:289: the file ends too early: <product>, which was opened in line 2, is not closed\n"_s;
    QTest::newRow("entities") << u"x.xml"_s << QByteArray("<!DOCTYPE p [<!ENTITY a 'b'>]><p/>")
                              << u"x.xml:1:14: entity declarations are not supported\n"_s;
}

void tst_rvcatalog::showUnreadable()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    if (name == "x.xml"_L1)
        write(name, content);
    for (const QString &option : { u"--json"_s, u"--"_s }) {
        const ProgramRun run = rvcatalog({ u"show"_s, option, name }, myFolder.path());
        QTEST(run.messages, "messages");
        QCOMPARE(run.exitCode, 2);
    }
}

void tst_rvcatalog::order()
{
    write(u"p.xml"_s, "<project productname='DUN9_30' pages='34' variants='alcolor:red'><page/></project>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = run.output.split(u'\n');
    QCOMPARE(lines.mid(0, 12),
             (QStringList { u"Product         DUN9 (Groß)"_s,
                            u"Pages           34 (2 packages above the lowest count)"_s, u"Spine           10.0 mm"_s,
                            u""_s, u"Options"_s, u"  Farbe: Rot"_s, u"  Box: Holz (default)"_s, u""_s,
                            u"Price classes"_s, u"    2 x KEMI62"_s, u"    1 x LEZ2"_s, u"    1 x PB9"_s }));
    const auto pieces = [&lines](qsizetype line, QChar separator) {
        QStringList result = lines.at(line).mid(16).split(separator);
        result.sort();
        return result;
    };
    QCOMPARE(pieces(13, u','), (QStringList { u"a;b:x;y"_s, u"alcolor:red"_s }));
    QCOMPARE(pieces(14, u','), (QStringList { u"a:x"_s, u"alcolor:red"_s, u"b:y"_s }));
    QCOMPARE(pieces(15, u';'), (QStringList { u"a:x"_s, u"alcolor:red"_s, u"b:y"_s }));
    QCOMPARE(rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path()).output, run.output);
}

// An empty project is the smallest photo book with the default options.
void tst_rvcatalog::orderDefaults()
{
    write(u"p.xml"_s, "<project/>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.contains("Pages           26 (0 packages"_L1), qPrintable(run.output));
    QVERIFY(run.output.contains("  Farbe: Schwarz (default)"_L1));
    QVERIFY(!run.output.contains("KEMI62"_L1));
}

void tst_rvcatalog::orderHugePageCount()
{
    write(u"huge.xml"_s,
          "<product type='X' pages='1' max_pages='2147483647' page_step='1' price_class='A' page_price_class='A'>"
          "<forms><form key='k' value='v' price_class='A'/></forms></product>");
    write(u"p.xml"_s, "<project productname='X' pages='2147483647'/>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"huge.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.contains("\n  2147483648 x A\n"_L1), qPrintable(run.output));
}

// Such a catalogue makes no sense, but its spine must not be that of four billion pages.
void tst_rvcatalog::orderNegativePageCount()
{
    write(u"negative.xml"_s,
          "<product type='X' pages='-8' max_pages='-4' page_step='4'>"
          "<composition><spine packages_per_block='1' base_width='5' block_width='1'/></composition></product>");
    write(u"p.xml"_s, "<project productname='X' pages='-8'/>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"negative.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.output.contains("Spine           7.0 mm\n"_L1), qPrintable(run.output));
}

// A text of the catalogue or of the project can neither break a line nor control the terminal.
void tst_rvcatalog::orderOfTextsWithControls()
{
    write(u"c.xml"_s,
          "<product type='X' name='a&#10;b&#x9b;1m' pages='1' price_class='P&#9;1'><forms>"
          "<form key='k&#10;l' value='v&#9;w' key_name='K&#10;L' value_name='V&#x9b;W' preselected='true'/>"
          "</forms></product>");
    write(u"p.xml"_s, "<project productname='X' pages='1'/>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.output,
             u"Product         X (a b 1m)\nPages           1 (0 packages above the lowest count)\n\nOptions\n"
             "  K L: V W (default)\n\nPrice classes\n    1 x P 1\n\nProject file    k l:v w\n"
             "Order transfer  k l:v w\nOrder text      k l:v w\n"_s);
    write(u"p.xml"_s, "<project productname='X' pages='1' variants='k&#10;l:no&#x9b;ne'/>");
    const ProgramRun refused = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(refused.messages.count(u'\n'), 1);
    QVERIFY2(!refused.messages.contains(QChar(0x9b)), qPrintable(refused.messages));
}

void tst_rvcatalog::orderSample()
{
    const ProgramRun run = rvcatalog({ u"order"_s, SAMPLE_CATALOGUE, SAMPLE_PROJECT });
    QCOMPARE(run.messages, QString());
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.output.contains("Project file    "_L1));
}

void tst_rvcatalog::orderProblems_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QString>("message");

    QTest::newRow("type") << QByteArray("productname='VIR99'")
                          << u"2:10: the catalogue has no product of type \"VIR99\"; did you mean \"VIR1\"?"_s;
    QTest::newRow("empty type") << QByteArray("productname=''")
                                << u"2:10: the catalogue has no product of type \"UNKNOWN\""_s;
    QTest::newRow("option") << QByteArray("variants='foo:bar'")
                            << u"2:10: DUN9 has no option \"foo\"; it has: a;b, alcolor"_s;
    QTest::newRow("value") << QByteArray("pages='26' variants='alcolor:pink'")
                           << u"2:21: the option \"alcolor\" has no value \"pink\"; it has: black, red"_s;
    QTest::newRow("malformed") << QByteArray("\n  variants='alcolor=red'")
                               << u"3:3: \"alcolor=red\" is no option; options are written key:value"_s;
    QTest::newRow("between counts") << QByteArray(
            "pages='35'") << u"2:10: 35 pages are impossible: DUN9 has 26 to 154 pages in steps of 4, the next is 38"_s;
    QTest::newRow("too few") << QByteArray(
            "pages='25'") << u"2:10: 25 pages are impossible: DUN9 has 26 to 154 pages in steps of 4, the next is 26"_s;
    QTest::newRow("too many")
            << QByteArray("pages='155'")
            << u"2:10: 155 pages are impossible: DUN9 has 26 to 154 pages in steps of 4, the next is 154"_s;
    QTest::newRow("fixed count") << QByteArray("productname='VIR1' pages='14'")
                                 << u"2:29: 14 pages are impossible: VIR1 has always 13"_s;
    QTest::newRow("no number") << QByteArray("pages='many'") << u"2:10: \"many\" is no page count"_s;
    QTest::newRow("letter beyond 16 bits")
            << QByteArray("a='\xF0\x9F\x93\x95' pages='many'") << u"2:17: \"many\" is no page count"_s;
}

void tst_rvcatalog::orderProblems()
{
    QFETCH(QByteArray, project);
    QFETCH(QString, message);
    write(u"p.xml"_s, "<?xml version='1.0'?>\n<project " + project + "\n/>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.messages, QString(u"p.xml:"_s + message + u'\n'));
    QCOMPARE(run.output, QString());
    QCOMPARE(run.exitCode, 1);
}

void tst_rvcatalog::orderSeveralProblems()
{
    write(u"p.xml"_s, "<project pages='1' variants='foo:bar,x'/>");
    const ProgramRun run = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(run.messages,
             u"p.xml:1:20: \"x\" is no option; options are written key:value\n"
             "p.xml:1:20: DUN9 has no option \"foo\"; it has: a;b, alcolor\n"
             "p.xml:1:10: 1 pages are impossible: DUN9 has 26 to 154 pages in steps of 4, the next is 26\n"_s);
    QCOMPARE(run.exitCode, 1);
}

// The message asks for another product if the project names one.
void tst_rvcatalog::orderOfWrongPageCounts()
{
    write(u"bad.xml"_s, "<p><product type='DUN9' pages='20' max_pages='10' page_step='2'/></p>");
    const QString text = u"the catalogue gives no valid page counts for DUN9 (min: 20; max: 10; increment: 2)\n"_s;
    write(u"p.xml"_s, "<project productname='DUN9' pages='12'/>");
    const ProgramRun named = rvcatalog({ u"order"_s, u"bad.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(named.messages, u"p.xml:1:10: "_s + text);
    QCOMPARE(named.exitCode, 1);
    write(u"p.xml"_s, "<!-- the usual product -->\n <project/>");
    const ProgramRun unnamed = rvcatalog({ u"order"_s, u"bad.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(unnamed.messages, u"p.xml:2:2: "_s + text);
    QCOMPARE(unnamed.exitCode, 1);
}

void tst_rvcatalog::orderUnreadable()
{
    write(u"p.xml"_s, "<project>");
    const ProgramRun project = rvcatalog({ u"order"_s, u"c.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(project.messages,
             u"p.xml:1:10: the file ends too early: <project>, which was opened in line 1, is not closed\n"_s);
    QCOMPARE(project.exitCode, 2);
    write(u"p.xml"_s, "<project/>");
    write(u"x.xml"_s, "<p><product type='DUN9'/>");
    const ProgramRun catalogue = rvcatalog({ u"order"_s, u"x.xml"_s, u"p.xml"_s }, myFolder.path());
    QCOMPARE(catalogue.messages,
             u"x.xml:1:26: the file ends too early: <p>, which was opened in line 1, is not closed\n"_s);
    QCOMPARE(catalogue.exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_rvcatalog)
#include "tst_rvcatalog.moc"
