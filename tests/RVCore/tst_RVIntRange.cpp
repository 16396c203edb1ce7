#include <RVCore/RVIntRange.h>

#include <QTest>

#include <limits>
#include <type_traits>

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

QList<int> bounds(const RVIntRange &range)
{
    return { range.min, range.max };
}

}

class tst_RVIntRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void shifts_data();
    void shifts();
    void stretches_data();
    void stretches();
};

void tst_RVIntRange::construction()
{
    QCOMPARE(bounds(RVIntRange()), (QList<int> { 0, 0 }));
    QCOMPARE(bounds(RVIntRange(26, 154)), (QList<int> { 26, 154 }));
    QVERIFY((std::is_convertible_v<RVIntRange *, RVRange<int> *>));
    QCOMPARE(sizeof(RVIntRange), sizeof(RVRange<int>));
    QVERIFY(RVIntRange(1, 5).intersects(RVIntRange(5, 9)));
}

void tst_RVIntRange::shifts_data()
{
    QTest::addColumn<int>("distance");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("up") << 4 << QList<int> { 30, 158 };
    QTest::newRow("down") << -30 << QList<int> { -4, 124 };
    QTest::newRow("nowhere") << 0 << QList<int> { 26, 154 };
    QTest::newRow("largest") << largest << QList<int> { largest, largest };
    QTest::newRow("upper bound only") << largest - 100 << QList<int> { largest - 74, largest };
    QTest::newRow("smallest") << smallest << QList<int> { smallest + 26, smallest + 154 };
}

void tst_RVIntRange::shifts()
{
    QFETCH(int, distance);
    const RVIntRange range(26, 154);
    QTEST(bounds(range.shifted(distance)), "result");
    QCOMPARE(bounds(range), (QList<int> { 26, 154 }));
    QCOMPARE(bounds(RVIntRange(-5, 5).shifted(smallest)), (QList<int> { smallest, smallest + 5 }));
}

void tst_RVIntRange::stretches_data()
{
    QTest::addColumn<int>("factor");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("once") << 1 << QList<int> { -2, 30 };
    QTest::newRow("factor 3") << 3 << QList<int> { -6, 90 };
    QTest::newRow("factor 0") << 0 << QList<int> { 0, 0 };
    QTest::newRow("negative") << -2 << QList<int> { 4, -60 };
    QTest::newRow("largest") << largest << QList<int> { smallest, largest };
    QTest::newRow("smallest") << smallest << QList<int> { largest, smallest };
}

void tst_RVIntRange::stretches()
{
    QFETCH(int, factor);
    const RVIntRange range(-2, 30);
    QTEST(bounds(range.stretched(factor)), "result");
    QCOMPARE(bounds(range), (QList<int> { -2, 30 }));
}

QTEST_APPLESS_MAIN(tst_RVIntRange)
#include "tst_RVIntRange.moc"
