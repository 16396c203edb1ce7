#include <RVXML/RVXMLParser.h>

#include <QDomDocument>
#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// An element whose attribute "a" holds the text; without the attribute for a null text.
QDomElement element(const QString &text)
{
    static QDomDocument document;
    QDomElement result = document.createElement(u"product"_s);
    if (!text.isNull())
        result.setAttribute(u"a"_s, text);
    return result;
}

}

class tst_RVXMLParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }
    void texts_data();
    void texts();
    void integers_data();
    void integers();
    void booleans_data();
    void booleans();
    void doubles_data();
    void doubles();
    void distances_data();
    void distances();
    void nullElements();
};

void tst_RVXMLParser::texts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("text") << u"Weiß"_s << u"Weiß"_s;
    QTest::newRow("blanks stay") << u" a  b "_s << u" a  b "_s;
    QTest::newRow("empty is no default") << u""_s << u""_s;
    QTest::newRow("missing") << QString() << u"default"_s;
}

void tst_RVXMLParser::texts()
{
    QFETCH(QString, text);
    const QDomElement read = element(text);
    QTEST(RVXMLParser::attribute(read, u"a"_s, u"default"_s), "result");
    QTEST(RVXMLParser::attribute(read, u"a"_s, u"default"_s, true), "result");
    QTEST(RVXMLParser::attribute(read.attributes(), u"a"_s, u"default"_s), "result");
    QTEST(RVXMLParser::attribute(read.attributes(), u"a"_s, u"default"_s, true), "result");
    QCOMPARE(RVXMLParser::attribute(read, u"A"_s, u"default"_s), u"default"_s);
}

void tst_RVXMLParser::integers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("result");
    QTest::newRow("number") << u"26"_s << 26;
    QTest::newRow("negative") << u"-4"_s << -4;
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("white space") << u"\t26 "_s << 26;
    QTest::newRow("largest") << u"2147483647"_s << 2147483647;
    QTest::newRow("too large") << u"2147483648"_s << 7;
    QTest::newRow("smallest") << u"-2147483648"_s << -2147483647 - 1;
    QTest::newRow("too small") << u"-2147483649"_s << 7;
    QTest::newRow("fraction") << u"26.0"_s << 7;
    QTest::newRow("grouped") << u"1.000"_s << 7;
    QTest::newRow("hexadecimal") << u"0x1a"_s << 7;
    QTest::newRow("word") << u"many"_s << 7;
    QTest::newRow("null character behind a number") << u"26\0abc"_s << 7;
    QTest::newRow("null character behind a blank") << u" 26\0"_s << 7;
    QTest::newRow("empty") << u""_s << 7;
    QTest::newRow("missing") << QString() << 7;
}

void tst_RVXMLParser::integers()
{
    QFETCH(QString, text);
    QTEST(RVXMLParser::intAttribute(element(text), u"a"_s, 7), "result");
    QTEST(RVXMLParser::intAttribute(element(text).attributes(), u"a"_s, 7), "result");
}

void tst_RVXMLParser::booleans_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ifDefaultIsTrue");
    QTest::addColumn<bool>("ifDefaultIsFalse");
    for (const char *text : { "true", "1", "yes", "on", "TRUE", "Yes", "oN" })
        QTest::newRow(text) << QString::fromLatin1(text) << true << true;
    for (const char *text : { "false", "0", "no", "off", "False", "NO", "oFF" })
        QTest::newRow(text) << QString::fromLatin1(text) << false << false;
    for (const char *text : { "", " true", "2", "ja", "y" })
        QTest::newRow(qPrintable(u"\"%1\""_s.arg(QLatin1StringView(text))))
                << QString::fromLatin1(text) << true << false;
    QTest::newRow("missing") << QString() << true << false;
}

void tst_RVXMLParser::booleans()
{
    QFETCH(QString, text);
    QTEST(RVXMLParser::boolAttribute(element(text), u"a"_s, true), "ifDefaultIsTrue");
    QTEST(RVXMLParser::boolAttribute(element(text), u"a"_s, false), "ifDefaultIsFalse");
}

void tst_RVXMLParser::doubles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qreal>("result");
    QTest::newRow("fraction") << u"0.32"_s << 0.32;
    QTest::newRow("negative") << u"-1.5"_s << -1.5;
    QTest::newRow("exponent") << u"1e3"_s << 1000.0;
    QTest::newRow("white space") << u" 2.5\n"_s << 2.5;
    QTest::newRow("comma") << u"0,32"_s << 7.5;
    QTest::newRow("too large") << u"1e999"_s << 7.5;
    QTest::newRow("infinite") << u"inf"_s << 7.5;
    QTest::newRow("not a number") << u"nan"_s << 7.5;
    QTest::newRow("with unit") << u"5mm"_s << 7.5;
    QTest::newRow("null character behind a number") << u"0.32\0abc"_s << 7.5;
    QTest::newRow("null character behind an exponent") << u"1e3\0"_s << 7.5;
    QTest::newRow("empty") << u""_s << 7.5;
    QTest::newRow("missing") << QString() << 7.5;
}

void tst_RVXMLParser::doubles()
{
    QFETCH(QString, text);
    QTEST(RVXMLParser::doubleAttribute(element(text), u"a"_s, 7.5), "result");
}

void tst_RVXMLParser::distances_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("unit");
    QTest::addColumn<qreal>("tenths");
    QTest::newRow("tenths of a millimetre") << u"2.5"_s << 1 << 2.5;
    QTest::newRow("millimetres") << u"2.5"_s << 2 << 25.0;
    QTest::newRow("inches") << u"2.5"_s << 4 << 635.0;
    QTest::newRow("default in centimetres") << QString() << 8 << 700.0;
    QTest::newRow("no number, default in millimetres") << u"wide"_s << 2 << 70.0;
}

void tst_RVXMLParser::distances()
{
    QFETCH(QString, text);
    QFETCH(int, unit);
    QTEST(RVXMLParser::readDistance(element(text), u"a"_s, 7, RVDistanceUnit(unit)).value(), "tenths");
}

void tst_RVXMLParser::nullElements()
{
    QCOMPARE(RVXMLParser::attribute(QDomElement(), u"a"_s, u"default"_s), u"default"_s);
    QCOMPARE(RVXMLParser::attribute(QDomNamedNodeMap(), u"a"_s, u"default"_s), u"default"_s);
    QCOMPARE(RVXMLParser::intAttribute(QDomElement(), u"a"_s, 7), 7);
    QCOMPARE(RVXMLParser::intAttribute(QDomNamedNodeMap(), u"a"_s, 7), 7);
    QCOMPARE(RVXMLParser::boolAttribute(QDomElement(), u"a"_s, true), true);
    QCOMPARE(RVXMLParser::doubleAttribute(QDomElement(), u"a"_s, 7.5), 7.5);
    QCOMPARE(RVXMLParser::readDistance(QDomElement(), u"a"_s, 7, DISTANCE_UNIT_MILLIMETRE).value(), 70.0);
}

QTEST_APPLESS_MAIN(tst_RVXMLParser)
#include "tst_RVXMLParser.moc"
