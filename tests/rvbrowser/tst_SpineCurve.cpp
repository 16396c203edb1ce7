#include "PaintCount.h"
#include "PaintRecorder.h"

#include <PaletteColors.h>
#include <SpineCurve.h>

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleFactory>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// From 1,026 pages on, 4 pages a row.
SpineTable tableOf(int rows)
{
    if (rows == 0)
        return SpineTable();
    const RVPageCountOrganization counts(RVIntRange(1026, 1026 + 4 * (rows - 1)), 4);
    return SpineTable(RVSpineConfig(counts, 2, RVDistance(8, DISTANCE_UNIT_MILLIMETRE),
                                    RVDistance(1, DISTANCE_UNIT_MILLIMETRE), RVDistance(0.5, DISTANCE_UNIT_MILLIMETRE)),
                      counts);
}

/// The texts that the widget paints.
QStringList paintedTexts(QWidget *widget)
{
    PaintRecorder recorder(1);
    paint(&recorder, widget);
    QStringList result;
    for (const PaintRecorder::Text &text : std::as_const(recorder.texts))
        result += text.text;
    return result;
}

/// Without the keyboard, which another window has.
void showInBackground(QWidget *widget)
{
    widget->setAttribute(Qt::WA_ShowWithoutActivating);
    widget->resize(400, 200);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
}

void moveMouse(QWidget *widget, const QPoint &place)
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(widget, &event);
}

/// The reading at the cross hair; empty without one.
QString crossHair(QWidget *widget)
{
    return paintedTexts(widget).filter(u" mm · "_s).join(u'|');
}

QAccessibleValueInterface *sliderOf(SpineCurve *curve)
{
    return QAccessible::queryAccessibleInterface(curve)->valueInterface();
}

}

class tst_SpineCurve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows();
    void newTable();
    void rowWanted_data();
    void rowWanted();
    void endOfTheLargestTable();
    void keysWithModifiers();
    void nothingToChoose();
    void clicks();
    void crossHairOfTheMouse();
    void crossHairOfTheKeyboard();
    void focusInAnyStyle();
    void isPaintedAgain();
    void slider_data();
    void slider();
    void sliderChooses();
    void german();
    void drawing();
    void colors();
};

void tst_SpineCurve::rows()
{
    SpineCurve curve;
    QVERIFY(!curve.accessibleName().isEmpty());
    QCOMPARE(curve.row(), -1);
    curve.setTable(tableOf(3), QString());
    for (const int row : { 0, 2 }) {
        curve.setRow(row);
        QCOMPARE(curve.row(), row);
        QVERIFY(curve.reading().contains(row == 0 ? u"1,026"_s : u"1,034"_s));
        QCOMPARE(curve.accessibleDescription(), curve.reading());
    }
    for (const int row : { 3, -1 }) {
        curve.setRow(0);
        curve.setRow(row);
        QCOMPARE(curve.row(), -1);
        QCOMPARE(curve.reading(), QString());
    }
}

void tst_SpineCurve::newTable()
{
    SpineCurve curve;
    showInBackground(&curve);
    curve.setTable(tableOf(33), QString());
    curve.setRow(20);
    moveMouse(&curve, QPoint(200, 100));
    QVERIFY(!crossHair(&curve).isEmpty());
    curve.setTable(tableOf(30), QString());
    QCOMPARE(curve.row(), -1);
    QCOMPARE(crossHair(&curve), QString());
}

void tst_SpineCurve::rowWanted_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("to");

    QTest::newRow("left") << 33 << 15 << Qt::Key_Left << 14;
    QTest::newRow("right") << 33 << 15 << Qt::Key_Right << 16;
    QTest::newRow("up") << 33 << 15 << Qt::Key_Up << 16;
    QTest::newRow("down") << 33 << 15 << Qt::Key_Down << 14;
    QTest::newRow("page up") << 33 << 15 << Qt::Key_PageUp << 25;
    QTest::newRow("page down") << 33 << 15 << Qt::Key_PageDown << 5;
    QTest::newRow("home") << 33 << 15 << Qt::Key_Home << 0;
    QTest::newRow("end") << 33 << 15 << Qt::Key_End << 32;
    QTest::newRow("left of the first") << 33 << 0 << Qt::Key_Left << 0;
    QTest::newRow("right of the last") << 33 << 32 << Qt::Key_Right << 32;
    QTest::newRow("page up of a few rows") << 3 << 0 << Qt::Key_PageUp << 2;
    QTest::newRow("page down of a few rows") << 3 << 2 << Qt::Key_PageDown << 0;
    QTest::newRow("only one row") << 1 << 0 << Qt::Key_End << 0;
}

void tst_SpineCurve::rowWanted()
{
    QFETCH(int, rows);
    QFETCH(int, from);
    QFETCH(Qt::Key, key);
    SpineCurve curve;
    curve.setTable(tableOf(rows), QString());
    curve.setRow(from);
    const QSignalSpy wanted(&curve, &SpineCurve::rowWanted);
    QTest::keyClick(&curve, key);
    QCOMPARE(wanted.size(), 1);
    QTEST(wanted.constFirst().constFirst().toInt(), "to");
    QCOMPARE(curve.row(), from); // setRow() chooses
}

// A page further than the last row is the last row, though their sum is no number.
void tst_SpineCurve::endOfTheLargestTable()
{
    const RVPageCountOrganization counts(RVIntRange(1, std::numeric_limits<int>::max()), 1);
    const RVDistance width(1, DISTANCE_UNIT_MILLIMETRE);
    SpineCurve curve;
    curve.setTable(SpineTable(RVSpineConfig(counts, 1, width, RVDistance(), RVDistance()), counts), u"A"_s);
    const int last = std::numeric_limits<int>::max() - 1;
    curve.setRow(last);
    QSignalSpy wanted(&curve, &SpineCurve::rowWanted);
    QTest::keyClick(&curve, Qt::Key_PageUp);
    QCOMPARE(wanted.takeFirst().at(0).toInt(), last);
}

// They belong to others: to menus and to the parts around.
void tst_SpineCurve::keysWithModifiers()
{
    SpineCurve curve;
    curve.setTable(tableOf(33), QString());
    const QSignalSpy wanted(&curve, &SpineCurve::rowWanted);
    for (const Qt::Key key : { Qt::Key_Left, Qt::Key_End, Qt::Key_A }) {
        QKeyEvent event(QEvent::KeyPress, key, key == Qt::Key_A ? Qt::NoModifier : Qt::AltModifier);
        QApplication::sendEvent(&curve, &event);
        QVERIFY(!event.isAccepted());
    }
    QVERIFY(wanted.isEmpty());
}

void tst_SpineCurve::nothingToChoose()
{
    SpineCurve curve;
    curve.resize(400, 200);
    const QSignalSpy wanted(&curve, &SpineCurve::rowWanted);
    QTest::keyClick(&curve, Qt::Key_Home);
    QTest::mouseClick(&curve, Qt::LeftButton);
    sliderOf(&curve)->setCurrentValue(1026);
    QVERIFY(wanted.isEmpty());
}

// The left button chooses; any other belongs to what is around.
void tst_SpineCurve::clicks()
{
    SpineCurve curve;
    curve.resize(400, 200);
    curve.setTable(tableOf(33), QString());
    const QSignalSpy wanted(&curve, &SpineCurve::rowWanted);
    QTest::mouseClick(&curve, Qt::MiddleButton, {}, QPoint(200, 100));
    QVERIFY(wanted.isEmpty());
    QTest::mouseClick(&curve, Qt::LeftButton, {}, QPoint(1, 100));
    QTest::mouseClick(&curve, Qt::LeftButton, {}, QPoint(399, 100));
    QCOMPARE(wanted.size(), 2);
    QCOMPARE(wanted.at(0).constFirst().toInt(), 0);
    QCOMPARE(wanted.at(1).constFirst().toInt(), 32);
}

void tst_SpineCurve::crossHairOfTheMouse()
{
    SpineCurve curve;
    showInBackground(&curve);
    curve.setTable(tableOf(33), QString());
    QCOMPARE(crossHair(&curve), QString());
    moveMouse(&curve, QPoint(1, 100));
    QVERIFY(crossHair(&curve).contains(u"1,026"_s)); // the first row has one as well
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&curve, &leave);
    QCOMPARE(crossHair(&curve), QString());
}

// At the chosen row; the mouse comes first, until a key is pressed.
void tst_SpineCurve::crossHairOfTheKeyboard()
{
    SpineCurve curve;
    curve.resize(400, 200);
    curve.setTable(tableOf(33), QString());
    curve.setRow(32);
    QCOMPARE(crossHair(&curve), QString());
    curve.show();
    curve.activateWindow();
    curve.setFocus();
    QTRY_VERIFY(curve.hasFocus());
    QVERIFY(crossHair(&curve).contains(u"1,154"_s));
    moveMouse(&curve, QPoint(1, 100));
    QVERIFY(crossHair(&curve).contains(u"1,026"_s));
    QTest::keyClick(&curve, Qt::Key_Right);
    QVERIFY(crossHair(&curve).contains(u"1,154"_s));
}

// Some styles draw a frame in the text colour of windows, which may be that of the ground here.
void tst_SpineCurve::focusInAnyStyle()
{
    SpineCurve curve;
    const std::unique_ptr<QStyle> style(QStyleFactory::create(u"Windows"_s));
    curve.setStyle(style.get());
    QPalette palette = PaletteColors::dark();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Base));
    palette.setColor(QPalette::Window, QColor(~palette.color(QPalette::Base).rgb() | 0xff000000)); // unlike the ground
    curve.setPalette(palette);
    curve.resize(400, 200);
    curve.setTable(tableOf(33), QString());
    curve.show();
    const QImage without = curve.grab().toImage();
    curve.activateWindow();
    curve.setFocus();
    QTRY_VERIFY(curve.hasFocus());
    const QImage with = curve.grab().toImage();
    int different = 0;
    for (int x = 0; x < with.width(); ++x)
        different += with.pixel(x, with.height() - 1) != without.pixel(x, with.height() - 1) ? 1 : 0;
    QVERIFY2(different > with.width() / 4, qPrintable(QString::number(different)));
    curve.setStyle(nullptr);
}

void tst_SpineCurve::isPaintedAgain()
{
    SpineCurve curve;
    showInBackground(&curve);
    const PaintCount paints(&curve);
    QVERIFY(paints.growsAfter([&] { curve.setTable(tableOf(33), QString()); }));
    QVERIFY(paints.growsAfter([&] { curve.setRow(3); }));
    QVERIFY(paints.growsAfter([&] { moveMouse(&curve, QPoint(1, 100)); }));
    QVERIFY(paints.staysAfter([&] { moveMouse(&curve, QPoint(1, 90)); })); // the same row
}

void tst_SpineCurve::slider_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("row");
    QTest::addColumn<QList<int>>("values"); // the least, the greatest, the step, the current one

    QTest::newRow("no table") << 0 << -1 << QList<int> { 0, 0, 0, 0 };
    QTest::newRow("nothing chosen") << 3 << -1 << QList<int> { 1026, 1034, 4, 0 };
    QTest::newRow("first") << 3 << 0 << QList<int> { 1026, 1034, 4, 1026 };
    QTest::newRow("last") << 3 << 2 << QList<int> { 1026, 1034, 4, 1034 };
    QTest::newRow("one row") << 1 << 0 << QList<int> { 1026, 1026, 0, 1026 };
    QTest::newRow("two rows") << 2 << 0 << QList<int> { 1026, 1030, 4, 1026 };
}

void tst_SpineCurve::slider()
{
    QFETCH(int, rows);
    QFETCH(int, row);
    SpineCurve curve;
    curve.setTable(tableOf(rows), QString());
    curve.setRow(row);
    const QAccessibleValueInterface *slider = sliderOf(&curve);
    const QList<int> values { slider->minimumValue().toInt(), slider->maximumValue().toInt(),
                              slider->minimumStepSize().toInt(), slider->currentValue().toInt() };
    QTEST(values, "values");
}

void tst_SpineCurve::sliderChooses()
{
    SpineCurve curve;
    curve.setTable(tableOf(33), QString());
    const QSignalSpy wanted(&curve, &SpineCurve::rowWanted);
    sliderOf(&curve)->setCurrentValue(1026);
    sliderOf(&curve)->setCurrentValue(1e9);
    QCOMPARE(wanted.size(), 2);
    QCOMPARE(wanted.at(0).constFirst().toInt(), 0);
    QCOMPARE(wanted.at(1).constFirst().toInt(), 32);
}

void tst_SpineCurve::german()
{
    QLocale::setDefault(QLocale(QLocale::German));
    SpineCurve curve;
    curve.setTable(tableOf(33), QString());
    const std::unique_ptr<Drawing> drawing = curve.drawing();
    QLocale::setDefault(QLocale(QLocale::English));
    curve.setRow(0);
    QVERIFY2(curve.reading().contains(u"1.026"_s), qPrintable(curve.reading()));
    PaintRecorder recorder;
    QPainter painter(&recorder);
    drawing->paint(&painter, PaintRecorder::dots(QRectF(0, 0, 160, 100)), 1);
    QVERIFY(recorder.text(u"1.0"_s).text.size() >= 5);
    QVERIFY(recorder.text(u"1,0"_s).text.isEmpty());
}

// It has its title, but none of the marks of the window.
void tst_SpineCurve::drawing()
{
    SpineCurve curve;
    showInBackground(&curve);
    curve.setTable(tableOf(33), u"Album (DUN9)"_s);
    curve.setRow(5);
    moveMouse(&curve, QPoint(200, 100));
    const std::unique_ptr<Drawing> drawing = curve.drawing();
    QCOMPARE(drawing->title(), u"Album (DUN9)"_s);
    PaintRecorder recorder;
    QPainter painter(&recorder);
    drawing->paint(&painter, PaintRecorder::dots(QRectF(0, 0, 160, 100)), 1);
    QCOMPARE(recorder.text(u"Album"_s).text, u"Album (DUN9)"_s);
    QVERIFY(recorder.text(u" mm · "_s).text.isEmpty());
    QVERIFY(!paintedTexts(&curve).join(u'|').contains(u"Album"_s));
}

// Those of the window; and the chosen row is marked.
void tst_SpineCurve::colors()
{
    SpineCurve curve;
    curve.resize(400, 200);
    curve.setPalette(PaletteColors::dark());
    curve.setTable(tableOf(33), QString());
    const QImage before = curve.grab().toImage();
    const PaletteColors colors(PaletteColors::dark());
    QCOMPARE(before.pixelColor(0, 0), colors.shade(0));
    curve.setRow(16);
    QVERIFY(curve.grab().toImage() != before);
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English));
    tst_SpineCurve test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SpineCurve.moc"
