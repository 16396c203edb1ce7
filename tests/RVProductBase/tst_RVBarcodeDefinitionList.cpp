#include "NameSpaces.h"

#include <RVProductBase/RVBarcodeDefinitionList.h>

#include <QDomDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

RVBarcodeDefinition definition(int x, int pageNr, const QString &imageName)
{
    return RVBarcodeDefinition(QRect(x, 0, 10, 10), pageNr, imageName);
}

RVBarcodeDefinitionList list(const QList<RVBarcodeDefinition> &definitions)
{
    RVBarcodeDefinitionList result;
    for (const RVBarcodeDefinition &each : definitions)
        result += each;
    return result;
}

/// The definitions, each as "x/page/image".
QStringList texts(const RVBarcodeDefinitionList &definitions)
{
    QStringList result;
    for (const RVBarcodeDefinition &each : definitions)
        result += u"%1/%2/%3"_s.arg(QString::number(each.rect().x()), QString::number(each.pageNr()), each.imageName());
    return result;
}

QDomElement element(const QString &xml, bool withNameSpaces = false)
{
    static QDomDocument document;
    if (withNameSpaces)
        document = parseWithNameSpaces(xml);
    else
        document.setContent(xml);
    return document.documentElement();
}

}

class tst_RVBarcodeDefinitionList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsProducts();
    void readsOrderTransfers_data();
    void readsOrderTransfers();
    void readsNameSpaces_data();
    void readsNameSpaces();
    void findsPages();
    void occupiedRegion();
    void findsRectangles();
    void updates_data();
    void updates();
    void orders_data();
    void orders();
};

void tst_RVBarcodeDefinitionList::readsProducts()
{
    const QDomElement product = element(u"<product>"
                                        "<barcode position_x='3' pageNr='2'/><box><barcode position_x='4'/></box>"
                                        "<barcode width='0'/><Barcode/><?barcode a?><barcode image=''/>"
                                        "<barcode position_x='1' image='b'/><barcode position_x='3' pageNr='2'/>"
                                        "</product>"_s);
    QCOMPARE(texts(RVBarcodeDefinitionList::createFromProductsXML(product, DISTANCE_UNIT_MILLIMETRE)),
             (QStringList { u"30/2/dummy-barcode.png"_s, u"10/0/b"_s, u"30/2/dummy-barcode.png"_s }));
    QVERIFY(RVBarcodeDefinitionList::createFromProductsXML(QDomElement(), DISTANCE_UNIT_MILLIMETRE).isEmpty());
}

void tst_RVBarcodeDefinitionList::readsOrderTransfers_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QStringList>("definitions");
    QTest::newRow("barcode") << u"<barcode position_x='2'/>"_s << QStringList { u"20/0/dummy-barcode.png"_s };
    QTest::newRow("other name") << u"<code position_x='2'/>"_s << QStringList();
    QTest::newRow("barcode inside") << u"<p><barcode/></p>"_s << QStringList();
    QTest::newRow("no height") << u"<barcode height='0'/>"_s << QStringList();
    QTest::newRow("no image") << u"<barcode image=''/>"_s << QStringList();
}

void tst_RVBarcodeDefinitionList::readsOrderTransfers()
{
    QFETCH(QString, xml);
    QTEST(texts(RVBarcodeDefinitionList::createFromXTCI(element(xml), DISTANCE_UNIT_MILLIMETRE)), "definitions");
}

void tst_RVBarcodeDefinitionList::readsNameSpaces_data()
{
    QTest::addColumn<QString>("barcode");
    QTest::addColumn<bool>("withNameSpaces");
    QTest::addColumn<int>("count");
    QTest::newRow("no prefix") << u"<barcode/>"_s << true << 1;
    QTest::newRow("no prefix in another name space") << u"<barcode xmlns='urn:shop'/>"_s << true << 1;
    QTest::newRow("prefix") << u"<shop:barcode/>"_s << true << 0;
    QTest::newRow("prefix, parsed without name spaces") << u"<shop:barcode/>"_s << false << 0;
}

// A prefix makes it a different element, in any name space.
void tst_RVBarcodeDefinitionList::readsNameSpaces()
{
    QFETCH(QString, barcode);
    QFETCH(bool, withNameSpaces);
    QFETCH(int, count);
    const QDomElement product = element(u"<product xmlns:shop='urn:shop'>%1</product>"_s.arg(barcode), withNameSpaces);
    QCOMPARE(RVBarcodeDefinitionList::createFromProductsXML(product, DISTANCE_UNIT_MILLIMETRE).size(), count);
    QCOMPARE(RVBarcodeDefinitionList::createFromXTCI(product.firstChildElement(), DISTANCE_UNIT_MILLIMETRE).size(),
             count);
}

void tst_RVBarcodeDefinitionList::findsPages()
{
    const auto tested = list({ definition(1, 4, u"a"_s), definition(2, 5, u"b"_s), definition(3, 4, u"c"_s) });
    QCOMPARE(texts(tested.barcodesOnPage(4)), (QStringList { u"1/4/a"_s, u"3/4/c"_s }));
    QVERIFY(tested.barcodesOnPage(6).isEmpty());
}

void tst_RVBarcodeDefinitionList::occupiedRegion()
{
    const auto tested = list({ definition(0, 4, u"a"_s), definition(5, 5, u"b"_s), definition(100, 4, u""_s) });
    QCOMPARE(tested.occupiedRegion(), QRegion(0, 0, 15, 10) + QRegion(100, 0, 10, 10));
    QVERIFY(RVBarcodeDefinitionList().occupiedRegion().isEmpty());
}

void tst_RVBarcodeDefinitionList::findsRectangles()
{
    const auto tested = list({ definition(1, 4, u"a"_s), definition(2, 5, u"b"_s), definition(2, 6, u"c"_s) });
    QCOMPARE(tested.findDefinition(QRect(2, 0, 10, 10)).imageName(), u"b"_s);
    for (const QRect &other : { QRect(3, 0, 10, 10), QRect(2, 1, 10, 10), QRect(2, 0, 11, 10), QRect(2, 0, 10, 11) }) {
        QVERIFY(!tested.findDefinition(other).isValid());
        QVERIFY(tested.findDefinition(other) == RVBarcodeDefinition());
    }
}

void tst_RVBarcodeDefinitionList::updates_data()
{
    QTest::addColumn<RVBarcodeDefinitionList>("other");
    QTest::addColumn<QStringList>("result");
    const auto row = [](const char *name, const QList<RVBarcodeDefinition> &other, const QStringList &result) {
        QTest::newRow(name) << list(other) << result;
    };
    // Before: 1/4/a, 2/5/b, 1/4/a, 9/1/ without an image.
    row("nothing", {}, { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s });
    row("known", { definition(2, 5, u"b"_s) }, { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s });
    row("new", { definition(3, 5, u"b"_s) }, { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s, u"3/5/b"_s });
    row("new twice", { definition(3, 5, u"b"_s), definition(3, 5, u"b"_s) },
        { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s, u"3/5/b"_s });
    row("other image at both", { definition(1, 4, u"n"_s) }, { u"2/5/b"_s, u"9/1/"_s, u"1/4/n"_s });
    row("other page", { definition(2, 6, u"b"_s) }, { u"1/4/a"_s, u"1/4/a"_s, u"9/1/"_s, u"2/6/b"_s });
    row("two at one rectangle, the last stays", { definition(3, 1, u"x"_s), definition(3, 1, u"y"_s) },
        { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s, u"3/1/y"_s });
    row("the first again after the second",
        { definition(3, 1, u"x"_s), definition(3, 1, u"y"_s), definition(3, 1, u"x"_s) },
        { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s, u"3/1/y"_s });
    row("an invalid one is not replaced", { definition(9, 1, u"n"_s) },
        { u"1/4/a"_s, u"2/5/b"_s, u"1/4/a"_s, u"9/1/"_s, u"9/1/n"_s });
}

void tst_RVBarcodeDefinitionList::updates()
{
    QFETCH(RVBarcodeDefinitionList, other);
    const auto before = list(
            { definition(1, 4, u"a"_s), definition(2, 5, u"b"_s), definition(1, 4, u"a"_s), definition(9, 1, u""_s) });
    RVBarcodeDefinitionList tested = before;
    tested.updateDefinitions(other);
    QTEST(texts(tested), "result");
    tested = before;
    tested.updateDefinitions(tested);
    QCOMPARE(texts(tested), texts(before));
}

void tst_RVBarcodeDefinitionList::orders_data()
{
    QTest::addColumn<RVBarcodeDefinitionList>("first");
    QTest::addColumn<RVBarcodeDefinitionList>("second");
    QTest::addColumn<bool>("less");
    const RVBarcodeDefinition a = definition(1, 1, u"a"_s);
    const RVBarcodeDefinition b = definition(2, 1, u"a"_s);
    QTest::newRow("both empty") << list({}) << list({}) << false;
    QTest::newRow("empty and one") << list({}) << list({ a }) << true;
    QTest::newRow("one and empty") << list({ a }) << list({}) << false;
    QTest::newRow("shorter, though greater") << list({ b }) << list({ a, a }) << true;
    QTest::newRow("longer, though less") << list({ a, a }) << list({ b }) << false;
    QTest::newRow("all less") << list({ a, a }) << list({ b, b }) << true;
    QTest::newRow("one equal") << list({ a, a }) << list({ b, a }) << false;
    QTest::newRow("one greater") << list({ a, b }) << list({ b, a }) << false;
}

void tst_RVBarcodeDefinitionList::orders()
{
    QFETCH(RVBarcodeDefinitionList, first);
    QFETCH(RVBarcodeDefinitionList, second);
    QTEST(first < second, "less");
}

QTEST_MAIN(tst_RVBarcodeDefinitionList)
#include "tst_RVBarcodeDefinitionList.moc"
