#include "RVCatalogue/CatalogueBuffer.h"

#include <ProductPack.h>
#include <RVCatalogueReader.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ProductPack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void empty();
    void keepsProducts_data();
    void keepsProducts();
    void findsEach();
    void forgetsTheFile();
    void keepsALargeProduct();
    void needsLittle();
};

void tst_ProductPack::empty()
{
    QCOMPARE(ProductPack().size(), 0);
    QCOMPARE(ProductPack(QList<RVCatalogueProduct>()).size(), 0);
}

void tst_ProductPack::keepsProducts_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");

    QTest::newRow("plain") << QByteArray("<p><product name='n'><forms><form key='k' value='v'/></forms></product></p>")
                           << u"n"_s << u"v"_s;
    QTest::newRow("escaped letters") << QByteArray("<p><product name='&quot;&#10;&lt;'><forms>"
                                                   "<form key='k' value='&amp;amp;'/></forms></product></p>")
                                     << u"\"\n<"_s << u"&amp;"_s;
    QTest::newRow("text and comments") << QByteArray("<p><product name='n'>text &amp; <!-- </product> -->"
                                                     "<forms><form key='k' value='v'>t</form></forms></product></p>")
                                       << u"n"_s << u"v"_s;
    QTest::newRow("product in a product") << QByteArray("<p><product name='n'><product/><forms>"
                                                        "<form key='k' value='v'/></forms></product></p>")
                                          << u"n"_s << u"v"_s;
    QTest::newRow("prefix that is declared around it")
            << QByteArray("<p xmlns:x='urn:x'><product name='n' x:name='m'><x:forms/><forms>"
                          "<form key='k' x:value='w' value='v'/></forms></product></p>")
            << u"n"_s << u"v"_s;
    QTest::newRow("another encoding") << QByteArray(
            "<?xml version='1.0' encoding='ISO-8859-1'?>\n<p><product name='\xfc'>"
            "<forms><form key='k' value='\xe9'/></forms></product></p>")
                                      << u"ü"_s << u"é"_s;
    QTest::newRow("attribute of the document type")
            << QByteArray("<!DOCTYPE p [<!ATTLIST product name CDATA '&#34;n&#10;&lt;'>"
                          "<!ATTLIST form value CDATA 'v&amp;'>]>"
                          "<p><product type='A'><forms><form key='k'/></forms></product></p>")
            << u"\"n\n<"_s << u"v&"_s;
}

void tst_ProductPack::keepsProducts()
{
    QFETCH(QByteArray, content);
    const ProductPack pack(productsOf(content));
    QCOMPARE(pack.size(), 1);
    const RVCatalogueProduct product = pack.product(0);
    QTEST(product.name(), "name");
    QCOMPARE(product.options().size(), 1);
    QTEST(product.options().constFirst().value(), "value");
}

void tst_ProductPack::findsEach()
{
    const ProductPack pack(
            productsOf("<p><product type='A'/><product type='B'><forms/></product><product type='C'/></p>"));
    QCOMPARE(pack.size(), 3);
    QCOMPARE(pack.product(2).type().toString(), u"C"_s);
    QCOMPARE(pack.product(0).type().toString(), u"A"_s);
    QCOMPARE(pack.product(1).type().toString(), u"B"_s);
    QCOMPARE(pack.product(1).element().firstChildElement().name(), u"forms"_s);
}

void tst_ProductPack::forgetsTheFile()
{
    const ProductPack pack(productsOf("<p name='g'>\n<product type='A'/>\n<product type='B'/>\n</p>"));
    QCOMPARE(pack.product(1).number(), 0);
    QCOMPARE(pack.product(1).range().begin, (RVFilePosition { 1, 1 }));
    QCOMPARE(pack.product(1).families(), QStringList());
}

// Almost as large as a catalogue may have it.
void tst_ProductPack::keepsALargeProduct()
{
    const QByteArray content = "<p><product type='A'><forms>"
            + QByteArray("<form key='k' value='&#233;'/>").repeated(33000) + "</forms></product></p>";
    const ProductPack pack(productsOf(content));
    QCOMPARE(pack.size(), 1);
    QCOMPARE(pack.product(0).options().size(), 33000);
}

// Texts that many products have in common are stored once.
void tst_ProductPack::needsLittle()
{
    QByteArray content = "<p>";
    for (int i = 0; i < 30; ++i)
        content += "<product type='T" + QByteArray::number(i) + "' name='" + QByteArray::number(i * 7919) + "'><forms>"
                + QByteArray("<form key='alcolor' value='black' value_name='Schwarz'/>").repeated(30)
                + "</forms></product>";
    const ProductPack pack(productsOf(content + "</p>"));
    QCOMPARE(pack.size(), 30);
    QVERIFY2(pack.byteCount() < 30 * 60, qPrintable(QString::number(pack.byteCount())));
    QCOMPARE(pack.product(29).name(), u"229651"_s);
}

QTEST_APPLESS_MAIN(tst_ProductPack)
#include "tst_ProductPack.moc"
