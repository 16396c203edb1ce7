#include "AttributeTest.h"

#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVShippingGroupId.h>

using namespace Qt::StringLiterals;

namespace {

RVArticleClass articleClass(qint64 value)
{
    return RVArticleClass(RVArticleClassEnum(value));
}

}

class tst_RVArticleClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void readsLists();
    void writesLists();
    void shippingGroups_data();
    void shippingGroups();
    void shippingGroupOfAnythingElse_data();
    void shippingGroupOfAnythingElse();
    void categories_data();
    void categories();
    void startPage_data();
    void startPage();
    void morePages_data();
    void morePages();
    void combinationsHaveNoText();
    void amounts();
    void shopCartOrder();
    void shopCartOrderOfTheUnlisted_data();
    void shopCartOrderOfTheUnlisted();
    void templates_data();
    void templates();
    void debugOutput();
};

void tst_RVArticleClass::keywordTable()
{
    const KeywordTableTest<RVArticleClass> test(
            {
                    { 0x0, { u"none"_s, u"unknown"_s } },
                    { 0x1, { u"book"_s, u"fotobook"_s } },
                    { 0x2, { u"normal_calendar"_s } },
                    { 0x4, { u"agenda"_s } },
                    { 0x6, { u"calendar"_s } },
                    { 0x8, { u"card"_s } },
                    { 0x10, { u"deko"_s, u"poster"_s, u"frame"_s } },
                    { 0x20, { u"canvas"_s } },
                    { 0x40, { u"art_print"_s } },
                    { 0x80, { u"simple_gift"_s } },
                    { 0x100, { u"advent_calendar"_s } },
                    { 0x200, { u"playing_card"_s, u"playingcard"_s } },
                    { 0x400, { u"doublepage"_s } },
                    { 0x800, { u"picture_box"_s } },
                    { 0x1000, { u"nature_bundle"_s } },
                    { 0x2000, { u"puzzle"_s } },
                    { 0x3FC0, { u"gift"_s } },
                    { 0x4000, { u"slipcase"_s } },
                    { 0x7FFF, { u"printfun"_s } },
                    { 0x8000, { u"foto"_s } },
                    { 0x10000, { u"premiumfoto"_s } },
                    { 0x20000, { u"posterfoto"_s } },
                    { 0x38000, { u"photo"_s } },
                    { 0x3FFFF, { u"article"_s } },
                    { 0x40000, { u"expressFee"_s, u"express_fee"_s } },
                    { 0x80000, { u"transferFee"_s, u"transfer"_s } },
                    { 0x100000, { u"paymentFee"_s, u"pay_method_fee"_s } },
                    { 0x200000, { u"shipmentMethodFee"_s, u"shipment_method_fee"_s } },
                    { 0x3C0000, { u"fee"_s } },
                    { 0x400000, { u"pagePackage_addOn"_s } },
                    { 0x800000, { u"spotColor_addOn"_s } },
                    { 0x1000000, { u"video_addOn"_s } },
                    { 0x2000000, { u"design_addOn"_s } },
                    { 0x4000000, { u"locrMap_addOn"_s } },
                    { 0x8000000, { u"frame_addOn"_s } },
                    { 0x10000000, { u"frame_construction"_s } },
                    { 0x80000000, { u"wallholder_addOn"_s, u"wall_holder_gallery_print"_s } },
                    { 0x100000000, { u"envelope_addOn"_s } },
                    { 0x200000000, { u"matt_cover_addOn"_s } },
                    { 0x400000000, { u"giftBox_addOn"_s } },
                    { 0x800000000, { u"giftBoxService_addOn"_s } },
                    { 0x1000000000, { u"giftWrap_addOn"_s } },
                    { 0x2000000000, { u"flyleafcolor"_s } },
                    { 0x10000000000, { u"artprint_box_addon"_s } },
                    { 0x20000000000, { u"memo_pocket_addOn"_s } },
                    { 0x80000000000, { u"giftBoxService_cal_addOn"_s } },
                    { 0xFFFFFC00000, { u"add_on"_s } },
                    { 0x100000000000, { u"pre_assembled"_s } },
            },
            u""_s, 0);
    test.check();
}

void tst_RVArticleClass::readsLists()
{
    QCOMPARE(qint64(RVArticleClass(u"calendar,card"_s).value()), 0xE);
    QCOMPARE(qint64(RVArticleClass(u" FotoBook , nothing ,POSTER"_s).value()), 0x11);
}

void tst_RVArticleClass::writesLists()
{
    QCOMPARE(articleClass(0x38000).encodeCSV(), u"foto, premiumfoto, posterfoto"_s);
    QCOMPARE(articleClass(0x38000).encode(), u"photo"_s);
    QCOMPARE(articleClass(0x9).encode(), u""_s);
    QCOMPARE(articleClass(0x60000000).encodeCSV(), u", "_s);
    QCOMPARE(articleClass(0).encode(), u"none"_s);
    QCOMPARE(articleClass(0).encodeCSV(), u""_s);
}

void tst_RVArticleClass::shippingGroups_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<qint64>("value");
    QTest::newRow("photo") << 1 << Q_INT64_C(0x8000);
    QTest::newRow("poster") << 3 << Q_INT64_C(0x20000);
    QTest::newRow("premium photo") << 18 << Q_INT64_C(0x10000);
}

void tst_RVArticleClass::shippingGroups()
{
    QFETCH(int, group);
    QFETCH(qint64, value);
    QCOMPARE(qint64(RVArticleClass::createFromShippingGroupId(group).value()), value);
    QCOMPARE(articleClass(value).shippingGroup(), group);
}

void tst_RVArticleClass::shippingGroupOfAnythingElse_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<qint64>("value");
    QTest::newRow("none") << -1 << Q_INT64_C(0);
    QTest::newRow("combined transfer, two photo classes") << 0 << Q_INT64_C(0x18000);
    QTest::newRow("2, all photo classes") << 2 << Q_INT64_C(0x38000);
    QTest::newRow("17, book") << 17 << Q_INT64_C(0x1);
    QTest::newRow("19, slipcase") << 19 << Q_INT64_C(0x4000);
}

void tst_RVArticleClass::shippingGroupOfAnythingElse()
{
    QFETCH(int, group);
    QFETCH(qint64, value);
    QCOMPARE(qint64(RVArticleClass::createFromShippingGroupId(group).value()), 0);
    QCOMPARE(articleClass(value).shippingGroup(), -1);
}

void tst_RVArticleClass::categories_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("helpTopic");
    QTest::addColumn<bool>("canModifyABK");
    const auto row = [](const char *name, qint64 value, const QString &category, const QString &humanReadable,
                        const QString &helpTopic, bool canModifyABK) {
        QTest::newRow(name) << value << category << humanReadable << helpTopic << canModifyABK;
    };
    const QString gifts = u"Fotogeschenke"_s;
    row("none", 0, u"other"_s, gifts, QString(), false);
    row("book", 0x1, u"book"_s, u"RAVO FOTOBUCH"_s, u"photobook"_s, false);
    row("calendar", 0x2, u"calendar"_s, u"RAVO KALENDER"_s, u"calendar"_s, false);
    row("agenda", 0x4, u"calendar"_s, u"RAVO KALENDER"_s, u"calendar"_s, false);
    row("card", 0x8, u"card"_s, u"Grußkarten"_s, u"card"_s, false);
    row("wall decor", 0x10, u"walldecor"_s, u"Poster & Wandbilder"_s, u"deko"_s, false);
    row("canvas", 0x20, u"walldecor"_s, u"Poster & Wandbilder"_s, QString(), false);
    for (qint64 gift = 0x40; gift <= 0x2000; gift *= 2)
        row(qPrintable(u"gift 0x%1"_s.arg(gift, 0, 16)), gift, u"other"_s, gifts, u"gift"_s, false);
    row("slipcase", 0x4000, u"other"_s, gifts, QString(), false);
    row("photo", 0x8000, u"prints"_s, u"Fotos & mehr"_s, u"foto"_s, true);
    row("premium photo", 0x10000, u"prints"_s, u"Fotos & mehr"_s, u"foto"_s, true);
    row("poster photo", 0x20000, u"prints"_s, u"Fotos & mehr"_s, u"foto"_s, true);
    row("express fee", 0x40000, u"other"_s, gifts, QString(), false);
    row("book and photo", 0x8001, u"book"_s, u"RAVO FOTOBUCH"_s, u"photobook"_s, true);
    row("photo and wall decor", 0x8010, u"prints"_s, u"Fotos & mehr"_s, u"deko"_s, true);
    row("photo and canvas", 0x8020, u"prints"_s, u"Fotos & mehr"_s, u"foto"_s, true);
    row("canvas and calendar", 0x22, u"walldecor"_s, u"Poster & Wandbilder"_s, u"calendar"_s, false);
    row("calendar and card", 0xE, u"calendar"_s, u"RAVO KALENDER"_s, u"calendar"_s, false);
    row("card and photo", 0x8008, u"prints"_s, u"Fotos & mehr"_s, u"card"_s, true);
    row("card and gift", 0x48, u"card"_s, u"Grußkarten"_s, u"card"_s, false);
    row("photo and gift", 0x8040, u"prints"_s, u"Fotos & mehr"_s, u"foto"_s, true);
}

void tst_RVArticleClass::categories()
{
    QFETCH(qint64, value);
    QTEST(articleClass(value).toPHProjectCategory(), "category");
    QTEST(articleClass(value).toHumanReadable(), "name");
    QTEST(articleClass(value).toHelpTopic(), "helpTopic");
    QFETCH(QString, helpTopic);
    QCOMPARE(articleClass(value).toHelpTopic().isNull(), helpTopic.isNull());
    QTEST(articleClass(value).canModifyABK(), "canModifyABK");
}

void tst_RVArticleClass::startPage_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QVariant>("page");
    QTest::newRow("book") << Q_INT64_C(0x1) << QVariant(u"photobook"_s);
    QTest::newRow("calendars") << Q_INT64_C(0x6) << QVariant(u"calendar"_s);
    QTest::newRow("card") << Q_INT64_C(0x8) << QVariant(u"card"_s);
    QTest::newRow("wall decor") << Q_INT64_C(0x10) << QVariant(u"deko"_s);
    QTest::newRow("gifts") << Q_INT64_C(0x3FC0) << QVariant(u"gift"_s);
    QTest::newRow("photos") << Q_INT64_C(0x38000) << QVariant(u"foto"_s);
    QTest::newRow("none") << Q_INT64_C(0) << QVariant(1);
    QTest::newRow("one kind of calendar") << Q_INT64_C(0x2) << QVariant(1);
    QTest::newRow("book and card") << Q_INT64_C(0x9) << QVariant(1);
    QTest::newRow("one kind of gift") << Q_INT64_C(0x40) << QVariant(1);
    QTest::newRow("one kind of photo") << Q_INT64_C(0x8000) << QVariant(1);
}

void tst_RVArticleClass::startPage()
{
    QFETCH(qint64, value);
    QFETCH(QVariant, page);
    QCOMPARE(articleClass(value).toStartPageId().typeId(), page.typeId());
    QCOMPARE(articleClass(value).toStartPageId(), page);
}

void tst_RVArticleClass::morePages_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("picture box") << Q_INT64_C(0x800) << u"3 Foto"_s;
    QTest::newRow("nature bundle") << Q_INT64_C(0x1000) << u"3 Foto"_s;
    QTest::newRow("book") << Q_INT64_C(0x1) << u"3 Seiten"_s;
    QTest::newRow("picture box and nature bundle") << Q_INT64_C(0x1800) << u""_s;
    QTest::newRow("book and card") << Q_INT64_C(0x9) << u""_s;
    QTest::newRow("none") << Q_INT64_C(0) << u""_s;
    QTest::newRow("puzzle") << Q_INT64_C(0x2000) << u""_s;
}

void tst_RVArticleClass::morePages()
{
    QFETCH(qint64, value);
    QTEST(articleClass(value).morePagesText(3), "text");
    QCOMPARE(articleClass(0x1).morePagesText(26), u"26 Seiten"_s);
    QCOMPARE(articleClass(0x800).morePagesText(1), u"1 Foto"_s);
}

void tst_RVArticleClass::combinationsHaveNoText()
{
    const QList<int> startPages = { 0x1, 0x6, 0x8, 0x10, 0x3FC0, 0x38000 };
    for (int value = 0; value < 0x80000; ++value) {
        if (qPopulationCount(quint32(value)) < 2)
            continue;
        if (!startPages.contains(value))
            QCOMPARE(articleClass(value).toStartPageId(), QVariant(1));
        QCOMPARE(articleClass(value).morePagesText(3), u""_s);
        QCOMPARE(articleClass(value).shippingGroup(), -1);
    }
}

void tst_RVArticleClass::amounts()
{
    const QList<int> once = { 14, 23, 27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 38, 39, 40, 41, 42, 43 };
    for (int bit = 0; bit < 63; ++bit)
        QCOMPARE(articleClass(Q_INT64_C(1) << bit).maxAmount(), once.contains(bit) ? 1 : 2147483647);
    QCOMPARE(articleClass(0).maxAmount(), 2147483647);
    QCOMPARE(articleClass(0x4001).maxAmount(), 1);
    QCOMPARE(articleClass(-1).maxAmount(), 1);
}

void tst_RVArticleClass::shopCartOrder()
{
    const qint64 order[] = { 0x1,          0x400000,     0x800000,   0x200000000,   0x400000000,
                             0x800000000,  0x2000000000, 0x1000000,  0x4000000,     0x2000000,
                             0x8000000,    0x10000000,   0x20000000, 0x80000000,    0x40000000,
                             0x1000000000, 0x100000000,  0x4000,     0x20000000000, 0x80000000000 };
    for (std::size_t i = 0; i < std::size(order); ++i) {
        for (std::size_t j = 0; j < std::size(order); ++j)
            QCOMPARE(RVArticleClass::lessThanShopCart(RVArticleClassEnum(order[i]), RVArticleClassEnum(order[j])),
                     i < j);
    }
}

void tst_RVArticleClass::shopCartOrderOfTheUnlisted_data()
{
    QTest::addColumn<qint64>("value");
    QTest::newRow("none") << Q_INT64_C(0);
    QTest::newRow("card") << Q_INT64_C(0x8);
    QTest::newRow("box for art prints") << Q_INT64_C(0x10000000000);
    QTest::newRow("two listed ones together") << Q_INT64_C(0xC00000);
}

void tst_RVArticleClass::shopCartOrderOfTheUnlisted()
{
    QFETCH(qint64, value);
    const auto unlisted = RVArticleClassEnum(value);
    QVERIFY(RVArticleClass::lessThanShopCart(unlisted, RVArticleClassEnum(0x400000)));
    QVERIFY(!RVArticleClass::lessThanShopCart(RVArticleClassEnum(0x400000), unlisted));
    QVERIFY(!RVArticleClass::lessThanShopCart(unlisted, RVArticleClassEnum(0x1)));
    QVERIFY(!RVArticleClass::lessThanShopCart(RVArticleClassEnum(0x1), unlisted));
}

void tst_RVArticleClass::templates_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QStringList>("children");
    QTest::newRow("none") << Q_INT64_C(0) << QStringList();
    QTest::newRow("negative") << Q_INT64_C(-2) << QStringList();
    QTest::newRow("book") << Q_INT64_C(0x1) << QStringList { u"type=book"_s };
    QTest::newRow("calendars, bit by bit")
            << Q_INT64_C(0x6) << QStringList { u"type=agenda"_s, u"type=normal_calendar"_s };
    QTest::newRow("a bit without a keyword") << Q_INT64_C(0x20000000) << QStringList { u"type="_s };
    QTest::newRow("every product") << Q_INT64_C(0x7FFF) << QStringList();
    QTest::newRow("one product less") << Q_INT64_C(
            0x7FFE) << QStringList { u"type=advent_calendar"_s, u"type=agenda"_s,        u"type=art_print"_s,
                                     u"type=canvas"_s,          u"type=card"_s,          u"type=deko"_s,
                                     u"type=doublepage"_s,      u"type=nature_bundle"_s, u"type=normal_calendar"_s,
                                     u"type=picture_box"_s,     u"type=playing_card"_s,  u"type=puzzle"_s,
                                     u"type=simple_gift"_s,     u"type=slipcase"_s };
}

void tst_RVArticleClass::templates()
{
    QFETCH(qint64, value);
    QDomDocument document;
    QDomElement parent = document.createElement(u"article"_s);
    articleClass(value).toTemplates2Format(parent);
    QTEST(childTexts(parent), "children");
    QDomElement other = document.createElement(u"article"_s);
    LyingAttribute<RVArticleClass>(RVArticleClassEnum(value)).toTemplates2Format(other);
    QTEST(childTexts(other), "children");
}

void tst_RVArticleClass::debugOutput()
{
    QCOMPARE(debugText(articleClass(0x6)), u"Articleclass: \"calendar\" "_s);
    QCOMPARE(debugText(articleClass(0x9)), u"Articleclass: \"\" "_s);
}

QTEST_GUILESS_MAIN(tst_RVArticleClass)
#include "tst_RVArticleClass.moc"
