#include "GuideProducts.h"

//! [includes]
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariantList.h>

#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_options : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offered();
    void chosen();
    void defaults();
    void shown();
    void written();
};

void tst_guide_options::offered()
{
    //! [product]
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [product]
    //! [offered]
    const RVConfiguredArticleVariantList offered(product);

    QCOMPARE(offered.size(), 6);
    QCOMPARE(offered.keys(), QStringList({ u"alcolor"_s, u"boxstyle;giftboxcolor"_s, u"coverphoto"_s }));
    QCOMPARE(offered.filter(u"alcolor"_s).size(), 2);
    //! [offered]
}

void tst_guide_options::chosen()
{
    const RVConfiguredArticleVariantList offered(guideProduct(u"DUN9_30"_s));
    //! [chosen]
    const auto chosen = RVArticleVariants::createFromKTX(u"alcolor:red,boxstyle;giftboxcolor:wood;black"_s);

    QVERIFY(offered.contains(chosen));
    QCOMPARE(chosen.value(RVArticleVariants::coverColorKeyName()), u"red"_s);

    const auto impossible = RVArticleVariants::createFromKTX(u"alcolor:pink"_s);

    QVERIFY(!offered.contains(impossible));
    //! [chosen]
    //! [empty]
    RVArticleVariants withoutCutOut = chosen;
    withoutCutOut.insert(u"cutout"_s, QString());

    QVERIFY(chosen.contains(withoutCutOut));
    QVERIFY(!offered.contains(withoutCutOut));
    //! [empty]
}

void tst_guide_options::defaults()
{
    const RVConfiguredArticleVariantList offered(guideProduct(u"DUN9_30"_s));
    const auto chosen = RVArticleVariants::createFromKTX(u"alcolor:red,boxstyle;giftboxcolor:wood;black"_s);
    //! [defaults]
    RVArticleVariants ordered = offered.defaultVariants();
    ordered.insert(chosen);

    QCOMPARE(ordered.value(u"alcolor"_s), u"red"_s);
    QCOMPARE(ordered.value(u"coverphoto"_s), u"yes"_s);
    //! [defaults]
}

void tst_guide_options::shown()
{
    const RVConfiguredArticleVariantList offered(guideProduct(u"DUN9_30"_s));
    RVArticleVariants ordered = offered.defaultVariants();
    ordered.insert(RVArticleVariants(u"alcolor"_s, u"red"_s));
    //! [shown]
    QCOMPARE(offered.visibleNames(ordered),
             QStringList({ u"Umschlagfarbe: Weinrot"_s, u"Titelfoto: Mit Titelfoto"_s, u"Geschenkbox: Ohne Box"_s }));

    const RVConfiguredArticleVariant red = offered.variantByValue(u"red"_s);

    QCOMPARE(red.color(), QColor(0x8c, 0x1c, 0x2b));
    QVERIFY(!red.isDefault());
    //! [shown]
}

void tst_guide_options::written()
{
    //! [written]
    const RVArticleVariants ordered(u"boxstyle;giftboxcolor"_s, u"wood;black"_s);

    QCOMPARE(ordered.toKTX(), u"boxstyle;giftboxcolor:wood;black"_s);
    QCOMPARE(ordered.toOrderTxt(), u"boxstyle:wood;giftboxcolor:black"_s);
    QCOMPARE(ordered.toXTCI().value(u"boxstyle"_s), u"wood"_s);
    QCOMPARE(ordered.toXTCI().value(u"giftboxcolor"_s), u"black"_s);
    //! [written]
    //! [lost]
    const RVArticleVariants unpaired(u"boxstyle;giftboxcolor"_s, u"wood"_s);

    QVERIFY(!unpaired.toXTCI().isValid());
    QCOMPARE(unpaired.toOrderTxt(), QString());

    const RVArticleVariants written(u"alcolor"_s, u"red,beige"_s);
    const auto readBack = RVArticleVariants::createFromKTX(written.toKTX());

    QCOMPARE(written.toKTX(), u"alcolor:red,beige"_s);
    QCOMPARE(readBack.value(u"alcolor"_s), u"red"_s);
    //! [lost]
    //! [order]
    const RVConfiguredArticleVariant color(u"alcolor"_s, u"red"_s);
    const RVConfiguredArticleVariant photo(u"coverphoto"_s, u"yes"_s);

    QVERIFY(!(color < photo));
    QVERIFY(!(photo < color));
    QVERIFY(color != photo);
    //! [order]
}

QTEST_MAIN(tst_guide_options)
#include "tst_guide_options.moc"
