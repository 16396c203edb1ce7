#include "ReadCatalogue.h"

#include <OrderPrices.h>

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

CataloguePointer read(const QByteArray &products)
{
    return readCatalogue("<products>" + products + "</products>", u"c.xml"_s);
}

QStringList texts(const QList<OrderPrices::Line> &lines)
{
    QStringList result;
    for (const OrderPrices::Line &line : lines)
        result += u"%1 %2: %3"_s.arg(line.count).arg(line.priceClass.toString(), line.purposes.join(u" + "_s));
    return result;
}

constexpr char BOOK[] = "<product type='A' pages='20' max_pages='40' page_step='10' price_class='P' "
                        "page_price_class='PAGE'><forms>"
                        "<form key='c' key_name='Colour' value='r' value_name='Red' price_class='C'/>"
                        "<form key='c' key_name='Colour' value='p' value_name='Pink' price_class='P'/>"
                        "<form key='l' value='s' price_class='C'/>"
                        "<form key='z' value='none' price_class='C' not_accountable='true'/></forms></product>";

}

class tst_OrderPrices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void noProduct();
    void obstacles_data();
    void obstacles();
};

void tst_OrderPrices::lines_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<QString>("variants");
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("lowest count") << 20 << QString() << QStringList { u"1 P: product"_s };
    QTest::newRow("packages") << 40 << QString()
                              << QStringList { u"1 P: product"_s, u"2 PAGE: pages above the lowest count"_s };
    QTest::newRow("option") << 20 << u"c:r"_s << QStringList { u"1 P: product"_s, u"1 C: Colour: Red"_s };
    QTest::newRow("option without names") << 20 << u"l:s"_s << QStringList { u"1 P: product"_s, u"1 C: l: s"_s };
    QTest::newRow("price class of the product")
            << 30 << u"c:p"_s
            << QStringList { u"2 P: product + Colour: Pink"_s, u"1 PAGE: pages above the lowest count"_s };
    QTest::newRow("price class of two options")
            << 20 << u"c:r,l:s"_s << QStringList { u"1 P: product"_s, u"2 C: Colour: Red + l: s"_s };
    QTest::newRow("free of charge") << 20 << u"z:none"_s << QStringList { u"1 P: product"_s };
}

void tst_OrderPrices::lines()
{
    QFETCH(int, pages);
    QFETCH(QString, variants);
    const OrderPrices prices(*read(BOOK), 0);
    QCOMPARE(prices.obstacle(), QString());
    QTEST(texts(prices.lines(pages, RVArticleVariants::createFromKTX(variants))), "lines");
}

void tst_OrderPrices::noProduct()
{
    QVERIFY(OrderPrices().lines(20, u"c:r"_s).isEmpty());
    QVERIFY(OrderPrices().obstacle().isEmpty());
}

void tst_OrderPrices::obstacles_data()
{
    QTest::addColumn<QByteArray>("products");
    QTest::addColumn<int>("product");
    QTest::addColumn<QString>("obstacle");

    const QByteArray sold = "<product type='A' pages='20' price_class='P'/>";
    QTest::newRow("can be ordered") << sold << 0 << QString();
    QTest::newRow("first of its type") << sold + sold << 0 << QString();
    QTest::newRow("second of its type") << sold + sold << 1
                                        << u"This product cannot be ordered: an earlier one has the same type."_s;
    QTest::newRow("no type") << QByteArray("<product pages='20' price_class='P'/>") << 0
                             << u"This product cannot be ordered: it has no type."_s;
    QTest::newRow("page counts") << QByteArray("<product type='A' pages='20' max_pages='10' price_class='P'/>") << 0
                                 << u"This product cannot be ordered: its page counts are not valid."_s;
}

void tst_OrderPrices::obstacles()
{
    QFETCH(QByteArray, products);
    QFETCH(int, product);
    const OrderPrices prices(*read(products), product);
    QTEST(prices.obstacle(), "obstacle");
    QCOMPARE(prices.lines(20, RVArticleVariants()).isEmpty(), !prices.obstacle().isEmpty());
}

QTEST_GUILESS_MAIN(tst_OrderPrices)
#include "tst_OrderPrices.moc"
