#include <PagePicture.h>

#include <RVCatalogueProduct.h>
#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
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

QImage sheetOf(const PagePicture &picture, int dotsPerMillimetre)
{
    const QSizeF size = picture.sheetSize(1) * dotsPerMillimetre;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsPerMillimetre * 1000);
    image.setDotsPerMeterY(dotsPerMillimetre * 1000);
    QPainter painter(&image);
    static_cast<const Drawing &>(picture).paint(&painter, image.rect(), 1);
    return image;
}

}

class tst_PagePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void legend_data();
    void legend();
    void noPage();
    void barcodeAt();
    void sheetToScale();
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

// Every barcode is somewhere, and the corner of the drawing is none.
void tst_PagePicture::barcodeAt()
{
    const QFontMetricsF metrics { QFont() };
    for (const QSize size : { QSize(300, 160), QSize(180, 140), QSize(200, 700) }) {
        const PagePicture picture(pageOf(QByteArray(INSIDE) + OUTSIDE), 2);
        const QRectF rect(QPointF(), size);
        int hits = 0;
        for (int y = 0; y < size.height(); y += 3) {
            for (int x = 0; x < size.width(); x += 3)
                hits += picture.barcodeAt(QPointF(x, y), rect, metrics) == 0;
        }
        QVERIFY2(hits > 2, qPrintable(QString::number(hits)));
        QCOMPARE(picture.barcodeAt(QPointF(0, 0), rect, metrics), -1);
    }
}

// The page with its bleed is 210.1 x 312.2 mm, and a millimetre of the sheet is one.
void tst_PagePicture::sheetToScale()
{
    PagePicture picture(pageOf(INSIDE), 2);
    picture.setProductName(u"DUN9"_s);
    QCOMPARE(picture.title(), u"DUN9 page 2"_s);
    const QImage image = sheetOf(picture, 4);
    const QColor bleed(0xf6, 0xd5, 0xd5);
    QRect page;
    for (int y = 0; y < 325 * 4; ++y) { // without the legend
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == bleed)
                page |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY2(qAbs(page.width() - 840) <= 3, qPrintable(QString::number(page.width())));
    QVERIFY2(qAbs(page.height() - 1249) <= 3, qPrintable(QString::number(page.height())));
    QVERIFY(page.left() >= 7 * 4 && page.top() >= 7 * 4);
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
