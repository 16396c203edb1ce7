#include <RVCore/RVDistance.h>

#include <QTest>

#include <cmath>
#include <limits>

class tst_RVDistance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction_data();
    void construction();
    void arithmetic();
    void compoundsReturnTheObject();
    void comparesFuzzily_data();
    void comparesFuzzily();
    void orders();
    void unknownUnit();
};

void tst_RVDistance::construction_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<qreal>("tenths");
    QTest::newRow("tenth of a millimetre") << 1 << 2.5;
    QTest::newRow("millimetre") << 2 << 25.0;
    QTest::newRow("inch") << 4 << 635.0;
    QTest::newRow("centimetre") << 8 << 250.0;
    QTest::newRow("point") << 16 << 8.819444444444445;
}

void tst_RVDistance::construction()
{
    QFETCH(int, unit);
    QFETCH(qreal, tenths);
    const RVDistance distance(2.5, RVDistanceUnit(unit));
    QCOMPARE(distance.value(), tenths);
    QCOMPARE(distance.value(RVDistanceUnit(unit)), 2.5);
    QCOMPARE(distance.value(DISTANCE_UNIT_TENTH_MILLIMETRE), tenths);
    QCOMPARE(RVDistance().value(), 0.0);
    QCOMPARE(RVDistance(2.5).value(), 2.5);
    QCOMPARE(RVDistance(254).value(DISTANCE_UNIT_INCH), 1.0);
}

void tst_RVDistance::arithmetic()
{
    const RVDistance a(30);
    const RVDistance b(1.2, DISTANCE_UNIT_MILLIMETRE);
    QCOMPARE((a + b).value(), 42.0);
    QCOMPARE((a - b).value(), 18.0);
    QCOMPARE((b - a).value(), -18.0);
    QCOMPARE((a * 1.5).value(), 45.0);
    QCOMPARE((a / 4).value(), 7.5);
    QVERIFY(std::isinf((a / 0.0).value()));
    QVERIFY(std::isnan((RVDistance() / 0.0).value()));
}

void tst_RVDistance::compoundsReturnTheObject()
{
    RVDistance distance(30);
    const RVDistance copy = distance;
    QCOMPARE(&(distance += RVDistance(12)), &distance);
    QCOMPARE(distance.value(), 42.0);
    QCOMPARE(&(distance -= RVDistance(2)), &distance);
    QCOMPARE(distance.value(), 40.0);
    QCOMPARE(&(distance *= 0.5), &distance);
    QCOMPARE(distance.value(), 20.0);
    const RVDistance &self = distance;
    distance -= self;
    QCOMPARE(distance.value(), 0.0);
    QCOMPARE(copy.value(), 30.0);
}

void tst_RVDistance::comparesFuzzily_data()
{
    QTest::addColumn<qreal>("a");
    QTest::addColumn<qreal>("b");
    QTest::addColumn<bool>("equal");
    QTest::newRow("equal") << 30.0 << 30.0 << true;
    QTest::newRow("rounded") << 0.1 + 0.2 << 0.3 << true;
    QTest::newRow("thirteenth digit") << 1e12 << 1e12 + 0.5 << true;
    QTest::newRow("twelfth digit") << 1e12 << 1e12 + 2 << false;
    QTest::newRow("different") << 30.0 << 30.1 << false;
    QTest::newRow("both zero") << 0.0 << 0.0 << true;
    QTest::newRow("zero and tiny") << 0.0 << 1e-300 << false;
    QTest::newRow("opposite") << 1.0 << -1.0 << false;
}

void tst_RVDistance::comparesFuzzily()
{
    QFETCH(qreal, a);
    QFETCH(qreal, b);
    QFETCH(bool, equal);
    QCOMPARE(RVDistance(a) == RVDistance(b), equal);
    QCOMPARE(RVDistance(a) != RVDistance(b), !equal);
}

void tst_RVDistance::orders()
{
    QVERIFY(RVDistance(1) < RVDistance(2));
    QVERIFY(!(RVDistance(2) < RVDistance(2)));
    QVERIFY(!(RVDistance(2) < RVDistance(1)));
    QVERIFY(RVDistance(9, DISTANCE_UNIT_MILLIMETRE) < RVDistance(1, DISTANCE_UNIT_CENTIMETRE));
    QVERIFY(RVDistance(0.3) < RVDistance(0.1 + 0.2)); // though the two count as equal
    QVERIFY(!(RVDistance(0.1 + 0.2) < RVDistance(0.3)));
    const qreal nan = std::numeric_limits<qreal>::quiet_NaN();
    QVERIFY(!(RVDistance(nan) < RVDistance(1)));
}

void tst_RVDistance::unknownUnit()
{
    QTest::ignoreMessage(QtWarningMsg, "distance not supported! 3");
    const RVDistance distance(7, RVDistanceUnit(3));
    QCOMPARE(distance.value(), 7.0);
    QTest::ignoreMessage(QtWarningMsg, "distance not supported! 5");
    QCOMPARE(distance.value(RVDistanceUnit(5)), 7.0);
}

QTEST_APPLESS_MAIN(tst_RVDistance)
#include "tst_RVDistance.moc"
