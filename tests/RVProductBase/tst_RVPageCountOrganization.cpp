#include <RVProductBase/RVPageCountOrganization.h>

#include <QDebug>
#include <QDomDocument>
#include <QTest>

#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

RVPageCountOrganization organization(int min, int max, int increment)
{
    return RVPageCountOrganization(RVIntRange(min, max), increment);
}

QList<int> fields(const RVPageCountOrganization &tested)
{
    return { tested.minPages(), tested.maxPages(), tested.pageIncrement() };
}

QDomElement element(const QString &attributes)
{
    static QDomDocument document;
    document.setContent(u"<product %1/>"_s.arg(attributes));
    return document.documentElement();
}

}

class tst_RVPageCountOrganization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void validity_data();
    void validity();
    void pageCounts_data();
    void pageCounts();
    void packages_data();
    void packages();
    void constrains_data();
    void constrains();
    void adapts_data();
    void adapts();
    void clones();
    void shrinks_data();
    void shrinks();
    void onePageProducts();
    void reads_data();
    void reads();
    void readsPictureBoxes_data();
    void readsPictureBoxes();
    void compares();
    void debugOutput();
};

void tst_RVPageCountOrganization::construction()
{
    QCOMPARE(fields(RVPageCountOrganization()), (QList<int> { 0, 0, 0 }));
    QCOMPARE(fields(organization(26, 154, 4)), (QList<int> { 26, 154, 4 }));
    QCOMPARE(organization(26, 154, 4).range().min, 26);
    QCOMPARE(organization(26, 154, 4).range().max, 154);
    QCOMPARE(fields(RVPageCountOrganization::createForAdventCalendarWithDoorBackPrint()), (QList<int> { 25, 25, 0 }));
    QCOMPARE(fields(RVPageCountOrganization::createForCardWithInsertedFoto()), (QList<int> { 3, 3, 0 }));
    QVERIFY(std::has_virtual_destructor_v<RVPageCountOrganization>);
}

void tst_RVPageCountOrganization::validity_data()
{
    QTest::addColumn<RVPageCountOrganization>("tested");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("consistent");
    QTest::newRow("default") << organization(0, 0, 0) << false << false;
    QTest::newRow("zero with a step") << organization(0, 0, 4) << false << false;
    QTest::newRow("one count") << organization(1, 1, 0) << true << true;
    QTest::newRow("one negative count") << organization(-3, -3, 0) << true << true;
    QTest::newRow("one count with a step") << organization(3, 3, 4) << true << true;
    QTest::newRow("one count with a negative step") << organization(3, 3, -4) << true << true;
    QTest::newRow("several") << organization(26, 154, 4) << true << true;
    QTest::newRow("from zero") << organization(0, 8, 4) << true << true;
    QTest::newRow("several without a step") << organization(10, 20, 0) << false << false;
    QTest::newRow("several with a negative step") << organization(10, 20, -5) << false << false;
    QTest::newRow("swapped") << organization(20, 10, 5) << false << false;
    QTest::newRow("step misses the highest count") << organization(26, 28, 4) << true << false;
    QTest::newRow("whole range") << organization(smallest, largest, 1) << true << true;
    QTest::newRow("whole range in twos") << organization(smallest, largest, 2) << true << false;
}

void tst_RVPageCountOrganization::validity()
{
    QFETCH(RVPageCountOrganization, tested);
    QTEST(tested.isValid(), "valid");
    QTEST(tested.isConsistent(), "consistent");
}

void tst_RVPageCountOrganization::pageCounts_data()
{
    QTest::addColumn<RVPageCountOrganization>("tested");
    QTest::addColumn<int>("pages");
    QTest::addColumn<bool>("inRange");
    QTest::addColumn<bool>("valid");
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTest::newRow("below") << book << 25 << false << false;
    QTest::newRow("below, on the step") << book << 22 << false << false;
    QTest::newRow("lowest") << book << 26 << true << true;
    QTest::newRow("on the step") << book << 30 << true << true;
    QTest::newRow("beside the step") << book << 31 << true << false;
    QTest::newRow("highest") << book << 154 << true << true;
    QTest::newRow("above") << book << 155 << false << false;
    QTest::newRow("above, on the step") << book << 158 << false << false;
    QTest::newRow("no step, every count") << organization(10, 20, 0) << 13 << true << true;
    QTest::newRow("no step, outside") << organization(10, 20, 0) << 21 << false << false;
    QTest::newRow("negative step") << organization(10, 20, -5) << 15 << true << true;
    QTest::newRow("negative step, beside") << organization(10, 20, -5) << 16 << true << false;
    QTest::newRow("whole range") << organization(smallest, largest, 2) << largest << true << false;
    QTest::newRow("smallest step") << organization(smallest, largest, smallest) << 0 << true << true;
}

void tst_RVPageCountOrganization::pageCounts()
{
    QFETCH(RVPageCountOrganization, tested);
    QFETCH(int, pages);
    QTEST(tested.inRange(pages), "inRange");
    QTEST(tested.isValidPageCount(pages), "valid");
}

void tst_RVPageCountOrganization::packages_data()
{
    QTest::addColumn<RVPageCountOrganization>("tested");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("packages");
    QTest::addColumn<int>("numberOfPackages");
    QTest::addColumn<int>("pagesWithThree");
    QTest::addColumn<int>("pagesWithPano");
    const RVPageCountOrganization book = organization(26, 154, 4);
    const auto row = [](const char *name, const RVPageCountOrganization &tested, int pages, int packages,
                        int numberOfPackages, int pagesWithThree, int pagesWithPano) {
        QTest::newRow(name) << tested << pages << packages << numberOfPackages << pagesWithThree << pagesWithPano;
    };
    row("below", book, 3, 0, 33, 38, 34);
    row("lowest", book, 26, 0, 33, 38, 34);
    row("just above the lowest", book, 27, 0, 33, 38, 34);
    row("just below a package", book, 29, 0, 33, 38, 34);
    row("a package", book, 30, 1, 33, 38, 34);
    row("two packages", book, 34, 2, 33, 38, 34);
    row("above the highest", book, 200, 43, 33, 38, 34);
    row("fixed", organization(3, 3, 0), 10, 0, 1, 3, 3);
    row("step misses the highest count", organization(26, 33, 4), 33, 1, 2, 38, 34);
    row("swapped", organization(30, 26, 4), 38, 2, 0, 42, 38);
    row("negative step", organization(10, 20, -5), 20, -2, -1, -5, 0);
    row("whole range", organization(smallest, largest, 1), largest, largest, largest, smallest + 3, smallest + 2);
    row("whole range, step back", organization(smallest, largest, -1), largest, smallest, smallest, smallest, smallest);
    row("largest step", organization(1, largest, largest), largest, 0, 1, largest, largest);
}

void tst_RVPageCountOrganization::packages()
{
    QFETCH(RVPageCountOrganization, tested);
    QFETCH(int, pages);
    QTEST(tested.countPackages(pages), "packages");
    QTEST(tested.numberOfPackages(), "numberOfPackages");
    QTEST(tested.pagesWithNExtraPackages(3), "pagesWithThree");
    QTEST(tested.minPagesWithPano(), "pagesWithPano");
    QCOMPARE(tested.pagesWithNExtraPackages(0), tested.minPages());
    QCOMPARE(organization(26, 154, 4).pagesWithNExtraPackages(-1), 22);
}

void tst_RVPageCountOrganization::constrains_data()
{
    QTest::addColumn<RVPageCountOrganization>("tested");
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("result");
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTest::newRow("below") << book << 3 << 26;
    QTest::newRow("lowest") << book << 26 << 26;
    QTest::newRow("rounded up") << book << 27 << 30;
    QTest::newRow("on the step") << book << 30 << 30;
    QTest::newRow("highest") << book << 154 << 154;
    QTest::newRow("above") << book << 200 << 154;
    QTest::newRow("rounded up above the highest") << organization(26, 29, 4) << 28 << 30;
    QTest::newRow("above, clamped") << organization(26, 29, 4) << 30 << 29;
    QTest::newRow("fixed") << organization(3, 3, 0) << 3 << 3;
    QTest::newRow("no step, inside") << organization(10, 20, 0) << 15 << 10;
    QTest::newRow("no step, above") << organization(10, 20, 0) << 25 << 20;
    QTest::newRow("swapped") << organization(30, 26, 4) << 28 << 30;
    QTest::newRow("negative step") << organization(10, 20, -4) << 15 << 14;
    QTest::newRow("whole range") << organization(smallest, largest, largest) << largest << largest;
    QTest::newRow("whole range, rounded beyond") << organization(smallest, largest, largest - 1) << largest << largest;
}

void tst_RVPageCountOrganization::constrains()
{
    QFETCH(RVPageCountOrganization, tested);
    QFETCH(int, pages);
    QTEST(tested.constrain(pages), "result");
}

void tst_RVPageCountOrganization::adapts_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("below") << 3 << QList<int> { 26, 154, 4 };
    QTest::newRow("lowest") << 26 << QList<int> { 26, 154, 4 };
    QTest::newRow("inside, rounded up") << 27 << QList<int> { 30, 154, 4 };
    QTest::newRow("on the step") << 34 << QList<int> { 34, 154, 4 };
    QTest::newRow("highest") << 154 << QList<int> { 154, 154, 4 };
    QTest::newRow("above") << 200 << QList<int> { 154, 154, 4 };
}

void tst_RVPageCountOrganization::adapts()
{
    QFETCH(int, pages);
    const RVPageCountOrganization book = organization(26, 154, 4);
    QTEST(fields(book.adaptedTo(pages)), "result");
    QCOMPARE(fields(book), (QList<int> { 26, 154, 4 }));
}

void tst_RVPageCountOrganization::clones()
{
    const RVPageCountOrganization book = organization(26, 154, 4);
    QCOMPARE(fields(book.clone()), (QList<int> { 26, 154, 4 }));
    QCOMPARE(fields(book.clone(false)), (QList<int> { 26, 154, 4 }));
    QCOMPARE(fields(book.clone(true)), (QList<int> { 26, 26, 4 }));
}

void tst_RVPageCountOrganization::shrinks_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("some") << 20 << QList<int> { 6, 134, 4 };
    QTest::newRow("down to one") << 25 << QList<int> { 1, 129, 4 };
    QTest::newRow("below one") << 26 << QList<int> { 26, 154, 4 };
    QTest::newRow("far below one") << 30 << QList<int> { 26, 154, 4 };
    QTest::newRow("nothing") << 0 << QList<int> { 26, 154, 4 };
    QTest::newRow("negative grows") << -4 << QList<int> { 30, 158, 4 };
    QTest::newRow("smallest") << smallest << QList<int> { largest, largest, 4 };
    QTest::newRow("largest") << largest << QList<int> { 26, 154, 4 };
}

void tst_RVPageCountOrganization::shrinks()
{
    QFETCH(int, pages);
    RVPageCountOrganization book = organization(26, 154, 4);
    const RVPageCountOrganization copy = book;
    RVPageCountOrganization returned = book -= pages;
    QTEST(fields(book), "result");
    QTEST(fields(returned), "result");
    returned -= -1;
    QTEST(fields(book), "result");
    QCOMPARE(fields(copy), (QList<int> { 26, 154, 4 }));
}

void tst_RVPageCountOrganization::onePageProducts()
{
    QVERIFY(organization(1, 1, 0).isOnePageProduct());
    QVERIFY(organization(0, 0, 0).isOnePageProduct());
    QVERIFY(organization(-3, 10, 1).isOnePageProduct());
    QVERIFY(organization(1, 30, 1).isOnePageProduct());
    QVERIFY(!organization(2, 2, 0).isOnePageProduct());
    QVERIFY(!organization(3, 3, 0).isOnePageProduct());
}

void tst_RVPageCountOrganization::reads_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("all") << u"pieces='1' pages='26' max_pages='154' page_step='4'"_s << QList<int> { 26, 154, 4 };
    QTest::newRow("none") << u""_s << QList<int> { 1, 1, 0 };
    QTest::newRow("highest from lowest") << u"pages='26'"_s << QList<int> { 26, 26, 0 };
    QTest::newRow("several pieces, not the step")
            << u"pieces='3' pages='2' max_pages='4' page_step='2'"_s << QList<int> { 6, 12, 2 };
    QTest::newRow("pieces only") << u"pieces='5'"_s << QList<int> { 5, 5, 0 };
    QTest::newRow("no pieces") << u"pieces='0' pages='26'"_s << QList<int> { 0, 0, 0 };
    QTest::newRow("no numbers") << u"pieces='x' pages='' max_pages='many' page_step='1.5'"_s << QList<int> { 1, 1, 0 };
    QTest::newRow("negative") << u"pages='-4' max_pages='-8' page_step='-2'"_s << QList<int> { -4, -8, -2 };
    QTest::newRow("too large") << u"pieces='2147483647' pages='2147483647'"_s << QList<int> { largest, largest, 0 };
}

void tst_RVPageCountOrganization::reads()
{
    QFETCH(QString, attributes);
    QTEST(fields(RVPageCountOrganization::createFromProductsXML(element(attributes))), "result");
    QCOMPARE(fields(RVPageCountOrganization::createFromProductsXML(QDomElement())), (QList<int> { 1, 1, 0 }));
}

void tst_RVPageCountOrganization::readsPictureBoxes_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QList<int>>("result");
    QTest::newRow("all") << u"pages='10' max_pages='50' page_step='5'"_s << QList<int> { 10, 50, 5 };
    QTest::newRow("none") << u""_s << QList<int> { 1, 30, 1 };
    QTest::newRow("highest from lowest") << u"pages='20'"_s << QList<int> { 20, 49, 1 };
    QTest::newRow("pieces do not count") << u"pieces='3'"_s << QList<int> { 1, 30, 1 };
    QTest::newRow("too large") << u"pages='2147483647'"_s << QList<int> { largest, largest, 1 };
    QTest::newRow("fixed step") << u"page_step='0'"_s << QList<int> { 1, 30, 0 };
}

void tst_RVPageCountOrganization::readsPictureBoxes()
{
    QFETCH(QString, attributes);
    QTEST(fields(RVPageCountOrganization::createFromProductsXMLForPictureBox(element(attributes))), "result");
}

void tst_RVPageCountOrganization::compares()
{
    const RVPageCountOrganization book = organization(26, 154, 4);
    QVERIFY(book == organization(26, 154, 4));
    QVERIFY(!(book != organization(26, 154, 4)));
    for (const RVPageCountOrganization &other :
         { organization(25, 154, 4), organization(26, 155, 4), organization(26, 154, 2) }) {
        QVERIFY(book != other);
        QVERIFY(!(book == other));
    }
}

void tst_RVPageCountOrganization::debugOutput()
{
    QCOMPARE(organization(26, -154, 4).dump(), u"min: 26; max: -154; increment: 4"_s);
    QString text;
    QDebug(&text) << organization(26, 154, 4);
    QCOMPARE(text, u"\"min: 26; max: 154; increment: 4\" "_s);
}

QTEST_APPLESS_MAIN(tst_RVPageCountOrganization)
#include "tst_RVPageCountOrganization.moc"
