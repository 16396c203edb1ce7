#include "PaintRecorder.h"

#include <PagePicture.h>

#include <RVCatalogueProduct.h>
#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A product of the size class 600 cm² with these barcodes, whose place is that of their lower left corner.
PageGeometry pageOf(const QByteArray &barcodes, const QByteArray &size = "600cm2")
{
    QByteArray text = "<p><product type='DUN9' orientation='portrait' space_magnitude='" + size
            + "' pages='26'><barcodes units='mm'>" + barcodes + "</barcodes></product></p>";
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&file);
    return PageGeometry(reader.next());
}

constexpr char INSIDE[] = "<barcode position_x='12' position_y='250' width='38' height='10' pageNr='2'/>";
constexpr char OUTSIDE[] = "<barcode position_x='12' position_y='400' width='38' height='10' pageNr='7'/>";

/// Left of the page, and above it.
constexpr char BESIDE[] = "<barcode position_x='-20' position_y='-30' width='38' height='10' pageNr='3'/>";

constexpr qreal POINT = PaintRecorder::POINT;
constexpr qreal PEN = 0.75 * POINT;
const QColor BLEED(0xf6, 0xd5, 0xd5);
const QColor CUT(0xb0, 0x60, 0x60);
const QColor INK(0x20, 0x20, 0x20);
const QColor WRONG(0xd0, 0x20, 0x20);

PlotColors colors()
{
    PlotColors result;
    result.text = Qt::darkBlue;
    return result;
}

PagePicture pictureOf(const QByteArray &barcodes, int page)
{
    PagePicture result(pageOf(barcodes), page);
    result.setProductName(u"DUN9"_s);
    result.setColors(colors());
    return result;
}

/// Notes the sheet of a picture at a scale.
void paintSheet(PaintRecorder *recorder, const Drawing &drawing, int reduction = 1)
{
    QPainter painter(recorder);
    const QFont font = painter.font();
    drawing.paint(&painter, PaintRecorder::dots(QRectF(QPointF(), drawing.sheetSize(reduction))), reduction);
    QCOMPARE(painter.font(), font); // what a caller has set stays
    QVERIFY(painter.transform().isIdentity());
}

/// Notes a picture in a rectangle; with the font of sheets.
void paintFitting(PaintRecorder *recorder, const PagePicture &picture, const QRectF &rect)
{
    QPainter painter(recorder);
    painter.setFont(Drawing::textFont(8));
    picture.paintFitting(&painter, PaintRecorder::dots(rect));
}

/// The bars inside of a rectangle: a letter for each of the 35 parts of its width.
QString bars(const PaintRecorder &recorder, const QRectF &place, const QColor &color)
{
    QString result(35, u'.');
    for (const QRectF &bar : recorder.filled(color)) {
        if (difference(bar.top(), place.top()).isEmpty() && difference(bar.bottom(), place.bottom()).isEmpty()) {
            const int begin = qRound((bar.left() - place.left()) * 35 / place.width());
            const int count = qRound(bar.width() * 35 / place.width());
            result.replace(begin, count, QString(count, u'I'));
        }
    }
    return result;
}

const QString &pattern()
{
    static const QString theBars = u"II.I.III.I..I.II...I.I..III.II.I.II"_s;
    return theBars;
}

}

class tst_PagePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u"QPainter"_s)); }

    void legend_data();
    void legend();
    void noPage();
    void barcodeAt();
    void title();
    void sheetSize_data();
    void sheetSize();
    void page_data();
    void page();
    void sizes();
    void barcodeOnTheSheet_data();
    void barcodeOnTheSheet();
    void legendOnTheSheet();
    void symbols_data();
    void symbols();
    void emptySheet();
    void legendBeside();
    void legendBelow();
    void noRoom();
    void hugePlaces();
};

void tst_PagePicture::legend_data()
{
    QTest::addColumn<QByteArray>("barcodes");
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("lines");

    const QString trim = u"trim 204.1 × 306.2 mm, assumed"_s;
    const QString bleed = u"bleed 3.0 mm, assumed"_s;
    QTest::newRow("no barcode") << QByteArray() << 0 << QStringList { trim, bleed };
    QTest::newRow("one") << QByteArray(INSIDE) << 2
                         << QStringList { trim, bleed, u"barcode 38.0 × 10.0 mm at 12.0, 240.0"_s };
    QTest::newRow("of another page") << QByteArray(INSIDE) << 7 << QStringList { trim, bleed };
    QTest::newRow("outside") << QByteArray(OUTSIDE) << 7
                             << QStringList { trim, bleed,
                                              u"barcode 38.0 × 10.0 mm at 12.0, 390.0, outside of the trim"_s };
    QTest::newRow("more than can be listed")
            << QByteArray(INSIDE).repeated(9) << 2
            << QStringList { trim, bleed } + QStringList(6, u"barcode 38.0 × 10.0 mm at 12.0, 240.0"_s);
}

void tst_PagePicture::legend()
{
    QFETCH(QByteArray, barcodes);
    QFETCH(int, page);
    QTEST(PagePicture(pageOf(barcodes), page).legend(), "lines");
}

void tst_PagePicture::noPage()
{
    const PagePicture picture(pageOf(INSIDE, "none"), 2);
    QCOMPARE(picture.legend(), QStringList());
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    const QImage before = image;
    QPainter painter(&image);
    picture.paintFitting(&painter, image.rect());
    QCOMPARE(picture.barcodeAt(QPointF(150, 100), image.rect(), QFontMetricsF(painter.font())), -1);
    painter.end();
    QCOMPARE(image, before);
}

// A barcode is found where it is painted, and nowhere else; of two, the last one is on top.
void tst_PagePicture::barcodeAt()
{
    constexpr char second[] = "<barcode position_x='31' position_y='250' width='38' height='10' pageNr='2'/>";
    const PagePicture picture(pageOf(QByteArray(INSIDE) + OUTSIDE + second), 2);
    for (const QSizeF size : { QSizeF(60, 320), QSizeF(500, 140) }) {
        const QRectF rect(QPointF(20, 30), size);
        PaintRecorder recorder;
        paintFitting(&recorder, picture, rect);
        const QFontMetricsF metrics(Drawing::textFont(8), &recorder);
        const auto found = [&](const QPointF &place) {
            return picture.barcodeAt(place * PaintRecorder::DOTS_PER_MILLIMETRE, PaintRecorder::dots(rect), metrics);
        };
        const QList<QRectF> white = recorder.filled(Qt::white); // the page, then the barcodes
        const QRectF first = white.at(1);
        QCOMPARE(found(first.center() - QPointF(first.width() / 4, 0)), 0);
        QCOMPARE(found(first.center() + QPointF(first.width() / 4, 0)), 1);
        QCOMPARE(found(white.at(2).center()), 1);
        QCOMPARE(found(first.topLeft() - QPointF(0.1, 0.1)), -1);
        QCOMPARE(found(first.topLeft() + QPointF(0.1, 0.1)), 0);
        QCOMPARE(found(rect.topLeft()), -1);
    }
}

void tst_PagePicture::title()
{
    QCOMPARE(pictureOf(INSIDE, 2).title(), u"DUN9 page 2"_s);
    QCOMPARE(pictureOf(INSIDE, 1).title(), u"DUN9 page"_s); // one page is like another
}

// The page with its bleed is 210.1 × 312.2 mm.
void tst_PagePicture::sheetSize_data()
{
    QTest::addColumn<QByteArray>("barcodes");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("reduction");
    QTest::addColumn<QSizeF>("size");

    QTest::newRow("no barcode") << QByteArray() << 2 << 1 << QSizeF(231, 351);
    QTest::newRow("barcode") << QByteArray(INSIDE) << 2 << 1 << QSizeF(231, 356);
    QTest::newRow("half as large") << QByteArray(INSIDE) << 2 << 2 << QSizeF(126, 200);
    QTest::newRow("narrow") << QByteArray(INSIDE) << 2 << 5 << QSizeF(101, 106);
    QTest::newRow("barcode below") << QByteArray(OUTSIDE) << 7 << 1 << QSizeF(231, 446);
    QTest::newRow("barcode beside") << QByteArray(BESIDE) << 3 << 1 << QSizeF(248, 393);
}

void tst_PagePicture::sheetSize()
{
    QFETCH(QByteArray, barcodes);
    QFETCH(int, page);
    QFETCH(int, reduction);
    QTEST(pictureOf(barcodes, page).sheetSize(reduction), "size");
}

void tst_PagePicture::page_data()
{
    QTest::addColumn<QByteArray>("barcodes");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("reduction");
    QTest::addColumn<QRectF>("total"); // with bleed

    QTest::newRow("scale 1 : 1") << QByteArray(INSIDE) << 2 << 1 << QRectF(10.45, 8, 210.1, 312.2);
    QTest::newRow("scale 1 : 2") << QByteArray(INSIDE) << 2 << 2 << QRectF(10.475, 8, 105.05, 156.1);
    QTest::newRow("barcode beside") << QByteArray(BESIDE) << 3 << 1 << QRectF(27.45, 45, 210.1, 312.2);
}

void tst_PagePicture::page()
{
    QFETCH(QByteArray, barcodes);
    QFETCH(int, page);
    QFETCH(int, reduction);
    QFETCH(QRectF, total);
    const PagePicture picture = pictureOf(barcodes, page);
    PaintRecorder recorder;
    paintSheet(&recorder, picture, reduction);
    const PaintRecorder::Rect paper = recorder.rects.at(0);
    QCOMPARE(paper.fill, QColor(Qt::white));
    COMPARE_NEAR(paper.rect, QRectF(QPointF(), picture.sheetSize(reduction)));
    const PaintRecorder::Rect bleed = recorder.rects.at(1);
    QCOMPARE(bleed.fill, BLEED);
    QCOMPARE(bleed.pen.style(), Qt::SolidLine);
    COMPARE_NEAR(bleed.rect, total);
    const PaintRecorder::Rect trim = recorder.rects.at(2);
    QCOMPARE(trim.fill, QColor(Qt::white));
    QCOMPARE(trim.pen.style(), Qt::DashLine);
    const qreal margin = 3.0 / reduction;
    COMPARE_NEAR(trim.rect, total.adjusted(margin, margin, -margin, -margin));
    for (const PaintRecorder::Rect &rect : { bleed, trim }) {
        QCOMPARE(rect.pen.color(), CUT);
        COMPARE_NEAR(rect.pen.widthF(), PEN);
        QVERIFY(rect.isSmooth);
    }
}

// The width stands below the page and the height on its right, in the middle.
void tst_PagePicture::sizes()
{
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(INSIDE, 2));
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const PaintRecorder::Text width = recorder.text(u"204.1 mm"_s);
    QCOMPARE(width.angle, 0.0);
    COMPARE_NEAR(width.rect.center().x(), 115.5);
    COMPARE_NEAR(width.rect.center().y(), 320.2 + POINT + line / 2);
    const PaintRecorder::Text height = recorder.text(u"306.2 mm"_s);
    QCOMPARE(height.angle, 90.0);
    COMPARE_NEAR(height.rect.center().x(), 220.55 + POINT + line / 2);
    COMPARE_NEAR(height.rect.center().y(), 164.1);
    for (const PaintRecorder::Text &text : { width, height })
        QCOMPARE(text.color, colors().text);
}

void tst_PagePicture::barcodeOnTheSheet_data()
{
    QTest::addColumn<QByteArray>("barcode");
    QTest::addColumn<int>("page");
    QTest::addColumn<QRectF>("place");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("pen"); // in points

    QTest::newRow("inside") << QByteArray(INSIDE) << 2 << QRectF(25.45, 251, 38, 10) << INK << 0.4;
    QTest::newRow("outside") << QByteArray(OUTSIDE) << 7 << QRectF(25.45, 401, 38, 10) << WRONG << 1.1;
}

// One that is outside of the page is red and has a strong frame.
void tst_PagePicture::barcodeOnTheSheet()
{
    QFETCH(QByteArray, barcode);
    QFETCH(int, page);
    QFETCH(QRectF, place);
    QFETCH(QColor, color);
    QFETCH(double, pen);
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(barcode, page));
    COMPARE_NEAR(recorder.filled(Qt::white).at(2), place);
    QCOMPARE(bars(recorder, place, color), pattern());
    const QList<QRectF> symbols = recorder.filled(Qt::white);
    QCOMPARE(bars(recorder, symbols.constLast(), color), pattern());
    int frames = 0;
    for (const PaintRecorder::Rect &rect : std::as_const(recorder.rects)) {
        if (!rect.fill.isValid()) {
            ++frames;
            QCOMPARE(rect.pen.color(), color);
            COMPARE_NEAR(rect.pen.widthF(), pen * POINT);
        }
    }
    QCOMPARE(frames, 2);
}

// Below the page and its width, at the left margin; its last line tells title and scale.
void tst_PagePicture::legendOnTheSheet()
{
    PaintRecorder recorder;
    paintSheet(&recorder, pictureOf(INSIDE, 2), 2);
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const QStringList lines { u"trim 204.1 × 306.2 mm, assumed"_s, u"bleed 3.0 mm, assumed"_s,
                              u"barcode 38.0 × 10.0 mm at 12.0, 240.0"_s, u"DUN9 page 2, scale 1 : 2"_s };
    for (int i = 0; i < lines.size(); ++i) {
        const PaintRecorder::Text text = recorder.text(lines.at(i));
        COMPARE_NEAR(text.rect.left(), 8 + 2 * line);
        COMPARE_NEAR(text.rect.center().y(), 8 + 156.1 + 9 + (i + 0.5) * line);
        QCOMPARE(text.color, colors().text);
        QCOMPARE(text.font.pointSizeF(), 8.0);
    }
    QCOMPARE(recorder.texts.size(), lines.size() + 2); // and the sizes at the page
}

void tst_PagePicture::symbols_data()
{
    QTest::addColumn<int>("barcodes");
    QTest::addColumn<int>("symbols"); // of barcodes

    QTest::newRow("none") << 0 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("more than can be listed") << 9 << 6;
}

// In front of each line but the last there is a piece of what it speaks of.
void tst_PagePicture::symbols()
{
    QFETCH(int, barcodes);
    QFETCH(int, symbols);
    const PagePicture picture = pictureOf(QByteArray(INSIDE).repeated(barcodes), 2);
    PaintRecorder recorder;
    paintSheet(&recorder, picture);
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const auto place = [line](int i) {
        return QRectF(8 + 0.1 * line, 329.2 + (i + 0.2) * line, 1.6 * line, 0.6 * line);
    };
    const QList<QRectF> white = recorder.filled(Qt::white);
    QCOMPARE(white.size(), 2 + barcodes + 1 + symbols); // paper and trim, barcodes, symbols of both
    COMPARE_NEAR(white.at(2 + barcodes), place(0));
    COMPARE_NEAR(recorder.filled(BLEED).constLast(), place(1));
    for (int i = 0; i < symbols; ++i)
        COMPARE_NEAR(white.at(2 + barcodes + 1 + i), place(2 + i));
    QList<Qt::PenStyle> styles;
    for (const PaintRecorder::Rect &rect : std::as_const(recorder.rects)) {
        if (rect.pen.color() == CUT) {
            styles += rect.pen.style();
            COMPARE_NEAR(rect.pen.widthF(), PEN);
        }
    }
    QCOMPARE(styles, (QList<Qt::PenStyle> { Qt::SolidLine, Qt::DashLine, Qt::DashLine, Qt::SolidLine }));
}

void tst_PagePicture::emptySheet()
{
    PagePicture picture;
    PlotColors colors;
    colors.background = Qt::yellow;
    picture.setColors(colors);
    PaintRecorder recorder;
    paintSheet(&recorder, picture);
    QCOMPARE(recorder.rects.size(), 1);
    QCOMPARE(recorder.rects.constFirst().fill, QColor(Qt::yellow));
    QVERIFY(recorder.texts.isEmpty());
}

// On the right where there is room, as wide as its longest line; the page is as high as it can be with its width below.
void tst_PagePicture::legendBeside()
{
    PaintRecorder recorder;
    paintFitting(&recorder, pictureOf(INSIDE, 2), QRectF(20, 30, 500, 140));
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const PaintRecorder::Text longest = recorder.text(u"barcode 38.0 × 10.0 mm at 12.0, 240.0"_s);
    const qreal legend = longest.rect.width() + 2 * line;
    COMPARE_NEAR(longest.rect.right(), 520);
    COMPARE_NEAR(recorder.text(u"trim"_s).rect.left(), longest.rect.left());
    COMPARE_NEAR(recorder.text(u"trim"_s).rect.top(), 30);
    const qreal height = 140 - line;
    const qreal width = height * 210.1 / 312.2;
    const qreal centre = 20 + (500 - legend - 0.7 * line - line) / 2;
    COMPARE_NEAR(recorder.filled(BLEED).constFirst(), QRectF(centre - width / 2, 30, width, height));
}

// A line that is too long for the room loses its end.
void tst_PagePicture::legendBelow()
{
    PaintRecorder recorder;
    paintFitting(&recorder, pictureOf(INSIDE, 2), QRectF(20, 30, 50, 320));
    const qreal line = recorder.lineHeight(Drawing::textFont(8));
    const PaintRecorder::Text trim = recorder.text(u"trim"_s);
    COMPARE_NEAR(trim.rect.left(), 20 + 2 * line);
    COMPARE_NEAR(trim.rect.top(), 350 - 3 * line);
    QVERIFY(recorder.text(u"barcode"_s).text.endsWith(u'…'));
    const qreal free = 70 - recorder.text(u"barcode"_s).rect.right();
    QVERIFY2(free > -0.1 && free < 2 * line, qPrintable(QString::number(free)));
    const qreal width = 50 - line;
    const qreal height = width * 312.2 / 210.1;
    const qreal centre = 30 + (320 - 3 * line - 0.7 * line - line) / 2;
    COMPARE_NEAR(recorder.filled(BLEED).constFirst(), QRectF(20, centre - height / 2, width, height));
}

// The page vanishes rather than being turned over.
void tst_PagePicture::noRoom()
{
    PaintRecorder recorder;
    paintFitting(&recorder, pictureOf(INSIDE, 2), QRectF(0, 0, 2, 2));
    COMPARE_NEAR(recorder.filled(BLEED).constFirst().size().width(), 0);
    // A legend beside takes at most seven tenths of the width.
    PaintRecorder flat;
    paintFitting(&flat, pictureOf(INSIDE, 2), QRectF(0, 0, 60, 20));
    const qreal line = flat.lineHeight(Drawing::textFont(8));
    COMPARE_NEAR(flat.text(u"trim"_s).rect.left(), 60 - 42 + 2 * line);
}

// A barcode may stand as far away as numbers go; the sheet is reduced until it fits.
void tst_PagePicture::hugePlaces()
{
    const PagePicture picture(pageOf("<barcode position_x='1e9' position_y='-1e9' width='38' height='10' "
                                     "pageNr='2'/>"),
                              2);
    const int reduction = picture.reductionFor(QSizeF(700, 700));
    QVERIFY(reduction > 1);
    const QSizeF sheet = picture.sheetSize(reduction);
    QVERIFY(sheet.width() <= 700 && sheet.height() <= 700);
    QImage image(300, 200, QImage::Format_RGB32);
    QPainter painter(&image);
    picture.paintFitting(&painter, image.rect());
    static_cast<const Drawing &>(picture).paint(&painter, image.rect(), reduction);
}

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::English));
    tst_PagePicture test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PagePicture.moc"
