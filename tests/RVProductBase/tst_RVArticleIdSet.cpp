#include <RVProductBase/RVArticleIdSet.h>

#include <QTest>

#include <type_traits>

class tst_RVArticleIdSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void extends_data();
    void extends();
};

namespace {

RVArticleIdSet set(const QList<int> &ids)
{
    RVArticleIdSet result;
    for (const int id : ids)
        result.insert(id);
    return result;
}

}

void tst_RVArticleIdSet::construction()
{
    QVERIFY(RVArticleIdSet().isEmpty());
    const QSet<RVArticleId> ids = { RVArticleId(1), RVArticleId(2) };
    QVERIFY(RVArticleIdSet(ids) == ids);
    RVArticleIdSet copy(ids);
    copy.insert(3);
    QCOMPARE(ids.size(), 2);
    QVERIFY(std::has_virtual_destructor_v<RVArticleIdSet>);
}

void tst_RVArticleIdSet::extends_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<QList<int>>("other");
    QTest::addColumn<bool>("extends");
    QTest::newRow("both empty") << QList<int>() << QList<int>() << true;
    QTest::newRow("other empty") << QList<int> { 1 } << QList<int>() << true;
    QTest::newRow("empty") << QList<int>() << QList<int> { 1 } << false;
    QTest::newRow("equal") << QList<int> { 1, 2 } << QList<int> { 2, 1 } << true;
    QTest::newRow("more") << QList<int> { 1, 2, 3 } << QList<int> { 3, 1 } << true;
    QTest::newRow("one missing") << QList<int> { 1, 2, 3 } << QList<int> { 3, 4 } << false;
    QTest::newRow("one extra") << QList<int> { 1, 2 } << QList<int> { 1, 2, 3 } << false;
    QTest::newRow("same number of other ids") << QList<int> { 1, 2 } << QList<int> { 3, 4 } << false;
}

void tst_RVArticleIdSet::extends()
{
    QFETCH(QList<int>, ids);
    QFETCH(QList<int>, other);
    QTEST(set(ids).extends(set(other)), "extends");
    const RVArticleIdSet self = set(ids);
    QVERIFY(self.extends(self));
}

QTEST_GUILESS_MAIN(tst_RVArticleIdSet)
#include "tst_RVArticleIdSet.moc"
