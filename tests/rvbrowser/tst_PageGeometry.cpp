#include <PageGeometry.h>

#include <RVCatalogueProduct.h>
#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class tst_PageGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data();
    void sizes();
    void hasNoPage_data();
    void hasNoPage();
    void surroundsThePageWithBleed();
    void barcodes();
    void placesBarcodesOnTheBleed();
    void takesAnyPlace();
};

namespace {

PageGeometry pageOf(const QByteArray &attributes, const QByteArray &barcodes = QByteArray())
{
    QByteArray text = "<p><product type='DUN9' pages='26' " + attributes + "><barcodes units='mm'>" + barcodes
            + "</barcodes></product></p>";
    QBuffer file(&text);
    file.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&file);
    return PageGeometry(reader.next());
}

}

void tst_PageGeometry::sizes_data()
{
    QTest::addColumn<QByteArray>("orientation");
    QTest::addColumn<QByteArray>("magnitude");
    QTest::addColumn<double>("area"); // in square centimetres
    QTest::addColumn<int>("comparison"); // of width and height

    QTest::newRow("portrait") << "portrait"_ba << "600cm2"_ba << 625.0 << -1;
    QTest::newRow("landscape") << "landscape"_ba << "600cm2"_ba << 625.0 << 1;
    QTest::newRow("square") << "square"_ba << "400cm2"_ba << 400.0 << 0;
    QTest::newRow("by another name") << "landscape"_ba << "A3"_ba << 1250.0 << 1;
}

void tst_PageGeometry::sizes()
{
    QFETCH(QByteArray, orientation);
    QFETCH(QByteArray, magnitude);
    QFETCH(double, area);
    const PageGeometry page = pageOf("orientation='" + orientation + "' space_magnitude='" + magnitude + "'");
    QVERIFY(page.isValid());
    const QSize size = page.usableSize();
    QTEST((size.width() > size.height()) - (size.width() < size.height()), "comparison");
    const double tenths = double(size.width()) * size.height(); // 10,000 to a square centimetre
    QVERIFY2(std::abs(tenths / 10000 - area) < area / 1000, qPrintable(QString::number(tenths)));
}

void tst_PageGeometry::hasNoPage_data()
{
    QTest::addColumn<QByteArray>("attributes");

    QTest::newRow("nothing") << ""_ba;
    QTest::newRow("no orientation") << "space_magnitude='600cm2'"_ba;
    QTest::newRow("no size class") << "orientation='portrait'"_ba;
    QTest::newRow("two orientations") << "orientation='portrait,landscape' space_magnitude='600cm2'"_ba;
    QTest::newRow("two size classes") << "orientation='portrait' space_magnitude='600cm2,900cm2'"_ba;
    QTest::newRow("every size class") << "orientation='portrait' space_magnitude='any'"_ba;
}

void tst_PageGeometry::hasNoPage()
{
    QFETCH(QByteArray, attributes);
    const PageGeometry page = pageOf(attributes);
    QVERIFY(!page.isValid());
    QVERIFY(!page.usableSize().isValid());
    QVERIFY(!PageGeometry().isValid());
}

void tst_PageGeometry::surroundsThePageWithBleed()
{
    const PageGeometry page = pageOf("orientation='square' space_magnitude='400cm2'");
    QCOMPARE(page.usableSize(), QSize(2000, 2000));
    QCOMPARE(page.usableRect(), QRect(30, 30, 2000, 2000));
    QCOMPARE(page.totalRect(), QRect(0, 0, 2060, 2060));
}

void tst_PageGeometry::barcodes()
{
    const PageGeometry page = pageOf("orientation='square' space_magnitude='400cm2'",
                                     "<barcode position_x='1' position_y='20' width='38' height='10' pageNr='7'/>"
                                     "<barcode position_x='2' position_y='20' width='38' height='10' pageNr='-1'/>"
                                     "<barcode position_x='3' position_y='20' width='38' height='10' pageNr='7'/>");
    QCOMPARE(page.barcodes().size(), 3);
    QCOMPARE(page.barcodePages(), (QList<int> { -1, 7 }));
    QVERIFY(pageOf("orientation='square' space_magnitude='400cm2'").barcodePages().isEmpty());
}

// A catalogue tells the lower left corner, counted from the usable area.
void tst_PageGeometry::placesBarcodesOnTheBleed()
{
    const PageGeometry page = pageOf("orientation='square' space_magnitude='400cm2'",
                                     "<barcode position_x='12' position_y='190' width='38' height='10' pageNr='2'/>");
    QCOMPARE(page.barcodeRect(page.barcodes().constFirst()), QRectF(150, 1830, 380, 100));
    QVERIFY(QRectF(page.usableRect()).contains(page.barcodeRect(page.barcodes().constFirst())));
}

void tst_PageGeometry::takesAnyPlace()
{
    const PageGeometry page = pageOf("orientation='square' space_magnitude='400cm2'",
                                     "<barcode position_x='1e300' position_y='1e300' width='38' height='10'/>");
    const QRectF rect = page.barcodeRect(page.barcodes().constFirst());
    QVERIFY(rect.left() > page.totalRect().right());
    QVERIFY(std::isfinite(rect.right()));
}

QTEST_APPLESS_MAIN(tst_PageGeometry)
#include "tst_PageGeometry.moc"
