#include "PaintCount.h"
#include "PaintRecorder.h"

#include <PaletteColors.h>
#include <SpineDrawing.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

class tst_SpineDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scale_data();
    void scale();
    void colors();
    void clear();
    void isPaintedAgain();
    void keepsItsWidth();
};

void tst_SpineDrawing::scale_data()
{
    QTest::addColumn<double>("width"); // in millimetres
    QTest::addColumn<double>("widest");
    QTest::addColumn<double>("pixels");

    QTest::newRow("widest") << 38.0 << 38.0 << 114.0; // all but the margins
    QTest::newRow("half as wide as the widest") << 19.0 << 38.0 << 57.0;
    QTest::newRow("a narrow one is not blown up") << 2.0 << 3.0 << 12.0;
    QTest::newRow("no press makes the widest") << 50.0 << 5000.0 << 57.0;
    QTest::newRow("nor this one") << 200.0 << 5000.0 << 114.0;
    QTest::newRow("thin") << 0.5 << 0.5 << 3.0;
}

void tst_SpineDrawing::scale()
{
    QFETCH(double, width);
    QFETCH(double, widest);
    QFETCH(double, pixels);
    SpineDrawing drawing;
    drawing.resize(130, 160);
    drawing.setSpine({ 34, 2, 1, width, 48 }, 0.5, widest);
    PaintRecorder recorder(1);
    paint(&recorder, &drawing);
    const PaintRecorder::Rect ground = recorder.rects.constFirst();
    COMPARE_NEAR(ground.rect, QRectF(0, 0, 130, 160));
    const PaintRecorder::Rect spine = recorder.rects.constLast();
    COMPARE_NEAR(spine.rect.width(), pixels);
    COMPARE_NEAR(spine.rect.center().x(), 65);
    COMPARE_NEAR(spine.rect.top(), drawing.findChild<QToolButton *>()->height());
    const PaintRecorder::Text text = recorder.text(u"mm"_s);
    QVERIFY(qAbs(text.rect.bottom() - 160) <= qAbs(text.rect.height())); // the width is at the lower edge
    QVERIFY(text.rect.bottom() <= 160.5);
}

// Those of the window; the drawing that leaves it is on white paper.
void tst_SpineDrawing::colors()
{
    SpineDrawing drawing;
    drawing.resize(130, 160);
    drawing.setPalette(PaletteColors::dark());
    drawing.setTitle(u"DUN9"_s);
    drawing.setSpine({ 34, 2, 1, 10, 12 }, 0.5, 10);
    PaintRecorder recorder(1);
    paint(&recorder, &drawing);
    const PaletteColors colors(PaletteColors::dark());
    QCOMPARE(recorder.rects.constFirst().fill, colors.shade(0));
    QCOMPARE(recorder.rects.constLast().fill, colors.shade(0.08));
    QCOMPARE(recorder.rects.constLast().pen.color(), colors.shade(0.8));
    QCOMPARE(recorder.text(u"DUN9"_s).color, colors.shade(1));
    PaintRecorder sheet;
    QPainter painter(&sheet);
    drawing.drawing()->paint(&painter, PaintRecorder::dots(QRectF(0, 0, 85, 152)), 1);
    QCOMPARE(sheet.rects.constFirst().fill, QColor(Qt::white));
}

void tst_SpineDrawing::clear()
{
    SpineDrawing drawing;
    drawing.setSpine({ 34, 2, 1, 10, 48 }, 0.5, 10);
    drawing.clear();
    PaintRecorder recorder(1);
    paint(&recorder, &drawing);
    QCOMPARE(recorder.rects.size(), 1);
    QVERIFY(recorder.texts.isEmpty());
}

void tst_SpineDrawing::isPaintedAgain()
{
    SpineDrawing drawing;
    drawing.show();
    QVERIFY(QTest::qWaitForWindowExposed(&drawing));
    const PaintCount paints(&drawing);
    QVERIFY(paints.growsAfter([&] { drawing.setSpine({ 34, 2, 1, 10, 48 }, 0.5, 10); }));
    QVERIFY(paints.growsAfter([&] { drawing.setTitle(u"DUN9"_s); }));
    QVERIFY(paints.growsAfter([&] { drawing.clear(); }));
}

// The curve beside it takes what a wide window has to give.
void tst_SpineDrawing::keepsItsWidth()
{
    QWidget window;
    auto *drawing = new SpineDrawing;
    auto *layout = new QHBoxLayout(&window);
    layout->addWidget(drawing);
    layout->addWidget(new QWidget);
    window.resize(800, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(drawing->width(), 130);
    QVERIFY(drawing->height() > 500);
}

QTEST_MAIN(tst_SpineDrawing)
#include "tst_SpineDrawing.moc"
