#include <JsonWriter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QTest>

#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

template<typename T>
QByteArray written(const T &value)
{
    JsonWriter json;
    json.beginArray();
    json.value(value);
    json.endArray();
    return QByteArray::fromStdString(json.take());
}

/// The value after it was written and read again.
template<typename T>
QJsonValue readAgain(const T &value)
{
    return QJsonDocument::fromJson(written(value)).array().at(0);
}

}

class tst_JsonWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void structure();
    void pieces();
    void lines();
    void texts_data();
    void texts();
    void halfAPair();
    void everyCharacter();
    void numbers_data();
    void numbers();
    void randomNumbers();
};

void tst_JsonWriter::structure()
{
    JsonWriter json;
    json.beginObject();
    json.key("array"_L1);
    json.beginArray();
    json.value(1);
    json.value(u"two"_s);
    json.beginObject();
    json.endObject();
    json.beginArray();
    json.endArray();
    json.endArray();
    json.key("false"_L1);
    json.value(false);
    json.key("null"_L1);
    json.null();
    json.key("true"_L1);
    json.value(true);
    json.endObject();
    QCOMPARE(json.take(), R"({"array":[1,"two",{},[]],"false":false,"null":null,"true":true})");
}

void tst_JsonWriter::pieces()
{
    JsonWriter json;
    json.beginObject();
    json.key("a"_L1);
    json.beginArray();
    QCOMPARE(json.take(), R"({"a":[)");
    json.json("{}");
    json.value(7);
    QCOMPARE(json.take(), "{},7");
    json.value("text"_L1);
    json.endArray();
    json.endObject();
    QCOMPARE(json.take(), R"(,"text"]})");
    QCOMPARE(json.take(), "");
    json.value(false);
    QCOMPARE(json.take(), "false");
}

void tst_JsonWriter::lines()
{
    JsonWriter json;
    json.beginArray();
    json.lines({});
    json.lines({ "{}", "2" });
    json.endArray();
    QCOMPARE(json.take(), "[[\n],[\n{},\n2\n]]");
}

void tst_JsonWriter::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("empty") << QString() << QByteArray(R"([""])");
    QTest::newRow("quotes and backslash") << uR"("\)"_s << QByteArray(R"(["\"\\"])");
    QTest::newRow("line break and tab") << u"\n\t"_s << QByteArray(R"(["\n\t"])");
    QTest::newRow("control character") << u"\u001f"_s << QByteArray(R"(["\u001F"])");
    QTest::newRow("null character") << QString(QChar(u'\0')) << QByteArray(R"(["\u0000"])");
    QTest::newRow("umlaut") << u"ä"_s << QByteArray(R"(["ä"])");
    QTest::newRow("two code units") << u"😀"_s << QByteArray(R"(["😀"])");
}

void tst_JsonWriter::texts()
{
    QFETCH(QString, text);
    QTEST(written(text), "json");
}

// Half a surrogate pair has no UTF-8, so another character takes its place.
void tst_JsonWriter::halfAPair()
{
    const QString text = readAgain(u'a' + QString(QChar(0xd83d)) + u'b').toString();
    QCOMPARE(text.size(), 3);
    QVERIFY(text.startsWith(u'a') && text.endsWith(u'b'));
}

void tst_JsonWriter::everyCharacter()
{
    for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
        if (QChar::isSurrogate(character))
            continue;
        const QString text = u'a' + QString::fromUcs4(&character, 1) + u'b';
        QCOMPARE(readAgain(text).toString(), text);
    }
}

void tst_JsonWriter::numbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("zero") << 0.0 << QByteArray("[0]");
    QTest::newRow("negative zero") << -0.0 << QByteArray("[0]");
    QTest::newRow("whole") << 8.0 << QByteArray("[8]");
    QTest::newRow("whole with zeros") << 100000.0 << QByteArray("[100000]");
    QTest::newRow("negative with zeros") << -1e15 << QByteArray("[-1000000000000000]");
    QTest::newRow("fraction") << 0.1 << QByteArray("[0.1]");
    QTest::newRow("17 digits") << 12.345678901234567 << QByteArray("[12.345678901234567]");
    QTest::newRow("small") << 1e-7 << QByteArray("[1e-07]");
    QTest::newRow("2^53") << 9007199254740992.0 << QByteArray("[9007199254740992]");
    QTest::newRow("2^63") << 9223372036854775808.0 << QByteArray("[9223372036854776000]");
    QTest::newRow("largest") << std::numeric_limits<double>::max() << QByteArray("[1.7976931348623157e+308]");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QByteArray("[null]");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << QByteArray("[null]");
}

void tst_JsonWriter::numbers()
{
    QFETCH(double, number);
    QTEST(written(number), "json");
}

void tst_JsonWriter::randomNumbers()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 200000; ++i) {
        const quint64 bits = random.generate64();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (qIsFinite(number))
            QCOMPARE(readAgain(number).toDouble(), number);
        const double length = double(random.bounded(1000000)) / (1 + random.bounded(100));
        QCOMPARE(readAgain(length).toDouble(), length);
        const qint64 whole = qint64(bits) >> random.bounded(64);
        QCOMPARE(readAgain(whole).toInteger(), whole);
    }
}

QTEST_GUILESS_MAIN(tst_JsonWriter)
#include "tst_JsonWriter.moc"
