#include <RVTemplateClasses/RVRange.h>

#include <QTest>

#include <algorithm>
#include <limits>

namespace {

using Range = RVRange<int>;

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

QList<int> bounds(const Range &range)
{
    return { range.min, range.max };
}

/// Contains even values only, and is always valid.
class EvenRange : public Range
{
public:
    using Range::contains;
    using Range::Range;
    bool isValid() const override { return true; }
    bool contains(const int &value) const override { return value % 2 == 0 && Range::contains(value); }
};

/// Records the values of its calls.
class WatchedRange : public Range
{
public:
    using Range::contains;
    using Range::Range;
    bool contains(const int &value) const override
    {
        asked += value;
        return Range::contains(value);
    }

    mutable QList<int> asked;
};

}

class tst_RVRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void validity_data();
    void validity();
    void containsValues_data();
    void containsValues();
    void containsRanges_data();
    void containsRanges();
    void intersections_data();
    void intersections();
    void centers_data();
    void centers();
    void expands_data();
    void expands();
    void expandsToItsOwnBound();
    void compares();
    void sorts();
    void orders_data();
    void orders();
    void compositesCallTheVirtuals();
    void compositesAskInOrder();
};

void tst_RVRange::construction()
{
    QCOMPARE(bounds(Range()), (QList<int> { 0, 0 }));
    QCOMPARE(bounds(Range(3, 9)), (QList<int> { 3, 9 }));
    Range range(1, 2);
    const Range copy = range;
    range.max = 7;
    QCOMPARE(bounds(copy), (QList<int> { 1, 2 }));
}

void tst_RVRange::validity_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<bool>("valid");
    QTest::newRow("one value") << 3 << 3 << true;
    QTest::newRow("several") << -3 << 3 << true;
    QTest::newRow("bounds swapped") << 4 << 3 << false;
    QTest::newRow("whole range") << smallest << largest << true;
    QTest::newRow("whole range swapped") << largest << smallest << false;
    QTest::newRow("default") << 0 << 0 << true;
}

void tst_RVRange::validity()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QTEST(Range(min, max).isValid(), "valid");
}

void tst_RVRange::containsValues_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("contains");
    QTest::newRow("below") << 3 << 5 << 2 << false;
    QTest::newRow("lower bound") << 3 << 5 << 3 << true;
    QTest::newRow("inside") << 3 << 5 << 4 << true;
    QTest::newRow("upper bound") << 3 << 5 << 5 << true;
    QTest::newRow("above") << 3 << 5 << 6 << false;
    QTest::newRow("one value") << 3 << 3 << 3 << true;
    QTest::newRow("invalid, lower bound") << 4 << 3 << 4 << false;
    QTest::newRow("invalid, upper bound") << 4 << 3 << 3 << false;
}

void tst_RVRange::containsValues()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, value);
    QTEST(Range(min, max).contains(value), "contains");
}

void tst_RVRange::containsRanges_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<bool>("contains");
    QTest::newRow("equal") << 3 << 9 << true;
    QTest::newRow("inside") << 4 << 8 << true;
    QTest::newRow("below") << 2 << 9 << false;
    QTest::newRow("above") << 3 << 10 << false;
    QTest::newRow("around") << 2 << 10 << false;
    QTest::newRow("invalid, but both bounds inside") << 8 << 4 << true;
}

void tst_RVRange::containsRanges()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QTEST(Range(3, 9).contains(Range(min, max)), "contains");
}

void tst_RVRange::intersections_data()
{
    QTest::addColumn<QList<int>>("a");
    QTest::addColumn<QList<int>>("b");
    QTest::addColumn<bool>("intersects");
    QTest::newRow("touching") << QList<int> { 1, 5 } << QList<int> { 5, 9 } << true;
    QTest::newRow("side by side") << QList<int> { 1, 4 } << QList<int> { 5, 9 } << false;
    QTest::newRow("overlapping") << QList<int> { 1, 6 } << QList<int> { 5, 9 } << true;
    QTest::newRow("around") << QList<int> { 1, 9 } << QList<int> { 3, 4 } << true;
    QTest::newRow("equal") << QList<int> { 1, 9 } << QList<int> { 1, 9 } << true;
    QTest::newRow("invalid around a bound") << QList<int> { 1, 9 } << QList<int> { 20, 5 } << true;
    QTest::newRow("invalid, lower bound inside") << QList<int> { 1, 9 } << QList<int> { 5, 0 } << true;
    QTest::newRow("invalid outside") << QList<int> { 1, 9 } << QList<int> { 20, 15 } << false;
}

void tst_RVRange::intersections()
{
    QFETCH(QList<int>, a);
    QFETCH(QList<int>, b);
    const Range first(a.at(0), a.at(1));
    const Range second(b.at(0), b.at(1));
    QTEST(first.intersects(second), "intersects");
    QTEST(second.intersects(first), "intersects");
}

void tst_RVRange::centers_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("center");
    QTest::newRow("odd sum") << 1 << 4 << 2;
    QTest::newRow("even sum") << 1 << 5 << 3;
    QTest::newRow("negative, toward zero") << -3 << 0 << -1;
    QTest::newRow("largest") << largest << largest << largest;
    QTest::newRow("smallest") << smallest << smallest << smallest;
    QTest::newRow("whole range") << smallest << largest << 0;
}

void tst_RVRange::centers()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QTEST(Range(min, max).center(), "center");
}

void tst_RVRange::expands_data()
{
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("not yet set") << 0 << 0 << 5 << QList<int> { 5, 5 };
    QTest::newRow("not yet set, negative") << 0 << 0 << -2 << QList<int> { -2, -2 };
    QTest::newRow("not yet set, zero") << 0 << 0 << 0 << QList<int> { 0, 0 };
    QTest::newRow("downward") << 0 << 4 << -2 << QList<int> { -2, 4 };
    QTest::newRow("upward") << -4 << 0 << 3 << QList<int> { -4, 3 };
    QTest::newRow("one value, upward") << 3 << 3 << 5 << QList<int> { 3, 5 };
    QTest::newRow("one value, downward") << 3 << 3 << 1 << QList<int> { 1, 3 };
    QTest::newRow("inside") << 1 << 5 << 3 << QList<int> { 1, 5 };
    QTest::newRow("lower bound") << 1 << 5 << 1 << QList<int> { 1, 5 };
    QTest::newRow("upper bound") << 1 << 5 << 5 << QList<int> { 1, 5 };
    QTest::newRow("invalid, upper bound first") << 9 << 3 << 5 << QList<int> { 9, 5 };
    QTest::newRow("invalid, lower bound") << 9 << 3 << 2 << QList<int> { 2, 3 };
}

void tst_RVRange::expands()
{
    QFETCH(int, min);
    QFETCH(int, max);
    QFETCH(int, value);
    Range range(min, max);
    range.expandTo(value);
    QTEST(bounds(range), "result");
}

void tst_RVRange::expandsToItsOwnBound()
{
    Range range(9, 3);
    range.expandTo(range.min);
    QCOMPARE(bounds(range), (QList<int> { 9, 9 }));
}

void tst_RVRange::compares()
{
    QVERIFY(Range(1, 2) == Range(1, 2));
    QVERIFY(!(Range(1, 2) == Range(0, 2)));
    QVERIFY(!(Range(1, 2) == Range(1, 3)));
    QVERIFY(!(Range(1, 2) != Range(1, 2)));
    QVERIFY(Range(1, 2) != Range(0, 2));
    QVERIFY(Range(1, 2) != Range(1, 3));
}

void tst_RVRange::sorts()
{
    QList<Range> ranges = { Range(2, 8), Range(5, 4), Range(2, 3), Range(1, 9) };
    std::sort(ranges.begin(), ranges.end());
    QCOMPARE(bounds(ranges.at(0)), (QList<int> { 1, 9 }));
    QCOMPARE(bounds(ranges.at(1)), (QList<int> { 2, 3 }));
    QCOMPARE(bounds(ranges.at(2)), (QList<int> { 2, 8 }));
    QCOMPARE(bounds(ranges.at(3)), (QList<int> { 5, 4 }));
}

void tst_RVRange::orders_data()
{
    QTest::addColumn<QList<int>>("a");
    QTest::addColumn<QList<int>>("b");
    QTest::addColumn<bool>("less");
    QTest::newRow("equal") << QList<int> { 2, 3 } << QList<int> { 2, 3 } << false;
    QTest::newRow("smaller lower bound, larger upper") << QList<int> { 1, 9 } << QList<int> { 2, 3 } << true;
    QTest::newRow("larger lower bound, smaller upper") << QList<int> { 2, 3 } << QList<int> { 1, 9 } << false;
    QTest::newRow("smaller upper bound") << QList<int> { 2, 3 } << QList<int> { 2, 8 } << true;
    QTest::newRow("larger upper bound") << QList<int> { 2, 8 } << QList<int> { 2, 3 } << false;
    QTest::newRow("invalid and valid") << QList<int> { 1, 0 } << QList<int> { 2, 3 } << false;
    QTest::newRow("valid and invalid") << QList<int> { 2, 3 } << QList<int> { 1, 0 } << true;
    QTest::newRow("both invalid") << QList<int> { 1, 0 } << QList<int> { 5, 4 } << false;
}

void tst_RVRange::orders()
{
    QFETCH(QList<int>, a);
    QFETCH(QList<int>, b);
    QTEST(Range(a.at(0), a.at(1)) < Range(b.at(0), b.at(1)), "less");
}

void tst_RVRange::compositesCallTheVirtuals()
{
    const EvenRange even(2, 8);
    QVERIFY(even.contains(Range(4, 6)));
    QVERIFY(!even.contains(Range(4, 7)));
    QVERIFY(!even.contains(Range(3, 6)));
    QVERIFY(!even.intersects(Range(3, 7)));
    QVERIFY(even.intersects(Range(3, 6)));
    QVERIFY(!Range(3, 7).intersects(EvenRange(1, 9)));
    QVERIFY(Range(3, 8).intersects(EvenRange(1, 9)));
    QVERIFY(EvenRange(5, 4) < Range(6, 7));
    QVERIFY(!(Range(6, 7) < EvenRange(5, 4)));
}

void tst_RVRange::compositesAskInOrder()
{
    const WatchedRange outside(3, 5);
    QVERIFY(!outside.contains(Range(6, 4)));
    QCOMPARE(outside.asked, (QList<int> { 6 }));
    const WatchedRange around(3, 5);
    QVERIFY(around.contains(Range(4, 5)));
    QCOMPARE(around.asked, (QList<int> { 4, 5 }));

    const WatchedRange first(1, 2);
    const WatchedRange second(8, 9);
    QVERIFY(!first.intersects(second));
    QCOMPARE(first.asked, (QList<int> { 8, 9 }));
    QCOMPARE(second.asked, (QList<int> { 1, 2 }));
    const WatchedRange wide(0, 9);
    QVERIFY(wide.intersects(second));
    QCOMPARE(wide.asked, (QList<int> { 8 }));
    QCOMPARE(second.asked, (QList<int> { 1, 2 }));
}

QTEST_APPLESS_MAIN(tst_RVRange)
#include "tst_RVRange.moc"
