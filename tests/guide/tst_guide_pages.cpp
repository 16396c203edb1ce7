#include "GuideProducts.h"

//! [includes]
#include <RVCore/RVFontSizeManager.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>
#include <RVProductBase/RVPageSizeSpec.h>
#include <RVProductBase/RVSpineConfig.h>

#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_pages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void counts();
    void constrained();
    void adapted();
    void model();
    void box();
    void spine();
    void font();
};

void tst_guide_pages::counts()
{
    //! [counts]
    const RVPageCountOrganization book(RVIntRange(26, 154), 4);

    QVERIFY(book.isValid());
    QVERIFY(book.isValidPageCount(34));
    QVERIFY(!book.isValidPageCount(35));
    QCOMPARE(book.countPackages(34), 2);
    QCOMPARE(book.numberOfPackages(), 33);
    //! [counts]
    //! [all]
    QStringList offered;
    for (const int pages : book.pageCounts())
        offered += QString::number(pages);

    QCOMPARE(offered.size(), 33);
    QCOMPARE(offered.last(), u"154"_s);

    const RVPageCountOrganization card(RVIntRange(3, 3), 0);

    QCOMPARE(card.pageCounts().size(), 1);
    QCOMPARE(card.pageCounts().first(), 3);
    //! [all]
}

void tst_guide_pages::constrained()
{
    const RVPageCountOrganization book(RVIntRange(26, 154), 4);
    //! [constrain]
    QCOMPARE(book.constrain(35), 38);
    QCOMPARE(book.constrain(3), 26);
    QCOMPARE(book.constrain(200), 154);
    //! [constrain]
    //! [inconsistent]
    const RVPageCountOrganization odd(RVIntRange(26, 29), 4);

    QVERIFY(!odd.isConsistent());
    QCOMPARE(odd.constrain(28), 30);
    QCOMPARE(odd.constrain(200), 29);
    QVERIFY(!odd.isValidPageCount(29));

    const RVPageCountOrganization withoutStep(RVIntRange(10, 20), 0);

    QVERIFY(!withoutStep.isConsistent());
    QCOMPARE(withoutStep.constrain(15), 10);
    //! [inconsistent]
}

void tst_guide_pages::adapted()
{
    const RVPageCountOrganization book(RVIntRange(26, 154), 4);
    //! [adapted]
    QCOMPARE(book.adaptedTo(35).minPages(), 38);
    QCOMPARE(book.minPages(), 26);
    //! [adapted]
}

void tst_guide_pages::model()
{
    const RVPageCountOrganization book(RVIntRange(26, 154), 4);
    //! [model]
    RVPageCountOrganizationListModel model(false);
    model.setPageOrganization(book);

    QCOMPARE(model.rowCount(), 33);
    QCOMPARE(model.index(2).data().toString(), u"34 Seiten"_s);
    QCOMPARE(model.pagesAtIndex(2), 34);
    //! [model]
}

void tst_guide_pages::box()
{
    //! [box]
    const QDomElement product = guideProduct(u"TOS3"_s);
    const auto box = RVPageCountOrganization::createFromProductsXMLForPictureBox(product);

    QCOMPARE(box.minPages(), 10);
    QCOMPARE(box.maxPages(), 39);
    QCOMPARE(box.pageIncrement(), 1);

    RVPageCountOrganizationListModel photos(true);
    photos.setPageOrganization(box);

    QCOMPARE(photos.index(1).data().toString(), u"11 Fotos"_s);
    //! [box]
}

void tst_guide_pages::spine()
{
    //! [product]
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [product]
    //! [spine]
    const auto spine = RVSpineConfig::createFromProductsXML(product);

    QCOMPARE(spine.spineWidth(26).value(DISTANCE_UNIT_MILLIMETRE), 9.0);
    QCOMPARE(spine.spineWidth(30).value(DISTANCE_UNIT_MILLIMETRE), 9.0);
    QCOMPARE(spine.spineWidth(34).value(DISTANCE_UNIT_MILLIMETRE), 10.0);
    QCOMPARE(spine.spineWidth(34).value(), 100.0);
    //! [spine]
}

void tst_guide_pages::font()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [font]
    RVFontSizeManager::instance()->setDefaultFontSizes({ 8, 24, 400 });
    const auto spine = RVSpineConfig::createFromProductsXML(product);

    QCOMPARE(spine.spineMaxFontHeigth(154, QString()), 24);
    //! [font]
}

QTEST_MAIN(tst_guide_pages)
#include "tst_guide_pages.moc"
