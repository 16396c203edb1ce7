#include <Bill.h>

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// A product with price classes; more attributes and options may follow.
RVCatalogueProduct product(const QByteArray &attributes, const QByteArray &forms)
{
    QByteArray text = "<products><product type='A' " + attributes + "><forms>" + forms
            + "</forms></product></products>";
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    return *reader.begin();
}

/// An item as one word, such as "2xRODA packages".
QString word(const Bill::Item &item)
{
    const QString subjects[] = { u"product"_s, u"packages"_s, item.option.toString() };
    return u"%1x%2 %3"_s.arg(item.count).arg(item.priceClass.toString(), subjects[item.subject]);
}

constexpr char COLOURS[] = "<form key='c' value='black' price_class='LEZ1' preselected='true'/>"
                           "<form key='c' value='red' price_class='LEZ2'/><form key='c' value='plain'/>";

}

class tst_Bill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void items_data();
    void items();
    void counts();
    void manyPackages();
    void isCharged_data();
    void isCharged();
};

void tst_Bill::items_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QByteArray>("forms");
    QTest::addColumn<int>("packages");
    QTest::addColumn<QString>("variants");
    QTest::addColumn<QStringList>("words");

    const QByteArray prices = "price_class='PB' page_price_class='RODA'";
    const QByteArray colours = COLOURS;
    QTest::newRow("lowest count") << prices << QByteArray() << 0 << QString() << QStringList { u"1xPB product"_s };
    QTest::newRow("packages") << prices << QByteArray() << 2 << QString()
                              << QStringList { u"1xPB product"_s, u"2xRODA packages"_s };
    QTest::newRow("below the lowest count")
            << prices << QByteArray() << -1 << QString() << QStringList { u"1xPB product"_s };
    QTest::newRow("packages without a price class")
            << QByteArray("price_class='PB'") << QByteArray() << 2 << QString() << QStringList { u"1xPB product"_s };
    QTest::newRow("no price class at all") << QByteArray() << QByteArray() << 2 << QString() << QStringList();
    QTest::newRow("free price class") << QByteArray("price_class='0'") << QByteArray() << 0 << QString()
                                      << QStringList { u"1x0 product"_s };
    QTest::newRow("option") << prices << colours << 0 << u"c:red"_s
                            << QStringList { u"1xPB product"_s, u"1xLEZ2 c:red"_s };
    QTest::newRow("option without price class")
            << prices << colours << 0 << u"c:plain"_s << QStringList { u"1xPB product"_s };
    QTest::newRow("default that was not chosen")
            << prices << colours << 0 << QString() << QStringList { u"1xPB product"_s };
    QTest::newRow("value that is not offered")
            << prices << colours << 0 << u"c:green"_s << QStringList { u"1xPB product"_s };
    QTest::newRow("not accountable by its element")
            << prices << QByteArray("<form key='p' value='yes' price_class='X' not_accountable='true'/>") << 0
            << u"p:yes"_s << QStringList { u"1xPB product"_s };
    QTest::newRow("not accountable by its value")
            << prices << QByteArray("<form key='b' value='notAccountable' price_class='X'/>") << 0
            << u"b:notAccountable"_s << QStringList { u"1xPB product"_s };
    QTest::newRow("options by their keys")
            << QByteArray() << QByteArray("<form key='z' value='1' price_class='Z'/>") + colours << 0
            << u"z:1,c:black"_s << QStringList { u"1xLEZ1 c:black"_s, u"1xZ z:1"_s };
}

void tst_Bill::items()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QByteArray, forms);
    QFETCH(int, packages);
    QFETCH(QString, variants);
    const Bill bill(product(attributes, forms), packages, RVArticleVariants::createFromKTX(variants));
    QStringList words;
    for (const Bill::Item &item : bill.items())
        words += word(item);
    QTEST(words, "words");
}

void tst_Bill::counts()
{
    const RVCatalogueProduct sold = product("price_class='P' page_price_class='O'",
                                            "<form key='a' value='1' price_class='P'/>"
                                            "<form key='b' value='1' price_class='O'/>");
    const QMap<RVPriceClass, qint64> counts = Bill(sold, 3, RVArticleVariants::createFromKTX(u"a:1,b:1"_s)).counts();
    QCOMPARE(counts, (QMap<RVPriceClass, qint64> { { u"O"_s, 4 }, { u"P"_s, 2 } }));
}

// One more than an int can hold.
void tst_Bill::manyPackages()
{
    const RVCatalogueProduct sold = product("price_class='P' page_price_class='P'", QByteArray());
    QCOMPARE(Bill(sold, std::numeric_limits<int>::max(), RVArticleVariants()).counts().value(u"P"_s), 2147483648);
}

void tst_Bill::isCharged_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<bool>("isCharged");

    QTest::newRow("usual") << QByteArray("<form key='a' value='b'/>") << true;
    QTest::newRow("by its element") << QByteArray("<form key='a' value='b' not_accountable='true'/>") << false;
    QTest::newRow("by its value") << QByteArray("<form key='a' value='notAccountable'/>") << false;
    QTest::newRow("only a part of its value") << QByteArray("<form key='a;b' value='x;notAccountable'/>") << true;
}

void tst_Bill::isCharged()
{
    QFETCH(QByteArray, form);
    QTEST(Bill::isCharged(product(QByteArray(), form).options().value(0)), "isCharged");
}

QTEST_APPLESS_MAIN(tst_Bill)
#include "tst_Bill.moc"
