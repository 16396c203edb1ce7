#include "CatalogueBuffer.h"
#include "ListDifference.h"

#include <RVCatalogueAttribute.h>
#include <RVCatalogueAttributes.h>
#include <RVCatalogueReader.h>

#include <QTest>

using namespace Qt::StringLiterals;

class tst_RVCatalogueAttribute : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names();
    void classes();
    void find();
    void nullAttribute();
    void values();
    void decode_data();
    void decode();
    void decodesAsItsClass();
    void ofAProduct();
    void everyAttributeOfAProduct();
};

namespace {

QStringList namesOf(const QList<RVCatalogueAttribute> &attributes)
{
    QStringList result;
    for (const RVCatalogueAttribute &attribute : attributes)
        result += attribute.name() + u' ' + attribute.label();
    return result;
}

}

void tst_RVCatalogueAttribute::names()
{
    const QStringList ofProducts = {
        u"article_class Article class"_s, u"cover_type Cover"_s,
        u"page_binding Binding"_s,        u"paper_type Paper"_s,
        u"foto_paper_type Photo paper"_s, u"orientation Orientation"_s,
        u"space_magnitude Size class"_s,
    };
    const QStringList others = {
        u"page_type Page type"_s,     u"page_alignment Page alignment"_s,
        u"material_type Material"_s,  u"product_arrangement Arrangement"_s,
        u"dlp_type Design content"_s, u"spot_color Spot colour"_s,
    };
    const QString place = u"this test"_s;
    QCOMPARE(listDifference(place, ofProducts, namesOf(RVCatalogueAttribute::ofProducts())), QString());
    QCOMPARE(listDifference(place, ofProducts + others, namesOf(RVCatalogueAttribute::all())), QString());
}

void tst_RVCatalogueAttribute::classes()
{
    QCOMPARE(rvCatalogueAttributeName<RVCoverType>(), "cover_type"_L1);
    QCOMPARE(rvCatalogueAttributeName<RVSpotColor>(), "spot_color"_L1);
    QCOMPARE(std::tuple_size_v<decltype(RV_CATALOGUE_ATTRIBUTES)>, std::size_t(RVCatalogueAttribute::all().size()));
}

void tst_RVCatalogueAttribute::find()
{
    QCOMPARE(RVCatalogueAttribute::find(u"cover_type").name(), "cover_type"_L1);
    QVERIFY(RVCatalogueAttribute::find(u"cover_type") == RVCatalogueAttribute::all().at(1));
    QVERIFY(RVCatalogueAttribute::find(u"cover_type") != RVCatalogueAttribute::all().at(2));
    QVERIFY(RVCatalogueAttribute::find(u"Cover_Type").isNull());
    QVERIFY(RVCatalogueAttribute::find(QString()).isNull());
}

void tst_RVCatalogueAttribute::nullAttribute()
{
    const RVCatalogueAttribute none;
    QVERIFY(none.isNull());
    QVERIFY(none.name().isEmpty());
    QVERIFY(none.label().isEmpty());
    QVERIFY(none.values().isEmpty());
    QVERIFY(none.decode(u"book"_s).keywords.isEmpty());
    QVERIFY(!none.isIn(RVCatalogueProduct()));
    QCOMPARE(none.value(RVCatalogueProduct()), qint64(0));
    QVERIFY(none.decode(RVCatalogueProduct()).keywords.isEmpty());
}

void tst_RVCatalogueAttribute::values()
{
    QStringList found;
    for (const RVCatalogueAttributeValue &value : RVCatalogueAttribute::find(u"orientation").values())
        found += u"%1 %2 (%3) %4"_s.arg(QString::number(value.value), value.keyword, value.aliases.join(u' '),
                                        value.displayName);
    QCOMPARE(found,
             (QStringList { u"0 none () "_s, u"1 portrait () Hochkant-"_s, u"2 landscape (landscape_large) Panorama-"_s,
                            u"4 square (quadratic) quadratische "_s, u"8 portrait_slim () schlanke Hochkant-"_s,
                            u"16 landscape_slim () schlanke Panorama-"_s, u"31 all () "_s }));
}

void tst_RVCatalogueAttribute::decode_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QStringList>("keywords");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("displayName");
    QTest::addColumn<QStringList>("unknown");

    QTest::newRow("one") << u"cover_type"_s << u" hardcover"_s << qint64(1) << u"HARDCOVER"_s
                         << QStringList { u"HARDCOVER"_s } << u"HARDCOVER"_s << u"Hardcover"_s << QStringList();
    QTest::newRow("two") << u"orientation"_s << u"square,portrait"_s << qint64(5) << QString()
                         << QStringList { u"portrait"_s, u"square"_s } << u"portrait, square"_s << QString()
                         << QStringList();
    QTest::newRow("unknown pieces") << u"orientation"_s << u"square, Quadrat ,"_s << qint64(4) << u"square"_s
                                    << QStringList { u"square"_s } << u"square"_s << u"quadratische "_s
                                    << QStringList { u"Quadrat"_s, QString() };
    QTest::newRow("without names") << u"spot_color"_s << u"gold"_s << qint64(2) << u"gold"_s
                                   << QStringList { u"gold"_s } << u"gold"_s << QString() << QStringList();
}

void tst_RVCatalogueAttribute::decode()
{
    QFETCH(QString, attribute);
    QFETCH(QString, text);
    const RVCatalogueAttributeDecoding decoding = RVCatalogueAttribute::find(attribute).decode(text);
    QTEST(decoding.value, "value");
    QTEST(decoding.keyword, "keyword");
    QTEST(decoding.keywords, "keywords");
    QTEST(decoding.text, "written");
    QTEST(decoding.displayName, "displayName");
    QTEST(decoding.unknownPieces, "unknown");
}

void tst_RVCatalogueAttribute::decodesAsItsClass()
{
    std::apply(
            [](const auto &...rows) {
                const auto check = [](const auto &row) {
                    using T = typename std::decay_t<decltype(row)>::Class;
                    const RVCatalogueAttribute attribute = RVCatalogueAttribute::find(row.name);
                    QVERIFY(!attribute.values().isEmpty());
                    for (const RVCatalogueAttributeValue &value : attribute.values()) {
                        QCOMPARE(attribute.decode(value.keyword).value, qint64(T(value.keyword).value()));
                        for (const QString &alias : value.aliases)
                            QCOMPARE(attribute.decode(alias).value, value.value);
                    }
                };
                (check(rows), ...);
            },
            RV_CATALOGUE_ATTRIBUTES);
}

void tst_RVCatalogueAttribute::ofAProduct()
{
    CatalogueBuffer file("<p><product article_class='foto' cover_type='hardcover, nonsense' paper_type=''/></p>");
    const RVCatalogueProduct product = RVCatalogueReader(&file).next();
    const auto attribute = [](QStringView name) { return RVCatalogueAttribute::find(name); };
    QVERIFY(attribute(u"cover_type").isIn(product));
    QCOMPARE(attribute(u"cover_type").value(product), qint64(1));
    QCOMPARE(attribute(u"cover_type").decode(product).text, u"HARDCOVER"_s);
    QVERIFY(attribute(u"cover_type").decode(product).unknownPieces.isEmpty());
    QVERIFY(attribute(u"paper_type").isIn(product)); // an empty text stands for the usual paper
    QCOMPARE(attribute(u"paper_type").decode(product).text, u"indigo"_s);
    QVERIFY(attribute(u"foto_paper_type").isIn(product)); // that of the article class
    QVERIFY(!attribute(u"orientation").isIn(product));
    QVERIFY(attribute(u"orientation").decode(product).text.isEmpty());
    QVERIFY(!attribute(u"page_type").isIn(product));
    QCOMPARE(attribute(u"page_type").value(product), qint64(0));
}

// A product reads its value from the attribute that has the name of the row.
void tst_RVCatalogueAttribute::everyAttributeOfAProduct()
{
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts()) {
        const QList<RVCatalogueAttributeValue> values = attribute.values();
        for (const RVCatalogueAttributeValue &value : values) {
            CatalogueBuffer file("<product " + QByteArray(attribute.name().data()) + "='" + value.keyword.toUtf8()
                                 + "'/>");
            const RVCatalogueProduct product = RVCatalogueReader(&file).next();
            QCOMPARE(attribute.value(product), attribute.decode(value.keyword).value);
        }
    }
}

QTEST_GUILESS_MAIN(tst_RVCatalogueAttribute)
#include "tst_RVCatalogueAttribute.moc"
