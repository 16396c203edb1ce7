#include "MessageLog.h"

#include <RVProductBase/RVArticleClassList.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVArticleClassList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parses_data();
    void parses();
    void filters_data();
    void filters();
};

namespace {

QList<qint64> values(const RVArticleClassList &list)
{
    QList<qint64> result;
    for (const RVArticleClass &articleClass : list)
        result += articleClass.value();
    return result;
}

}

void tst_RVArticleClassList::parses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<qint64>>("classes");
    QTest::newRow("null") << QString() << QList<qint64>();
    QTest::newRow("empty pieces") << u",,"_s << QList<qint64>();
    QTest::newRow("one") << u"book"_s << QList<qint64> { 0x1 };
    QTest::newRow("order of the text, duplicates") << u"card,book,CARD"_s << QList<qint64> { 0x8, 0x1, 0x8 };
    QTest::newRow("blanks") << u" card , book "_s << QList<qint64> { 0x8, 0x1 };
    QTest::newRow("unknown between known") << u"card,pottery,book"_s << QList<qint64> { 0x8, 0x1 };
    QTest::newRow("keyword of none") << u"none,book,unknown"_s << QList<qint64> { 0x1 };
    QTest::newRow("combination stays one") << u"photo"_s << QList<qint64> { 0x38000 };
    QTest::newRow("other separator") << u"card;book"_s << QList<qint64>();
}

void tst_RVArticleClassList::parses()
{
    QFETCH(QString, text);
    const MessageLog log;
    QTEST(values(RVArticleClassList::parseArticleClasses(text)), "classes");
    QCOMPARE(log.lines(), QStringList());
}

void tst_RVArticleClassList::filters_data()
{
    QTest::addColumn<qint64>("filter");
    QTest::addColumn<QList<qint64>>("classes");
    QTest::newRow("one bit") << Q_INT64_C(0x8) << QList<qint64> { 0x8, 0x8 };
    QTest::newRow("one bit of a combination") << Q_INT64_C(0x2) << QList<qint64> { 0x6 };
    QTest::newRow("a combination") << Q_INT64_C(0xE) << QList<qint64> { 0x8, 0x6, 0x8 };
    QTest::newRow("no match") << Q_INT64_C(0x10) << QList<qint64>();
    QTest::newRow("none") << Q_INT64_C(0) << QList<qint64>();
}

void tst_RVArticleClassList::filters()
{
    QFETCH(qint64, filter);
    const RVArticleClassList list = RVArticleClassList::parseArticleClasses(u"card,calendar,book,card"_s);
    QTEST(values(list.filter(RVArticleClassEnum(filter))), "classes");
    QCOMPARE(list.size(), 4);
}

QTEST_GUILESS_MAIN(tst_RVArticleClassList)
#include "tst_RVArticleClassList.moc"
