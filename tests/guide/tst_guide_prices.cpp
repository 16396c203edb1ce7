#include "GuideProducts.h"

//! [includes]
#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVContentStatistic.h>
#include <RVProductBase/RVModelAddOnStatistic.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPriceClassSet.h>

#include <QMap>
#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_prices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codes();
    void groups();
    void bill();
    void content();
    void model();
};

void tst_guide_prices::codes()
{
    //! [codes]
    QVERIFY(RVPriceClass(u"KUR2"_s) != RVPriceClass(u"kur2"_s));
    QVERIFY(RVPriceClass(u"KUR10"_s) < RVPriceClass(u"KUR2"_s));
    QVERIFY(RVPriceClass(u"0"_s).isFree());
    QVERIFY(RVPriceClass().isFree());
    //! [codes]
}

void tst_guide_prices::groups()
{
    //! [groups]
    QVERIFY(RVPriceClassSet::bookGiftBoxes().contains(RVPriceClass(u"VEL4"_s)));
    QVERIFY(RVPriceClassSet::spotColorPriceClasses(RVSpotColor(u"gold"_s)).contains(RVPriceClass(u"KUR1"_s)));
    QVERIFY(RVPriceClassSet::spotColorPriceClasses(RVSpotColor(u"silver_ink"_s)).isEmpty());
    //! [groups]
}

void tst_guide_prices::bill()
{
    //! [product]
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [product]
    //! [bill]
    const auto pageCounts = RVPageCountOrganization::createFromProductsXML(product);
    const auto ordered = RVArticleVariants::createFromKTX(u"alcolor:red,coverphoto:yes"_s);
    const QDomElement forms = product.firstChildElement(u"forms"_s);

    QMap<RVPriceClass, int> bill;
    bill[product.attribute(u"price_class"_s)] = 1;
    bill[product.attribute(u"page_price_class"_s)] = pageCounts.countPackages(34);
    for (QDomElement form = forms.firstChildElement(u"form"_s); !form.isNull(); form = form.nextSiblingElement()) {
        const RVConfiguredArticleVariant option(form);
        const RVPriceClass priceClass(form.attribute(u"price_class"_s));
        if (ordered.contains(option.toArticleVariants()) && !priceClass.isFree())
            bill[priceClass] += 1;
    }

    QCOMPARE(bill.keys(), QList<RVPriceClass>({ u"LEZ2"_s, u"PXB9"_s, u"RODA6x9"_s }));
    QCOMPARE(bill.values(), QList<int>({ 1, 1, 2 }));
    //! [bill]
}

void tst_guide_prices::content()
{
    //! [content]
    RVContentStatistic content(1, 2, {});
    content.addAddOn(u"JOT1"_s, 1);
    content.addAddOn(u"MUL1"_s, 1);
    content.addAddOn(u"MUL1"_s, 2);

    QCOMPARE(content.count(u"MUL1"_s), 2);
    QVERIFY(content.isPriceClassAddOnApplied(RVPriceClassSet::maps()));
    QVERIFY(!content.isPriceClassAddOnApplied(RVPriceClassSet::envelops()));
    //! [content]
}

void tst_guide_prices::model()
{
    const RVContentStatistic content(1, 2, {});
    //! [model]
    RVModelAddOnStatistic offered(content);
    offered.setFlyLeafAddOn(u"SAV2"_s, RVArticleVariants(u"flyleafcolor"_s, u"grey"_s));

    QCOMPARE(offered.countVideoAreas(), 2);
    QCOMPARE(offered.videoAddOn().toString(), u"MUL1"_s);
    QVERIFY(offered.spotColorAddOn().isEmpty());
    QVERIFY(offered.flyLeafVariants().hasFlyLeafColor());
    //! [model]
}

QTEST_MAIN(tst_guide_prices)
#include "tst_guide_prices.moc"
