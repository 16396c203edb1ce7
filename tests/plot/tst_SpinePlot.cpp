#include <PlotFrame.h>
#include <SpineFont.h>
#include <SpinePlot.h>

#include <QBuffer>
#include <QDomDocument>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

SpineTable makeTable(int lowest = 26, int highest = 154)
{
    const RVPageCountOrganization counts(RVIntRange(lowest, highest), 4);
    return SpineTable(RVSpineConfig(counts, 2, RVDistance(8, DISTANCE_UNIT_MILLIMETRE),
                                    RVDistance(1, DISTANCE_UNIT_MILLIMETRE), RVDistance(0.5, DISTANCE_UNIT_MILLIMETRE)),
                      counts);
}

QImage pictureOf(const SpinePlot &plot, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    plot.paint(&painter, image.rect());
    return image;
}

/// The texts of the plot as a drawing.
QStringList textsOf(const SpinePlot &plot, const QSize &size)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    QPainter painter(&generator);
    plot.paint(&painter, QRectF(QPointF(), size));
    painter.end();
    QDomDocument document;
    document.setContent(buffer.data());
    QStringList result;
    const QDomNodeList texts = document.elementsByTagName(u"text"_s);
    for (int i = 0; i < texts.size(); ++i)
        result += texts.at(i).toElement().text().trimmed();
    return result;
}

}

class tst_SpinePlot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowAt_data();
    void rowAt();
    void rowAtNowhere();
    void crossHair();
    void labelOfWidth_data();
    void labelOfWidth();
    void nothingLeavesTheDrawing_data();
    void nothingLeavesTheDrawing();
    void german();
    void sheet();
};

void tst_SpinePlot::rowAt_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<int>("row");

    QTest::newRow("left of the axis") << QPointF(0, 50) << 0;
    QTest::newRow("right of the curve") << QPointF(399, 50) << 32;
    QTest::newRow("far outside") << QPointF(1e9, 1e9) << 32;
}

void tst_SpinePlot::rowAt()
{
    QFETCH(QPointF, place);
    QImage device(400, 200, QImage::Format_RGB32);
    QTEST(SpinePlot(makeTable()).rowAt(place, device.rect(), &device), "row");
}

void tst_SpinePlot::rowAtNowhere()
{
    QImage device(400, 200, QImage::Format_RGB32);
    QCOMPARE(SpinePlot().rowAt(QPointF(100, 100), device.rect(), &device), -1);
    QCOMPARE(SpinePlot(makeTable()).rowAt(QPointF(1, 1), QRectF(0, 0, 20, 20), &device), -1);
    // Each page count is found where it is drawn.
    const SpineTable table = makeTable();
    const PlotFrame frame(table, QLocale::c(), false, device.rect(), &device);
    for (int row = 0; row < table.rowCount(); ++row)
        QCOMPARE(SpinePlot(table).rowAt(frame.at(table.row(row)), device.rect(), &device), row);
}

void tst_SpinePlot::crossHair()
{
    SpinePlot plot(makeTable());
    QCOMPARE(plot.reading(2), u"page count 34 · 10.00 mm · font up to 48 pt"_s);
    const QImage without = pictureOf(plot, { 400, 200 });
    plot.setRowUnderCrossHair(2);
    QVERIFY(pictureOf(plot, { 400, 200 }) != without);
    QVERIFY(textsOf(plot, { 400, 200 }).contains(plot.reading(2)));
    plot.setRowUnderCrossHair(33); // there is no such row
    QCOMPARE(pictureOf(plot, { 400, 200 }), without);
}

void tst_SpinePlot::labelOfWidth_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("label");

    QTest::newRow("room") << 300 << u"spine width in mm"_s;
    QTest::newRow("lowest height in the window") << 125 << u"spine width in mm"_s;
    QTest::newRow("lower than the title of the axis") << 80 << u"mm"_s;
}

void tst_SpinePlot::labelOfWidth()
{
    QFETCH(int, height);
    QFETCH(QString, label);
    const QStringList texts = textsOf(SpinePlot(makeTable()), { 400, height });
    QVERIFY2(texts.contains(label), qPrintable(texts.join(u'|')));
}

void tst_SpinePlot::nothingLeavesTheDrawing_data()
{
    QTest::addColumn<int>("height");
    for (const int height : { 80, 90, 110, 125, 140, 160, 300 })
        QTest::addRow("%d pixels high", height) << height;
}

// The label of the widths ends before the edge: its column is empty above and below.
void tst_SpinePlot::nothingLeavesTheDrawing()
{
    QFETCH(int, height);
    const QImage image = pictureOf(SpinePlot(makeTable()), { 400, height });
    const auto isEmpty = [&image](int y) {
        for (int x = 0; x < 20; ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white))
                return false;
        }
        return true;
    };
    for (const int y : { 0, 1, height - 2, height - 1 })
        QVERIFY2(isEmpty(y), qPrintable(QString::number(y)));
}

void tst_SpinePlot::german()
{
    QTranslator translator;
    QVERIFY(translator.load(u"" QM_FOLDER "/rvplot_de.qm"_s));
    QCoreApplication::installTranslator(&translator);
    SpinePlot plot(makeTable(1026, 1154));
    plot.setLocale(QLocale(QLocale::German));
    const QStringList texts = textsOf(plot, { 800, 400 });
    for (const QString &text :
         { u"Seiten"_s, u"Rückenbreite in mm"_s, u"größte Schrift in pt (DejaVu Sans)"_s, u"1.040"_s })
        QVERIFY2(texts.contains(text), qPrintable(texts.join(u'|')));
    QCOMPARE(plot.reading(2), u"Seitenzahl 1.034 · 10,00 mm · Schrift bis 48 pt"_s);
    QCoreApplication::removeTranslator(&translator);
}

void tst_SpinePlot::sheet()
{
    SpinePlot plot(makeTable());
    plot.setTitle(u"Book"_s);
    const Drawing &drawing = plot;
    QCOMPARE(drawing.title(), u"Book"_s);
    QCOMPARE(drawing.sheetSize(1), QSizeF(160, 100));
    QCOMPARE(drawing.reductionFor(QSizeF(190, 277)), 1);
    QCOMPARE(drawing.reductionFor(QSizeF(99, 140)), 2);
    QCOMPARE(drawing.reductionFor(QSizeF(16, 10)), 10);
    QCOMPARE(drawing.reductionFor(QSizeF()), 1000000000);
}

QTEST_MAIN(tst_SpinePlot)
#include "tst_SpinePlot.moc"
