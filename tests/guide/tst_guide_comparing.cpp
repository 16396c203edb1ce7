//! [includes]
#include <RVCatalogue/RVCatalogueComparison.h>
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVCatalogue/RVProductChange.h>
#include <RVCatalogue/RVProductComparison.h>

#include <QBuffer>
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

namespace {

/// The catalogue of the guide after a year.
QByteArray newCatalogue()
{
    QFile file(u"products.xml"_s);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll().replace("LEZ2", "LEZ4").replace("<family name=\"Fotos\">", "<family>");
}

}

void tst_guide_comparing::comparison()
{
    QByteArray text = newCatalogue();
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
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
    QByteArray text = newCatalogue();
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    RVCatalogueReader before(u"products.xml"_s);
    RVCatalogueReader after(&file);
    RVCatalogueComparison comparison(&before, &after);
    //! [change]
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
