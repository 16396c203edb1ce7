#include <RVCore/RVAngle.h>

#include <QTest>

#include <limits>

class tst_RVAngle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNull_data();
    void isNull();
};

void tst_RVAngle::isNull_data()
{
    QTest::addColumn<qreal>("degrees");
    QTest::addColumn<bool>("null");
    QTest::newRow("zero") << 0.0 << true;
    QTest::newRow("negative zero") << -0.0 << true;
    QTest::newRow("rounding") << 0.3 - 0.2 - 0.1 << true;
    QTest::newRow("largest null angle") << 1e-12 << true;
    QTest::newRow("beyond the largest null angle") << 1.000001e-12 << false;
    QTest::newRow("smallest null angle") << -1e-12 << true;
    QTest::newRow("beyond the smallest null angle") << -1.000001e-12 << false;
    QTest::newRow("a thousandth") << 0.001 << false;
    QTest::newRow("negative") << -90.0 << false;
    QTest::newRow("full turn") << 360.0 << false;
    QTest::newRow("not a number") << std::numeric_limits<qreal>::quiet_NaN() << false;
}

void tst_RVAngle::isNull()
{
    QFETCH(qreal, degrees);
    QTEST(RVAngle(degrees).isNull(), "null");
    QVERIFY(RVAngle().isNull());
}

QTEST_APPLESS_MAIN(tst_RVAngle)
#include "tst_RVAngle.moc"
