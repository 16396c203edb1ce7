#include "PaintCount.h"
#include "PaintRecorder.h"
#include "ReadProduct.h"

#include <PageDrawing.h>
#include <PaletteColors.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

PageGeometry page()
{
    return PageGeometry(readProduct("<product type='DUN9' orientation='portrait' space_magnitude='600cm2' pages='26'>"
                                    "<barcodes units='mm'><barcode position_x='12' position_y='250' width='38' "
                                    "height='10' pageNr='2'/></barcodes></product>"));
}

}

class tst_PageDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void legendBeside();
    void legendBelow();
    void colors();
    void texts();
    void isPaintedAgain();
    void growsWithTheWindow();
};

// The button in the corner stays free, and so do margins all around.
void tst_PageDrawing::legendBeside()
{
    PageDrawing drawing;
    drawing.setPage(page(), u"DUN9"_s);
    drawing.setPageNumber(2);
    drawing.resize(800, 160);
    PaintRecorder recorder(1);
    paint(&recorder, &drawing);
    COMPARE_NEAR(recorder.rects.constFirst().rect, QRectF(0, 0, 800, 160));
    const int button = drawing.findChild<QToolButton *>()->width();
    const PaintRecorder::Text longest = recorder.text(u"barcode"_s);
    QVERIFY(qAbs(longest.rect.right() - (800 - 8 - button)) < 1);
    QVERIFY(qAbs(recorder.text(u"trim"_s).rect.top() - 8) < 1);
    const QFontMetricsF metrics(drawing.font(), &drawing);
    const QRectF bleed = recorder.rects.at(1).rect;
    COMPARE_NEAR(bleed.top(), 8);
    COMPARE_NEAR(bleed.bottom(), 160 - 4 - metrics.height());
}

void tst_PageDrawing::legendBelow()
{
    PageDrawing drawing;
    drawing.setPage(page(), u"DUN9"_s);
    drawing.setPageNumber(2);
    drawing.resize(300, 900);
    PaintRecorder recorder(1);
    paint(&recorder, &drawing);
    const int button = drawing.findChild<QToolButton *>()->width();
    const QFontMetricsF metrics(drawing.font(), &drawing);
    QVERIFY(qAbs(recorder.text(u"barcode"_s).rect.center().y() - (900 - 4 - metrics.height() / 2)) < 1);
    const QRectF bleed = recorder.rects.at(1).rect;
    COMPARE_NEAR(bleed.left(), 8);
    COMPARE_NEAR(bleed.right(), 300 - 8 - button - metrics.height());
}

void tst_PageDrawing::colors()
{
    PageDrawing drawing;
    drawing.setPalette(PaletteColors::dark());
    drawing.setPage(page(), u"DUN9"_s);
    drawing.resize(800, 160);
    PaintRecorder recorder(1);
    paint(&recorder, &drawing);
    const PaletteColors colors(PaletteColors::dark());
    QCOMPARE(recorder.rects.constFirst().fill, colors.shade(0));
    QCOMPARE(recorder.text(u"trim"_s).color, colors.shade(1));
}

// Title and description are those of the page that is shown.
void tst_PageDrawing::texts()
{
    PageDrawing drawing;
    QVERIFY(!drawing.accessibleName().isEmpty());
    drawing.setPage(page(), u"DUN9"_s);
    QCOMPARE(drawing.drawing()->title(), u"DUN9 page"_s);
    QVERIFY(!drawing.accessibleDescription().contains(u"barcode"_s));
    drawing.setPageNumber(2);
    QCOMPARE(drawing.drawing()->title(), u"DUN9 page 2"_s);
    QVERIFY(drawing.accessibleDescription().contains(u"; barcode"_s));
}

void tst_PageDrawing::isPaintedAgain()
{
    PageDrawing drawing;
    drawing.show();
    QVERIFY(QTest::qWaitForWindowExposed(&drawing));
    const PaintCount paints(&drawing);
    QVERIFY(paints.growsAfter([&] { drawing.setPage(page(), u"DUN9"_s); }));
    QVERIFY(paints.growsAfter([&] { drawing.setPageNumber(2); }));
}

void tst_PageDrawing::growsWithTheWindow()
{
    QWidget window;
    auto *drawing = new PageDrawing;
    auto *layout = new QHBoxLayout(&window);
    layout->addWidget(drawing);
    layout->addWidget(new QWidget);
    window.resize(800, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(drawing->width() > 700);
    QVERIFY(drawing->height() > 500);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English));
    tst_PageDrawing test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PageDrawing.moc"
