#include <RVProductBase/RVMargins.h>

#include <QDebug>
#include <QTest>

#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

}

class tst_RVMargins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction_data();
    void construction();
    void saturates();
    void compares_data();
    void compares();
    void moves();
    void hasNoMarginsAfterAMove();
    void debugOutput();
};

void tst_RVMargins::construction_data()
{
    QTest::addColumn<RVMargins>("margins");
    QTest::addColumn<QList<int>>("topBottomLeftRight");
    QTest::addColumn<QSize>("total");
    QTest::addColumn<bool>("null");
    QTest::newRow("default") << RVMargins() << QList<int> { 0, 0, 0, 0 } << QSize(0, 0) << true;
    QTest::newRow("four") << RVMargins(1, 2, 3, 4) << QList<int> { 1, 2, 3, 4 } << QSize(7, 3) << false;
    QTest::newRow("vertical and horizontal") << RVMargins(3, 5) << QList<int> { 3, 3, 5, 5 } << QSize(10, 6) << false;
    QTest::newRow("top only") << RVMargins(1, 0, 0, 0) << QList<int> { 1, 0, 0, 0 } << QSize(0, 1) << false;
    QTest::newRow("bottom only") << RVMargins(0, 1, 0, 0) << QList<int> { 0, 1, 0, 0 } << QSize(0, 1) << false;
    QTest::newRow("left only") << RVMargins(0, 0, 1, 0) << QList<int> { 0, 0, 1, 0 } << QSize(1, 0) << false;
    QTest::newRow("right only") << RVMargins(0, 0, 0, 1) << QList<int> { 0, 0, 0, 1 } << QSize(1, 0) << false;
    QTest::newRow("zero together, but not null")
            << RVMargins(1, -1, 2, -2) << QList<int> { 1, -1, 2, -2 } << QSize(0, 0) << false;
}

void tst_RVMargins::construction()
{
    QFETCH(RVMargins, margins);
    QFETCH(QList<int>, topBottomLeftRight);
    QCOMPARE((QList<int> { margins.top(), margins.bottom(), margins.left(), margins.right() }), topBottomLeftRight);
    QCOMPARE(margins.topLeft(), QPoint(topBottomLeftRight.at(2), topBottomLeftRight.at(0)));
    QCOMPARE(margins.bottomRight(), QPoint(topBottomLeftRight.at(3), topBottomLeftRight.at(1)));
    QTEST(margins.totalMarginWH(), "total");
    QTEST(margins.allNull(), "null");

    const RVMarginsImpl data(topBottomLeftRight.at(0), topBottomLeftRight.at(1), topBottomLeftRight.at(2),
                             topBottomLeftRight.at(3));
    QCOMPARE((QList<int> { data.top(), data.bottom(), data.left(), data.right() }), topBottomLeftRight);
    QCOMPARE(data.topLeft(), margins.topLeft());
    QCOMPARE(data.bottomRight(), margins.bottomRight());
    QTEST(data.totalMarginWH(), "total");
    QTEST(data.allNull(), "null");
}

void tst_RVMargins::saturates()
{
    QCOMPARE(RVMargins(largest, 1, smallest, -1).totalMarginWH(), QSize(smallest, largest));
}

void tst_RVMargins::compares_data()
{
    QTest::addColumn<RVMargins>("other");
    QTest::addColumn<bool>("equal");
    QTest::newRow("equal, built separately") << RVMargins(1, 2, 3, 4) << true;
    QTest::newRow("other top") << RVMargins(9, 2, 3, 4) << false;
    QTest::newRow("other bottom") << RVMargins(1, 9, 3, 4) << false;
    QTest::newRow("other left") << RVMargins(1, 2, 9, 4) << false;
    QTest::newRow("other right") << RVMargins(1, 2, 3, 9) << false;
}

void tst_RVMargins::compares()
{
    QFETCH(RVMargins, other);
    QFETCH(bool, equal);
    const RVMargins margins(1, 2, 3, 4);
    const RVMargins copy = margins;
    QCOMPARE(margins == other, equal);
    QCOMPARE(margins != other, !equal);
    QVERIFY(margins == copy);
}

void tst_RVMargins::moves()
{
    RVMargins first(1, 2, 3, 4);
    RVMargins second(5, 6);
    second = std::move(first);
    QCOMPARE(second.bottom(), 2);
    first = second;
    QCOMPARE(first.right(), 4);
    const RVMargins third(std::move(first));
    QCOMPARE(third.left(), 3);
}

void tst_RVMargins::hasNoMarginsAfterAMove()
{
    RVMargins first(1, 2, 3, 4);
    const RVMargins taken(std::move(first));
    RVMargins second(5, 6);
    RVMargins target;
    target = std::move(second);
    for (const RVMargins &moved : { first, second }) {
        QCOMPARE((QList<int> { moved.top(), moved.bottom(), moved.left(), moved.right() }), QList<int>(4, 0));
        QCOMPARE(moved.topLeft(), QPoint(0, 0));
        QCOMPARE(moved.bottomRight(), QPoint(0, 0));
        QCOMPARE(moved.totalMarginWH(), QSize(0, 0));
        QVERIFY(moved.allNull());
        QVERIFY(moved == RVMargins());
        QVERIFY(RVMargins() == moved);
        QVERIFY(moved == moved);
        QVERIFY(moved != taken);
        QVERIFY(taken != moved);
        QString text;
        QDebug(&text) << moved;
        QCOMPARE(text, u"\"RVMargins: left:\" 0 \"top:\" 0 \"right:\" 0 \"bottom:\" 0 "_s);
    }
    QVERIFY(first == second);
    first = target;
    QCOMPARE(first.top(), 5);
}

void tst_RVMargins::debugOutput()
{
    QString text;
    QDebug(&text) << RVMargins(1, 2, 3, 4);
    QCOMPARE(text, u"\"RVMargins: left:\" 3 \"top:\" 1 \"right:\" 4 \"bottom:\" 2 "_s);
}

QTEST_GUILESS_MAIN(tst_RVMargins)
#include "tst_RVMargins.moc"
