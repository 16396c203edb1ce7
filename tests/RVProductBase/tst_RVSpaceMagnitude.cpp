#include "AttributeTest.h"

#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVSpaceMagnitude.h>

#include <QFont>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

RVSpaceMagnitude magnitude(int value)
{
    return RVSpaceMagnitude(RVSpaceMagnitudeEnum(value));
}

}

class tst_RVSpaceMagnitude : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void listsOfNamedCombinations();
    void areas_data();
    void areas();
    void estimates_data();
    void estimates();
    void layoutHints_data();
    void layoutHints();
    void photosOnA4();
    void scaleFactors_data();
    void scaleFactors();
    void scaleFactorsOfTheInvalid();
    void adaptsPointSizes();
    void adaptsPixelSizes();
    void keepsFontsWithoutAFactor_data();
    void keepsFontsWithoutAFactor();
    void keepsFontsThatWouldHaveNoSize_data();
    void keepsFontsThatWouldHaveNoSize();
    void displayNames_data();
    void displayNames();
    void combinationsHaveNoName();
    void readsDisplayNames_data();
    void readsDisplayNames();
    void nameTable();
    void debugOutput();
};

void tst_RVSpaceMagnitude::keywordTable()
{
    const KeywordTableTest<RVSpaceMagnitude> test(
            {
                    { 1, { u"50cm2"_s } },
                    { 2, { u"150cm2"_s, u"A6"_s } },
                    { 4, { u"200cm2"_s } },
                    { 8, { u"220cm2"_s } },
                    { 16, { u"280cm2"_s } },
                    { 32, { u"310cm2"_s, u"A5"_s } },
                    { 64, { u"400cm2"_s } },
                    { 128, { u"600cm2"_s, u"A4"_s } },
                    { 256, { u"900cm2"_s } },
                    { 512, { u"1200cm2"_s, u"A3"_s } },
                    { 1024, { u"2000cm2"_s } },
                    { 2048, { u"2400cm2"_s, u"A2"_s } },
                    { 2812, { u"normal"_s } },
                    { 1280, { u"xl"_s } },
            },
            u"any"_s, 4095);
    test.check();
}

void tst_RVSpaceMagnitude::listsOfNamedCombinations()
{
    QCOMPARE(magnitude(2812).encodeCSV(), u"200cm2, 220cm2, 280cm2, 310cm2, 400cm2, 600cm2, 1200cm2, 2400cm2"_s);
    QCOMPARE(magnitude(1280).encodeCSV(), u"900cm2, 2000cm2"_s);
    QCOMPARE(magnitude(3).encode(), u"any"_s);
    QCOMPARE(int(RVSpaceMagnitude(u"A4, A5"_s).value()), 160);
}

void tst_RVSpaceMagnitude::areas_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("value");
    const int bounds[] = { 101, 176, 205, 221, 296, 356, 513, 763, 951, 1901, 2101 };
    int value = 1;
    for (const int bound : bounds) {
        QTest::addRow("below %d", bound) << bound - 1 << value;
        value *= 2;
        QTest::addRow("at %d", bound) << bound << value;
    }
    QTest::newRow("zero") << 0 << 1;
    QTest::newRow("negative") << -1 << 1;
    QTest::newRow("smallest int") << std::numeric_limits<int>::min() << 1;
    QTest::newRow("largest int") << std::numeric_limits<int>::max() << 2048;
}

void tst_RVSpaceMagnitude::areas()
{
    QFETCH(int, area);
    QFETCH(int, value);
    QCOMPARE(int(RVSpaceMagnitude::fromSquareCentimeters(area).value()), value);
}

void tst_RVSpaceMagnitude::estimates_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<int>("value");
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("negative zero") << -0.0 << 0;
    QTest::newRow("a tenth") << 0.1 << 32;
    QTest::newRow("truncated to 100") << 30.0 / 100.9 << 1;
    QTest::newRow("101") << 30.0 / 101.1 << 2;
    QTest::newRow("negative") << -0.1 << 1;
    QTest::newRow("tiny") << 1e-300 << 2048;
    QTest::newRow("subnormal") << 4.9e-324 << 2048;
    QTest::newRow("infinite") << infinity << 1;
    QTest::newRow("not a number") << std::nan("") << 1;
}

void tst_RVSpaceMagnitude::estimates()
{
    QFETCH(double, x);
    QFETCH(int, value);
    QCOMPARE(int(RVSpaceMagnitude::estimateByAreaSizes(x).value()), value);
}

void tst_RVSpaceMagnitude::layoutHints_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("images");
    QTest::addColumn<int>("fontSize");
    QTest::addColumn<int>("norm");
    QTest::addColumn<double>("photos");
    QTest::newRow("none") << 0 << 1 << 12 << 0 << 2.1;
    QTest::newRow("50cm2") << 1 << 1 << 12 << 50 << 1.5;
    QTest::newRow("150cm2") << 2 << 1 << 12 << 150 << 1.5;
    QTest::newRow("200cm2") << 4 << 4 << 12 << 200 << 1.5;
    QTest::newRow("220cm2") << 8 << 1 << 12 << 225 << 1.5;
    QTest::newRow("280cm2") << 16 << 5 << 12 << 280 << 1.5;
    QTest::newRow("310cm2") << 32 << 5 << 12 << 310 << 1.5;
    QTest::newRow("400cm2") << 64 << 6 << 16 << 400 << 2.0;
    QTest::newRow("600cm2") << 128 << 8 << 16 << 625 << 3.0;
    QTest::newRow("900cm2") << 256 << 12 << 24 << 900 << 3.3;
    QTest::newRow("1200cm2") << 512 << 14 << 24 << 1250 << 3.2;
    QTest::newRow("2000cm2") << 1024 << 14 << 32 << 2025 << 4.0;
    QTest::newRow("2400cm2") << 2048 << 14 << 32 << 2500 << 4.0;
    QTest::newRow("normal") << 2812 << 1 << 12 << 0 << 2.1;
    QTest::newRow("xl") << 1280 << 1 << 12 << 0 << 2.1;
    QTest::newRow("unknown bit") << 4096 << 1 << 12 << 0 << 2.1;
}

void tst_RVSpaceMagnitude::layoutHints()
{
    QFETCH(int, value);
    QTEST(magnitude(value).maxReasonableImagesPerPage(), "images");
    QTEST(magnitude(value).suitableFontSizeInPoints(), "fontSize");
    QTEST(magnitude(value).normativeSize(), "norm");
    QTEST(magnitude(value).optimumFotosPerPage(ORIENTATION_LANDSCAPE), "photos");
}

void tst_RVSpaceMagnitude::photosOnA4()
{
    QCOMPARE(magnitude(128).optimumFotosPerPage(ORIENTATION_PORTRAIT), 2.8);
    QCOMPARE(magnitude(128).optimumFotosPerPage(ORIENTATION_PORTRAIT_SLIM), 2.8);
    QCOMPARE(magnitude(128).optimumFotosPerPage(ORIENTATION_ALL), 2.8);
    QCOMPARE(magnitude(128).optimumFotosPerPage(ORIENTATION_SQUARE | ORIENTATION_LANDSCAPE_SLIM), 3.0);
    QCOMPARE(magnitude(128).optimumFotosPerPage(ORIENTATION_NONE), 3.0);
    QCOMPARE(magnitude(64).optimumFotosPerPage(ORIENTATION_PORTRAIT), 2.0);
}

void tst_RVSpaceMagnitude::scaleFactors_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<double>("area");
    QTest::addColumn<double>("dimension");
    QTest::newRow("A4 to A3") << 128 << 512 << 2.0 << 1.4142135623730951;
    QTest::newRow("A3 to A4") << 512 << 128 << 0.5 << 0.7071067811865476;
    QTest::newRow("900cm2 to 225cm2") << 256 << 8 << 0.25 << 0.5;
    QTest::newRow("from none") << 0 << 512 << 1.0 << 1.0;
    QTest::newRow("to none") << 128 << 0 << 1.0 << 1.0;
    QTest::newRow("to a combination") << 128 << 2812 << 0.0 << 0.0;
    QTest::newRow("from a combination") << 2812 << 128 << infinity << infinity;
    QTest::newRow("between combinations") << 2812 << 1280 << std::nan("") << std::nan("");
}

void tst_RVSpaceMagnitude::scaleFactors()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QTEST(magnitude(from).scaleFactorForArea(magnitude(to)), "area");
    QTEST(magnitude(from).scaleFactorPerDimension(magnitude(to)), "dimension");
}

// A size class of an application may redefine isValid().
void tst_RVSpaceMagnitude::scaleFactorsOfTheInvalid()
{
    const LyingAttribute<RVSpaceMagnitude> invalidA4(SPACE_MAGNITUDE_600CM2);
    QCOMPARE(invalidA4.scaleFactorForArea(SPACE_MAGNITUDE_1200CM2), 1.0);
    QCOMPARE(RVSpaceMagnitude(SPACE_MAGNITUDE_1200CM2).scaleFactorForArea(invalidA4), 1.0);
    QCOMPARE(LyingAttribute<RVSpaceMagnitude>().scaleFactorForArea(SPACE_MAGNITUDE_600CM2), infinity);
}

void tst_RVSpaceMagnitude::adaptsPointSizes()
{
    QFont font(u"DejaVu Sans"_s);
    font.setPointSizeF(10.5);
    const QFont adapted = magnitude(8).adaptFont(font, magnitude(256));
    QCOMPARE(adapted.pointSizeF(), 21.0);
    QCOMPARE(adapted.family(), u"DejaVu Sans"_s);
    QCOMPARE(font.pointSizeF(), 10.5);
}

void tst_RVSpaceMagnitude::adaptsPixelSizes()
{
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(15);
    QCOMPARE(magnitude(256).adaptFont(font, magnitude(8)).pixelSize(), 7);
    QCOMPARE(magnitude(128).adaptFont(font, magnitude(512)).pixelSize(), 21);
    QCOMPARE(magnitude(8).adaptFont(font, magnitude(256)).pixelSize(), 30);
    QCOMPARE(font.pixelSize(), 15);
}

void tst_RVSpaceMagnitude::keepsFontsWithoutAFactor_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("pixelSize");
    QTest::newRow("same size") << 128 << 128 << 15;
    QTest::newRow("none") << 0 << 128 << 15;
    QTest::newRow("to a combination") << 128 << 2812 << 15;
    QTest::newRow("from a combination, pixels saturate") << 2812 << 128 << std::numeric_limits<int>::max();
    QTest::newRow("between combinations") << 2812 << 1280 << 15;
}

void tst_RVSpaceMagnitude::keepsFontsWithoutAFactor()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QFont points;
    points.setPointSizeF(12.5);
    QCOMPARE(magnitude(from).adaptFont(points, magnitude(to)), points);
    QFont pixels;
    pixels.setPixelSize(15);
    QTEST(magnitude(from).adaptFont(pixels, magnitude(to)).pixelSize(), "pixelSize");
}

void tst_RVSpaceMagnitude::keepsFontsThatWouldHaveNoSize_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<qreal>("pointSize");
    QTest::newRow("largest number") << 2 << 2048 << std::numeric_limits<qreal>::max();
    QTest::newRow("smallest number") << 2048 << 2 << std::numeric_limits<qreal>::denorm_min();
}

void tst_RVSpaceMagnitude::keepsFontsThatWouldHaveNoSize()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(qreal, pointSize);
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QFont font;
    font.setPointSizeF(pointSize);
    QTEST(magnitude(from).adaptFont(font, magnitude(to)).pointSizeF(), "pointSize");
}

void tst_RVSpaceMagnitude::displayNames_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("150cm2") << 2 << u"Mini"_s;
    QTest::newRow("200cm2") << 4 << u"Klein"_s;
    QTest::newRow("220cm2") << 8 << u"Compact Quadratisch"_s;
    QTest::newRow("280cm2") << 16 << u"Compact"_s;
    QTest::newRow("310cm2") << 32 << u"A5"_s;
    QTest::newRow("400cm2") << 64 << u"Quadratisch"_s;
    QTest::newRow("600cm2") << 128 << u"A4"_s;
    QTest::newRow("900cm2") << 256 << u"XL"_s;
    QTest::newRow("1200cm2") << 512 << u"A3"_s;
    QTest::newRow("2000cm2") << 1024 << u"XXL"_s;
    QTest::newRow("2400cm2") << 2048 << u"A2"_s;
    QTest::newRow("none") << 0 << u"Undefiniert"_s;
    QTest::newRow("50cm2") << 1 << u"Undefiniert"_s;
    QTest::newRow("two at once") << 384 << u"Undefiniert"_s;
    QTest::newRow("xl") << 1280 << u"Undefiniert"_s;
}

void tst_RVSpaceMagnitude::displayNames()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    QCOMPARE(magnitude(value).humanReadableName(), name);
    if (name != u"Undefiniert"_s)
        QCOMPARE(int(RVSpaceMagnitude::createFromHumanReadable(name).value()), value);
}

void tst_RVSpaceMagnitude::combinationsHaveNoName()
{
    for (int value = 0; value < 0x2000; ++value) {
        if (value >= 0x1000 || qPopulationCount(quint32(value)) != 1)
            QCOMPARE(magnitude(value).humanReadableName(), u"Undefiniert"_s);
    }
}

void tst_RVSpaceMagnitude::readsDisplayNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("null") << QString();
    QTest::newRow("unknown") << u"Riesig"_s;
    QTest::newRow("other letter case") << u"mini"_s;
    QTest::newRow("blank") << u"Mini "_s;
    QTest::newRow("fallback name") << u"Undefiniert"_s;
}

void tst_RVSpaceMagnitude::readsDisplayNames()
{
    QFETCH(QString, name);
    QVERIFY(RVSpaceMagnitude::createFromHumanReadable(name).isNull());
}

void tst_RVSpaceMagnitude::nameTable()
{
    QCOMPARE(RVSpaceMagnitude::names().names.size(), 11);
    QCOMPARE(RVSpaceMagnitude::names().unknownName, u"Undefiniert"_s);
    QVERIFY(RVSpaceMagnitude::names().defaultValue.isNull());
    QCOMPARE(onAnotherThread([] { return &RVSpaceMagnitude::names(); }), &RVSpaceMagnitude::names());
}

void tst_RVSpaceMagnitude::debugOutput()
{
    QCOMPARE(debugText(magnitude(128)), u"\"RVSpaceMagnitude: 600cm2\" "_s);
    QCOMPARE(debugText(magnitude(3)), u"\"RVSpaceMagnitude: any\" "_s);
}

QTEST_MAIN(tst_RVSpaceMagnitude)
#include "tst_RVSpaceMagnitude.moc"
