#include <RVProductBase/RVModelAddOnStatistic.h>

#include <QTest>

#include <functional>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using Bought = QMap<RVPriceClass, int>;

const RVContentStatistic &content()
{
    static const RVContentStatistic theContent(2, 3, { { u"KUR2"_s, 4 } });
    return theContent;
}

}

class tst_RVModelAddOnStatistic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void defaultVideoAddOn();
    void forwards();
    void setsAddOns();
    void compares();
};

void tst_RVModelAddOnStatistic::construction()
{
    const RVModelAddOnStatistic tested(content(), u"MUL7"_s, u"KUR1"_s);
    QCOMPARE(tested.videoAddOn(), RVPriceClass(u"MUL7"_s));
    QCOMPARE(tested.spotColorAddOn(), RVPriceClass(u"KUR1"_s));
    QVERIFY(tested.flyLeafAddOn().isEmpty());
    QVERIFY(!tested.flyLeafVariants().isValid());
    QVERIFY(tested.designStyleAddOns().isEmpty());
    QVERIFY(tested.panoPagesAddOn().isEmpty());
    QVERIFY(std::has_virtual_destructor_v<RVModelAddOnStatistic>);
}

void tst_RVModelAddOnStatistic::defaultVideoAddOn()
{
    const RVModelAddOnStatistic tested(content());
    QCOMPARE(tested.videoAddOn(), RVPriceClass(u"MUL1"_s));
    QVERIFY(tested.spotColorAddOn().isEmpty());
    QCOMPARE(tested.countVideoAreas(), 3);
}

void tst_RVModelAddOnStatistic::forwards()
{
    RVModelAddOnStatistic tested(content());
    QCOMPARE(tested.countGeoMapAreas(), 2);
    QCOMPARE(tested.countVideoAreas(), 3);
    QCOMPARE(tested.additionalContent(), (Bought { { u"KUR2"_s, 4 } }));
    tested.addAddOn(u"VEL4"_s, 5);
    QCOMPARE(tested.count(u"VEL4"_s), 5);
    tested.removeAddOn(u"KUR2"_s);
    QCOMPARE(tested.contentStatistic().boughtAdditionalContent(), (Bought { { u"VEL4"_s, 5 } }));
    QCOMPARE(content().boughtAdditionalContent(), (Bought { { u"KUR2"_s, 4 } }));
}

void tst_RVModelAddOnStatistic::setsAddOns()
{
    RVModelAddOnStatistic tested(content());
    tested.setVideoAddOn(u"MUL2"_s);
    tested.setSpotColorAddOn(u"KUR3"_s);
    tested.setFlyLeafAddOn(u"SAV1"_s, RVArticleVariants(u"flyleafcolor"_s, u"grey"_s));
    tested.setDesignStyleAddOns({ u"61"_s, u"62"_s });
    tested.setPanoPagesAddOn(u"WAF3"_s);
    QCOMPARE(tested.videoAddOn(), RVPriceClass(u"MUL2"_s));
    QCOMPARE(tested.spotColorAddOn(), RVPriceClass(u"KUR3"_s));
    QCOMPARE(tested.flyLeafAddOn(), RVPriceClass(u"SAV1"_s));
    QCOMPARE(tested.flyLeafVariants().value(u"flyleafcolor"_s), u"grey"_s);
    tested.setFlyLeafAddOn(u"SAV1"_s, RVArticleVariants(u"alcolor"_s, u"red"_s));
    QCOMPARE(tested.flyLeafVariants(), RVArticleVariants(u"alcolor"_s, u"red"_s));
    QVERIFY(tested.designStyleAddOns() == RVPriceClassSet({ u"62"_s, u"61"_s }));
    QCOMPARE(tested.panoPagesAddOn(), RVPriceClass(u"WAF3"_s));
}

void tst_RVModelAddOnStatistic::compares()
{
    const RVModelAddOnStatistic tested(content());
    QVERIFY(tested == RVModelAddOnStatistic(content()));
    QVERIFY(!(tested != RVModelAddOnStatistic(content())));
    const std::function<void(RVModelAddOnStatistic *)> changes[] = {
        [](auto *other) { other->addAddOn(u"VEL4"_s, 1); },
        [](auto *other) { other->setVideoAddOn(u"MUL2"_s); },
        [](auto *other) { other->setSpotColorAddOn(u"KUR1"_s); },
        [](auto *other) { other->setFlyLeafAddOn(u"SAV1"_s, RVArticleVariants()); },
        [](auto *other) { other->setFlyLeafAddOn(RVPriceClass(), RVArticleVariants(u"k"_s, u"v"_s)); },
        [](auto *other) { other->setDesignStyleAddOns({ u"61"_s }); },
        [](auto *other) { other->setPanoPagesAddOn(u"WAF3"_s); },
    };
    for (const auto &change : changes) {
        RVModelAddOnStatistic other = tested;
        change(&other);
        QVERIFY(tested != other);
    }
}

QTEST_GUILESS_MAIN(tst_RVModelAddOnStatistic)
#include "tst_RVModelAddOnStatistic.moc"
