#include <RVProductBase/RVOrderIdList.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVOrderIdList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void joins_data();
    void joins();
};

void tst_RVOrderIdList::joins_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty list") << QStringList() << u""_s;
    QTest::newRow("one") << QStringList { u"A-1"_s } << u"A-1"_s;
    QTest::newRow("two") << QStringList { u"B"_s, u"A"_s } << u"B,A"_s;
    QTest::newRow("null between") << QStringList { u"A"_s, QString(), u"B"_s } << u"A,B"_s;
    QTest::newRow("empty between") << QStringList { u"A"_s, u""_s, u"B"_s } << u"A,,B"_s;
    QTest::newRow("nulls only") << QStringList { QString(), QString() } << u""_s;
}

void tst_RVOrderIdList::joins()
{
    QFETCH(QStringList, ids);
    RVOrderIdList list;
    for (const QString &id : ids)
        list += RVOrderId(id);
    QTEST(list.toString(), "text");
}

QTEST_GUILESS_MAIN(tst_RVOrderIdList)
#include "tst_RVOrderIdList.moc"
