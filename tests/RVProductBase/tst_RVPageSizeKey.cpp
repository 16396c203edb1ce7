#include <RVProductBase/RVPageSizeKey.h>

#include <QDebug>
#include <QTest>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

RVPageSizeKey key(int pageType, int pageCount)
{
    return RVPageSizeKey(RVPageTypeEnum(pageType), pageCount);
}

}

class tst_RVPageSizeKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fields();
    void validity_data();
    void validity();
    void compares_data();
    void compares();
    void dumps();
};

void tst_RVPageSizeKey::fields()
{
    const RVPageSizeKey tested = key(0x20, 24);
    QCOMPARE(int(tested.pageType().value()), 0x20);
    QCOMPARE(int(tested.alignment().value()), 127);
    QCOMPARE(tested.pageCount(), 24);
    QVERIFY(tested.pageContext() == RVPageContext(PAGE_TYPE_FULLCOVER, RVPageAlignmentEnum(127)));
    QVERIFY(std::has_virtual_destructor_v<RVPageSizeKey>);
}

void tst_RVPageSizeKey::validity_data()
{
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<bool>("valid");
    QTest::newRow("valid") << 0x20 << 24 << true;
    QTest::newRow("no pages") << 0x20 << 0 << true;
    QTest::newRow("negative") << 0x20 << -1 << false;
    QTest::newRow("no page type") << 0 << 24 << false;
}

void tst_RVPageSizeKey::validity()
{
    QFETCH(int, pageType);
    QFETCH(int, pageCount);
    QTEST(key(pageType, pageCount).isValid(), "valid");
}

void tst_RVPageSizeKey::compares_data()
{
    QTest::addColumn<int>("pageType");
    QTest::addColumn<int>("pageCount");
    QTest::addColumn<bool>("equal");
    QTest::addColumn<bool>("less");
    QTest::addColumn<bool>("greater");
    QTest::newRow("equal") << 0x8 << 24 << true << false << false;
    QTest::newRow("same count, larger type") << 0x20 << 24 << false << false << false;
    QTest::newRow("same count, smaller type") << 0x1 << 24 << false << false << false;
    QTest::newRow("smaller count, larger type") << 0x20 << 12 << false << true << false;
    QTest::newRow("larger count, larger type") << 0x20 << 48 << false << true << false;
    QTest::newRow("larger count, smaller type") << 0x1 << 48 << false << false << true;
    QTest::newRow("larger count, same type") << 0x8 << 48 << false << false << false;
}

void tst_RVPageSizeKey::compares()
{
    QFETCH(int, pageType);
    QFETCH(int, pageCount);
    QFETCH(bool, equal);
    const RVPageSizeKey tested = key(0x8, 24);
    const RVPageSizeKey other = key(pageType, pageCount);
    QCOMPARE(tested == other, equal);
    QCOMPARE(tested != other, !equal);
    QTEST(tested < other, "less");
    QTEST(other < tested, "greater");
}

void tst_RVPageSizeKey::dumps()
{
    // The combination of all alignments has no keyword.
    QCOMPARE(key(0x20, 24).dump(), u" fullcover 24"_s);
    QCOMPARE(key(0x20, 1000).dump(), u" fullcover 1000"_s);
    QString debug;
    QDebug(&debug) << key(0x8, -1);
    QCOMPARE(debug, u"\" normalpage -1\" "_s);
}

QTEST_GUILESS_MAIN(tst_RVPageSizeKey)
#include "tst_RVPageSizeKey.moc"
