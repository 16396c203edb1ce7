#include <RVProductBase/RVShippingGroupIdList.h>

#include <QTest>

#include <type_traits>

class tst_RVShippingGroupIdList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void filters_data();
    void filters();
};

namespace {

QList<int> numbers(const RVShippingGroupIdList &ids)
{
    QList<int> result;
    for (const RVShippingGroupId &id : ids)
        result += id.id();
    return result;
}

}

void tst_RVShippingGroupIdList::construction()
{
    QVERIFY(RVShippingGroupIdList().isEmpty());
    const QList<int> given = { 3, 0, 3 };
    QCOMPARE(numbers(RVShippingGroupIdList(given)), given);
    const QList<RVShippingGroupId> ids = { RVShippingGroupId(18), RVShippingGroupId(-1) };
    QCOMPARE(numbers(RVShippingGroupIdList(ids)), (QList<int> { 18, -1 }));
    QVERIFY(std::has_virtual_destructor_v<RVShippingGroupIdList>);
}

void tst_RVShippingGroupIdList::filters_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("id");
    QTest::addColumn<QList<int>>("equal");
    QTest::addColumn<QList<int>>("others");
    QTest::newRow("some") << QList<int> { 3, 0, 3 } << 3 << QList<int> { 3, 3 } << QList<int> { 0 };
    QTest::newRow("none") << QList<int> { 1, 18, 1 } << 2 << QList<int>() << QList<int> { 1, 18, 1 };
    QTest::newRow("no group") << QList<int> { 3, -1, 0 } << -1 << QList<int> { -1 } << QList<int> { 3, 0 };
    QTest::newRow("empty list") << QList<int>() << 3 << QList<int>() << QList<int>();
}

void tst_RVShippingGroupIdList::filters()
{
    QFETCH(QList<int>, ids);
    QFETCH(int, id);
    const RVShippingGroupIdList list(ids);
    QTEST(numbers(list.filter(id, true)), "equal");
    QTEST(numbers(list.filter(id, false)), "others");
    QCOMPARE(numbers(list), ids);
}

QTEST_GUILESS_MAIN(tst_RVShippingGroupIdList)
#include "tst_RVShippingGroupIdList.moc"
