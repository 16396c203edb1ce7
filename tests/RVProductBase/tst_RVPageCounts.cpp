#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageCounts.h>

#include <QTest>

#include <algorithm>
#include <iterator>
#include <type_traits>

static_assert(std::is_trivially_copyable_v<RVPageCounts>);
static_assert(std::is_trivially_copyable_v<RVPageCounts::const_iterator>);
static_assert(RVPageCounts().isEmpty() && RVPageCounts().size() == 0);
static_assert(RVPageCounts().begin() == RVPageCounts().end());
static_assert(RVPageCounts().first() == 0 && RVPageCounts().last() == 0 && RVPageCounts().at(7) == 0);

namespace {

RVPageCounts counts(int min, int max, int increment)
{
    return RVPageCountOrganization(RVIntRange(min, max), increment).pageCounts();
}

}

class tst_RVPageCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void iterator();
    void algorithms();
    void equality_data();
    void equality();
};

void tst_RVPageCounts::iterator()
{
    const RVPageCounts book = counts(26, 34, 4);
    auto it = book.begin();
    QCOMPARE(*it, 26);
    QCOMPARE(*it++, 26);
    QCOMPARE(*it, 30);
    const auto kept = it;
    QCOMPARE(*++it, 34);
    QCOMPARE(*kept, 30);
    QVERIFY(it != book.end());
    QVERIFY(++it == book.end());
    QVERIFY(!(it != book.end()));
    QCOMPARE(*book.begin(), 26);
}

void tst_RVPageCounts::algorithms()
{
    const RVPageCounts book = counts(26, 154, 4);
    QCOMPARE(std::distance(book.begin(), book.end()), 33);
    QCOMPARE(*std::find_if(book.begin(), book.end(), [](int pages) { return pages > 100; }), 102);
    QVERIFY(std::find(book.begin(), book.end(), 35) == book.end());
    QCOMPARE(QList<int>(book.begin(), book.end()).at(32), 154);
}

void tst_RVPageCounts::equality_data()
{
    QTest::addColumn<RVPageCounts>("a");
    QTest::addColumn<RVPageCounts>("b");
    QTest::addColumn<bool>("equal");
    QTest::newRow("none") << RVPageCounts() << RVPageCounts() << true;
    QTest::newRow("none, inverted") << RVPageCounts() << counts(20, 10, 4) << true;
    QTest::newRow("none and 0") << RVPageCounts() << counts(0, 0, 0) << false;
    QTest::newRow("same") << counts(26, 154, 4) << counts(26, 154, 4) << true;
    QTest::newRow("another highest with the same counts") << counts(26, 33, 4) << counts(26, 30, 4) << true;
    QTest::newRow("one count, other increments") << counts(3, 3, 0) << counts(3, 3, -4) << true;
    QTest::newRow("another lowest") << counts(26, 30, 4) << counts(30, 34, 4) << false;
    QTest::newRow("another increment") << counts(26, 30, 4) << counts(26, 28, 2) << false;
    QTest::newRow("one more") << counts(26, 30, 4) << counts(26, 34, 4) << false;
}

void tst_RVPageCounts::equality()
{
    QFETCH(RVPageCounts, a);
    QFETCH(RVPageCounts, b);
    QTEST(a == b, "equal");
    QTEST(b == a, "equal");
    QTEST(!(a != b), "equal");
}

QTEST_APPLESS_MAIN(tst_RVPageCounts)
#include "tst_RVPageCounts.moc"
