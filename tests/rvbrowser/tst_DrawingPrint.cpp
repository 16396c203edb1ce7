#include <Drawing.h>
#include <DrawingPrint.h>

#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Notes where it is painted.
class NotedDrawing : public Drawing
{
public:
    explicit NotedDrawing(const QSizeF &size) : mySize(size) { }

    QString title() const override { return u"DUN9 page 2"_s; }
    QSizeF sheetSize(int reduction) const override { return mySize / reduction; }
    void paint(QPainter *, const QRectF &sheet, int reduction) const override
    {
        painted = sheet;
        paintedReduction = reduction;
    }

    mutable QRectF painted;
    mutable int paintedReduction = 0;

private:
    QSizeF mySize;
};

/// A drawing with texts that keep their size, so that it is higher where it is reduced.
class FixedTexts : public NotedDrawing
{
public:
    FixedTexts() : NotedDrawing(QSizeF()) { }
    QSizeF sheetSize(int reduction) const override { return reduction == 1 ? QSizeF(150, 100) : QSizeF(75, 100); }
};

}

class tst_DrawingPrint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setUp_data();
    void setUp();
    void setUpWithTexts();
    void place_data();
    void place();
    void noFile();
};

void tst_DrawingPrint::setUp_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QPageLayout::Orientation>("orientation");

    QTest::newRow("higher than wide") << QSizeF(100, 101) << QPageLayout::Portrait;
    QTest::newRow("wider than high") << QSizeF(101, 100) << QPageLayout::Landscape;
    QTest::newRow("square") << QSizeF(100, 100) << QPageLayout::Portrait;
}

void tst_DrawingPrint::setUp()
{
    QFETCH(QSizeF, size);
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageOrientation(QPageLayout::Landscape);
    const DrawingPrint print(std::make_shared<NotedDrawing>(size));
    print.setUp(&printer);
    QTEST(printer.pageLayout().orientation(), "orientation");
    QCOMPARE(printer.docName(), u"DUN9 page 2"_s);
}

// By the sheet that is not reduced.
void tst_DrawingPrint::setUpWithTexts()
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    DrawingPrint(std::make_shared<FixedTexts>()).setUp(&printer);
    QCOMPARE(printer.pageLayout().orientation(), QPageLayout::Landscape);
}

void tst_DrawingPrint::place_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QRectF>("place"); // in millimetres
    QTest::addColumn<int>("reduction");

    QTest::newRow("fits") << QSizeF(100, 50) << QRectF(45, 0, 100, 50) << 1;
    QTest::newRow("too wide") << QSizeF(300, 50) << QRectF(20, 0, 150, 25) << 2;
    QTest::newRow("as wide as the paper") << QSizeF(190, 50) << QRectF(0, 0, 190, 50) << 1;
}

// At the top and in the middle of A4 with margins of 10 mm.
void tst_DrawingPrint::place()
{
    QFETCH(QSizeF, size);
    QFETCH(QRectF, place);
    QTemporaryDir folder;
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath(u"a.pdf"_s));
    printer.setPageLayout(
            { QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter });
    const auto drawing = std::make_shared<NotedDrawing>(size);
    DrawingPrint(drawing).paint(&printer);
    QTEST(drawing->paintedReduction, "reduction");
    const qreal millimetre = printer.resolution() / 25.4;
    const QRectF found(drawing->painted.topLeft() / millimetre, drawing->painted.size() / millimetre);
    QVERIFY(qAbs(found.left() - place.left()) < 0.1);
    QCOMPARE(found.top(), place.top());
    QCOMPARE(found.size(), place.size());
}

void tst_DrawingPrint::noFile()
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(u"/nowhere/a.pdf"_s);
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
    const auto drawing = std::make_shared<NotedDrawing>(QSizeF(100, 50));
    DrawingPrint(drawing).paint(&printer);
    QCOMPARE(drawing->paintedReduction, 0);
}

QTEST_MAIN(tst_DrawingPrint)
#include "tst_DrawingPrint.moc"
