#include <RVProductBase/RVPageContext.h>

#include <QDebug>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

RVPageContext context(int pageType, int alignment)
{
    return RVPageContext(RVPageTypeEnum(pageType), RVPageAlignmentEnum(alignment));
}

}

class tst_RVPageContext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields();
    void hasBits_data();
    void hasBits();
    void matches_data();
    void matches();
    void validity_data();
    void validity();
    void compares_data();
    void compares();
    void dumps_data();
    void dumps();
};

void tst_RVPageContext::fields()
{
    const RVPageContext tested = context(0x20, 2);
    QCOMPARE(int(tested.pageType().value()), 0x20);
    QCOMPARE(int(tested.alignment().value()), 2);
    QVERIFY(std::has_virtual_destructor_v<RVPageContext>);
}

void tst_RVPageContext::hasBits_data()
{
    QTest::addColumn<int>("own");
    QTest::addColumn<int>("asked");
    QTest::addColumn<bool>("has");
    QTest::newRow("equal") << 2 << 2 << true;
    QTest::newRow("one common") << 3 << 6 << true;
    QTest::newRow("none common") << 3 << 4 << false;
    QTest::newRow("nothing asked for") << 3 << 0 << false;
    QTest::newRow("empty context") << 0 << 1 << false;
}

void tst_RVPageContext::hasBits()
{
    QFETCH(int, own);
    QFETCH(int, asked);
    QTEST(context(own, 0).hasPageType(RVPageTypeEnum(asked)), "has");
    QTEST(context(0, own).hasAlignment(RVPageAlignmentEnum(asked)), "has");
}

void tst_RVPageContext::matches_data()
{
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("matches");
    QTest::newRow("both share a bit") << 0x8 << 1 << true;
    QTest::newRow("alignment differs") << 0x8 << 4 << false;
    QTest::newRow("page type differs") << 0x20 << 1 << false;
    QTest::newRow("both differ") << 0x20 << 4 << false;
    QTest::newRow("no page type") << 0 << 1 << false;
}

void tst_RVPageContext::matches()
{
    QFETCH(int, pageType);
    QFETCH(int, alignment);
    QFETCH(bool, matches);
    const RVPageContext several = context(0xA, 3);
    QCOMPARE(several.matchesWith(context(pageType, alignment)), matches);
    QCOMPARE(context(pageType, alignment).matchesWith(several), matches);
}

void tst_RVPageContext::validity_data()
{
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("valid");
    QTest::newRow("both") << 0x8 << 1 << true;
    QTest::newRow("no alignment") << 0x8 << 0 << false;
    QTest::newRow("no page type") << 0 << 1 << false;
    QTest::newRow("neither") << 0 << 0 << false;
    QTest::newRow("unknown bits") << 0x1000000 << 1024 << true;
}

void tst_RVPageContext::validity()
{
    QFETCH(int, pageType);
    QFETCH(int, alignment);
    QTEST(context(pageType, alignment).isValid(), "valid");
}

void tst_RVPageContext::compares_data()
{
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("equal");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("greater");
    QTest::newRow("equal") << 0x8 << 2 << true << false << false;
    QTest::newRow("smaller page type, larger alignment") << 0x4 << 64 << false << false << true;
    QTest::newRow("larger page type, smaller alignment") << 0x10 << 1 << false << true << false;
    QTest::newRow("smaller alignment") << 0x8 << 1 << false << false << true;
    QTest::newRow("larger alignment") << 0x8 << 4 << false << true << false;
    QTest::newRow("negative page type") << -8 << 2 << false << false << true;
}

void tst_RVPageContext::compares()
{
    QFETCH(int, pageType);
    QFETCH(int, alignment);
    QFETCH(bool, equal);
    const RVPageContext tested = context(0x8, 2);
    const RVPageContext other = context(pageType, alignment);
    QCOMPARE(tested == other, equal);
    QCOMPARE(tested != other, !equal);
    QTEST(tested < other, "less");
    QTEST(other < tested, "greater");
}

void tst_RVPageContext::dumps_data()
{
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QString>("text");
    QTest::newRow("keywords") << 0x20 << 2 << u"right fullcover"_s;
    QTest::newRow("named combination") << 0x600000 << 1 << u"left PanoramaPages"_s;
    QTest::newRow("no keywords") << 0x3 << 3 << u" "_s;
}

void tst_RVPageContext::dumps()
{
    QFETCH(int, pageType);
    QFETCH(int, alignment);
    QFETCH(QString, text);
    QCOMPARE(context(pageType, alignment).dump(), text);
    QString debug;
    QDebug(&debug) << context(pageType, alignment);
    QCOMPARE(debug, u'"' + text + u"\" "_s);
}

QTEST_GUILESS_MAIN(tst_RVPageContext)
#include "tst_RVPageContext.moc"
