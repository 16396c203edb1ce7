#include <SpineFont.h>
#include <SpinePlot.h>
#include <SpineTable.h>

#include <RVFontSizeManager.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <limits>

namespace {

constexpr int LARGEST = std::numeric_limits<int>::max();

SpineTable makeTable(const RVPageCountOrganization &counts, int packagesPerBlock, qreal base, qreal block)
{
    return SpineTable(RVSpineConfig(counts, packagesPerBlock, RVDistance(base, DISTANCE_UNIT_MILLIMETRE),
                                    RVDistance(block, DISTANCE_UNIT_MILLIMETRE),
                                    RVDistance(0.5, DISTANCE_UNIT_MILLIMETRE)),
                      counts);
}

QList<int> pages(const QList<SpineRow> &rows)
{
    QList<int> result;
    for (const SpineRow &row : rows)
        result += row.pages;
    return result;
}

}

class tst_SpineTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows();
    void noRows();
    void rowNear_data();
    void rowNear();
    void steps_data();
    void steps();
    void fontRuns();
    void largestTable();
    void plotOfNothing();
    void plotInASmallPlace();
};

void tst_SpineTable::rows()
{
    const SpineTable table = makeTable(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, 8, 1);
    QCOMPARE(table.rowCount(), 33);
    const SpineRow first = table.row(0);
    QCOMPARE(first.pages, 26);
    QCOMPARE(first.packages, 0);
    QCOMPARE(first.blocks, 0);
    QCOMPARE(first.width, 9.0);
    const SpineRow third = table.row(2);
    QCOMPARE(third.pages, 34);
    QCOMPARE(third.packages, 2);
    QCOMPARE(third.blocks, 1);
    QCOMPARE(third.width, 10.0);
    QCOMPARE(table.row(32).pages, 154);
}

void tst_SpineTable::noRows()
{
    QCOMPARE(SpineTable().rowCount(), 0);
    QVERIFY(SpineTable().steps(10).isEmpty());
    QCOMPARE(makeTable(RVPageCountOrganization(RVIntRange(10, 20), 0), 1, 8, 1).rowCount(), 0);
    QCOMPARE(makeTable(RVPageCountOrganization(RVIntRange(20, 10), 2), 1, 8, 1).rowCount(), 0);
    QCOMPARE(makeTable(RVPageCountOrganization(RVIntRange(10, 20), 2), 1, 1e308, 1).rowCount(), 0);
    QCOMPARE(makeTable(RVPageCountOrganization(RVIntRange(10, 20), 2), 1, 8, 1e307).rowCount(), 0);
    QCOMPARE(makeTable(RVPageCountOrganization(RVIntRange(10, 20), 2), 1, 8, 1e300).rowCount(), 6);
}

void tst_SpineTable::rowNear_data()
{
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::addColumn<qreal>("pages");
    QTest::addColumn<int>("row");

    QTest::newRow("a count") << 26 << 154 << 34.0 << 2;
    QTest::newRow("nearer to the lower") << 26 << 154 << 35.9 << 2;
    QTest::newRow("nearer to the higher") << 26 << 154 << 36.1 << 3;
    QTest::newRow("below the lowest") << 26 << 154 << -1e9 << 0;
    QTest::newRow("above the highest") << 26 << 154 << 1e300 << 32;
    QTest::newRow("one count") << 26 << 26 << 99.0 << 0;
    QTest::newRow("no counts") << 26 << 20 << 26.0 << -1;
    QTest::newRow("half a billion counts") << 3 << LARGEST << 1e9 << 249999999;
}

void tst_SpineTable::rowNear()
{
    QFETCH(int, lowest);
    QFETCH(int, highest);
    QFETCH(qreal, pages);
    const RVPageCountOrganization counts(RVIntRange(lowest, highest), 4);
    QTEST(makeTable(counts, 2, 8, 0).rowNear(pages), "row");
}

void tst_SpineTable::steps_data()
{
    QTest::addColumn<int>("highest");
    QTest::addColumn<int>("packagesPerBlock");
    QTest::addColumn<int>("most");
    QTest::addColumn<QList<int>>("pages");

    QTest::newRow("last count begins a block") << 42 << 2 << 10 << QList<int> { 26, 34, 42 };
    QTest::newRow("last count is in a block") << 46 << 2 << 10 << QList<int> { 26, 34, 42, 46 };
    QTest::newRow("no growth") << 46 << 0 << 10 << QList<int> { 26, 46 };
    QTest::newRow("one count") << 26 << 2 << 10 << QList<int> { 26 };
    QTest::newRow("as many as wanted") << 46 << 2 << 4 << QList<int> { 26, 34, 42, 46 };
    QTest::newRow("too many") << 46 << 1 << 3 << QList<int> { 26, 34, 46 };
    QTest::newRow("one row too many with the last") << 46 << 2 << 3 << QList<int> { 26, 34, 46 };
}

void tst_SpineTable::steps()
{
    QFETCH(int, highest);
    QFETCH(int, packagesPerBlock);
    QFETCH(int, most);
    const RVPageCountOrganization counts(RVIntRange(26, highest), 4);
    QTEST(::pages(makeTable(counts, packagesPerBlock, 8, 1).steps(most)), "pages");
}

void tst_SpineTable::fontRuns()
{
    const QList<int> sizes = RVFontSizeManager::instance()->defaultFontSizes();
    const RVPageCountOrganization counts(RVIntRange(1, 200), 1);
    for (const qreal block : { 0.1, -0.1, 0.0 }) {
        const qreal base = block < 0 ? 22 : 3;
        const RVSpineConfig spine(counts, 1, RVDistance(base, DISTANCE_UNIT_MILLIMETRE),
                                  RVDistance(block, DISTANCE_UNIT_MILLIMETRE), RVDistance());
        const SpineTable table(spine, counts);
        QVERIFY(table.fontRuns().size() > 3 || block == 0.0);
        for (int i = 0; i < table.rowCount(); ++i)
            QCOMPARE(table.row(i).fontSize, SpineFont::largestSize(spine, i + 1));
        for (const SpineTable::FontRun &run : table.fontRuns())
            QVERIFY(sizes.contains(run.fontSize));
    }
}

// Two billion page counts must cost neither time nor memory.
void tst_SpineTable::largestTable()
{
    const SpineTable table = makeTable(RVPageCountOrganization(RVIntRange(1, LARGEST), 1), 7, 5, 0.0001);
    QCOMPARE(table.rowCount(), LARGEST);
    QCOMPARE(table.row(LARGEST - 1).pages, LARGEST);
    const QList<SpineRow> steps = table.steps(800);
    QCOMPARE(steps.size(), 800);
    QCOMPARE(steps.constFirst().pages, 1);
    QCOMPARE(steps.constLast().pages, LARGEST);
    QCOMPARE(table.row(LARGEST - 1).fontSize, 72);
}

void tst_SpineTable::plotOfNothing()
{
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    SpinePlot().paint(&painter, image.rect());
    painter.end();
    QImage white(60, 40, QImage::Format_RGB32);
    white.fill(Qt::white);
    QCOMPARE(image, white);
}

// A window may become so small that nothing fits; what is drawn stays within the rectangle.
void tst_SpineTable::plotInASmallPlace()
{
    SpinePlot plot(makeTable(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, 8, 1));
    plot.setMarkedRow(3);
    for (const QSize size : { QSize(1, 1), QSize(30, 200), QSize(200, 30), QSize(120, 110) }) {
        QImage image(300, 300, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        plot.paint(&painter, QRectF(QPointF(20, 20), size));
        painter.end();
        QCOMPARE(image.pixelColor(21 + size.width(), 21 + size.height()), QColor(Qt::black));
        QCOMPARE(image.pixelColor(19, 19), QColor(Qt::black));
        QCOMPARE(image.pixelColor(20, 20), QColor(Qt::white));
    }
}

QTEST_MAIN(tst_SpineTable)
#include "tst_SpineTable.moc"
