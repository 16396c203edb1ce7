#include "ProgramRun.h"
#include "WrittenFile.h"

#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const char CATALOGUE[] =
        "<products>\n"
        "<product type='DUN9' name='Groß &amp; klein' pages='26' max_pages='42' page_step='4'>"
        "<composition><spine packages_per_block='2' base_width='0.32' block_width='0.05' additional_width='0.02'/>"
        "</composition></product>\n"
        "<product type='POS1'/>\n"
        "<product type='BAD' pages='20' max_pages='10' page_step='2'/>\n"
        "<product type='ONE' pages='30'><composition units='mm'><spine base_width='4'/></composition></product>\n"
        "<product type='MANY' pages='1' max_pages='2147483647' page_step='1'>"
        "<composition><spine packages_per_block='7' base_width='5' block_width='0.001'/></composition></product>\n"
        "<product type='LARGE' pages='2147483647'><composition><spine base_width='12345678901'/></composition>"
        "</product>\n"
        "<product type='NEGATIVE' pages='-8' max_pages='8' page_step='4'><composition><spine base_width='9'/>"
        "</composition></product>\n"
        "<product type='NOTHING' pages='0' max_pages='4' page_step='4'><composition><spine "
        "base_width='9'/></composition></product>\n"
        "<product type='WIDE' pages='9'><composition units='inch'><spine base_width='1e308'/></composition></product>\n"
        "</products>\n";

}

class tst_rvcatalog_spine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void table();
    void oneCount();
    void typeTwice();
    void sample();
    void problems_data();
    void problems();
    void largeNumbersStandApart();
    void broken();
    void closedPipe();
    void png();
    void svg();
    void missingFont();
    void pdf();
    void languageOfThePlot_data();
    void languageOfThePlot();
    void plotFailures_data();
    void plotFailures();

private:
    void write(const QString &name, const QByteArray &content);
    /// Runs "rvcatalog spine" to its end in the folder of the catalogue. A variable is as "LANG=C".
    void run(const QStringList &arguments, const QStringList &variables = { u"LC_ALL=C"_s });
    /// The same with another command.
    void runCommand(const QStringList &arguments, const QStringList &variables);
    /// The texts of a plot.
    QStringList textsOf(const QString &fileName) const;

    QTemporaryDir myFolder;
    ProgramRun myRun;
};

void tst_rvcatalog_spine::write(const QString &name, const QByteArray &content)
{
    QVERIFY(writeFile(myFolder.filePath(name), content));
}

void tst_rvcatalog_spine::run(const QStringList &arguments, const QStringList &variables)
{
    runCommand(QStringList { u"spine"_s } + arguments, variables);
}

void tst_rvcatalog_spine::runCommand(const QStringList &arguments, const QStringList &variables)
{
    const QStringList language { u"LC_ALL="_s, u"LC_MESSAGES="_s, u"LANG="_s };
    myRun = runProgram(myFolder.path(), QStringLiteral(RVCATALOG), arguments, QByteArray(),
                       environmentWith(language + variables));
    QVERIFY(myRun.exitCode >= 0);
}

void tst_rvcatalog_spine::initTestCase()
{
    QByteArray content(CATALOGUE);
    write(u"c.xml"_s,
          content.replace("<composition><spine packages_per_block='2'",
                          "<composition units='inch'><spine packages_per_block='2'"));
}

void tst_rvcatalog_spine::table()
{
    run({ u"c.xml"_s, u"DUN9_30"_s });
    QCOMPARE(myRun.messages, QString());
    QCOMPARE(myRun.exitCode, 0);
    QStringList lines = myRun.output.split(u'\n');
    const QString heading = u"     PAGES   PACKAGES     BLOCKS  SPINE mm  FONT pt DejaVu Sans"_s;
    QCOMPARE(lines.takeFirst(), heading);
    QCOMPARE(lines.takeLast(), QString());
    QCOMPARE(lines.constFirst().size(), heading.indexOf(" DejaVu"_L1));
    QStringList rows;
    for (const QString &line : lines)
        rows += line.simplified();
    QCOMPARE(rows,
             (QStringList { u"26 0 0 9.14 48"_s, u"30 1 0 9.14 48"_s, u"34 2 1 10.41 48"_s, u"38 3 1 10.41 48"_s,
                            u"42 4 2 11.68 72"_s }));
}

void tst_rvcatalog_spine::oneCount()
{
    run({ u"c.xml"_s, u"ONE"_s });
    QCOMPARE(myRun.exitCode, 0);
    QCOMPARE(myRun.output.count(u'\n'), 2);
    QVERIFY2(myRun.output.contains("        30          0          0      4.00"_L1), qPrintable(myRun.output));
    run({ u"c.xml"_s, u"NOTHING"_s });
    QVERIFY2(myRun.output.contains("         0          0          0      9.00"_L1), qPrintable(myRun.output));
}

// The application finds only the first of two products of the same type.
void tst_rvcatalog_spine::typeTwice()
{
    write(u"twice.xml"_s,
          "<p><product type='A' pages='1'><composition><spine base_width='5'/></composition></product>\n"
          "<product type='A' pages='1'><composition><spine base_width='9'/></composition></product></p>");
    run({ u"twice.xml"_s, u"A"_s });
    QCOMPARE(myRun.exitCode, 0);
    QCOMPARE(myRun.output.count(u'\n'), 2);
    QVERIFY2(myRun.output.contains("         1          0          0      5.00"_L1), qPrintable(myRun.output));
}

void tst_rvcatalog_spine::sample()
{
    run({ QString::fromUtf8(SAMPLES "/products.xml"), u"DUN9"_s });
    QCOMPARE(myRun.exitCode, 0);
    QCOMPARE(myRun.output.count(u'\n'), 34);
    QVERIFY2(myRun.output.contains("       154         32         16     25.00"_L1), qPrintable(myRun.output));
}

void tst_rvcatalog_spine::problems_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("message");

    QTest::newRow("unknown") << u"DUN8"_s
                             << u"c.xml:1:1: the catalogue has no product of type \"DUN8\"; did you mean \"DUN9\"?\n"_s;
    QTest::newRow("letter case")
            << u"pos1"_s << u"c.xml:1:1: the catalogue has no product of type \"pos1\"; did you mean \"POS1\"?\n"_s;
    QTest::newRow("a letter missing")
            << u"MAY"_s << u"c.xml:1:1: the catalogue has no product of type \"MAY\"; did you mean \"MANY\"?\n"_s;
    QTest::newRow("far from every type") << u"NOPE"_s
                                         << u"c.xml:1:1: the catalogue has no product of type \"NOPE\"\n"_s;
    QTest::newRow("no spine") << u"POS1"_s << u"c.xml:3:1: POS1 has no spine\n"_s;
    QTest::newRow("page counts") << u"BAD"_s
                                 << u"c.xml:4:1: BAD has no valid page counts (min: 20; max: 10; increment: 2)\n"_s;
    QTest::newRow("negative page counts")
            << u"NEGATIVE"_s << u"c.xml:8:1: NEGATIVE has no valid page counts (min: -8; max: 8; increment: 4)\n"_s;
    QTest::newRow("infinite widths") << u"WIDE"_s
                                     << u"c.xml:10:1: the spine widths of WIDE are too large for a number\n"_s;
    QTest::newRow("two billion counts") << u"MANY"_s
                                        << u"c.xml:6:32: MANY has 2147483647 page counts, and no more than 100000 can "
                                           "be listed; set a larger page_step or a smaller max_pages\n"_s;
}

void tst_rvcatalog_spine::problems()
{
    QFETCH(QString, type);
    run({ u"c.xml"_s, type, u"--plot"_s, u"none.png"_s });
    QTEST(myRun.messages, "message");
    QCOMPARE(myRun.output, QString());
    QCOMPARE(myRun.exitCode, 1);
    QVERIFY(!QFile::exists(myFolder.filePath(u"none.png"_s)));
}

void tst_rvcatalog_spine::broken()
{
    run({ u"missing.xml"_s, u"DUN9"_s });
    QCOMPARE(myRun.messages, u"missing.xml:1:1: cannot open the file: No such file or directory\n"_s);
    QCOMPARE(myRun.exitCode, 2);
    write(u"x.xml"_s, "<p><product type='DUN9' pages='1'/>");
    run({ u"x.xml"_s, u"DUN9"_s });
    QCOMPARE(myRun.messages,
             u"x.xml:1:36: the file ends too early: <p>, which was opened in line 1, is not closed\n"_s);
    QCOMPARE(myRun.output, QString());
    QCOMPARE(myRun.exitCode, 2);
    write(u"empty.xml"_s, "<p/>");
    run({ u"empty.xml"_s, u"DUN9"_s });
    QCOMPARE(myRun.messages, u"empty.xml:1:1: the catalogue has no product of type \"DUN9\"\n"_s);
    QCOMPARE(myRun.exitCode, 1);
}

void tst_rvcatalog_spine::largeNumbersStandApart()
{
    run({ u"c.xml"_s, u"LARGE"_s });
    QCOMPARE(myRun.exitCode, 0);
    const QStringList cells = myRun.output.section(u'\n', 1, 1).simplified().split(u' ');
    QCOMPARE(cells.mid(0, 4), (QStringList { u"2147483647"_s, u"0"_s, u"0"_s, u"12345678901.00"_s }));
}

// The program ends when the reader of its output ends.
void tst_rvcatalog_spine::closedPipe()
{
    write(u"long.xml"_s,
          "<p><product type='LONG' pages='1' max_pages='100000' page_step='1'>"
          "<composition><spine packages_per_block='7' base_width='5' "
          "block_width='0.001'/></composition></product></p>");
    QProcess program;
    QProcess head;
    program.setWorkingDirectory(myFolder.path());
    program.setStandardOutputProcess(&head);
    program.start(QString::fromUtf8(RVCATALOG), { u"spine"_s, u"long.xml"_s, u"LONG"_s });
    head.start(u"head"_s, { u"-n"_s, u"15"_s });
    QVERIFY(head.waitForFinished(20000));
    QVERIFY(program.waitForFinished(20000));
    const QByteArray lines = head.readAllStandardOutput();
    QCOMPARE(lines.count('\n'), 15);
    QVERIFY2(lines.contains("\n        14         13          1      5.00"), lines);
}

void tst_rvcatalog_spine::png()
{
    run({ u"c.xml"_s, u"DUN9"_s, u"--plot"_s, u"spine.PNG"_s });
    QCOMPARE(myRun.messages, QString());
    QCOMPARE(myRun.exitCode, 0);
    const QImage image(myFolder.filePath(u"spine.PNG"_s));
    QCOMPARE(image.size(), QSize(1890, 1181));
    QCOMPARE(image.dotsPerMeterX(), 11811);
    QCOMPARE(image.dotsPerMeterY(), 11811);
    for (const QPoint corner : { QPoint(0, 0), QPoint(1889, 0), QPoint(0, 1180), QPoint(1889, 1180) })
        QCOMPARE(image.pixelColor(corner), QColor(Qt::white));
    // Each part of the picture has marks: title, axes, curve.
    const auto darkPixels = [&image](const QRect &part) {
        int count = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x)
                count += image.pixelColor(x, y).lightness() < 128;
        }
        return count;
    };
    QVERIFY(darkPixels(QRect(0, 0, 1890, 80)) > 1000);
    QVERIFY(darkPixels(QRect(0, 200, 130, 900)) > 1000);
    QVERIFY(darkPixels(QRect(200, 1080, 1600, 90)) > 1000);
    QVERIFY(darkPixels(QRect(200, 300, 1600, 700)) > 1000);
}

void tst_rvcatalog_spine::svg()
{
    run({ u"--plot"_s, u"spine.svg"_s, u"c.xml"_s, u"DUN9"_s });
    QCOMPARE(myRun.messages, QString());
    QCOMPARE(myRun.exitCode, 0);
    QFile file(myFolder.filePath(u"spine.svg"_s));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument document;
    QVERIFY(document.setContent(&file));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.tagName(), u"svg"_s);
    QCOMPARE(root.attribute(u"width"_s), u"160mm"_s);
    QCOMPARE(root.attribute(u"height"_s), u"100mm"_s);
    const QStringList texts = textsOf(u"spine.svg"_s);
    for (const QString &text : { u"Groß & klein (DUN9)"_s, u"pages"_s, u"spine width in mm"_s,
                                 u"largest font size in pt (DejaVu Sans)"_s, u"30"_s, u"40"_s, u"9.0"_s })
        QVERIFY2(texts.contains(text), qPrintable(text + u" is not among "_s + texts.join(u'|')));
    QVERIFY(!root.elementsByTagName(u"path"_s).isEmpty());
    QVERIFY(root.elementsByTagName(u"image"_s).isEmpty()); // it is a drawing
}

QStringList tst_rvcatalog_spine::textsOf(const QString &fileName) const
{
    QFile file(myFolder.filePath(fileName));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return QStringList();
    QStringList result;
    const QDomNodeList elements = document.elementsByTagName(u"text"_s);
    for (int i = 0; i < elements.size(); ++i)
        result += elements.at(i).toElement().text().trimmed();
    return result;
}

// A system without fonts still gets an answer, and is told what is missing.
void tst_rvcatalog_spine::missingFont()
{
    write(u"fonts.conf"_s, "<?xml version='1.0'?><fontconfig><dir>/nowhere</dir></fontconfig>");
    const QStringList variables { u"LC_ALL=C"_s, u"FONTCONFIG_FILE="_s + myFolder.filePath(u"fonts.conf"_s) };
    run({ u"c.xml"_s, u"ONE"_s }, variables);
    QCOMPARE(myRun.exitCode, 0);
    QCOMPARE(myRun.output.count(u'\n'), 2);
    QVERIFY2(!myRun.output.contains("DejaVu Sans"_L1), qPrintable(myRun.output));
    QVERIFY2(myRun.messages.contains("rvcatalog: the font DejaVu Sans is missing, so font sizes are those of "_L1),
             qPrintable(myRun.messages));
    QVERIFY2(myRun.messages.endsWith("install fonts-dejavu-core\n"_L1), qPrintable(myRun.messages));
    const QString messages = myRun.messages;
    runCommand({ u"show"_s, u"c.xml"_s, u"ONE"_s }, variables);
    QCOMPARE(myRun.messages, messages);
    QCOMPARE(myRun.exitCode, 0);
}

void tst_rvcatalog_spine::pdf()
{
    run({ u"--plot"_s, u"spine.Pdf"_s, u"c.xml"_s, u"DUN9"_s });
    QCOMPARE(myRun.messages, QString());
    QCOMPARE(myRun.exitCode, 0);
    const QByteArray content = readFile(myFolder.filePath(u"spine.Pdf"_s));
    QVERIFY(content.startsWith("%PDF-"));
    QVERIFY(content.contains("/MediaBox [0 0 45")); // 160 mm are 453.5 points
}

void tst_rvcatalog_spine::languageOfThePlot_data()
{
    QTest::addColumn<QStringList>("variables");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("number");

    const QString german = u"Rückenbreite in mm"_s;
    const QString english = u"spine width in mm"_s;
    QTest::newRow("none") << QStringList() << english << u"9.0"_s;
    QTest::newRow("C") << QStringList { u"LC_ALL=C.UTF-8"_s } << english << u"9.0"_s;
    QTest::newRow("German") << QStringList { u"LANG=de_DE.UTF-8"_s } << german << u"9,0"_s;
    QTest::newRow("Austrian") << QStringList { u"LC_ALL=de_AT"_s } << german << u"9,0"_s;
    QTest::newRow("LC_ALL wins") << QStringList { u"LC_ALL=en_US.UTF-8"_s, u"LANG=de_DE.UTF-8"_s } << english
                                 << u"9.0"_s;
    QTest::newRow("not spoken") << QStringList { u"LC_ALL=fr_FR.UTF-8"_s } << english << u"9.0"_s;
}

// The plot is in the user's language, the table on the terminal is not.
void tst_rvcatalog_spine::languageOfThePlot()
{
    QFETCH(QStringList, variables);
    QFETCH(QString, label);
    QFETCH(QString, number);
    run({ u"--plot"_s, u"spine.svg"_s, u"c.xml"_s, u"DUN9"_s }, variables);
    QCOMPARE(myRun.messages, QString());
    const QStringList texts = textsOf(u"spine.svg"_s);
    QVERIFY2(texts.contains(label), qPrintable(texts.join(u'|')));
    QVERIFY2(texts.contains(number), qPrintable(texts.join(u'|')));
    QVERIFY2(myRun.output.startsWith(u"     PAGES   PACKAGES"_s), qPrintable(myRun.output));
    QVERIFY2(myRun.output.contains(u" 10.41 "_s), qPrintable(myRun.output));
}

void tst_rvcatalog_spine::plotFailures_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("message");

    QTest::newRow("format") << u"spine.gif"_s
                            << u"rvcatalog: the name of a plot ends in .svg, .png or .pdf, but got \"spine.gif\"\n"_s;
    QTest::newRow("no name") << QString()
                             << u"rvcatalog: the name of a plot ends in .svg, .png or .pdf, but got \"\"\n"_s;
    QTest::newRow("folder") << u"nowhere/spine.png"_s
                            << u"nowhere/spine.png:1:1: cannot write the plot: No such file or directory\n"_s;
    QTest::newRow("full disk") << u"full.pdf"_s << u"full.pdf:1:1: cannot write the plot: No space left on device\n"_s;
    QTest::newRow("folder of a drawing")
            << u"nowhere/spine.svg"_s << u"nowhere/spine.svg:1:1: cannot write the plot: No such file or directory\n"_s;
}

void tst_rvcatalog_spine::plotFailures()
{
    QFETCH(QString, fileName);
    QFile::link(u"/dev/full"_s, myFolder.filePath(u"full.pdf"_s));
    run({ u"c.xml"_s, u"DUN9"_s, u"--plot"_s, fileName });
    QTEST(myRun.messages, "message");
    QCOMPARE(myRun.output, QString());
    QCOMPARE(myRun.exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_rvcatalog_spine)
#include "tst_rvcatalog_spine.moc"
