#include "GuideProducts.h"

#include <RVProductBase/RVArticleClassList.h>
#include <RVProductBase/RVArticleId.h>
#include <RVProductBase/RVArticleIdSet.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVArticleVariantsList.h>
#include <RVProductBase/RVConfiguredArticleVariantList.h>
#include <RVProductBase/RVConfiguredArticleVariantImpl.h>
#include <RVProductBase/RVContentStatistic.h>
#include <RVProductBase/RVModelAddOnStatistic.h>
#include <RVProductBase/RVOrderId.h>
#include <RVProductBase/RVOrderIdList.h>
#include <RVProductBase/RVOrderProjectInfo.h>
#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVPriceClassSet.h>
#include <RVProductBase/RVShippingGroupId.h>
#include <RVProductBase/RVShippingGroupIdList.h>

#include <QTest>

using namespace Qt::StringLiterals;

/// The examples of the classes for articles, options, prices and orders.
class tst_examples_articles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void articleClassList();
    void articleId();
    void articleIdSet();
    void articleVariants();
    void articleVariantsList();
    void configuredArticleVariant();
    void configuredArticleVariantImpl();
    void configuredArticleVariantList();
    void contentStatistic();
    void modelAddOnStatistic();
    void orderId();
    void orderIdList();
    void orderProjectInfo();
    void priceClass();
    void priceClassSet();
    void shippingGroupId();
    void shippingGroupIdList();
};

void tst_examples_articles::articleClassList()
{
    //! [RVArticleClassList]
    const auto classes = RVArticleClassList::parseArticleClasses(u"book,card,book"_s);

    QCOMPARE(classes.size(), 3);
    QCOMPARE(classes.filter(ARTICLE_CLASS_BOOK).size(), 2);
    //! [RVArticleClassList]
}

void tst_examples_articles::articleId()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVArticleId]
    const RVArticleId article(product, u"article_id"_s);

    QCOMPARE(article.id(), 1001);
    QVERIFY(!RVArticleId(product, u"id"_s).isValid()); // no such attribute
    //! [RVArticleId]
}

void tst_examples_articles::articleIdSet()
{
    //! [RVArticleIdSet]
    const RVArticleIdSet offered({ 1001, 1002, 1032 });

    QVERIFY(offered.contains(1001));
    QVERIFY(offered.extends(RVArticleIdSet({ 1001, 1032 })));
    QVERIFY(!offered.extends(RVArticleIdSet({ 1001, 7000 })));
    //! [RVArticleIdSet]
}

void tst_examples_articles::articleVariants()
{
    //! [RVArticleVariants]
    const auto chosen = RVArticleVariants::createFromKTX(u"alcolor:red,boxstyle;giftboxcolor:wood;black"_s);

    QCOMPARE(chosen.value(u"alcolor"_s), u"red"_s);
    QCOMPARE(chosen.value(u"boxstyle;giftboxcolor"_s), u"wood;black"_s);
    QCOMPARE(chosen.toXTCI().value(u"boxstyle"_s), u"wood"_s);
    //! [RVArticleVariants]
}

void tst_examples_articles::articleVariantsList()
{
    //! [RVArticleVariantsList]
    const RVArticleVariantsList boxes { RVArticleVariants(u"boxstyle"_s, u"wood"_s),
                                        RVArticleVariants(u"boxstyle"_s, u"linen"_s) };

    QVERIFY(boxes.containsBoxStyle(RVArticleVariants(u"boxstyle:linen"_s)));
    QVERIFY(!boxes.containsBoxStyle(RVArticleVariants(u"boxstyle:tin"_s)));
    //! [RVArticleVariantsList]
}

void tst_examples_articles::configuredArticleVariant()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVConfiguredArticleVariant]
    const RVConfiguredArticleVariant option(product.firstChildElement(u"forms"_s).firstChildElement(u"form"_s));

    QCOMPARE(option.toString(), u"alcolor:black"_s);
    QCOMPARE(option.keyName() + u": "_s + option.visibleName(), u"Umschlagfarbe: Schwarz"_s);
    QVERIFY(option.isDefault());
    //! [RVConfiguredArticleVariant]
}

void tst_examples_articles::configuredArticleVariantImpl()
{
    //! [RVConfiguredArticleVariantImpl]
    RVConfiguredArticleVariantImpl fields;
    fields.key = u"alcolor"_s;
    fields.value = u"red"_s;
    const RVConfiguredArticleVariant option(fields);

    QCOMPARE(option.toString(), u"alcolor:red"_s);
    //! [RVConfiguredArticleVariantImpl]
}

void tst_examples_articles::configuredArticleVariantList()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVConfiguredArticleVariantList]
    const RVConfiguredArticleVariantList offered(product);

    QCOMPARE(offered.keys(), QStringList({ u"alcolor"_s, u"boxstyle;giftboxcolor"_s, u"coverphoto"_s }));
    QVERIFY(offered.contains(RVArticleVariants(u"alcolor:red"_s)));
    QCOMPARE(offered.defaultVariants().value(u"alcolor"_s), u"black"_s);
    //! [RVConfiguredArticleVariantList]
}

void tst_examples_articles::contentStatistic()
{
    //! [RVContentStatistic]
    RVContentStatistic content(1, 2, {}); // a map and two videos
    content.addAddOn(u"MUL1"_s, 2);

    QCOMPARE(content.count(u"MUL1"_s), 2);
    QVERIFY(content.isPriceClassAddOnApplied(RVPriceClassSet::videoNames()));
    //! [RVContentStatistic]
}

void tst_examples_articles::modelAddOnStatistic()
{
    //! [RVModelAddOnStatistic]
    RVModelAddOnStatistic offered(RVContentStatistic(1, 2, {}));
    offered.setSpotColorAddOn(u"KUR2"_s);

    QCOMPARE(offered.videoAddOn().toString(), u"MUL1"_s);
    QCOMPARE(offered.spotColorAddOn().toString(), u"KUR2"_s);
    QVERIFY(offered.panoPagesAddOn().isEmpty()); // not offered
    //! [RVModelAddOnStatistic]
}

void tst_examples_articles::orderId()
{
    //! [RVOrderId]
    const RVOrderId order(u"2024-0815"_s);

    QCOMPARE(order.toString(), u"2024-0815"_s);
    QCOMPARE(order.toString(true), u"2024_0815"_s); // for the name of a file
    QVERIFY(!RVOrderId().isValid());
    //! [RVOrderId]
}

void tst_examples_articles::orderIdList()
{
    //! [RVOrderIdList]
    RVOrderIdList orders;
    orders << RVOrderId(u"A-1"_s) << RVOrderId() << RVOrderId(u"A-2"_s);

    QCOMPARE(orders.toString(), u"A-1,A-2"_s);
    //! [RVOrderIdList]
}

void tst_examples_articles::orderProjectInfo()
{
    //! [RVOrderProjectInfo]
    RVOrderProjectInfo info(u"session-7"_s, RVOrderId(), 0);

    QVERIFY(!info.isValid());

    info.setOrderId(RVOrderId(u"2024-0815"_s));

    QVERIFY(info.isValid());
    //! [RVOrderProjectInfo]
}

void tst_examples_articles::priceClass()
{
    //! [RVPriceClass]
    const RVPriceClass price(u"KUR2"_s);

    QVERIFY(!price.isFree());
    QVERIFY(RVPriceClass(u"0"_s).isFree());
    QVERIFY(price != RVPriceClass(u"kur2"_s));
    //! [RVPriceClass]
}

void tst_examples_articles::priceClassSet()
{
    //! [RVPriceClassSet]
    const RVPriceClassSet bought { u"VEL4"_s, u"JOT1"_s };

    QVERIFY(RVPriceClassSet::bookGiftBoxes().containsOneOf(bought));
    QVERIFY(!RVPriceClassSet::envelops().containsOneOf(bought));
    //! [RVPriceClassSet]
}

void tst_examples_articles::shippingGroupId()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVShippingGroupId]
    const RVShippingGroupId group(product, u"shipping_group"_s);

    QCOMPARE(group.id(), 2);
    QVERIFY(!group.isCombinedTransfer());
    QVERIFY(!RVShippingGroupId().isValid());
    //! [RVShippingGroupId]
}

void tst_examples_articles::shippingGroupIdList()
{
    //! [RVShippingGroupIdList]
    const RVShippingGroupIdList groups(QList<int> { 1, 2, 1 });

    QCOMPARE(groups.filter(1, true).size(), 2);
    QCOMPARE(groups.filter(1, false).size(), 1);
    //! [RVShippingGroupIdList]
}

QTEST_MAIN(tst_examples_articles)
#include "tst_examples_articles.moc"
