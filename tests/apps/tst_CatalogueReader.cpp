#include <CatalogueReader.h>

#include <QBuffer>
#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;

/// Hands out one byte at a time, as a slow device may.
class OneByteDevice : public QBuffer
{
public:
    using QBuffer::QBuffer;

protected:
    qint64 readData(char *data, qint64) override { return QBuffer::readData(data, 1); }
};

class tst_CatalogueReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void products_data();
    void products();
    void byteByByte_data();
    void byteByByte();
    void content();
    void positions();
    void positionOfTheRoot_data();
    void positionOfTheRoot();
    void rootStart();
    void errors_data();
    void errors();
    void productsBeforeAnError();
    void manyProducts();
};

void tst_CatalogueReader::products_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("types");

    const QStringList both = { u"A"_s, u"Ä"_s };
    const QString text = u"<products><product type='A'/><g><product type='Ä'/></g></products>"_s;
    QTest::newRow("UTF-8") << text.toUtf8() << both;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + text.toUtf8() << both;
    QTest::newRow("Latin-1") << "<?xml version='1.0' encoding='ISO-8859-1'?>" + text.toLatin1() << both;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe")
                    + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2)
                            << both;
    QTest::newRow("CRLF") << QByteArray("<p>\r\n<product type='A'/>\r\n</p>\r\n") << QStringList { u"A"_s };
    QTest::newRow("external document type")
            << QByteArray("<!DOCTYPE p SYSTEM 'p.dtd'><p><product type='A'/></p>") << QStringList { u"A"_s };
    QTest::newRow("prefix not declared") << QByteArray("<x:p><product type='A'/></x:p>") << QStringList { u"A"_s };
    QTest::newRow("product is the root") << QByteArray("<product type='A'/>") << QStringList { u"A"_s };
    QTest::newRow("inner product belongs to the outer")
            << QByteArray("<product type='A'><product type='B'/></product>") << QStringList { u"A"_s };
    const QString entity = u"<p><!-- <!ENTITY --><product type='A'/><![CDATA[<!ENTITY]]><product type='Ä'/></p>"_s;
    QTest::newRow("entity in a comment") << entity.toUtf8() << both;
    QTest::newRow("entity in a comment in UTF-16")
            << QByteArray("\xff\xfe") + QByteArray(reinterpret_cast<const char *>(entity.utf16()), entity.size() * 2)
            << both;
    QTest::newRow("no product") << QByteArray("<p><Product type='A'/></p>") << QStringList {};
}

void tst_CatalogueReader::products()
{
    QFETCH(QByteArray, file);
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    QStringList types;
    for (QDomElement product = reader.next(); !product.isNull(); product = reader.next())
        types += product.attribute(u"type"_s);
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QTEST(types, "types");
}

void tst_CatalogueReader::byteByByte_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("error");

    QTest::newRow("ASCII") << QByteArray("<p><product name='A'/></p>") << u"A"_s << QString();
    QTest::newRow("four bytes a character") << QByteArray("<p><product name='\xf0\x9f\x93\x95\xf0\x9f\x93\x95'/></p>")
                                            << u"\U0001F4D5\U0001F4D5"_s << QString();
    QTest::newRow("well-formed up to the root's end")
            << QByteArray("<p><product name='A'/></q>") << u"A"_s << u"Opening and ending tag mismatch."_s;
    QTest::newRow("cut off") << QByteArray("<p><product name='A'/></") << u"A"_s << u"the file ends too early"_s;
}

void tst_CatalogueReader::byteByByte()
{
    QFETCH(QByteArray, file);
    OneByteDevice device(&file);
    QVERIFY(device.open(QIODevice::ReadOnly));
    CatalogueReader reader(&device, u"product"_s);
    QTEST(reader.next().attribute(u"name"_s), "name");
    QVERIFY(reader.next().isNull());
    QTEST(reader.hasError() ? reader.errorString() : QString(), "error");
}

void tst_CatalogueReader::content()
{
    QByteArray file = "<p><product a='1'>x<b c='&lt;2'>y<!-- no --><![CDATA[<z>]]></b><b/></product></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    const QDomElement product = reader.next();
    QCOMPARE(product.tagName(), u"product"_s);
    QCOMPARE(product.attribute(u"a"_s), u"1"_s);
    const QDomElement child = product.firstChildElement(u"b"_s);
    QCOMPARE(child.attribute(u"c"_s), u"<2"_s);
    QCOMPARE(child.text(), u"y<z>"_s);
    QVERIFY(!child.nextSiblingElement(u"b"_s).isNull());
    QCOMPARE(product.text(), u"xy<z>"_s);
    QVERIFY(reader.next().isNull());
    QVERIFY(!reader.hasError());
}

void tst_CatalogueReader::positionOfTheRoot_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");

    const QString text = u"<?xml version='1.0'?>\n<!-- Größe: \U0001F4D5 -->\n  <product type='a>b'/>\n"_s;
    QTest::newRow("alone") << QByteArray("<product/>") << 1 << 1;
    QTest::newRow("behind a mark") << QByteArray("\xef\xbb\xbf<product/>") << 1 << 1;
    QTest::newRow("behind white space") << QByteArray("\n\n   <product\ntype='a'\n/>\n") << 3 << 4;
    QTest::newRow("behind a declaration") << QByteArray("<?xml version='1.0'?><product/>") << 1 << 22;
    QTest::newRow("behind a document type") << QByteArray("<!DOCTYPE product>\n\n<product/>") << 3 << 1;
    QTest::newRow("behind a comment") << text.toUtf8() << 3 << 3;
    QTest::newRow("behind a comment, CRLF") << QString(text).replace(u'\n', "\r\n"_L1).toUtf8() << 3 << 3;
    QTest::newRow("with an element in it") << QByteArray("<!--<a--><product><product/></product>") << 1 << 10;
    QTest::newRow("in UTF-16") << QByteArray(QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(
            text)) << 3 << 3;
}

void tst_CatalogueReader::positionOfTheRoot()
{
    QFETCH(QByteArray, file);
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    QVERIFY2(!reader.next().isNull(), qPrintable(reader.errorString()));
    QTEST(int(reader.position().line), "line");
    QTEST(int(reader.position().column), "column");
}

void tst_CatalogueReader::positions()
{
    QByteArray file = "<?xml version='1.0'?>\n<p>\n  <product\n  a='1'/><product/>\n\t<product>\n</product></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    QList<std::pair<qint64, qint64>> positions;
    while (!reader.next().isNull())
        positions.append({ reader.position().line, reader.position().column });
    QCOMPARE(positions, (QList<std::pair<qint64, qint64>> { { 3, 3 }, { 4, 10 }, { 5, 2 } }));
}

void tst_CatalogueReader::rootStart()
{
    QByteArray file = "<!-- a -->\n<project pages='3'><page/></project>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, QString());
    const QDomElement root = reader.rootStart();
    QCOMPARE(root.tagName(), u"project"_s);
    QCOMPARE(root.attribute(u"pages"_s), u"3"_s);
    QCOMPARE(reader.position().line, qint64(2));
    QCOMPARE(reader.position().column, qint64(19));
    QVERIFY(reader.finish());
}

void tst_CatalogueReader::errors_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("line");

    const QString large = u"an element, text, comment or declaration is larger than 1 MiB"_s;
    const QString other = u"this is not encoded in UTF-8, as files are that do not say otherwise in their first line"_s;
    const QString deep = u"elements are nested deeper than 256 levels"_s;
    const QString entity = u"entity declarations are not supported"_s;
    QTest::newRow("empty") << QByteArray() << u"the file is empty"_s << qint64(1);
    QTest::newRow("only white space") << QByteArray("\n\n") << u"the file ends too early"_s << qint64(1);
    QTest::newRow("no XML") << QByteArray("hello") << u"Start tag expected."_s << qint64(1);
    QTest::newRow("zero bytes") << QByteArray(100000, '\0') << u"Start tag expected."_s << qint64(1);
    QTest::newRow("cut off in a product") << QByteArray("<p>\n<product>") << u"the file ends too early"_s << qint64(2);
    QTest::newRow("cut off in a tag") << QByteArray("<p>\n<product a='") << u"the file ends too early"_s << qint64(2);
    QTest::newRow("content behind the root")
            << QByteArray("<p/>\n<p/>") << u"Extra content at end of document."_s << qint64(2);
    QTest::newRow("wrong encoding") << QByteArray("<p>\n<a b='\xff'/></p>") << other << qint64(2);
    QTest::newRow("wrong encoding as declared")
            << QByteArray("<?xml version='1.0' encoding='utf-8'?>\n\n<p>\xfc</p>") << other << qint64(3);
    QTest::newRow("wrong encoding far behind")
            << "<p>\n" + QByteArray("<a>\xc3\xbc</a>\n").repeated(100000) + "<a>\xf6\xdf</a></p>" << other
            << qint64(100002);
    QTest::newRow("wrong encoding cut off") << QByteArray("<p>\n<a>\xc3") << u"the file ends too early"_s << qint64(2);
    QTest::newRow("fault long before the wrong encoding") << "<p>\n<a></b>\n" + QByteArray(100000, ' ') + "\xff</p>"
                                                          << u"Opening and ending tag mismatch."_s << qint64(2);
    QTest::newRow("wrong encoding, another one declared")
            << QByteArray("<?xml version='1.0' encoding='ISO-8859-1'?>\n<p>\xfc</q>")
            << u"Opening and ending tag mismatch."_s << qint64(2);
    QTest::newRow("entity declared") << QByteArray("<!DOCTYPE p [\n<!ENTITY a 'b'>]><p/>") << entity << qint64(2);
    QTest::newRow("parameter entity declared")
            << QByteArray("<!DOCTYPE p [\n<!ENTITY % a 'b'>]><p/>") << entity << qint64(2);
    QTest::newRow("entity across two blocks of input")
            << "<!DOCTYPE p [<!--" + QByteArray(4070, 'x') + "-->\n<!ENTITY a 'b'>]><p/>" << entity << qint64(2);
    QTest::newRow("undeclared entity, external document type") << QByteArray("<!DOCTYPE p SYSTEM 'x'>\n<p>&foo;</p>")
                                                               << u"the entity \"foo\" is not declared"_s << qint64(2);
    QTest::newRow("deep around products") << QByteArray("<a>").repeated(257) << deep << qint64(1);
    QTest::newRow("deep in a product") << QByteArray("<product>").repeated(100000) << deep << qint64(1);
    QTest::newRow("large attribute") << "<p a='" + QByteArray(2000000, 'x') + "'/>" << large << qint64(1);
    QTest::newRow("large product") << "<product>" + QByteArray("<form/>").repeated(200000) + "</product>" << large
                                   << qint64(1);
    QTest::newRow("large prolog") << "<!DOCTYPE p [" + QByteArray("<!ELEMENT a EMPTY>").repeated(100000) << large
                                  << qint64(1);
}

void tst_CatalogueReader::errors()
{
    QFETCH(QByteArray, file);
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    while (!reader.next().isNull()) { }
    QVERIFY(reader.hasError());
    QTEST(reader.errorString(), "text");
    QTEST(reader.errorPosition().line, "line");
    QVERIFY(reader.errorPosition().column >= 1);
}

void tst_CatalogueReader::productsBeforeAnError()
{
    QByteArray file = "<p><product/><product/><product></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    int count = 0;
    while (!reader.next().isNull())
        ++count;
    QCOMPARE(count, 2);
    QVERIFY(reader.hasError());
}

// The bound is on one product, not on the file.
void tst_CatalogueReader::manyProducts()
{
    QByteArray file = "<p>" + QByteArray("<product><forms><form/></forms></product>\n").repeated(60000) + "</p>";
    QVERIFY(file.size() > 2 * BoundedInput::LIMIT);
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    int count = 0;
    while (!reader.next().isNull())
        ++count;
    QCOMPARE(count, 60000);
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
}

QTEST_GUILESS_MAIN(tst_CatalogueReader)
#include "tst_CatalogueReader.moc"
