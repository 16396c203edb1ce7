#include <RVProductBase/RVBleedMargin.h>

#include <QTest>

#include <type_traits>

class tst_RVBleedMargin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void amounts_data();
    void amounts();
};

void tst_RVBleedMargin::amounts_data()
{
    QTest::addColumn<int>("horizontal");
    QTest::addColumn<int>("vertical");
    QTest::addColumn<bool>("null");
    QTest::addColumn<bool>("equal");
    QTest::newRow("none") << 0 << 0 << true << false;
    QTest::newRow("vertical only") << 0 << 2 << false << false;
    QTest::newRow("horizontal only") << 3 << 0 << false << false;
    QTest::newRow("both") << 3 << 2 << false << true;
    QTest::newRow("the other way round") << 2 << 3 << false << false;
}

void tst_RVBleedMargin::amounts()
{
    QFETCH(int, horizontal);
    QFETCH(int, vertical);
    QFETCH(bool, equal);
    const RVBleedMargin margin(horizontal, vertical);
    QCOMPARE(margin.horizontal(), horizontal);
    QCOMPARE(margin.vertical(), vertical);
    QTEST(margin.isNull(), "null");
    QCOMPARE(margin == RVBleedMargin(3, 2), equal);
    QCOMPARE(margin != RVBleedMargin(3, 2), !equal);
    QVERIFY(std::has_virtual_destructor_v<RVBleedMargin>);
}

QTEST_GUILESS_MAIN(tst_RVBleedMargin)
#include "tst_RVBleedMargin.moc"
