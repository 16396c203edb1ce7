#include <SpineFont.h>

#include <RVFontSizeManager.h>
#include <RVSpineConfig.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A spine of one page count; widths in millimetres.
RVSpineConfig spineOf(qreal base, qreal side = 0)
{
    return RVSpineConfig(RVPageCountOrganization(RVIntRange(26, 26), 4), 0, RVDistance(base, DISTANCE_UNIT_MILLIMETRE),
                         RVDistance(), RVDistance(side, DISTANCE_UNIT_MILLIMETRE));
}

}

/// DejaVu Sans has a line spacing of 1.164 times its size. The program runs at 192 dots an inch and twice as large,
/// which changes nothing.
class tst_SpineFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void family();
    void sizes_data();
    void sizes();
    void otherSizes();
    void negativePages();
    void drawnAsMeasured();
};

void tst_SpineFont::family()
{
    QCOMPARE(SpineFont::declaredFamily(), u"DejaVu Sans"_s);
    QVERIFY2(SpineFont::isDeclared(), "the package fonts-dejavu-core is missing");
    QCOMPARE(SpineFont::family(), u"DejaVu Sans"_s);
}

void tst_SpineFont::sizes_data()
{
    QTest::addColumn<qreal>("base");
    QTest::addColumn<qreal>("side");
    QTest::addColumn<int>("size");

    QTest::newRow("no width") << 0.0 << 0.0 << 6;
    QTest::newRow("negative") << -8.0 << 0.0 << 6;
    QTest::newRow("too narrow for the second") << 0.9 << 0.0 << 6; // 8 of 8.15
    QTest::newRow("wide enough for the second") << 1.0 << 0.0 << 7; // 9 of 8.15
    QTest::newRow("narrow book") << 3.4 << 0.0 << 24; // 29 of 27.9 and 30.3
    QTest::newRow("below 48") << 6.5 << 0.0 << 36; // 55 of 55.9
    QTest::newRow("above 48") << 6.6 << 0.0 << 48; // 56 of 55.9
    QTest::newRow("sides do not count") << 8.0 << 0.5 << 48;
    QTest::newRow("thick book") << 24.0 << 0.5 << 72;
    QTest::newRow("width beyond every size") << 1e300 << 0.0 << 72;
}

void tst_SpineFont::sizes()
{
    QFETCH(qreal, base);
    QFETCH(qreal, side);
    QTEST(SpineFont::largestSize(spineOf(base, side), 26), "size");
}

void tst_SpineFont::otherSizes()
{
    RVFontSizeManager *sizes = RVFontSizeManager::instance();
    const QList<int> usual = sizes->defaultFontSizes();
    sizes->setDefaultFontSizes({ 8, 24, 400 });
    QCOMPARE(SpineFont::largestSize(spineOf(24), 26), 24);
    sizes->setDefaultFontSizes({ 99 });
    QCOMPARE(SpineFont::largestSize(spineOf(1), 26), 99);
    sizes->setDefaultFontSizes({});
    QCOMPARE(SpineFont::largestSize(spineOf(24), 26), 0);
    sizes->setDefaultFontSizes(usual);
}

void tst_SpineFont::negativePages()
{
    const RVSpineConfig growing(RVPageCountOrganization(RVIntRange(-8, 80), 4), 1,
                                RVDistance(8, DISTANCE_UNIT_MILLIMETRE), RVDistance(4, DISTANCE_UNIT_MILLIMETRE),
                                RVDistance());
    QCOMPARE(SpineFont::largestSize(growing, -8), SpineFont::largestSize(growing, 0));
}

// A line of the font that a drawing takes is as high as was measured, also on a device of 254 dots an inch.
void tst_SpineFont::drawnAsMeasured()
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.setDotsPerMeterX(10000);
    image.setDotsPerMeterY(10000);
    QPainter painter(&image);
    painter.setFont(SpineFont::font(48));
    const qreal height = QFontMetricsF(painter.font(), &image).lineSpacing();
    QVERIFY2(qAbs(height - 55.9) <= 1.5, qPrintable(QString::number(height))); // whole pixels above and below the line
    QCOMPARE(SpineFont::font(-3).pixelSize(), 1);
}

int main(int argc, char *argv[])
{
    qputenv("QT_FONT_DPI", "192");
    qputenv("QT_SCALE_FACTOR", "2");
    QGuiApplication application(argc, argv);
    tst_SpineFont test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SpineFont.moc"
