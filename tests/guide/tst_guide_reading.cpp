#include "GuideProducts.h"

//! [includes]
#include <RVCore/RVDistanceUnit.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVArticleId.h>
#include <RVProductBase/RVBarcodeDefinitionList.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVProductType.h>
#include <RVProductBase/RVShippingGroupId.h>
#include <RVProductBase/RVSpineConfig.h>
#include <RVXML/RVXMLParser.h>

#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_reading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void file();
    void identity();
    void attributes();
    void parts();
    void missing();
};

void tst_guide_reading::file()
{
    //! [file]
    QFile file(u"products.xml"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QDomDocument catalogue;
    QVERIFY(catalogue.setContent(&file));

    const QDomElement family = catalogue.documentElement().firstChildElement(u"family"_s);
    const QDomElement product = family.firstChildElement(u"product"_s);
    //! [file]
    QCOMPARE(product, catalogue.elementsByTagName(u"product"_s).at(0).toElement());
    QCOMPARE(product.attribute(u"name"_s), u"Fotobuch Groß Hardcover"_s);
}

void tst_guide_reading::identity()
{
    //! [product]
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [product]
    //! [identity]
    const RVProductType type(product.attribute(u"type"_s));
    const RVArticleId article(product, u"article_id"_s);
    const RVShippingGroupId shippingGroup(product, u"shipping_group"_s);

    QCOMPARE(type.toString(), u"DUN9"_s);
    QCOMPARE(type, RVProductType(u"DUN9_40"_s));
    QCOMPARE(article.id(), 1001);
    QCOMPARE(shippingGroup.id(), 2);
    //! [identity]
}

void tst_guide_reading::attributes()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [attributes]
    const RVArticleClass articleClass(RVXMLParser::attribute(product, u"article_class"_s, QString()));
    const RVCoverType cover(RVXMLParser::attribute(product, u"cover_type"_s, QString()));

    QCOMPARE(articleClass.toHumanReadable(), u"RAVO FOTOBUCH"_s);
    QCOMPARE(cover.value(), HARDCOVER);
    QVERIFY(cover.isFullCover());
    //! [attributes]
}

void tst_guide_reading::parts()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [parts]
    const auto pageCounts = RVPageCountOrganization::createFromProductsXML(product);
    const auto spine = RVSpineConfig::createFromProductsXML(product);
    const QDomElement barcodeElements = product.firstChildElement(u"barcodes"_s);
    const auto barcodes = RVBarcodeDefinitionList::createFromProductsXML(
            barcodeElements, RVDistanceUnit(barcodeElements.attribute(u"units"_s)));

    QCOMPARE(pageCounts.dump(), u"min: 26; max: 154; increment: 4"_s);
    QCOMPARE(spine.spineWidth(26).value(DISTANCE_UNIT_MILLIMETRE), 9.0);
    QCOMPARE(barcodes.size(), 1);
    QCOMPARE(barcodes.first().rect(), QRect(120, 2805, 380, 100));
    //! [parts]
}

void tst_guide_reading::missing()
{
    //! [missing]
    const QDomElement nothing;

    QVERIFY(!RVArticleId(nothing, u"article_id"_s).isValid());
    QVERIFY(!RVProductType(nothing.attribute(u"type"_s)).isValid());
    QVERIFY(!RVCoverType(nothing.attribute(u"cover_type"_s)).isValid());
    QCOMPARE(RVPageCountOrganization::createFromProductsXML(nothing).dump(), u"min: 1; max: 1; increment: 0"_s);
    //! [missing]
}

QTEST_MAIN(tst_guide_reading)
#include "tst_guide_reading.moc"
