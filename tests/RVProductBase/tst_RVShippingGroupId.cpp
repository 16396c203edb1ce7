#include <RVProductBase/RVShippingGroupId.h>

#include <QDataStream>
#include <QDebug>
#include <QDomDocument>
#include <QJsonObject>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class tst_RVShippingGroupId : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void readsText_data();
    void readsText();
    void readsXml_data();
    void readsXml();
    void readsWhatIsNotThere();
    void readsJson_data();
    void readsJson();
    void writesXml();
    void writesJson();
    void writesStreams();
    void debugOutput();
    void compares_data();
    void compares();
};

void tst_RVShippingGroupId::states_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<bool>("combined");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << -1 << false << false << u"-1"_s;
    QTest::newRow("combined transfer") << 0 << true << true << u"0"_s;
    QTest::newRow("group") << 18 << true << false << u"18"_s;
    QTest::newRow("other negative") << -2 << true << false << u"-2"_s;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << true << false << u"-2147483648"_s;
}

void tst_RVShippingGroupId::states()
{
    QFETCH(int, id);
    const RVShippingGroupId group(id);
    QCOMPARE(group.id(), id);
    QTEST(group.isValid(), "valid");
    QTEST(group.isCombinedTransfer(), "combined");
    QTEST(group.toString(), "text");
    QCOMPARE(RVShippingGroupId().id(), -1);
}

void tst_RVShippingGroupId::readsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("id");
    QTest::newRow("number") << u"12"_s << 12;
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("negative") << u"-7"_s << -7;
    QTest::newRow("white space") << u" 12\n"_s << 12;
    QTest::newRow("largest") << u"2147483647"_s << 2147483647;
    QTest::newRow("too large") << u"2147483648"_s << -1;
    QTest::newRow("too small") << u"-2147483649"_s << -1;
    QTest::newRow("empty") << u""_s << -1;
    QTest::newRow("null") << QString() << -1;
    QTest::newRow("word") << u"none"_s << -1;
    QTest::newRow("fraction") << u"1.5"_s << -1;
    QTest::newRow("hexadecimal") << u"0x10"_s << -1;
    QTest::newRow("null character behind a number") << QString(u"1\0abc"_s) << -1;
}

void tst_RVShippingGroupId::readsText()
{
    QFETCH(QString, text);
    QTEST(RVShippingGroupId::createFrom(text).id(), "id");
}

void tst_RVShippingGroupId::readsXml_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("id");
    QTest::newRow("number") << u"3"_s << 3;
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("empty") << u""_s << -1;
    QTest::newRow("word") << u"three"_s << -1;
    QTest::newRow("too large") << u"2147483648"_s << -1;
}

void tst_RVShippingGroupId::readsXml()
{
    QFETCH(QString, text);
    QFETCH(int, id);
    QDomDocument document;
    QDomElement element = document.createElement(u"group"_s);
    element.setAttribute(u"id"_s, text);
    element.setAttribute(u"other"_s, u"5"_s);
    QCOMPARE(RVShippingGroupId(element).id(), id);
    QCOMPARE(RVShippingGroupId(element, u"id"_s).id(), id);
    QCOMPARE(RVShippingGroupId(element, u"other"_s).id(), 5);
    QCOMPARE(RVShippingGroupId(element.attributes()).id(), id);
    QCOMPARE(RVShippingGroupId(element.attributes(), u"id"_s).id(), id);
    QCOMPARE(RVShippingGroupId(element.attributes(), u"other"_s).id(), 5);
}

void tst_RVShippingGroupId::readsWhatIsNotThere()
{
    QDomDocument document;
    const QDomElement element = document.createElement(u"group"_s);
    QCOMPARE(RVShippingGroupId(element).id(), -1);
    QCOMPARE(RVShippingGroupId(element.attributes()).id(), -1);
    QCOMPARE(RVShippingGroupId(QDomElement()).id(), -1);
    QCOMPARE(RVShippingGroupId(QDomNamedNodeMap()).id(), -1);
}

void tst_RVShippingGroupId::readsJson_data()
{
    QTest::addColumn<QJsonObject>("object");
    QTest::addColumn<int>("id");
    QTest::newRow("number") << QJsonObject { { u"id"_s, 18 } } << 18;
    QTest::newRow("text") << QJsonObject { { u"id"_s, u"18"_s } } << -1;
    QTest::newRow("fraction") << QJsonObject { { u"id"_s, 1.5 } } << -1;
    QTest::newRow("too large") << QJsonObject { { u"id"_s, 4294967296.0 } } << -1;
    QTest::newRow("not a number") << QJsonObject { { u"id"_s, qQNaN() } } << -1;
    QTest::newRow("infinite") << QJsonObject { { u"id"_s, qInf() } } << -1;
    QTest::newRow("infinite below 0") << QJsonObject { { u"id"_s, -qInf() } } << -1;
    QTest::newRow("one above 32 bits") << QJsonObject { { u"id"_s, 2147483648.0 } } << -1;
    QTest::newRow("one below 32 bits") << QJsonObject { { u"id"_s, -2147483649.0 } } << -1;
    QTest::newRow("beyond 64 bits") << QJsonObject { { u"id"_s, -1e300 } } << -1;
    QTest::newRow("large whole number") << QJsonObject { { u"id"_s, qint64(4294967297) } } << -1;
    QTest::newRow("lowest of 32 bits") << QJsonObject { { u"id"_s, -2147483648.0 } } << std::numeric_limits<int>::min();
    QTest::newRow("null") << QJsonObject { { u"id"_s, QJsonValue() } } << -1;
    QTest::newRow("missing") << QJsonObject { { u"art_id"_s, 18 } } << -1;
}

void tst_RVShippingGroupId::readsJson()
{
    QFETCH(QJsonObject, object);
    QTEST(RVShippingGroupId(object).id(), "id");
}

void tst_RVShippingGroupId::writesXml()
{
    QDomDocument document;
    QDomElement element = document.createElement(u"group"_s);
    element.setAttribute(u"id"_s, u"1"_s);
    RVShippingGroupId(18).toXML(element);
    QCOMPARE(element.attribute(u"id"_s), u"18"_s);
    QCOMPARE(element.attributes().count(), 1);
    QCOMPARE(RVShippingGroupId::SHIPPING_GROUP_ID_KEY, u"id"_s);
    QCOMPARE(RVShippingGroupId::defaultKey(), u"id"_s);
}

void tst_RVShippingGroupId::writesJson()
{
    QJsonObject object { { u"id"_s, u"old"_s }, { u"name"_s, u"prints"_s } };
    RVShippingGroupId(-1).toJSON(object);
    QCOMPARE(object, (QJsonObject { { u"id"_s, -1 }, { u"name"_s, u"prints"_s } }));
}

void tst_RVShippingGroupId::writesStreams()
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    QDataStream &returned = RVShippingGroupId(-12) << stream;
    QCOMPARE(&returned, &stream);
    QCOMPARE(bytes.toHex(' '), QByteArray("00 00 00 06 00 2d 00 31 00 32"));
}

void tst_RVShippingGroupId::debugOutput()
{
    QString text;
    QDebug(&text) << RVShippingGroupId(18) << RVShippingGroupId();
    QCOMPARE(text, u"\"18\" \"-1\" "_s);
}

void tst_RVShippingGroupId::compares_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("order");
    QTest::newRow("less") << 2 << 18 << -1;
    QTest::newRow("equal") << 2 << 2 << 0;
    QTest::newRow("greater") << 3 << 2 << 1;
    QTest::newRow("signed") << -1 << 0 << -1;
}

void tst_RVShippingGroupId::compares()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, order);
    const RVShippingGroupId first(a);
    const RVShippingGroupId second(b);
    QCOMPARE(first == second, order == 0);
    QCOMPARE(first != second, order != 0);
    QCOMPARE(first == b, order == 0);
    QCOMPARE(first < second, order < 0);
    QCOMPARE(first > second, order > 0);
    QCOMPARE(first <= second, order <= 0);
    QCOMPARE(first >= second, order >= 0);
}

QTEST_GUILESS_MAIN(tst_RVShippingGroupId)
#include "tst_RVShippingGroupId.moc"
