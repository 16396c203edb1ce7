//! [includes]
#include <RVCatalogue/RVCatalogueComparison.h>
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVCatalogue/RVProductChange.h>
#include <RVCatalogue/RVProductComparison.h>

#include <QBuffer>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_comparing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparison();
    void error();
    void change();
    void products();
};

void tst_guide_comparing::comparison()
{
    //! [new]
    QFile products(u"products.xml"_s);
    QVERIFY(products.open(QIODevice::ReadOnly));
    QByteArray text = products.readAll().replace("LEZ2", "LEZ4").replace("<family name=\"Fotos\">", "<family>");
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    //! [new]
    QTest::ignoreMessage(QtDebugMsg, "\"DUN9\" \"Option alcolor:red, price class\" \"\\\"LEZ2\\\"\" \"\\\"LEZ4\\\"\"");
    QTest::ignoreMessage(QtDebugMsg, "\"TOS3\" \"Families\" \"\\\"Fotos\\\"\" \"\"");
    //! [comparison]
    RVCatalogueReader before(u"products.xml"_s);
    RVCatalogueReader after(&file);
    RVCatalogueComparison comparison(&before, &after);
    for (auto product = comparison.next(); !product.isNull(); product = comparison.next()) {
        for (const RVProductChange &change : product.changes())
            qDebug() << product.product().type().toString() << change.label() << change.oldValue().text
                     << change.newValue().text;
    }

    QCOMPARE(comparison.counts().changed, 2);
    QCOMPARE(comparison.counts().equal, 0);
    //! [comparison]
}

void tst_guide_comparing::error()
{
    //! [error]
    RVCatalogueReader before(u"missing.xml"_s);
    RVCatalogueReader after(u"products.xml"_s);
    RVCatalogueComparison comparison(&before, &after);

    QVERIFY(comparison.hasError());
    QVERIFY(before.hasError()); // so it knows the place and the text
    QVERIFY(comparison.next().isNull());
    //! [error]
}

void tst_guide_comparing::change()
{
    QFile products(u"products.xml"_s);
    QVERIFY(products.open(QIODevice::ReadOnly));
    QByteArray text = products.readAll().replace("LEZ2", "LEZ4").replace("<family name=\"Fotos\">", "<family>");
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    //! [change]
    QVERIFY(file.seek(0)); // if it was read before
    RVCatalogueReader before(u"products.xml"_s);
    RVCatalogueReader after(&file);
    RVCatalogueComparison comparison(&before, &after);
    const RVProductComparison book = comparison.next();
    const RVProductChange change = book.changes().constFirst();

    QCOMPARE(change.kind(), RVChangeKind::Changed);
    QCOMPARE(change.subject(), "option.price_class"_L1);
    QCOMPARE(change.item(), (QJsonObject { { u"key"_s, u"alcolor"_s }, { u"value"_s, u"red"_s } }));
    QCOMPARE(change.newValue().value, QJsonValue(u"LEZ4"_s));
    QCOMPARE(book.newPosition().line, 4); // of its start tag
    QCOMPARE(book.oldProduct().optionPriceClass(u"alcolor"_s, u"red"_s).toString(), u"LEZ2"_s);
    //! [change]
}

void tst_guide_comparing::products()
{
    //! [products]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.next();
    const RVCatalogueProduct box = reader.next();
    const RVProductComparison comparison(book, box);

    QCOMPARE(comparison.kind(), RVChangeKind::Changed);
    QVERIFY(comparison.isRenamed());
    QCOMPARE(comparison.changes().constFirst().label(), u"Type"_s);
    //! [products]
}

QTEST_MAIN(tst_guide_comparing)
#include "tst_guide_comparing.moc"
