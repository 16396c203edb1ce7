#include "CheckedCatalogue.h"

#include <RVProductType.h>

#include <QSizeF>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray barcode(const QByteArray &attributes, const QByteArray &attributesOfTheProduct = QByteArray())
{
    return "<p><product type='A' article_id='1' pages='26' " + attributesOfTheProduct
            + "><barcodes units='mm'><barcode " + attributes + "/></barcodes></product></p>";
}

/// A barcode of 38 by 10 mm that ends at this place.
QByteArray endingAt(const QByteArray &right, const QByteArray &bottom, const QByteArray &orientation,
                    const QByteArray &magnitude)
{
    return barcode("position_x='" + QByteArray::number(right.toInt() - 38) + "' position_y='" + bottom
                           + "' width='38' height='10' pageNr='2'",
                   "orientation='" + orientation + "' space_magnitude='" + magnitude + '\'');
}

}

class tst_RVBarcodeCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missing_data();
    void missing();
    void missingTexts();
    void usualPage_data();
    void usualPage();
    void overlap_data();
    void overlap();
    void exactPage_data();
    void exactPage();
    void exactPageText();
};

void tst_RVBarcodeCheck::missing_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const QString noSize = u"<barcode>: barcode-size-missing"_s;
    const QString noPage = u"<barcode>: barcode-page-missing"_s;
    const QByteArray place = "position_x='12' position_y='290' ";
    QTest::newRow("all") << barcode(place + "width='38' height='10' pageNr='2'") << QStringList();
    QTest::newRow("page 0") << barcode(place + "width='38' height='10' pageNr='0'") << QStringList();
    QTest::newRow("no width") << barcode(place + "height='10' pageNr='2'") << QStringList { noSize };
    QTest::newRow("no height") << barcode(place + "width='38' pageNr='2'") << QStringList { noSize };
    QTest::newRow("no page") << barcode(place + "width='38' height='10'") << QStringList { noPage };
    QTest::newRow("no size and no page") << barcode(place) << QStringList { noSize, noPage };
    QTest::newRow("width of 0") << barcode(place + "width='0' height='10' pageNr='2'")
                                << QStringList { u"width='0': barcode-invalid"_s };
    QTest::newRow("width is misspelt") << barcode(place + "widht='38' height='10' pageNr='2'")
                                       << QStringList { u"widht='38': attribute-misspelt"_s };
    QTest::newRow("width is misspelt, height is missing")
            << barcode(place + "widht='38' pageNr='2'") << QStringList { noSize, u"widht='38': attribute-misspelt"_s };
    QTest::newRow("no height, lower than one unit")
            << barcode("position_x='12' position_y='0.5' width='38' pageNr='2'") << QStringList { noSize };
    QTest::newRow("no height, left of the page") << barcode("position_x='-12' position_y='290' width='38' pageNr='2'")
                                                 << QStringList { noSize, u"position_x='-12': barcode-outside-page"_s };
    const QByteArray size = " width='38' height='10' ";
    QTest::newRow("higher than its lower edge, which is missing")
            << barcode("position_x='12' width='38' height='1.5' pageNr='2'")
            << QStringList { u"<barcode>: barcode-outside-page"_s };
    QTest::newRow("no page, twice") << barcode(place + size + "/><barcode " + place + size)
                                    << QStringList { noPage, noPage };
    QTest::newRow("page is impossible, position cannot be read")
            << barcode("position_x='12mm' position_y='290' pageNr='99'" + size)
            << QStringList { u"position_x='12mm': number-invalid"_s, u"pageNr='99': barcode-page-impossible"_s };
    QTest::newRow("width of 0, page is misspelt")
            << barcode(place + "width='0' height='10' pagNr='2'")
            << QStringList { u"width='0': barcode-invalid"_s, u"pagNr='2': attribute-misspelt"_s };
    QTest::newRow("page cannot be read, twice")
            << barcode(place + size + "pageNr='x'/><barcode " + place + size + "pageNr='y'")
            << QStringList { u"pageNr='x': number-invalid"_s, u"pageNr='y': number-invalid"_s };
    QTest::newRow("no image, height cannot be read")
            << barcode(place + "width='38' height='x' pageNr='2' image=''")
            << QStringList { u"height='x': number-invalid"_s, u"image='': barcode-invalid"_s };
    QTest::newRow("page is empty") << barcode(place + "width='38' height='10' pageNr=''")
                                   << QStringList { u"pageNr='': number-invalid"_s };
}

void tst_RVBarcodeCheck::missing()
{
    QFETCH(QByteArray, file);
    QTEST(CheckedCatalogue(file).rules(), "findings");
}

void tst_RVBarcodeCheck::missingTexts()
{
    QCOMPARE(
            CheckedCatalogue(barcode("position_y='290'")).texts(),
            (QStringList {
                    u"the barcode has no width and no height, so it takes 1 unit each; write how large it is"_s,
                    u"the barcode has no page number (pageNr), so it stands on page 0; write the page that it is on"_s }));
}

void tst_RVBarcodeCheck::usualPage_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const auto on = [](const char *situation, const QByteArray &file) {
        QTest::newRow(situation) << file << QStringList();
    };
    const auto off = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << QStringList { place + ": barcode-off-usual-page"_L1 };
    };
    on("corner of A4", endingAt("210", "297", "portrait", "600cm2"));
    on("corner of A4 on its side", endingAt("297", "210", "landscape", "600cm2"));
    on("corner of A5", endingAt("148", "210", "portrait", "310cm2"));
    on("corner of A6", endingAt("105", "148", "portrait", "150cm2"));
    on("corner of A3", endingAt("297", "420", "portrait", "1200cm2"));
    on("corner of 20 by 20", endingAt("200", "200", "square", "400cm2"));
    on("corner of 15 by 15", endingAt("150", "150", "square", "220cm2"));
    on("corner of 30 by 30", endingAt("300", "300", "square", "900cm2"));
    on("corner of 15 by 20", endingAt("150", "200", "portrait", "310cm2"));
    on("corner of a kitchen calendar", endingAt("150", "420", "portrait_slim", "600cm2"));
    on("corner of a panorama", endingAt("900", "130", "landscape_slim", "1200cm2"));
    on("corner of a poster", endingAt("700", "1000", "portrait", "2400cm2"));
    off("below an upright page", endingAt("50", "400", "portrait", "600cm2"), u"position_y='400'"_s);
    off("right of a wide page", endingAt("420", "50", "landscape", "600cm2"), u"position_x='382'"_s);
    off("below a wide page", endingAt("260", "265", "landscape", "600cm2"), u"position_y='265'"_s);
    off("right of an upright page", endingAt("265", "100", "portrait", "600cm2"), u"position_x='227'"_s);
    off("right of an upright page that is nearly square", endingAt("265", "285", "portrait", "600cm2"),
        u"position_x='227'"_s);
    on("upright page, unknown size", endingAt("50", "400", "portrait", "normal"));
    on("upright or square page", endingAt("260", "270", "portrait, square", "600cm2"));
    off("neither upright nor square page", endingAt("300", "50", "portrait, square", "600cm2"), u"position_x='262'"_s);
    on("no orientation",
       barcode("position_x='12' position_y='400' width='38' height='10' pageNr='2'", "space_magnitude='600cm2'"));
    on("orientation is none", endingAt("50", "400", "none", "600cm2"));
    on("orientation is any", endingAt("50", "400", "all", "600cm2"));
    on("largest area of a class", endingAt("349", "218", "landscape", "600cm2"));
    const auto wide = [](const QByteArray &place) {
        return barcode("position_x='" + place + "' position_y='50' width='38' height='10' pageNr='2'",
                       "orientation='landscape' space_magnitude='600cm2'");
    };
    on("right edge of the widest usual page", wide("352.6"));
    off("right of the widest usual page", wide("352.7"), u"position_x='352.7'"_s);
    const auto high = [](const QByteArray &place) {
        return barcode("position_x='12' position_y='" + place + "' width='38' height='10' pageNr='2'",
                       "orientation='portrait' space_magnitude='600cm2'");
    };
    on("lower edge of the slimmest usual page", high("390.6"));
    off("below the slimmest usual page", high("390.7"), u"position_y='390.7'"_s);
    on("lower edge of the highest slim page", endingAt("50", "195", "landscape_slim", "600cm2"));
    off("below the highest slim page", endingAt("50", "196", "landscape_slim", "600cm2"), u"position_y='196'"_s);
    const auto outside = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << QStringList { place + ": barcode-outside-page"_L1 };
    };
    outside("smallest area of the next class", endingAt("350", "218", "landscape", "600cm2"), u"position_x='312'"_s);
    off("right edge of the widest upright page", endingAt("276", "50", "portrait", "600cm2"), u"position_x='238'"_s);
    outside("right of the widest upright page", endingAt("277", "50", "portrait", "600cm2"), u"position_x='239'"_s);
    off("lower edge of the highest wide page", endingAt("50", "276", "landscape", "600cm2"), u"position_y='276'"_s);
    outside("below the highest wide page", endingAt("50", "277", "landscape", "600cm2"), u"position_y='277'"_s);
    off("right edge of the widest page", endingAt("873", "50", "landscape", "600cm2"), u"position_x='835'"_s);
    outside("right of the widest page", endingAt("874", "50", "landscape", "600cm2"), u"position_x='836'"_s);
    on("right edge of the longest page", endingAt("3000", "50", "none", "normal"));
    on("lower edge of the longest page", endingAt("50", "3000", "none", "normal"));
    QTest::newRow("right of the longest page")
            << barcode("position_x='2990.1' position_y='50' width='10' height='10' pageNr='2'")
            << QStringList { u"position_x='2990.1': barcode-outside-page"_s };
    QTest::newRow("below the longest page")
            << barcode("position_x='50' position_y='3000.1' width='10' height='10' pageNr='2'")
            << QStringList { u"position_y='3000.1': barcode-outside-page"_s };
    outside("right of and below the longest page", endingAt("3001", "3001", "none", "normal"), u"position_y='3001'"_s);
    const QByteArray below = "position_x='12' position_y='400' width='38' height='10' pageNr='2'";
    QTest::newRow("twice below an upright page")
            << barcode(below + "/><barcode " + below, "orientation='portrait' space_magnitude='600cm2'")
            << QStringList { u"position_y='400': barcode-off-usual-page"_s,
                             u"position_y='400': barcode-off-usual-page"_s };
    QTest::newRow("below every page") << endingAt("50", "900", "portrait", "600cm2")
                                      << QStringList { u"position_y='900': barcode-outside-page"_s };
}

void tst_RVBarcodeCheck::usualPage()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    QTEST(CheckedCatalogue(file).rules(), "findings");
}

void tst_RVBarcodeCheck::overlap_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<bool>("isOverlap");

    QTest::newRow("a tenth at the left") << QByteArray("position_x='12.1' position_y='100'") << true;
    QTest::newRow("beside it at the left") << QByteArray("position_x='12' position_y='100'") << false;
    QTest::newRow("a tenth at the right") << QByteArray("position_x='87.9' position_y='100'") << true;
    QTest::newRow("beside it at the right") << QByteArray("position_x='88' position_y='100'") << false;
    QTest::newRow("a tenth above") << QByteArray("position_x='50' position_y='90.1'") << true;
    QTest::newRow("beside it above") << QByteArray("position_x='50' position_y='90'") << false;
    QTest::newRow("a tenth below") << QByteArray("position_x='50' position_y='109.9'") << true;
    QTest::newRow("beside it below") << QByteArray("position_x='50' position_y='110'") << false;
}

// The lower edge is the position of a barcode.
void tst_RVBarcodeCheck::overlap()
{
    QFETCH(QByteArray, place);
    QFETCH(bool, isOverlap);
    const QByteArray size = " width='38' height='10' pageNr='2'";
    const QByteArray file = barcode("position_x='50' position_y='100'" + size + "/><barcode " + place + size);
    const QStringList overlap { u"<barcode>: barcode-overlap"_s };
    QCOMPARE(CheckedCatalogue(file).rules(), isOverlap ? overlap : QStringList());
}

void tst_RVBarcodeCheck::exactPage_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    QTest::newRow("corner") << endingAt("210", "297", "portrait", "600cm2") << QStringList();
    QTest::newRow("corner of a page with the proportions of another class")
            << endingAt("210", "297", "square", "50cm2") << QStringList();
    QTest::newRow("below") << endingAt("210", "298", "portrait", "600cm2")
                           << QStringList { u"position_y='298': barcode-outside-page"_s };
    QTest::newRow("right") << endingAt("211", "297", "portrait", "600cm2")
                           << QStringList { u"position_x='173': barcode-outside-page"_s };
    QTest::newRow("a tenth too far right")
            << barcode("position_x='172.1' position_y='290' width='38' height='10' pageNr='2'")
            << QStringList { u"position_x='172.1': barcode-outside-page"_s };
    QTest::newRow("a tenth too low") << barcode("position_x='12' position_y='297.1' width='38' height='10' pageNr='2'")
                                     << QStringList { u"position_y='297.1': barcode-outside-page"_s };
    QTest::newRow("as far right as below") << endingAt("211", "298", "portrait", "600cm2")
                                           << QStringList { u"position_y='298': barcode-outside-page"_s };
    QTest::newRow("right edge without a position")
            << barcode("position_y='290' width='209' height='10' pageNr='2'") << QStringList();
    const QByteArray place = "position_x='12' position_y='290' width='38' height='10' pageNr='2'";
    QTest::newRow("one over the other") << barcode(place + "/><barcode " + place)
                                        << QStringList { u"<barcode>: barcode-overlap"_s };
    QTest::newRow("further below than right") << endingAt("211", "300", "portrait", "600cm2")
                                              << QStringList { u"position_y='300': barcode-outside-page"_s };
    QTest::newRow("product without a configured page size")
            << endingAt("210", "300", "portrait", "600cm2").replace("'A'", "'B'") << QStringList();
    QTest::newRow("left") << barcode("position_x='-1' position_y='290' width='38' height='10' pageNr='2'")
                          << QStringList { u"position_x='-1': barcode-outside-page"_s };
}

RVCatalogueCheck withPageOfA()
{
    RVCatalogueCheck check;
    check.setPageSize(RVProductType(u"A"_s), QSizeF(210, 297));
    return check;
}

void tst_RVBarcodeCheck::exactPage()
{
    QFETCH(QByteArray, file);
    QTEST(CheckedCatalogue(file, withPageOfA()).rules(), "findings");
}

void tst_RVBarcodeCheck::exactPageText()
{
    QCOMPARE(
            CheckedCatalogue(endingAt("210", "300", "portrait", "600cm2"), withPageOfA()).texts(),
            QStringList { u"the barcode ends 210 mm from the left and 300 mm from the top, but the page has 210 by 297 "
                          "mm; move it, or make it smaller"_s });
}

QTEST_MAIN(tst_RVBarcodeCheck)
#include "tst_RVBarcodeCheck.moc"
