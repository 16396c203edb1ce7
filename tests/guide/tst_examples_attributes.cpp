#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVArticleClass.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVDisplayNames.h>
#include <RVProductBase/RVDlpType.h>
#include <RVProductBase/RVFotoPaperType.h>
#include <RVProductBase/RVMaterialType.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageAlignment.h>
#include <RVProductBase/RVPageBinding.h>
#include <RVProductBase/RVPageType.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVProductArrangement.h>
#include <RVProductBase/RVSpaceMagnitude.h>

#include <QTest>

using namespace Qt::StringLiterals;

/// The examples of the classes that stand for attributes.
class tst_examples_attributes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void articleClass();
    void coverType();
    void displayNames();
    void dlpType();
    void fotoPaperType();
    void materialType();
    void orientation();
    void pageAlignment();
    void pageBinding();
    void pageType();
    void paperType();
    void productArrangement();
    void spaceMagnitude();
    void spotColor();
};

void tst_examples_attributes::articleClass()
{
    //! [RVArticleClass]
    const RVArticleClass article(u"book, card"_s);

    QVERIFY(article.matches(ARTICLE_CLASS_BOOK));
    QCOMPARE(article.toPHProjectCategory(), u"book"_s);
    QCOMPARE(RVArticleClass(u"book"_s).toHumanReadable(), u"RAVO FOTOBUCH"_s);
    //! [RVArticleClass]
}

void tst_examples_attributes::coverType()
{
    //! [RVCoverType]
    const RVCoverType cover(u"hardcover"_s);

    QCOMPARE(cover.value(), HARDCOVER);
    QCOMPARE(cover.encodeCSV(), u"HARDCOVER"_s);
    QCOMPARE(cover.humanReadableName(), u"Hardcover"_s);
    QVERIFY(cover.isFullCover());
    //! [RVCoverType]
}

void tst_examples_attributes::displayNames()
{
    //! [RVDisplayNames]
    const RVDisplayNames<RVCoverType> finishes("Finish", { { HARDCOVER, u"Fest"_s }, { SOFTCOVER, u"Weich"_s } },
                                               RVCoverType(), u"Unbekannt"_s);

    QCOMPARE(finishes.name(SOFTCOVER), u"Weich"_s);
    QCOMPARE(finishes.name(LEATHER), u"Unbekannt"_s);
    QCOMPARE(finishes.value(u"Fest"_s).value(), HARDCOVER);
    //! [RVDisplayNames]
}

void tst_examples_attributes::dlpType()
{
    //! [RVDlpType]
    const RVDlpType content(u"clipart, mask"_s);

    QVERIFY(content.containsAll(DLP_TYPE_CLIPART | DLP_TYPE_MASK));
    QCOMPARE(RVDlpType(DLP_TYPE_CLIPART).queryValue(), u"clipart"_s);
    QCOMPARE(RVDlpType(DLP_TYPE_CLIPART).dlpPath(false), u"cliparts"_s);
    //! [RVDlpType]
}

void tst_examples_attributes::fotoPaperType()
{
    //! [RVFotoPaperType]
    const RVFotoPaperType surface(u"glossy"_s);

    QCOMPARE(surface.value(), GLOSSY);
    QCOMPARE(surface.encodeForProduction(), u"1"_s);
    QCOMPARE(RVFotoPaperType::createFromXTCI(u"0"_s).size(), 2); // glossy and matt
    //! [RVFotoPaperType]
}

void tst_examples_attributes::materialType()
{
    //! [RVMaterialType]
    RVMaterialType material(u"deco_print"_s);
    material.expandTo(MATERIAL_TYPE_RETRO_PRINT);

    QCOMPARE(material.encodeCSV(), u"deco_print, retro_print"_s);
    //! [RVMaterialType]
}

void tst_examples_attributes::orientation()
{
    //! [RVOrientation]
    const RVOrientation page(QSizeF(297, 210));

    QVERIFY(page.isLandscape());
    QCOMPARE(page.encode(), u"landscape"_s);
    QCOMPARE(page.humanReadable() + u"Fotobuch"_s, u"Panorama-Fotobuch"_s);
    //! [RVOrientation]
}

void tst_examples_attributes::pageAlignment()
{
    //! [RVPageAlignment]
    const RVPageAlignment page(u"right"_s);

    QCOMPARE(page.value(), PAGE_ALIGNMENT_RIGHT);
    QCOMPARE(RVPageAlignment(u"upstairs"_s).value(), PAGE_ALIGNMENT_LEFT); // no keyword
    //! [RVPageAlignment]
}

void tst_examples_attributes::pageBinding()
{
    //! [RVPageBinding]
    const RVPageBinding binding(u"layflat"_s);

    QCOMPARE(binding.value(), LAYFLAT);
    QVERIFY(RVPageBinding(u"sewn"_s).isNull()); // no keyword
    //! [RVPageBinding]
}

void tst_examples_attributes::pageType()
{
    //! [RVPageType]
    const RVPageType page(u"fullcover"_s);

    QVERIFY(page.matches(PAGE_TYPE_COVER));
    QVERIFY(!RVPageType(PAGE_TYPE_NORMALPAGE).matches(PAGE_TYPE_COVER));
    QVERIFY(page.isSpotColorAllowed({ SPOT_COLOR_SILVER_INK }));
    //! [RVPageType]
}

void tst_examples_attributes::paperType()
{
    //! [RVPaperType]
    const RVPaperType paper(u"fotopaper"_s);

    QCOMPARE(paper.humanReadableName(), u"Fotopapier Matt"_s);
    QCOMPARE(RVPaperType(u"parchment"_s).value(), INDIGO); // no keyword
    //! [RVPaperType]
}

void tst_examples_attributes::productArrangement()
{
    //! [RVProductArrangement]
    const RVProductArrangement group(u"gift, card"_s);

    QCOMPARE(group.countBits(), 2);
    QVERIFY(group.matches(PRODUCT_ARRANGEMENT_GIFT));
    //! [RVProductArrangement]
}

void tst_examples_attributes::spaceMagnitude()
{
    //! [RVSpaceMagnitude]
    const RVSpaceMagnitude size(u"A4"_s);

    QCOMPARE(size.value(), SPACE_MAGNITUDE_600CM2);
    QCOMPARE(size.encode(), u"600cm2"_s);
    QCOMPARE(RVSpaceMagnitude::fromSquareCentimeters(600).value(), SPACE_MAGNITUDE_600CM2);
    //! [RVSpaceMagnitude]
}

void tst_examples_attributes::spotColor()
{
    //! [RVSpotColor]
    const RVSpotColor finish(u"gold, gloss"_s);

    QCOMPARE(finish.value(), SPOT_COLOR_GOLD | SPOT_COLOR_GLOSS);
    QCOMPARE(finish.encodeCSV(), u"gloss, gold"_s);
    //! [RVSpotColor]
}

QTEST_MAIN(tst_examples_attributes)
#include "tst_examples_attributes.moc"
