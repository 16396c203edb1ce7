#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>

#include <QDebug>
#include <QDomDocument>
#include <QTest>

#include <limits>
#include <memory>
#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

static_assert(std::has_virtual_destructor_v<RVPageCountOrganization>);
static_assert(std::is_same_v<decltype(std::declval<RVPageCountOrganization &>() -= 1), RVPageCountOrganization>);

namespace {

constexpr int INT_LOWEST = std::numeric_limits<int>::min();
constexpr int INT_HIGHEST = std::numeric_limits<int>::max();

RVPageCountOrganization organization(int min, int max, int increment)
{
    return RVPageCountOrganization(RVIntRange(min, max), increment);
}

}

class tst_RVPageCountOrganization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields_data();
    void fields();
    void validity_data();
    void validity();
    void counts_data();
    void counts();
    void packages_data();
    void packages();
    void numberOfPackages_data();
    void numberOfPackages();
    void pageCounts_data();
    void pageCounts();
    void largestPageCounts_data();
    void largestPageCounts();
    void pageCountsAndTheModel_data();
    void pageCountsAndTheModel();
    void minPagesWithPano_data();
    void minPagesWithPano();
    void adaptedTo_data();
    void adaptedTo();
    void clone();
    void subtract_data();
    void subtract();
    void equality_data();
    void equality();
    void productsXml_data();
    void productsXml();
    void pictureBoxXml_data();
    void pictureBoxXml();
    void nullElement();
    void dump_data();
    void dump();
    void debugOutputInModes();
    void copies();
};

void tst_RVPageCountOrganization::fields_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("min");
    QTest::addColumn<int>("max");
    QTest::addColumn<int>("increment");
    QTest::newRow("default") << RVPageCountOrganization() << 0 << 0 << 0;
    QTest::newRow("photo book") << organization(26, 154, 4) << 26 << 154 << 4;
    QTest::newRow("inverted") << organization(5, 2, -1) << 5 << 2 << -1;
    QTest::newRow("advent calendar") << RVPageCountOrganization::createForAdventCalendarWithDoorBackPrint() << 25 << 25
                                     << 0;
    QTest::newRow("card with inserted photo")
            << RVPageCountOrganization::createForCardWithInsertedFoto() << 3 << 3 << 0;
}

void tst_RVPageCountOrganization::fields()
{
    QFETCH(RVPageCountOrganization, organization);
    QTEST(organization.minPages(), "min");
    QTEST(organization.maxPages(), "max");
    QTEST(organization.range().min, "min");
    QTEST(organization.range().max, "max");
    QTEST(organization.pageIncrement(), "increment");
}

void tst_RVPageCountOrganization::validity_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("consistent");
    QTest::addColumn<bool>("onePage");
    QTest::newRow("default") << RVPageCountOrganization() << false << false << true;
    QTest::newRow("zero with an increment") << organization(0, 0, 4) << false << false << true;
    QTest::newRow("one page") << organization(1, 1, 0) << true << true << true;
    QTest::newRow("two pages") << organization(2, 2, 0) << true << true << false;
    QTest::newRow("card with inserted photo") << organization(3, 3, 0) << true << true << false;
    QTest::newRow("one count with an increment") << organization(3, 3, 4) << true << true << false;
    QTest::newRow("one count, negative increment") << organization(3, 3, -4) << true << true << false;
    QTest::newRow("negative count") << organization(-3, -3, 0) << true << true << true;
    QTest::newRow("photo book") << organization(26, 154, 4) << true << true << false;
    QTest::newRow("increment misses the highest") << organization(26, 28, 4) << true << false << false;
    QTest::newRow("increment of 1") << organization(26, 28, 1) << true << true << false;
    QTest::newRow("several without increment") << organization(10, 20, 0) << false << false << false;
    QTest::newRow("several with a negative increment") << organization(10, 20, -1) << false << false << false;
    QTest::newRow("from 0") << organization(0, 4, 2) << true << true << true;
    QTest::newRow("from 1") << organization(1, 5, 2) << true << true << true;
    QTest::newRow("from 2") << organization(2, 6, 2) << true << true << false;
    QTest::newRow("inverted") << organization(5, 4, 1) << false << false << false;
    QTest::newRow("all integers") << organization(INT_LOWEST, INT_HIGHEST, 1) << true << true << true;
    QTest::newRow("all integers, missed") << organization(INT_LOWEST, INT_HIGHEST, 2) << true << false << true;
}

void tst_RVPageCountOrganization::validity()
{
    QFETCH(RVPageCountOrganization, organization);
    QTEST(organization.isValid(), "valid");
    QTEST(organization.isConsistent(), "consistent");
    QTEST(organization.isOnePageProduct(), "onePage");
}

void tst_RVPageCountOrganization::counts_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("inRange");
    QTest::addColumn<bool>("validCount");
    QTest::addColumn<int>("packages");
    QTest::addColumn<int>("constrained");
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTest::newRow("far below") << book << 3 << false << false << 0 << 26;
    QTest::newRow("a package below") << book << 22 << false << false << 0 << 26;
    QTest::newRow("below") << book << 25 << false << false << 0 << 26;
    QTest::newRow("lowest") << book << 26 << true << true << 0 << 26;
    QTest::newRow("above the lowest") << book << 27 << true << false << 0 << 30;
    QTest::newRow("below the first package") << book << 29 << true << false << 0 << 30;
    QTest::newRow("first package") << book << 30 << true << true << 1 << 30;
    QTest::newRow("above the first package") << book << 31 << true << false << 1 << 34;
    QTest::newRow("second package") << book << 34 << true << true << 2 << 34;
    QTest::newRow("below the highest") << book << 153 << true << false << 31 << 154;
    QTest::newRow("highest") << book << 154 << true << true << 32 << 154;
    QTest::newRow("above") << book << 155 << false << false << 32 << 154;
    QTest::newRow("a package above") << book << 158 << false << false << 33 << 154;
    QTest::newRow("far above") << book << 200 << false << false << 43 << 154;
    QTest::newRow("lowest integer") << book << INT_LOWEST << false << false << 0 << 26;
    QTest::newRow("highest integer") << book << INT_HIGHEST << false << false << 536870905 << 154;

    const RVPageCountOrganization missed = organization(26, 29, 4);
    QTest::newRow("rounded above the highest") << missed << 28 << true << false << 0 << 30;
    QTest::newRow("missed highest") << missed << 29 << true << false << 0 << 30;
    QTest::newRow("package above the highest") << missed << 30 << false << false << 1 << 29;

    const RVPageCountOrganization card = organization(3, 3, 0);
    QTest::newRow("below the card") << card << 2 << false << false << 0 << 3;
    QTest::newRow("the card") << card << 3 << true << true << 0 << 3;
    QTest::newRow("above the card") << card << 4 << false << false << 0 << 3;

    const RVPageCountOrganization fixed = organization(10, 20, 0);
    QTest::newRow("below, no increment") << fixed << 9 << false << false << 0 << 10;
    QTest::newRow("lowest, no increment") << fixed << 10 << true << true << 0 << 10;
    QTest::newRow("between, no increment") << fixed << 15 << true << true << 0 << 10;
    QTest::newRow("highest, no increment") << fixed << 20 << true << true << 0 << 10;
    QTest::newRow("above, no increment") << fixed << 21 << false << false << 0 << 20;

    const RVPageCountOrganization backwards = organization(10, 20, -4);
    QTest::newRow("lowest, negative increment") << backwards << 10 << true << true << 0 << 10;
    QTest::newRow("between, negative increment") << backwards << 15 << true << false << -1 << 14;
    QTest::newRow("two packages, negative increment") << backwards << 18 << true << true << -2 << 18;

    const RVPageCountOrganization inverted = organization(20, 10, 4);
    QTest::newRow("below the inverted range") << inverted << 5 << false << false << 0 << 20;
    QTest::newRow("between inverted bounds") << inverted << 15 << false << false << 0 << 20;
    QTest::newRow("above the inverted range") << inverted << 24 << false << false << 1 << 20;

    const RVPageCountOrganization negative = organization(-10, 10, 4);
    QTest::newRow("below a negative lowest") << negative << -11 << false << false << 0 << -10;
    QTest::newRow("negative lowest") << negative << -10 << true << true << 0 << -10;
    QTest::newRow("above a negative lowest") << negative << -9 << true << false << 0 << -6;
    QTest::newRow("zero") << negative << 0 << true << false << 2 << 2;
    QTest::newRow("last package") << negative << 10 << true << true << 5 << 10;

    const RVPageCountOrganization all = organization(INT_LOWEST, INT_HIGHEST, 1);
    QTest::newRow("lowest of all") << all << INT_LOWEST << true << true << 0 << INT_LOWEST;
    QTest::newRow("middle of all") << all << 0 << true << true << INT_HIGHEST << 0;
    QTest::newRow("below the middle of all") << all << -1 << true << true << INT_HIGHEST << -1;
    QTest::newRow("highest of all") << all << INT_HIGHEST << true << true << INT_HIGHEST << INT_HIGHEST;

    // The pages above the lowest count are more than an int holds, and would have a different remainder as an int.
    const RVPageCountOrganization thirds = organization(INT_LOWEST, INT_HIGHEST, 3);
    QTest::newRow("every third of all, highest") << thirds << INT_HIGHEST << true << true << 1431655765 << INT_HIGHEST;
    QTest::newRow("every third of all, between")
            << thirds << INT_HIGHEST - 2 << true << false << 1431655764 << INT_HIGHEST;
    QTest::newRow("every third of all, middle") << thirds << 1 << true << true << 715827883 << 1;

    const RVPageCountOrganization broad = organization(0, INT_HIGHEST, 1500000000);
    QTest::newRow("rounded beyond the integers") << broad << 1500000001 << true << false << 1 << INT_HIGHEST;
    const RVPageCountOrganization lowered = organization(INT_LOWEST, INT_HIGHEST, INT_LOWEST);
    QTest::newRow("lowest increment, middle") << lowered << 0 << true << true << -1 << 0;
    QTest::newRow("lowest increment, highest") << lowered << INT_HIGHEST << true << false << -1 << 0;
    const RVPageCountOrganization minusOne = organization(INT_LOWEST, INT_HIGHEST, -1);
    QTest::newRow("increment of -1, highest") << minusOne << INT_HIGHEST << true << true << INT_LOWEST << INT_HIGHEST;
}

void tst_RVPageCountOrganization::counts()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(int, pages);
    QTEST(organization.inRange(pages), "inRange");
    QTEST(organization.isValidPageCount(pages), "validCount");
    QTEST(organization.countPackages(pages), "packages");
    QTEST(organization.constrain(pages), "constrained");
}

void tst_RVPageCountOrganization::packages_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("packages");
    QTest::addColumn<int>("pages");
    QTest::newRow("none") << organization(26, 154, 4) << 0 << 26;
    QTest::newRow("one") << organization(26, 154, 4) << 1 << 30;
    QTest::newRow("last") << organization(26, 154, 4) << 32 << 154;
    QTest::newRow("beyond the highest") << organization(26, 154, 4) << 33 << 158;
    QTest::newRow("negative") << organization(26, 154, 4) << -1 << 22;
    QTest::newRow("no increment") << organization(3, 3, 0) << 7 << 3;
    QTest::newRow("highest that fits") << organization(7, 7, 4) << 536870910 << 2147483647;
    QTest::newRow("too many") << organization(26, 154, 4) << INT_HIGHEST << INT_HIGHEST;
    QTest::newRow("too few") << organization(26, 154, 4) << INT_LOWEST << INT_LOWEST;
    QTest::newRow("highest increment") << organization(INT_HIGHEST, INT_HIGHEST, INT_HIGHEST) << INT_HIGHEST
                                       << INT_HIGHEST;
    QTest::newRow("lowest increment") << organization(INT_HIGHEST, INT_HIGHEST, INT_LOWEST) << INT_LOWEST
                                      << INT_HIGHEST;
}

void tst_RVPageCountOrganization::packages()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(int, packages);
    QTEST(organization.pagesWithNExtraPackages(packages), "pages");
}

void tst_RVPageCountOrganization::numberOfPackages_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("number");
    QTest::newRow("default") << RVPageCountOrganization() << 1;
    QTest::newRow("photo book") << organization(26, 154, 4) << 33;
    QTest::newRow("card") << organization(3, 3, 0) << 1;
    QTest::newRow("several without increment") << organization(10, 20, 0) << 1;
    QTest::newRow("picture box") << organization(1, 30, 1) << 30;
    QTest::newRow("increment meets the highest") << organization(26, 30, 4) << 2;
    QTest::newRow("increment misses the highest") << organization(26, 29, 4) << 1;
    QTest::newRow("one count with an increment") << organization(3, 3, 4) << 1;
    QTest::newRow("inverted by less than a package") << organization(20, 17, 4) << 1;
    QTest::newRow("inverted by a package") << organization(20, 16, 4) << 0;
    QTest::newRow("inverted by two packages") << organization(20, 12, 4) << -1;
    QTest::newRow("negative increment") << organization(10, 20, -5) << -1;
    QTest::newRow("all integers") << organization(INT_LOWEST, INT_HIGHEST, 1) << INT_HIGHEST;
    QTest::newRow("one too many") << organization(0, INT_HIGHEST, 1) << INT_HIGHEST;
    QTest::newRow("just fitting") << organization(1, INT_HIGHEST, 1) << INT_HIGHEST;
    QTest::newRow("one fewer") << organization(2, INT_HIGHEST, 1) << 2147483646;
    QTest::newRow("all integers backwards") << organization(INT_LOWEST, INT_HIGHEST, -1) << INT_LOWEST;
}

void tst_RVPageCountOrganization::numberOfPackages()
{
    QFETCH(RVPageCountOrganization, organization);
    QTEST(organization.numberOfPackages(), "number");
}

void tst_RVPageCountOrganization::pageCounts_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<QList<int>>("counts");
    QTest::newRow("default") << RVPageCountOrganization() << QList<int> { 0 };
    QTest::newRow("short book") << organization(26, 38, 4) << QList<int> { 26, 30, 34, 38 };
    QTest::newRow("card") << organization(3, 3, 0) << QList<int> { 3 };
    QTest::newRow("one count with an increment") << organization(3, 3, 4) << QList<int> { 3 };
    QTest::newRow("one count, negative increment") << organization(3, 3, -4) << QList<int> { 3 };
    QTest::newRow("increment misses the highest") << organization(26, 33, 4) << QList<int> { 26, 30 };
    QTest::newRow("increment beyond the highest") << organization(26, 29, 4) << QList<int> { 26 };
    QTest::newRow("across zero") << organization(-4, 4, 4) << QList<int> { -4, 0, 4 };
    QTest::newRow("several without increment") << organization(10, 20, 0) << QList<int> { 10 };
    QTest::newRow("several with a negative increment") << organization(10, 20, -5) << QList<int>();
    QTest::newRow("negative increment beyond the lowest") << organization(10, 20, -11) << QList<int> { 10 };
    QTest::newRow("inverted") << organization(20, 10, 4) << QList<int>();
    QTest::newRow("inverted by less than a package") << organization(20, 17, 4) << QList<int>();
    QTest::newRow("inverted, negative increment") << organization(20, 10, -4) << QList<int>();
    QTest::newRow("inverted without increment") << organization(20, 10, 0) << QList<int>();
    QTest::newRow("at the highest integer")
            << organization(INT_HIGHEST - 4, INT_HIGHEST, 3) << QList<int> { INT_HIGHEST - 4, INT_HIGHEST - 1 };
    QTest::newRow("highest integer alone") << organization(INT_HIGHEST, INT_HIGHEST, 1) << QList<int> { INT_HIGHEST };
    QTest::newRow("from the lowest to the highest integer")
            << organization(INT_LOWEST, INT_HIGHEST, INT_HIGHEST) << QList<int> { INT_LOWEST, -1, INT_HIGHEST - 1 };
}

void tst_RVPageCountOrganization::pageCounts()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(QList<int>, counts);
    const RVPageCounts pageCounts = organization.pageCounts();
    QList<int> visited;
    for (const int pages : pageCounts)
        visited += pages;
    QCOMPARE(visited, counts);
    QCOMPARE(QList<int>(pageCounts.begin(), pageCounts.end()), counts);
    QCOMPARE(pageCounts.size(), qint64(counts.size()));
    QCOMPARE(pageCounts.isEmpty(), counts.isEmpty());
    QCOMPARE(pageCounts.first(), counts.value(0));
    QCOMPARE(pageCounts.last(), counts.value(counts.size() - 1));
    for (qsizetype i = 0; i < counts.size(); ++i) {
        QCOMPARE(pageCounts.at(i), counts.at(i));
        QVERIFY(organization.isValidPageCount(counts.at(i)));
    }
    QCOMPARE(pageCounts.at(-1), pageCounts.first());
    QCOMPARE(pageCounts.at(counts.size()), pageCounts.last());
}

void tst_RVPageCountOrganization::largestPageCounts_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("middle");
    QTest::addColumn<int>("last");
    QTest::newRow("from 0") << organization(0, INT_HIGHEST, 1) << qint64(2147483648) << 0 << 1073741824 << INT_HIGHEST;
    QTest::newRow("all integers") << organization(INT_LOWEST, INT_HIGHEST, 1) << qint64(4294967296) << INT_LOWEST << 0
                                  << INT_HIGHEST;
    QTest::newRow("every second integer")
            << organization(INT_LOWEST, INT_HIGHEST, 2) << qint64(2147483648) << INT_LOWEST << 0 << INT_HIGHEST - 1;
}

void tst_RVPageCountOrganization::largestPageCounts()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(qint64, size);
    const RVPageCounts pageCounts = organization.pageCounts();
    QCOMPARE(pageCounts.size(), size);
    QTEST(pageCounts.first(), "first");
    QTEST(pageCounts.at(size / 2), "middle");
    QTEST(pageCounts.last(), "last");
    QTEST(pageCounts.at(std::numeric_limits<qint64>::max()), "last");
    QTEST(pageCounts.at(std::numeric_limits<qint64>::min()), "first");
    auto it = pageCounts.begin();
    QCOMPARE(*it++, pageCounts.first());
    QCOMPARE(*it, pageCounts.at(1));
    QVERIFY(it != pageCounts.end());
}

void tst_RVPageCountOrganization::pageCountsAndTheModel_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::newRow("default") << RVPageCountOrganization();
    QTest::newRow("photo book") << organization(26, 154, 4);
    QTest::newRow("card") << organization(3, 3, 0);
    QTest::newRow("increment misses the highest") << organization(26, 33, 4);
    QTest::newRow("several without increment") << organization(10, 20, 0);
    QTest::newRow("one count, negative increment") << organization(3, 3, -4);
    QTest::newRow("negative increment beyond the lowest") << organization(10, 20, -11);
}

void tst_RVPageCountOrganization::pageCountsAndTheModel()
{
    QFETCH(RVPageCountOrganization, organization);
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(organization);
    QList<int> rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows += model.pagesAtIndex(row);
    const RVPageCounts pageCounts = organization.pageCounts();
    QCOMPARE(QList<int>(pageCounts.begin(), pageCounts.end()), rows);
}

void tst_RVPageCountOrganization::minPagesWithPano_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("pages");
    QTest::newRow("default") << RVPageCountOrganization() << 0;
    QTest::newRow("photo book") << organization(26, 154, 4) << 34;
    QTest::newRow("no increment") << organization(3, 3, 0) << 3;
    QTest::newRow("above the highest") << organization(26, 28, 4) << 34;
    QTest::newRow("negative increment") << organization(26, 28, -4) << 18;
    QTest::newRow("too many") << organization(26, 28, INT_HIGHEST) << INT_HIGHEST;
    QTest::newRow("too few") << organization(26, 28, INT_LOWEST) << INT_LOWEST;
}

void tst_RVPageCountOrganization::minPagesWithPano()
{
    QFETCH(RVPageCountOrganization, organization);
    QTEST(organization.minPagesWithPano(), "pages");
}

void tst_RVPageCountOrganization::adaptedTo_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("pages");
    QTest::addColumn<RVPageCountOrganization>("adapted");
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTest::newRow("below") << book << 25 << book;
    QTest::newRow("lowest") << book << 26 << book;
    QTest::newRow("above the lowest") << book << 27 << organization(30, 154, 4);
    QTest::newRow("first package") << book << 30 << organization(30, 154, 4);
    QTest::newRow("highest") << book << 154 << organization(154, 154, 4);
    QTest::newRow("above") << book << 200 << organization(154, 154, 4);
    QTest::newRow("rounded above the highest") << organization(26, 29, 4) << 28 << organization(30, 29, 4);
    QTest::newRow("no increment") << organization(10, 20, 0) << 15 << organization(10, 20, 0);
    QTest::newRow("above, no increment") << organization(10, 20, 0) << 25 << organization(20, 20, 0);
    QTest::newRow("lowest integer") << book << INT_LOWEST << book;
    QTest::newRow("highest integer") << book << INT_HIGHEST << organization(154, 154, 4);
}

void tst_RVPageCountOrganization::adaptedTo()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(int, pages);
    const RVPageCountOrganization before = organization;
    QTEST(organization.adaptedTo(pages), "adapted");
    QCOMPARE(organization, before);
}

void tst_RVPageCountOrganization::clone()
{
    const RVPageCountOrganization book = organization(26, 154, 4);
    QCOMPARE(book.clone(), organization(26, 154, 4));
    QCOMPARE(book.clone(false), organization(26, 154, 4));
    QCOMPARE(book.clone(true), organization(26, 26, 4));
    QCOMPARE(book, organization(26, 154, 4));
    QCOMPARE(RVPageCountOrganization().clone(true), organization(0, 0, 0));
}

void tst_RVPageCountOrganization::subtract_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<int>("pages");
    QTest::addColumn<RVPageCountOrganization>("result");
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTest::newRow("nothing") << book << 0 << book;
    QTest::newRow("some") << book << 20 << organization(6, 134, 4);
    QTest::newRow("down to 1") << book << 25 << organization(1, 129, 4);
    QTest::newRow("down to 0") << book << 26 << book;
    QTest::newRow("below 0") << book << 30 << book;
    QTest::newRow("negative") << book << -4 << organization(30, 158, 4);
    QTest::newRow("highest integer") << book << INT_HIGHEST << book;
    QTest::newRow("lowest integer") << book << INT_LOWEST << organization(INT_HIGHEST, INT_HIGHEST, 4);
    QTest::newRow("lowest integer from a negative one")
            << organization(-5, -5, 0) << INT_LOWEST << organization(2147483643, 2147483643, 0);
    QTest::newRow("upper bound at its limit")
            << organization(26, INT_HIGHEST, 4) << -4 << organization(30, INT_HIGHEST, 4);
    QTest::newRow("nothing from an empty one") << RVPageCountOrganization() << 0 << RVPageCountOrganization();
    QTest::newRow("up from an empty one") << RVPageCountOrganization() << -1 << organization(1, 1, 0);
    QTest::newRow("only the lower bound counts") << organization(20, 5, 0) << 15 << organization(5, -10, 0);
}

void tst_RVPageCountOrganization::subtract()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(int, pages);
    RVPageCountOrganization returned = (organization -= pages);
    QTEST(returned, "result");
    QTEST(organization, "result");
    returned -= -1;
    QTEST(organization, "result");
}

void tst_RVPageCountOrganization::equality_data()
{
    QTest::addColumn<RVPageCountOrganization>("other");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << organization(26, 154, 4) << true;
    QTest::newRow("lowest") << organization(25, 154, 4) << false;
    QTest::newRow("highest") << organization(26, 155, 4) << false;
    QTest::newRow("increment") << organization(26, 154, 5) << false;
    QTest::newRow("default") << RVPageCountOrganization() << false;
}

void tst_RVPageCountOrganization::equality()
{
    QFETCH(RVPageCountOrganization, other);
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTEST(book == other, "equal");
    QTEST(other == book, "equal");
    QTEST(!(book != other), "equal");
    QVERIFY(other == other);
}

void tst_RVPageCountOrganization::productsXml_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::newRow("no attributes") << u"<product/>"_s << organization(1, 1, 0);
    QTest::newRow("photo book") << u"<product pages='26' max_pages='154' page_step='4'/>"_s << organization(26, 154, 4);
    QTest::newRow("lowest only") << u"<product pages='26'/>"_s << organization(26, 26, 0);
    QTest::newRow("highest only") << u"<product max_pages='20'/>"_s << organization(1, 20, 0);
    QTest::newRow("increment only") << u"<product page_step='4'/>"_s << organization(1, 1, 4);
    QTest::newRow("one piece") << u"<product pieces='1' pages='26' max_pages='154'/>"_s << organization(26, 154, 0);
    QTest::newRow("several pieces") << u"<product pieces='3' pages='2' max_pages='10' page_step='4'/>"_s
                                    << organization(6, 30, 4);
    QTest::newRow("pieces of the default") << u"<product pieces='5'/>"_s << organization(5, 5, 0);
    QTest::newRow("no pieces") << u"<product pieces='0' pages='26' max_pages='154'/>"_s << organization(0, 0, 0);
    QTest::newRow("negative pieces") << u"<product pieces='-1' pages='26' max_pages='154'/>"_s
                                     << organization(-26, -154, 0);
    QTest::newRow("too many pieces") << u"<product pieces='100000' pages='2' max_pages='100000'/>"_s
                                     << organization(200000, INT_HIGHEST, 0);
    QTest::newRow("no numbers") << u"<product pieces='a' pages='b' max_pages='' page_step='4.5'/>"_s
                                << organization(1, 1, 0);
    QTest::newRow("highest is no number") << u"<product pages='26' max_pages='x'/>"_s << organization(26, 26, 0);
    QTest::newRow("too large") << u"<product pages='2147483648'/>"_s << organization(1, 1, 0);
    QTest::newRow("inverted") << u"<product pages='26' max_pages='2'/>"_s << organization(26, 2, 0);
    QTest::newRow("zero") << u"<product pages='0'/>"_s << organization(0, 0, 0);
    QTest::newRow("attributes of a child")
            << u"<product><spine pages='26' page_step='4'/></product>"_s << organization(1, 1, 0);
    QTest::newRow("other letter case") << u"<product Pages='26' PAGE_STEP='4'/>"_s << organization(1, 1, 0);
}

void tst_RVPageCountOrganization::productsXml()
{
    QFETCH(QString, xml);
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QTEST(RVPageCountOrganization::createFromProductsXML(document.documentElement()), "organization");
}

void tst_RVPageCountOrganization::pictureBoxXml_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::newRow("no attributes") << u"<product/>"_s << organization(1, 30, 1);
    QTest::newRow("lowest only") << u"<product pages='20'/>"_s << organization(20, 49, 1);
    QTest::newRow("all") << u"<product pages='20' max_pages='60' page_step='5'/>"_s << organization(20, 60, 5);
    QTest::newRow("highest only") << u"<product max_pages='60'/>"_s << organization(1, 60, 1);
    QTest::newRow("no increment") << u"<product page_step='0'/>"_s << organization(1, 30, 0);
    QTest::newRow("pieces do not count") << u"<product pieces='3' pages='20'/>"_s << organization(20, 49, 1);
    QTest::newRow("no numbers") << u"<product pages='b' max_pages='' page_step='x'/>"_s << organization(1, 30, 1);
    QTest::newRow("just fitting") << u"<product pages='2147483618'/>"_s << organization(2147483618, INT_HIGHEST, 1);
    QTest::newRow("too large") << u"<product pages='2147483647'/>"_s << organization(INT_HIGHEST, INT_HIGHEST, 1);
    QTest::newRow("negative") << u"<product pages='-29'/>"_s << organization(-29, 0, 1);
}

void tst_RVPageCountOrganization::pictureBoxXml()
{
    QFETCH(QString, xml);
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    QTEST(RVPageCountOrganization::createFromProductsXMLForPictureBox(document.documentElement()), "organization");
}

void tst_RVPageCountOrganization::nullElement()
{
    QCOMPARE(RVPageCountOrganization::createFromProductsXML(QDomElement()), organization(1, 1, 0));
    QCOMPARE(RVPageCountOrganization::createFromProductsXMLForPictureBox(QDomElement()), organization(1, 30, 1));
}

void tst_RVPageCountOrganization::dump_data()
{
    QTest::addColumn<RVPageCountOrganization>("organization");
    QTest::addColumn<QString>("text");
    QTest::newRow("default") << RVPageCountOrganization() << u"min: 0; max: 0; increment: 0"_s;
    QTest::newRow("photo book") << organization(26, 154, 4) << u"min: 26; max: 154; increment: 4"_s;
    QTest::newRow("large") << organization(-1000, 1234567, -2) << u"min: -1000; max: 1234567; increment: -2"_s;
}

void tst_RVPageCountOrganization::dump()
{
    QFETCH(RVPageCountOrganization, organization);
    QFETCH(QString, text);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString dumped = organization.dump();
    QLocale::setDefault(before);
    QCOMPARE(dumped, text);
    QString debugText;
    QDebug(&debugText) << organization;
    QCOMPARE(debugText, QString(u'"' + text + u"\" "_s));
}

void tst_RVPageCountOrganization::debugOutputInModes()
{
    QString text;
    QDebug(&text) << 1 << organization(26, 154, 4) << 2;
    QCOMPARE(text, u"1 \"min: 26; max: 154; increment: 4\" 2 "_s);
    text.clear();
    QDebug(&text).nospace() << organization(26, 154, 4) << 2;
    QCOMPARE(text, u"\"min: 26; max: 154; increment: 4\"2"_s);
    text.clear();
    QDebug(&text).noquote() << organization(26, 154, 4);
    QCOMPARE(text, u"min: 26; max: 154; increment: 4 "_s);
}

void tst_RVPageCountOrganization::copies()
{
    const RVPageCountOrganization source = organization(26, 154, 4);
    RVPageCountOrganization copy = source;
    copy -= 20;
    QCOMPARE(copy, organization(6, 134, 4));
    QCOMPARE(source, organization(26, 154, 4));
    copy = source;
    QCOMPARE(copy, organization(26, 154, 4));
    const RVPageCountOrganization &self = copy;
    copy = self;
    QCOMPARE(copy, organization(26, 154, 4));
    const RVPageCountOrganization moved = std::move(copy);
    QCOMPARE(moved, organization(26, 154, 4));
    copy = organization(4, 24, 2);
    QCOMPARE(copy, organization(4, 24, 2));
    QCOMPARE(moved, organization(26, 154, 4));

    struct Watched : RVPageCountOrganization
    {
        explicit Watched(bool *deleted) : myDeleted(deleted) { }
        ~Watched() override { *myDeleted = true; }
        bool *myDeleted;
    };
    bool deleted = false;
    std::unique_ptr<RVPageCountOrganization>(new Watched(&deleted)).reset();
    QVERIFY(deleted);
}

QTEST_GUILESS_MAIN(tst_RVPageCountOrganization)
#include "tst_RVPageCountOrganization.moc"
