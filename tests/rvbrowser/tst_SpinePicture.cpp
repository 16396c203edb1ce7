#include "PaintRecorder.h"

#include <SpineFont.h>
#include <SpinePicture.h>

#include <QPainter>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal POINT = PaintRecorder::POINT;
constexpr qreal PEN = 0.75 * POINT;

const QColor &paper()
{
    static const QColor theColor = PlotColors().band;
    return theColor;
}

PlotColors colors()
{
    PlotColors result;
    result.text = Qt::darkBlue;
    return result;
}

SpinePicture pictureOf(qreal width, const QString &text = u"DUN9"_s)
{
    SpinePicture result;
    result.setSpine({ 1034, 2, 1, width, 48 }, 0.5);
    result.setText(text);
    result.setColors(colors());
    return result;
}

/// Notes the sheet of a picture at a scale.
void paintSheet(PaintRecorder *recorder, const SpinePicture &picture, int reduction)
{
    QPainter painter(recorder);
    const QFont font = painter.font();
    const Drawing &drawing = picture;
    drawing.paint(&painter, PaintRecorder::dots(QRectF(QPointF(), drawing.sheetSize(reduction))), reduction);
    QCOMPARE(painter.font(), font); // what a caller has set stays
    QVERIFY(painter.transform().isIdentity());
}

}

class tst_SpinePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"QPainter"_s)); }

    void title();
    void sheetSize_data();
    void sheetSize();
    void spine_data();
    void spine();
    void width_data();
    void width();
    void text();
    void longText();
    void linesBelow();
    void noSpine();
};

void tst_SpinePicture::title()
{
    QCOMPARE(pictureOf(20).title(), u"DUN9 spine, page count 1034"_s);
}

// Any spine has room, and no piece is so short that its text cannot be read.
void tst_SpinePicture::sheetSize_data()
{
    QTest::addColumn<double>("width"); // of the spine
    QTest::addColumn<int>("reduction");
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("narrow") << 20.0 << 1 << QSizeF(85, 152);
    QTest::newRow("wide") << 100.0 << 1 << QSizeF(116, 152);
    QTest::newRow("wide, half as large") << 200.0 << 2 << QSizeF(116, 92);
    QTest::newRow("a fifth") << 20.0 << 5 << QSizeF(85, 56);
    QTest::newRow("a tenth") << 20.0 << 10 << QSizeF(85, 52);
}

void tst_SpinePicture::sheetSize()
{
    QFETCH(double, width);
    QFETCH(int, reduction);
    QTEST(pictureOf(width).sheetSize(reduction), "size");
}

void tst_SpinePicture::spine_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("reduction");

    QTest::newRow("scale 1 : 1") << 20.0 << 1;
    QTest::newRow("scale 1 : 2") << 20.0 << 2;
    QTest::newRow("thin") << 0.8 << 1;
}

// On white paper, in the middle of the sheet, with room for five lines and the arrows below; its sides are dotted.
void tst_SpinePicture::spine()
{
    QFETCH(double, width);
    QFETCH(int, reduction);
    const SpinePicture picture = pictureOf(width);
    const QSizeF sheet = picture.sheetSize(reduction);
    PaintRecorder recorder;
    paintSheet(&recorder, picture, reduction);
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const qreal shown = width / reduction;
    const qreal left = 42.5 - shown / 2;
    const qreal bottom = sheet.height() - 5 * line - 6 * POINT;
    QCOMPARE(recorder.rects.size(), 2);
    COMPARE_NEAR(recorder.filled(Qt::white).constFirst(), QRectF(0, 0, sheet.width(), sheet.height()));
    COMPARE_NEAR(recorder.filled(paper()).constFirst(), QRectF(left, 8, shown, bottom - 8));
    QCOMPARE(recorder.rects.constLast().pen.color(), PlotColors().marker);
    COMPARE_NEAR(recorder.rects.constLast().pen.widthF(), PEN);
    QVERIFY(recorder.rects.constLast().isSmooth);
    QCOMPARE(recorder.lines.size(), 5);
    const qreal sides[] = { left + 0.5 / reduction, left + shown - 0.5 / reduction };
    for (int i = 0; i < 2; ++i) {
        const PaintRecorder::Line &side = recorder.lines.at(i);
        QCOMPARE(side.pen.style(), Qt::DotLine);
        QCOMPARE(side.pen.color(), PlotColors().marker);
        COMPARE_NEAR(side.pen.widthF(), PEN);
        COMPARE_NEAR(side.line, QLineF(sides[i], 8, sides[i], bottom));
    }
}

void tst_SpinePicture::width_data()
{
    spine_data();
}

// Below the spine, from edge to edge, with a stroke at both ends; the number in the middle of the next line.
void tst_SpinePicture::width()
{
    QFETCH(double, width);
    QFETCH(int, reduction);
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(width), reduction);
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const QRectF spine = recorder.filled(paper()).constFirst();
    const qreal y = spine.bottom() + 6 * POINT;
    QCOMPARE(recorder.lines.size(), 5);
    COMPARE_NEAR(recorder.lines.at(2).line, QLineF(spine.left(), y, spine.right(), y));
    const qreal top = y - 3 * POINT;
    const qreal bottom = y + 3 * POINT;
    COMPARE_NEAR(recorder.lines.at(3).line, QLineF(spine.left(), top, spine.left(), bottom));
    COMPARE_NEAR(recorder.lines.at(4).line, QLineF(spine.right(), top, spine.right(), bottom));
    for (const int i : { 2, 3, 4 }) {
        QCOMPARE(recorder.lines.at(i).pen.color(), colors().text);
        COMPARE_NEAR(recorder.lines.at(i).pen.widthF(), PEN);
    }
    const PaintRecorder::Text text = recorder.text(u"%1 mm"_s.arg(width, 0, 'f', 1));
    COMPARE_NEAR(text.rect.center().x(), 42.5);
    COMPARE_NEAR(text.rect.center().y(), y + 3 * POINT + line / 2);
}

// Along the spine, from top to bottom. A pixel of its font is a tenth of a millimetre.
void tst_SpinePicture::text()
{
    for (const int reduction : { 1, 2 }) {
        PaintRecorder recorder;
        paintSheet(&recorder, pictureOf(20), reduction);
        const PaintRecorder::Text text = recorder.text(u"DUN9"_s);
        const QRectF spine = recorder.filled(paper()).constFirst();
        QCOMPARE(text.angle, 90.0);
        QCOMPARE(text.color, colors().text);
        QCOMPARE(text.font.pixelSize(), 48);
        const qreal height = QFontMetricsF(SpineFont::font(48)).height() / 10 / reduction;
        QVERIFY2(qAbs(text.rect.width() - height) < 0.3, qPrintable(QString::number(text.rect.width())));
        QVERIFY(qAbs(text.rect.center().x() - spine.center().x()) < 0.1);
        QVERIFY(qAbs(text.rect.center().y() - spine.center().y()) < 0.1);
        QCOMPARE(recorder.text(u"mm"_s).angle, 0.0); // only the text of the spine is turned
    }
}

// It keeps away from both ends by the width of a letter, and takes all the room between.
void tst_SpinePicture::longText()
{
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(20, QString(500, u'i')), 1);
    const PaintRecorder::Text text = recorder.text(u"iii"_s);
    const QRectF spine = recorder.filled(paper()).constFirst();
    const QFontMetricsF metrics(SpineFont::font(48));
    QVERIFY(text.text.endsWith(u'…'));
    const qreal letter = metrics.averageCharWidth() / 10;
    const qreal gap = (spine.height() - text.rect.height()) / 2;
    QVERIFY2(gap > letter - 0.1, qPrintable(QString::number(gap)));
    QVERIFY2(gap < letter + metrics.horizontalAdvance(u'i') / 20 + 0.1, qPrintable(QString::number(gap)));
}

// Page count and font, and the scale in the next line, half a line above the end of the sheet.
void tst_SpinePicture::linesBelow()
{
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(20), 2);
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const PaintRecorder::Text facts = recorder.text(u"page count"_s);
    QCOMPARE(facts.text, u"page count 1,034 · font up to 48 pt %1"_s.arg(SpineFont::family()));
    COMPARE_NEAR(facts.rect.center().x(), 42.5);
    COMPARE_NEAR(facts.rect.center().y(), 92 - 2 * line);
    const PaintRecorder::Text scale = recorder.text(u"scale"_s);
    QCOMPARE(scale.text, u"scale 1 : 2"_s);
    COMPARE_NEAR(scale.rect.center().x(), 42.5);
    COMPARE_NEAR(scale.rect.center().y(), 92 - line);
    for (const PaintRecorder::Text &text : { facts, scale }) {
        QCOMPARE(text.font.pointSizeF(), 8.0);
        QCOMPARE(text.color, colors().text);
    }
}

void tst_SpinePicture::noSpine()
{
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(0), 1);
    QCOMPARE(recorder.rects.size(), 1); // the paper
    QVERIFY(recorder.lines.isEmpty());
    QCOMPARE(recorder.texts.size(), 2); // the lines below
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English));
    tst_SpinePicture test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SpinePicture.moc"
