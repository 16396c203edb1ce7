#include <RVProductBase/RVOrderId.h>

#include <QDataStream>
#include <QDebug>
#include <QTest>

#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

class tst_RVOrderId : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void validity();
    void clears();
    void writesText_data();
    void writesText();
    void copiesAndMoves();
    void compares_data();
    void compares();
    void writesStreams_data();
    void writesStreams();
    void debugOutput();
};

void tst_RVOrderId::validity()
{
    QVERIFY(!RVOrderId().isValid());
    QVERIFY(!RVOrderId(QString()).isValid());
    QVERIFY(RVOrderId(u""_s).isValid());
    QVERIFY(RVOrderId(u"A"_s).isValid());
    QVERIFY(std::has_virtual_destructor_v<RVOrderId>);
}

void tst_RVOrderId::clears()
{
    RVOrderId id(u"123-456"_s);
    const RVOrderId copy = id;
    id.clear();
    QVERIFY(!id.isValid());
    QVERIFY(id.toString().isNull());
    id.clear();
    QVERIFY(!id.isValid());
    QCOMPARE(copy.toString(), u"123-456"_s);
}

void tst_RVOrderId::writesText_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("fileName");
    QTest::newRow("groups of digits") << u"123-456-789"_s << u"123_456_789"_s;
    QTest::newRow("no dash") << u"123_456"_s << u"123_456"_s;
    QTest::newRow("blanks are kept") << u" 1 - 2 "_s << u" 1 _ 2 "_s;
    QTest::newRow("dashes only") << u"--"_s << u"__"_s;
    QTest::newRow("empty") << u""_s << u""_s;
}

void tst_RVOrderId::writesText()
{
    QFETCH(QString, id);
    QCOMPARE(RVOrderId(id).toString(), id);
    QCOMPARE(RVOrderId(id).toString(false), id);
    QTEST(RVOrderId(id).toString(true), "fileName");
    QVERIFY(RVOrderId().toString(true).isNull());
}

void tst_RVOrderId::copiesAndMoves()
{
    RVOrderId first(u"A"_s);
    const RVOrderId copied(first);
    QCOMPARE(copied.toString(), u"A"_s);
    const RVOrderId moved(std::move(first));
    QCOMPARE(moved.toString(), u"A"_s);
    QCOMPARE(first.toString(), u"A"_s); // moving copies
    RVOrderId second(u"B"_s);
    second = std::move(first);
    QCOMPARE(second.toString(), u"A"_s);
    QCOMPARE(first.toString(), u"B"_s); // assigning a moved id swaps
    first = second;
    QCOMPARE(first.toString(), u"A"_s);
    QCOMPARE(second.toString(), u"A"_s);
}

void tst_RVOrderId::compares_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("order");
    QTest::newRow("less") << u"A1"_s << u"A2"_s << -1;
    QTest::newRow("equal") << u"A1"_s << u"A1"_s << 0;
    QTest::newRow("greater") << u"B"_s << u"A1"_s << 1;
    QTest::newRow("as texts") << u"A10"_s << u"A2"_s << -1;
    QTest::newRow("letter case") << u"A"_s << u"a"_s << -1;
    QTest::newRow("lower case behind later upper case") << u"a"_s << u"B"_s << 1;
    QTest::newRow("umlaut behind z") << u"\u00C4"_s << u"z"_s << 1;
    QTest::newRow("dash before letters") << u"A-1"_s << u"AA"_s << -1;
    QTest::newRow("surrogate before later unit") << u"\U0001F4F7"_s << u"\uFB01"_s << -1;
    QTest::newRow("null and empty") << QString() << u""_s << 0;
    QTest::newRow("empty") << u""_s << u"A"_s << -1;
}

void tst_RVOrderId::compares()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(int, order);
    const RVOrderId first(a);
    const RVOrderId second(b);
    QCOMPARE(first == second, order == 0);
    QCOMPARE(first != second, order != 0);
    QCOMPARE(first < second, order < 0);
    QCOMPARE(first > second, order > 0);
    QCOMPARE(first <= second, order <= 0);
    QCOMPARE(first >= second, order >= 0);
}

void tst_RVOrderId::writesStreams_data()
{
    QTest::addColumn<RVOrderId>("id");
    QTest::addColumn<QByteArray>("hex");
    QTest::newRow("id") << RVOrderId(u"1-a"_s) << QByteArray("00 00 00 06 00 31 00 2d 00 61");
    QTest::newRow("empty") << RVOrderId(u""_s) << QByteArray("00 00 00 00");
    QTest::newRow("null") << RVOrderId() << QByteArray("ff ff ff ff");
}

void tst_RVOrderId::writesStreams()
{
    QFETCH(RVOrderId, id);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    QDataStream &returned = id << stream;
    QCOMPARE(&returned, &stream);
    QTEST(bytes.toHex(' '), "hex");
}

void tst_RVOrderId::debugOutput()
{
    QString text;
    QDebug(&text) << RVOrderId(u"123-456"_s) << RVOrderId();
    QCOMPARE(text, u"\"123-456\" \"\" "_s);
}

QTEST_GUILESS_MAIN(tst_RVOrderId)
#include "tst_RVOrderId.moc"
