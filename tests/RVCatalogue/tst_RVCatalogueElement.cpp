#include "FindingTools.h"

#include <RVCatalogueReader.h>

#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVCatalogueElement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attributes();
    void attributesByNumber();
    void children();
    void nullElement();
    void longNames();
    void placesOfAttributes_data();
    void placesOfAttributes();
    void piecesOfValues_data();
    void piecesOfValues();
    void placesOfElements();
    void attributeOfTheDocumentType();
    void nameSpaces();
    void livesAsLongAsACopy();
};

void tst_RVCatalogueElement::attributes()
{
    const RVCatalogueProduct product = firstProduct("<product a='1' b='' c='&lt;\xc3\xa4&#228;&quot;' d='x\ny'/>");
    const RVCatalogueElement element = product.element();
    QVERIFY(!element.isNull());
    QCOMPARE(element.name(), u"product"_s);
    QCOMPARE(element.attributeNames(), (QStringList { u"a"_s, u"b"_s, u"c"_s, u"d"_s }));
    QCOMPARE(element.attribute("a"_L1), u"1"_s);
    QVERIFY(element.hasAttribute("b"_L1));
    QVERIFY(!element.attribute("b"_L1).isNull());
    QVERIFY(element.attribute("b"_L1).isEmpty());
    QVERIFY(element.utf8("b"_L1).isEmpty());
    QCOMPARE(element.attribute("c"_L1), u"<ää\""_s);
    QCOMPARE(element.utf8("c"_L1).toByteArray(), QByteArray("<\xc3\xa4\xc3\xa4\""));
    QCOMPARE(element.attribute("d"_L1), u"x y"_s);
    QVERIFY(!element.hasAttribute("A"_L1));
    QVERIFY(!element.hasAttribute(QLatin1StringView()));
    QVERIFY(element.attribute("A"_L1).isNull());
}

void tst_RVCatalogueElement::attributesByNumber()
{
    const RVCatalogueProduct product = firstProduct(
            "<!DOCTYPE p [<!ATTLIST product d CDATA 'x' xml:lang CDATA 'de'>]>\n"
            "<product \xc3\xa4='1' b = '&lt;'><x:c xmlns:x='u'/></product>");
    const RVCatalogueElement element = product.element();
    QCOMPARE(element.utf8Name().toByteArray(), QByteArray("product"));
    QCOMPARE(element.firstChildElement().utf8Name().toByteArray(), QByteArray("x:c"));
    QByteArrayList names;
    QStringList places;
    for (int i = 0; i < element.attributeCount(); ++i) {
        names += element.attributeName(i).toByteArray();
        places += describe(element.attributeRange(i));
    }
    QCOMPARE(names, (QByteArrayList { "\xc3\xa4", "b", "d", "xml:lang" }));
    QCOMPARE(places, (QStringList { u"2:10-2:15"_s, u"2:16-2:26"_s, u"2:1-2:27"_s, u"2:1-2:27"_s }));
    QCOMPARE(element.firstChildElement().attributeCount(), 1);
    QCOMPARE(RVCatalogueElement().attributeCount(), 0);
    QVERIFY(RVCatalogueElement().utf8Name().isEmpty());
    for (const int index : { -1, element.attributeCount() }) {
        QVERIFY(element.attributeName(index).isNull());
        QCOMPARE(element.attributeRange(index), element.range());
    }
    QVERIFY(RVCatalogueElement().attributeName(0).isNull());
    QCOMPARE(RVCatalogueElement().attributeRange(0), RVFileRange());
}

void tst_RVCatalogueElement::children()
{
    const RVCatalogueProduct product = firstProduct(
            "<p><product><c n='1'/><d><c n='2'/></d>text<!-- <c/> --><c n='3'>text</c></product><product/></p>");
    const RVCatalogueElement element = product.element();
    QVERIFY(element.nextSiblingElement().isNull());
    const RVCatalogueElement first = element.firstChildElement("c"_L1);
    QCOMPARE(first.attribute("n"_L1), u"1"_s);
    QVERIFY(first.firstChildElement().isNull());
    const RVCatalogueElement second = first.nextSiblingElement();
    QCOMPARE(second.name(), u"d"_s);
    QCOMPARE(second.firstChildElement().attribute("n"_L1), u"2"_s);
    QVERIFY(second.firstChildElement().nextSiblingElement().isNull());
    QCOMPARE(first.nextSiblingElement("c"_L1).attribute("n"_L1), u"3"_s);
    QVERIFY(first.nextSiblingElement("c"_L1).nextSiblingElement().isNull());
    QVERIFY(element.firstChildElement("e"_L1).isNull());
    QVERIFY(firstProduct("<p><product/><product/></p>").element().nextSiblingElement().isNull());
    QCOMPARE(element.firstChildElement().name(), u"c"_s);
}

void tst_RVCatalogueElement::nullElement()
{
    const RVCatalogueElement none;
    QVERIFY(none.isNull());
    QVERIFY(none.name().isEmpty());
    QVERIFY(!none.hasAttribute("a"_L1));
    QVERIFY(none.attribute("a"_L1).isNull());
    QVERIFY(none.utf8("a"_L1).isEmpty());
    QVERIFY(none.attributeNames().isEmpty());
    QVERIFY(none.firstChildElement().isNull());
    QVERIFY(none.nextSiblingElement().isNull());
    QVERIFY(none.range() == RVFileRange());
    QVERIFY(none.position() == RVFilePosition());
    QVERIFY(none.attributeRange("a"_L1) == RVFileRange());
    QVERIFY(firstProduct("<p/>").element().isNull());
}

void tst_RVCatalogueElement::longNames()
{
    const QByteArray name(10000, 'n');
    const RVCatalogueProduct product = firstProduct("<product " + name + "='1'><" + name + "/></product>");
    QCOMPARE(product.element().attributeNames(), QStringList { QString::fromLatin1(name) });
    QCOMPARE(product.element().firstChildElement().name(), QString::fromLatin1(name));
}

void tst_RVCatalogueElement::placesOfAttributes_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");

    QTest::newRow("one line") << u"<product a='1' b='2'/>"_s << u"1:10-1:15"_s << u"1:16-1:21"_s;
    QTest::newRow("double quotes") << u"<product a=\"it's\" b='\"'/>"_s << u"1:10-1:18"_s << u"1:19-1:24"_s;
    QTest::newRow("blanks around") << u"<product  a = '1'   b\t='2'  />"_s << u"1:11-1:18"_s << u"1:21-1:27"_s;
    QTest::newRow("several lines") << u"<product\n  a='1'\n  b\n  =\n  '2'/>"_s << u"2:3-2:8"_s << u"3:3-5:6"_s;
    QTest::newRow("CRLF") << u"<product\r\n  a='1'\r\n  b='2'/>"_s << u"2:3-2:8"_s << u"3:3-3:8"_s;
    QTest::newRow("CR") << u"<product\r  a='1'\r  b='2'/>"_s << u"2:3-2:8"_s << u"3:3-3:8"_s;
    QTest::newRow("line end in a value") << u"<product a='1\n2' b='2'/>"_s << u"1:10-2:3"_s << u"2:4-2:9"_s;
    QTest::newRow("umlauts") << u"<product a='Größe' b='ä'/>"_s << u"1:10-1:19"_s << u"1:20-1:25"_s;
    QTest::newRow("two code units") << u"<product a='\U0001F4D5\U0001F4D5' b='1'/>"_s << u"1:10-1:18"_s
                                    << u"1:19-1:24"_s;
    QTest::newRow("references") << u"<product a='&lt;&#228;' b='&amp;'/>"_s << u"1:10-1:24"_s << u"1:25-1:34"_s;
    QTest::newRow("greater in a value") << u"<product a='>/>' b='='/>"_s << u"1:10-1:17"_s << u"1:18-1:23"_s;
    QTest::newRow("similar names") << u"<product aa='1' a='1' ab='1' b='2'/>"_s << u"1:17-1:22"_s << u"1:30-1:35"_s;
    QTest::newRow("missing") << u"<product c='1'\n/>"_s << u"1:1-2:3"_s << u"1:1-2:3"_s;
}

void tst_RVCatalogueElement::placesOfAttributes()
{
    QFETCH(QString, tag);
    const QList<QByteArray> files = {
        tag.toUtf8(),
        "\xef\xbb\xbf" + tag.toUtf8(),
        QByteArray(QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(tag)),
        QByteArray(QStringEncoder(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom)(tag)),
        QByteArray(QStringEncoder(QStringEncoder::Utf32LE, QStringEncoder::Flag::WriteBom)(tag)),
    };
    for (const QByteArray &file : files) {
        const RVCatalogueProduct product = firstProduct(file);
        QTEST(describe(product.element().attributeRange("a"_L1)), "a");
        QTEST(describe(product.element().attributeRange("b"_L1)), "b");
    }
}

void tst_RVCatalogueElement::piecesOfValues_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("place");

    QTest::newRow("whole value") << u"<product a='abc'/>"_s << 0 << 3 << u"1:13-1:16"_s;
    QTest::newRow("inside") << u"<product a = \"abc\"/>"_s << 1 << 1 << u"1:16-1:17"_s;
    QTest::newRow("before the first letter") << u"<product a='abc'/>"_s << 0 << 0 << u"1:13-1:13"_s;
    QTest::newRow("behind the last letter") << u"<product a='abc'/>"_s << 3 << 0 << u"1:16-1:16"_s;
    QTest::newRow("empty value") << u"<product a=''/>"_s << 0 << 0 << u"1:13-1:13"_s;
    QTest::newRow("umlauts in front") << u"<product\n a='äöü'/>"_s << 2 << 1 << u"2:7-2:8"_s;
    QTest::newRow("two code units") << u"<product a='\U0001F4D5b'/>"_s << 2 << 1 << u"1:15-1:16"_s;
    QTest::newRow("first half of a letter") << u"<product a='\U0001F4D5b'/>"_s << 0 << 1 << QString();
    QTest::newRow("second half of a letter") << u"<product a='\U0001F4D5b'/>"_s << 1 << 1 << QString();
    QTest::newRow("too long") << u"<product a='abc'/>"_s << 1 << 3 << QString();
    QTest::newRow("largest length") << u"<product a='abc'/>"_s << 1 << INT_MAX << QString();
    QTest::newRow("negative") << u"<product a='abc'/>"_s << -1 << 1 << QString();
    QTest::newRow("negative length") << u"<product a='abc'/>"_s << 1 << -1 << QString();
    QTest::newRow("reference") << u"<product a='a&amp;c'/>"_s << 0 << 1 << QString();
    QTest::newRow("line end") << u"<product a='a\nc'/>"_s << 0 << 1 << QString();
    QTest::newRow("missing") << u"<product b='abc'/>"_s << 0 << 1 << QString();
    QTest::newRow("of the document type")
            << u"<!DOCTYPE product [<!ATTLIST product a CDATA 'abc'>]><product/>"_s << 0 << 1 << QString();
}

void tst_RVCatalogueElement::piecesOfValues()
{
    QFETCH(QString, tag);
    QFETCH(int, from);
    QFETCH(int, length);
    for (const QByteArray &file : { tag.toUtf8(), QByteArray(QStringEncoder(QStringEncoder::Utf16LE)(tag)) }) {
        const RVCatalogueProduct product = firstProduct(file);
        QVERIFY(!product.isNull());
        const std::optional<RVFileRange> range = product.element().valueRange("a"_L1, from, length);
        QTEST(range ? describe(*range) : QString(), "place");
    }
    QVERIFY(!RVCatalogueElement().valueRange("a"_L1, 0, 0));
}

void tst_RVCatalogueElement::placesOfElements()
{
    const RVCatalogueProduct product = firstProduct(
            "<p>\n <product>\r\n  <forms>x<form/><form\n a='1\n2'/><!-- \n --><form/>\n"
            "<![CDATA[y]]><form a='&lt;&#228;\xc3\xa4'/><form></form></forms></product></p>");
    QCOMPARE(describe(product.element().range()), u"2:2-2:11"_s);
    QVERIFY(product.element().position() == product.element().range().begin);
    const RVCatalogueElement forms = product.element().firstChildElement();
    QStringList places = { describe(forms.range()) };
    for (RVCatalogueElement form = forms.firstChildElement(); !form.isNull(); form = form.nextSiblingElement())
        places += describe(form.range());
    QCOMPARE(places,
             (QStringList { u"3:3-3:10"_s, u"3:11-3:18"_s, u"3:18-5:5"_s, u"6:5-6:12"_s, u"7:14-7:37"_s,
                            u"7:37-7:43"_s }));
}

void tst_RVCatalogueElement::attributeOfTheDocumentType()
{
    const RVCatalogueProduct product = firstProduct(
            "<!DOCTYPE p [<!ATTLIST product a CDATA 'x' b CDATA 'y'>]>\n<p><product b='z' c='1'/></p>");
    const RVCatalogueElement element = product.element();
    QCOMPARE(element.attribute("a"_L1), u"x"_s);
    QCOMPARE(element.attribute("b"_L1), u"z"_s);
    QCOMPARE(describe(element.attributeRange("a"_L1)), u"2:4-2:26"_s);
    QCOMPARE(describe(element.attributeRange("b"_L1)), u"2:13-2:18"_s);
}

void tst_RVCatalogueElement::nameSpaces()
{
    const RVCatalogueProduct product = firstProduct(
            "<p><product xmlns:x='urn:x' a='&lt;' xmlns='urn:d' x:a='&gt;' b='2'><x:b/><b/></product></p>");
    const RVCatalogueElement element = product.element();
    QCOMPARE(element.attributeNames(), (QStringList { u"xmlns:x"_s, u"a"_s, u"xmlns"_s, u"x:a"_s, u"b"_s }));
    QCOMPARE(element.attribute("a"_L1), u"<"_s);
    QCOMPARE(element.attribute("x:a"_L1), u">"_s);
    QCOMPARE(element.attribute("b"_L1), u"2"_s);
    QCOMPARE(element.attribute("xmlns"_L1), u"urn:d"_s);
    QCOMPARE(element.firstChildElement().name(), u"x:b"_s);
    QCOMPARE(element.firstChildElement("b"_L1).name(), u"b"_s);
}

void tst_RVCatalogueElement::livesAsLongAsACopy()
{
    RVCatalogueProduct copy;
    RVCatalogueElement element;
    {
        const RVCatalogueProduct product = firstProduct("<product a='1'><b/></product>");
        element = product.element().firstChildElement();
        copy = product;
    }
    QCOMPARE(element.name(), u"b"_s);
    QVERIFY(!copy.isNull());
}

QTEST_GUILESS_MAIN(tst_RVCatalogueElement)
#include "tst_RVCatalogueElement.moc"
