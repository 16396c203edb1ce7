#include "AttributeTest.h"

#include <RVCore/RVAngle.h>
#include <RVProductBase/RVOrientation.h>

#include <QSizeF>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

RVOrientation orientation(int value)
{
    return RVOrientation(RVOrientationEnum(value));
}

}

class tst_RVOrientation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void combinations();
    void sizes_data();
    void sizes();
    void textBeforeSize();
    void pageTilt();
    void values_data();
    void values();
    void combinationsHaveNoName();
    void foldMargins_data();
    void foldMargins();
    void templates_data();
    void templates();
    void debugOutput();
};

void tst_RVOrientation::keywordTable()
{
    const KeywordTableTest<RVOrientation> test(
            {
                    { 0, { u"none"_s } },
                    { 1, { u"portrait"_s } },
                    { 2, { u"landscape"_s, u"landscape_large"_s } },
                    { 4, { u"square"_s, u"quadratic"_s } },
                    { 8, { u"portrait_slim"_s } },
                    { 16, { u"landscape_slim"_s } },
                    { 31, { u"all"_s } },
            },
            u"portrait"_s, 0);
    test.check();
}

void tst_RVOrientation::combinations()
{
    QCOMPARE(orientation(3).encode(), u"portrait"_s);
    QCOMPARE(orientation(3).encodeCSV(), u"portrait, landscape"_s);
    QCOMPARE(orientation(6).encode(), u"portrait"_s);
    QCOMPARE(orientation(31).encodeCSV(), u"portrait, landscape, square, portrait_slim, landscape_slim"_s);
}

void tst_RVOrientation::sizes_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<int>("value");
    const double nan = std::nan("");
    QTest::newRow("slim portrait") << 100.0 << 300.0 << 8;
    QTest::newRow("half as wide as high") << 100.0 << 200.0 << 8;
    QTest::newRow("just above half") << 100.1 << 200.0 << 1;
    QTest::newRow("portrait, upper bound") << 90.0 << 100.0 << 1;
    QTest::newRow("just above 0.9") << 90.1 << 100.0 << 4;
    QTest::newRow("square") << 100.0 << 100.0 << 4;
    QTest::newRow("square, upper bound") << 110.0 << 100.0 << 4;
    QTest::newRow("just above 1.1") << 110.1 << 100.0 << 2;
    QTest::newRow("landscape") << 150.0 << 100.0 << 2;
    QTest::newRow("just below 2") << 199.9 << 100.0 << 2;
    QTest::newRow("twice as wide as high") << 200.0 << 100.0 << 16;
    QTest::newRow("no height") << 10.0 << 0.0 << 16;
    QTest::newRow("no width") << 0.0 << 10.0 << 8;
    QTest::newRow("negative zero height") << 10.0 << -0.0 << 16;
    QTest::newRow("no size") << 0.0 << 0.0 << 0;
    QTest::newRow("negative zeros") << -0.0 << -0.0 << 0;
    QTest::newRow("negative width") << -1.0 << 5.0 << 0;
    QTest::newRow("negative height") << 5.0 << -1.0 << 0;
    QTest::newRow("width not a number") << nan << 5.0 << 0;
    QTest::newRow("height not a number") << 5.0 << nan << 0;
    QTest::newRow("infinite width") << infinity << 5.0 << 16;
    QTest::newRow("infinite height") << 5.0 << infinity << 8;
    QTest::newRow("both infinite") << infinity << infinity << 2;
}

void tst_RVOrientation::sizes()
{
    QFETCH(double, width);
    QFETCH(double, height);
    QFETCH(int, value);
    const QSizeF size(width, height);
    QCOMPARE(int(RVOrientation(size).value()), value);
    QCOMPARE(int(RVOrientation::createFromSize(size).value()), value);
    QCOMPARE(int(orientation(5).fromSize(size)), value);
}

void tst_RVOrientation::textBeforeSize()
{
    const QSizeF wide(150, 100);
    QCOMPARE(int(RVOrientation(u"square"_s, wide).value()), 4);
    QCOMPARE(int(RVOrientation(u"oblique"_s, wide).value()), 2);
    QCOMPARE(int(RVOrientation(u"none"_s, wide).value()), 2);
    QCOMPARE(int(RVOrientation(QString(), wide).value()), 2);
}

void tst_RVOrientation::pageTilt()
{
    QCOMPARE(int(RVOrientation::createFromPageTilt(RVAngle()).value()), 2);
    QCOMPARE(int(RVOrientation::createFromPageTilt(RVAngle(90)).value()), 1);
    QCOMPARE(int(RVOrientation::createFromPageTilt(RVAngle(-1)).value()), 1);
}

void tst_RVOrientation::values_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("basics");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<QString>("dlp");
    const auto row = [](int value, int basics, const QString &name, const QString &prefix, double ratio,
                        const QString &dlp) {
        QTest::addRow("%d", value) << value << basics << name << prefix << ratio << dlp;
    };
    row(0, 0, u""_s, u"unknown"_s, 1.0, u"none"_s);
    row(1, 1, u"Hochkant-"_s, u"portrait"_s, 0.666666, u"portrait"_s);
    row(2, 2, u"Panorama-"_s, u"landscape"_s, 1.5, u"landscape"_s);
    row(3, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
    row(4, 4, u"quadratische "_s, u"square"_s, 1.0, u"square"_s);
    row(5, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
    row(6, 0, u""_s, u"landscape"_s, 1.0, u"none"_s);
    row(8, 1, u"schlanke Hochkant-"_s, u"portrait"_s, 0.5, u"portrait"_s);
    row(9, 1, u""_s, u"portrait"_s, 1.0, u"portrait"_s);
    row(12, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
    row(15, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
    row(16, 2, u"schlanke Panorama-"_s, u"landscape"_s, 2.0, u"landscape"_s);
    row(17, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
    row(18, 2, u""_s, u"landscape"_s, 1.0, u"landscape"_s);
    row(20, 0, u""_s, u"landscape"_s, 1.0, u"none"_s);
    row(31, 1, u""_s, u"portrait"_s, 1.0, u"portrait"_s);
    row(32, 0, u""_s, u"unknown"_s, 1.0, u"none"_s);
    row(33, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
    row(-1, 0, u""_s, u"portrait"_s, 1.0, u"none"_s);
}

void tst_RVOrientation::values()
{
    QFETCH(int, value);
    const RVOrientation tested = orientation(value);
    QTEST(int(tested.reduceToBasics().value()), "basics");
    QTEST(tested.humanReadable(), "name");
    QTEST(tested.previewFileNamePrefix(), "prefix");
    QFETCH(double, ratio);
    QVERIFY(tested.defaultWidthHeightRatio() == ratio); // all digits count
    QTEST(tested.encodeForDLP(), "dlp");
    QCOMPARE(tested.isPortrait(), (value & 9) != 0);
    QCOMPARE(tested.isLandscape(), (value & 18) != 0);
    QCOMPARE(tested.isQuadratic(), (value & 4) != 0);
}

void tst_RVOrientation::combinationsHaveNoName()
{
    for (int value = 0; value < 0x100; ++value) {
        if (value >= 0x20 || qPopulationCount(quint32(value)) != 1)
            QCOMPARE(orientation(value).humanReadable(), u""_s);
        if (qPopulationCount(quint32(value)) > 1)
            QCOMPARE(orientation(value).defaultWidthHeightRatio(), 1.0);
    }
}

void tst_RVOrientation::foldMargins_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("marginOf1000");
    QTest::addColumn<int>("marginOfMinus1000");
    QTest::newRow("portrait") << 1 << 0.053659 << 53 << -54;
    QTest::newRow("slim portrait") << 8 << 0.053659 << 53 << -54;
    QTest::newRow("landscape") << 2 << 0.040741 << 40 << -41;
    QTest::newRow("square") << 4 << 0.044878 << 44 << -45;
    QTest::newRow("all") << 31 << 0.053659 << 53 << -54;
    QTest::newRow("none") << 0 << 0.0 << 0 << 0;
    QTest::newRow("portrait and landscape") << 3 << 0.0 << 0 << 0;
}

void tst_RVOrientation::foldMargins()
{
    QFETCH(int, value);
    QFETCH(double, factor);
    QVERIFY(orientation(value).foldMarginFactor() == factor);
    QTEST(orientation(value).foldMargin(1000), "marginOf1000");
    QTEST(orientation(value).foldMargin(-1000), "marginOfMinus1000");
    QCOMPARE(orientation(value).foldMargin(0), 0);
}

void tst_RVOrientation::templates_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("children");
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("negative") << -1 << QStringList();
    QTest::newRow("square") << 4 << QStringList { u"orientation=square"_s };
    QTest::newRow("two") << 3 << QStringList { u"orientation=landscape"_s, u"orientation=portrait"_s };
    QTest::newRow("a bit without a keyword") << 32 << QStringList { u"orientation=portrait"_s };
    QTest::newRow("all") << 31 << QStringList();
    QTest::newRow("all but one") << 30
                                 << QStringList { u"orientation=landscape"_s, u"orientation=landscape_slim"_s,
                                                  u"orientation=portrait_slim"_s, u"orientation=square"_s };
}

void tst_RVOrientation::templates()
{
    QFETCH(int, value);
    QDomDocument document;
    QDomElement parent = document.createElement(u"layout"_s);
    orientation(value).toTemplates2Format(parent);
    QTEST(childTexts(parent), "children");
    QDomElement other = document.createElement(u"layout"_s);
    LyingAttribute<RVOrientation>(RVOrientationEnum(value)).toTemplates2Format(other);
    QTEST(childTexts(other), "children");
}

void tst_RVOrientation::debugOutput()
{
    QCOMPARE(debugText(orientation(5)), u"RVOrientation(portrait, square) "_s);
    QCOMPARE(debugText(orientation(0)), u"RVOrientation(portrait) "_s);
    QString text;
    QDebug(&text) << u"page"_s << orientation(5) << u"a4"_s;
    QCOMPARE(text, u"\"page\" RVOrientation(portrait, square) \"a4\" "_s);
    text.clear();
    QDebug(&text).nospace().noquote() << u"page"_s << orientation(5) << u"a4"_s;
    QCOMPARE(text, u"pageRVOrientation(portrait, square)a4"_s);
}

QTEST_GUILESS_MAIN(tst_RVOrientation)
#include "tst_RVOrientation.moc"
