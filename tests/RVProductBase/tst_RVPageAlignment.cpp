#include "AttributeTest.h"

#include <RVProductBase/RVPageAlignment.h>

using namespace Qt::StringLiterals;

class tst_RVPageAlignment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void values_data();
    void values();
    void combinationsHaveNoWords();
    void productionPaths_data();
    void productionPaths();
    void debugOutput();
};

void tst_RVPageAlignment::keywordTable()
{
    const KeywordTableTest<RVPageAlignment> test(
            {
                    { 1, { u"left"_s, u"leftpage"_s, u"cover"_s, u"coverpage"_s } },
                    { 2, { u"right"_s, u"rightpage"_s } },
                    { 4, { u"middle"_s } },
                    { 8, { u"fullpage"_s } },
                    { 16, { u"top"_s } },
                    { 32, { u"bottom"_s } },
                    { 64, { u"center"_s } },
            },
            u""_s, 1);
    test.check();
}

void tst_RVPageAlignment::values_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("splitPostFix");
    QTest::newRow("none") << 0 << u""_s << u"_center.pdf"_s;
    QTest::newRow("left") << 1 << u"links"_s << u"_left.pdf"_s;
    QTest::newRow("right") << 2 << u"rechts"_s << u"_right.pdf"_s;
    QTest::newRow("left and right") << 3 << u""_s << u"_center.pdf"_s;
    QTest::newRow("middle") << 4 << u"auf dem Buchrücken"_s << u"_center.pdf"_s;
    QTest::newRow("full page") << 8 << u"auf dieser Seite"_s << u"_center.pdf"_s;
    QTest::newRow("top") << 16 << u"oben"_s << u"_center.pdf"_s;
    QTest::newRow("bottom") << 32 << u"unten"_s << u"_center.pdf"_s;
    QTest::newRow("center") << 64 << u"mittig"_s << u"_center.pdf"_s;
    QTest::newRow("unknown bit") << 128 << u""_s << u"_center.pdf"_s;
}

void tst_RVPageAlignment::values()
{
    QFETCH(int, value);
    const RVPageAlignment alignment { RVPageAlignmentEnum(value) };
    QTEST(alignment.describe(), "description");
    QTEST(alignment.pdfPostFix(true), "splitPostFix");
    QCOMPARE(alignment.pdfPostFix(false), u"_center.pdf"_s);
}

void tst_RVPageAlignment::combinationsHaveNoWords()
{
    for (int value = 0; value < 0x200; ++value) {
        if (value >= 0x80 || qPopulationCount(quint32(value)) != 1)
            QCOMPARE(RVPageAlignment(RVPageAlignmentEnum(value)).describe(), u""_s);
        if (value != PAGE_ALIGNMENT_LEFT && value != PAGE_ALIGNMENT_RIGHT)
            QCOMPARE(RVPageAlignment(RVPageAlignmentEnum(value)).pdfPostFix(true), u"_center.pdf"_s);
    }
}

void tst_RVPageAlignment::productionPaths_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("split");
    QTest::addColumn<QString>("result");
    QTest::newRow("left") << 1 << u"out/page1.pdf"_s << true << u"out/page1_left.pdf"_s;
    QTest::newRow("capitals, right") << 2 << u"out/PAGE1.PDF"_s << true << u"out/PAGE1_right.pdf"_s;
    QTest::newRow("capitals, both") << 3 << u"out/PAGE1.Pdf"_s << true << u"out/PAGE1_center.pdf"_s;
    QTest::newRow("not split") << 2 << u"page1.pdf"_s << false << u"page1_center.pdf"_s;
    QTest::newRow("every occurrence") << 1 << u"a.pdf/b.PDF.pdf"_s << true << u"a_left.pdf/b_left.pdf_left.pdf"_s;
    QTest::newRow("another file") << 1 << u"page1.png"_s << true << u"page1.png"_s;
    QTest::newRow("dot matches only a dot") << 1 << u"pagexpdf"_s << true << u"pagexpdf"_s;
    QTest::newRow("empty") << 1 << u""_s << true << u""_s;
}

void tst_RVPageAlignment::productionPaths()
{
    QFETCH(int, value);
    QFETCH(QString, path);
    QFETCH(bool, split);
    QTEST(RVPageAlignment(RVPageAlignmentEnum(value)).modifyProductionPath(path, split), "result");
}

void tst_RVPageAlignment::debugOutput()
{
    QCOMPARE(debugText(RVPageAlignment(PAGE_ALIGNMENT_LEFT | PAGE_ALIGNMENT_TOP)), u"RVPageAlignment(left, top) "_s);
    QCOMPARE(debugText(RVPageAlignment()), u"RVPageAlignment() "_s);
}

QTEST_GUILESS_MAIN(tst_RVPageAlignment)
#include "tst_RVPageAlignment.moc"
