#include <JsonWriter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

QByteArray written(const QJsonValue &value)
{
    return QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact);
}

template<typename T>
QByteArray writtenByUs(const T &value)
{
    JsonWriter json;
    json.beginArray();
    json.value(value);
    json.endArray();
    return QByteArray::fromStdString(json.take());
}

}

class tst_JsonWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void structure();
    void pieces();
    void everyCharacter();
    void randomTexts();
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
    json.json("{}");
    json.json("[1]");
    json.separator(",\n");
    json.value("text"_L1);
    QCOMPARE(json.take(), "{},[1],\n\"text\"");
    QCOMPARE(json.take(), "");
    json.value(7);
    QCOMPARE(json.take(), "7");
}

// The texts have each code unit alone and between others; a surrogate alone is a broken text.
void tst_JsonWriter::everyCharacter()
{
    for (int unit = 0; unit <= 0xffff; ++unit) {
        const QString text = QChar(char16_t(unit));
        QCOMPARE(writtenByUs(text), written(text));
        const QString between = u'a' + text + u'b';
        QCOMPARE(writtenByUs(between), written(between));
    }
}

void tst_JsonWriter::randomTexts()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 100000; ++i) {
        QString text;
        for (int length = random.bounded(12); length > 0; --length) {
            static constexpr int limits[] = { 0x20, 0x80, 0x800, 0x10000 };
            const int limit = limits[random.bounded(4)];
            text += random.bounded(4) ? QChar(char16_t(random.bounded(limit)))
                                      : QChar(char16_t(0xd800 + random.bounded(0x800)));
        }
        QCOMPARE(writtenByUs(text), written(text));
    }
}

void tst_JsonWriter::numbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("zero") << 0.0 << QByteArray("[0]");
    QTest::newRow("negative zero") << -0.0 << QByteArray("[0]");
    QTest::newRow("whole") << 8.0 << QByteArray("[8]");
    QTest::newRow("whole with zeros") << 100000.0 << QByteArray("[100000]");
    QTest::newRow("negative with zeros") << -1e15 << QByteArray("[-1000000000000000]");
    QTest::newRow("fraction") << 0.1 << QByteArray("[0.1]");
    QTest::newRow("17 digits") << 12.345678901234567 << QByteArray("[12.345678901234567]");
    QTest::newRow("small") << 1e-7 << QByteArray("[1e-07]");
    QTest::newRow("2^53 + 2") << 9007199254740994.0 << QByteArray("[9007199254740994]");
    QTest::newRow("large whole") << 1e18 << QByteArray("[1e+18]");
    QTest::newRow("18 digits") << -134349157432384432.0 << QByteArray("[-134349157432384430]");
    QTest::newRow("2^63") << 9223372036854775808.0 << QByteArray("[9223372036854776000]");
    QTest::newRow("-2^63") << -9223372036854775808.0 << QByteArray("[-9223372036854776000]");
    QTest::newRow("largest") << std::numeric_limits<double>::max() << QByteArray("[1.7976931348623157e+308]");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QByteArray("[null]");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << QByteArray("[null]");
}

void tst_JsonWriter::numbers()
{
    QFETCH(double, number);
    QTEST(writtenByUs(number), "text");
    QTEST(written(number), "text");
}

void tst_JsonWriter::randomNumbers()
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < 200000; ++i) {
        const quint64 bits = random.generate64();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        QCOMPARE(writtenByUs(number), written(number));
        const double length = double(random.bounded(1000000)) / (1 + random.bounded(100));
        QCOMPARE(writtenByUs(length), written(length));
        const double wholeLength = double(random.bounded(1000)) * std::pow(10.0, random.bounded(20));
        QCOMPARE(writtenByUs(wholeLength), written(wholeLength));
        const qint64 whole = qint64(bits) >> random.bounded(64);
        QCOMPARE(writtenByUs(whole), written(whole));
    }
}

QTEST_GUILESS_MAIN(tst_JsonWriter)
#include "tst_JsonWriter.moc"
