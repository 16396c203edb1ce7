#include <RVCore/RVFontSizeManager.h>
#include <RVProductBase/RVSpineConfigImpl.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVDistance millimetres(qreal amount)
{
    return RVDistance(amount, DISTANCE_UNIT_MILLIMETRE);
}

}

/// A production program has no QGuiApplication, and so no fonts to measure; tst_RVSpineConfig has one.
class tst_RVSpineConfigImpl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void growsWithoutFonts();
    void fontSizeWithoutFonts_data();
    void fontSizeWithoutFonts();
};

void tst_RVSpineConfigImpl::growsWithoutFonts()
{
    const RVSpineConfigImpl photoBook(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, millimetres(8),
                                      millimetres(1), millimetres(0.5));
    QCOMPARE(photoBook.spineWidth(26), millimetres(9));
    QCOMPARE(photoBook.spineWidth(34), millimetres(10));
}

void tst_RVSpineConfigImpl::fontSizeWithoutFonts_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("size");
    QTest::newRow("given family") << QList<int> { 8, 12, 20 } << u"DejaVu Sans"_s << 8;
    QTest::newRow("default family") << QList<int> { 8, 12, 20 } << u""_s << 8;
    QTest::newRow("one size") << QList<int> { 14 } << u"DejaVu Sans"_s << 14;
    QTest::newRow("no sizes") << QList<int>() << u"DejaVu Sans"_s << 0;
    QTest::newRow("no sizes, default family") << QList<int>() << u""_s << 0;
}

void tst_RVSpineConfigImpl::fontSizeWithoutFonts()
{
    QFETCH(QList<int>, sizes);
    QFETCH(QString, family);
    RVFontSizeManager::instance()->setDefaultFontSizes(sizes);
    // The spine is wide enough for every size.
    const RVSpineConfigImpl wide(RVPageCountOrganization(RVIntRange(26, 26), 0), 0, millimetres(1000), RVDistance(),
                                 RVDistance());
    QVERIFY(!RVSpineConfigImpl::canMeasureText());
    QCOMPARE(wide.highestLine(26), 8500);
    QTEST(wide.spineMaxFontHeigth(26, family), "size");
    QVERIFY(RVSpineConfigImpl().hasRoomForText(26, family));
}

QTEST_GUILESS_MAIN(tst_RVSpineConfigImpl)
#include "tst_RVSpineConfigImpl.moc"
