#include "GuideProducts.h"

#include <RVCore/RVDistanceUnit.h>
#include <RVProductBase/RVBarcodeDefinitionList.h>
#include <RVProductBase/RVBleedMargin.h>
#include <RVProductBase/RVMargins.h>
#include <RVProductBase/RVMarginsImpl.h>
#include <RVProductBase/RVPageContext.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>
#include <RVProductBase/RVPageCounts.h>
#include <RVProductBase/RVPageSizeKey.h>
#include <RVProductBase/RVPageSizeSpec.h>
#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVProductTypeList.h>
#include <RVProductBase/RVSpineConfig.h>
#include <RVProductBase/RVSpineConfigImpl.h>

#include <QTest>

using namespace Qt::StringLiterals;

/// The examples of the classes for product types, page counts, spines, barcodes and page sizes.
class tst_examples_geometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void barcodeDefinition();
    void barcodeDefinitionList();
    void bleedMargin();
    void margins();
    void marginsImpl();
    void pageContext();
    void pageCountOrganization();
    void pageCountOrganizationListModel();
    void pageCounts();
    void pageCountsIterator();
    void pageSizeKey();
    void pageSizeSpec();
    void productType();
    void productTypeList();
    void spineConfig();
    void spineConfigImpl();
};

void tst_examples_geometry::barcodeDefinition()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVBarcodeDefinition]
    const QDomElement element = product.firstChildElement(u"barcodes"_s).firstChildElement(u"barcode"_s);
    const auto barcode = RVBarcodeDefinition::createFromProductsXML(element, DISTANCE_UNIT_MILLIMETRE);

    QCOMPARE(barcode.pageNr(), 2);
    QCOMPARE(barcode.rect(), QRect(120, 2805, 380, 100)); // in tenths of a millimetre
    //! [RVBarcodeDefinition]
}

void tst_examples_geometry::barcodeDefinitionList()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVBarcodeDefinitionList]
    const QDomElement element = product.firstChildElement(u"barcodes"_s);
    const auto barcodes = RVBarcodeDefinitionList::createFromProductsXML(element,
                                                                         RVDistanceUnit(element.attribute(u"units"_s)));

    QCOMPARE(barcodes.size(), 1);
    QCOMPARE(barcodes.barcodesOnPage(2).size(), 1);
    QVERIFY(barcodes.occupiedRegion().contains(QPoint(120, 2805)));
    //! [RVBarcodeDefinitionList]
}

void tst_examples_geometry::bleedMargin()
{
    //! [RVBleedMargin]
    const RVBleedMargin bleed(30, 20); // 3 mm left and right, 2 mm at top and bottom

    QCOMPARE(bleed.horizontal(), 30);
    QCOMPARE(bleed.vertical(), 20);
    //! [RVBleedMargin]
}

void tst_examples_geometry::margins()
{
    //! [RVMargins]
    const RVMargins bleed(20, 30); // 2 mm at top and bottom, 3 mm left and right

    QCOMPARE(bleed.topLeft(), QPoint(30, 20));
    QCOMPARE(bleed.totalMarginWH(), QSize(60, 40));
    //! [RVMargins]
}

void tst_examples_geometry::marginsImpl()
{
    //! [RVMarginsImpl]
    const RVMarginsImpl bleed(20, 20, 30, 30); // top, bottom, left, right

    QCOMPARE(bleed.totalMarginWH(), QSize(60, 40));
    //! [RVMarginsImpl]
}

void tst_examples_geometry::pageContext()
{
    //! [RVPageContext]
    const RVPageContext context(PAGE_TYPE_NORMALPAGE, PAGE_ALIGNMENT_RIGHT);

    QVERIFY(context.isValid());
    QCOMPARE(context.pageType().encode(), u"normalpage"_s);
    QCOMPARE(context.alignment().encode(), u"right"_s);
    //! [RVPageContext]
}

void tst_examples_geometry::pageCountOrganization()
{
    //! [RVPageCountOrganization]
    const RVPageCountOrganization book(RVIntRange(26, 154), 4);

    QVERIFY(book.isValidPageCount(34));
    QCOMPARE(book.countPackages(34), 2);
    QCOMPARE(book.constrain(35), 38);
    //! [RVPageCountOrganization]
}

void tst_examples_geometry::pageCountOrganizationListModel()
{
    //! [RVPageCountOrganizationListModel]
    RVPageCountOrganizationListModel model(false); // of pages, not of photos
    model.setPageOrganization(RVPageCountOrganization(RVIntRange(26, 154), 4));

    QCOMPARE(model.rowCount(), 33);
    QCOMPARE(model.index(2).data().toString(), u"34 Seiten"_s);
    QCOMPARE(model.pagesAtIndex(2), 34);
    //! [RVPageCountOrganizationListModel]
}

void tst_examples_geometry::pageCounts()
{
    //! [RVPageCounts]
    const RVPageCounts counts = RVPageCountOrganization(RVIntRange(26, 38), 4).pageCounts();

    QCOMPARE(QList<int>(counts.begin(), counts.end()), QList<int>({ 26, 30, 34, 38 }));
    //! [RVPageCounts]
}

void tst_examples_geometry::pageCountsIterator()
{
    //! [RVPageCounts_const_iterator]
    const RVPageCounts counts = RVPageCountOrganization(RVIntRange(26, 38), 4).pageCounts();
    RVPageCounts::const_iterator count = counts.begin();
    ++count;

    QCOMPARE(*count, 30);
    //! [RVPageCounts_const_iterator]
}

void tst_examples_geometry::pageSizeKey()
{
    //! [RVPageSizeKey]
    const RVPageSizeKey key(PAGE_TYPE_FULLCOVER, 34);

    QVERIFY(key.isValid());
    QCOMPARE(key.pageCount(), 34);
    QVERIFY(key != RVPageSizeKey(PAGE_TYPE_FULLCOVER, 38)); // more pages, a wider spine
    //! [RVPageSizeKey]
}

void tst_examples_geometry::pageSizeSpec()
{
    //! [RVPageSizeSpec]
    const RVPageSizeSpec page(QSize(2100, 2970), RVMargins(20, 30)); // A4 in tenths of a millimetre

    QCOMPARE(page.totalSize(), QSize(2160, 3010));
    QCOMPARE(page.topLeftOffsetOfUsablePrintArea(), QPoint(30, 20));
    //! [RVPageSizeSpec]
}

void tst_examples_geometry::productType()
{
    //! [RVProductType]
    const RVProductType book(u"DUN9_30"_s);

    QCOMPARE(book.toString(), u"DUN9"_s); // the family
    QCOMPARE(book, RVProductType(u"DUN9_40"_s));
    QVERIFY(RVProductType(u"VIR29"_s).isAgenda());
    //! [RVProductType]
}

void tst_examples_geometry::productTypeList()
{
    //! [RVProductTypeList]
    RVProductTypeList types = RVProductTypeList::buildFromCSV(u"DUN9_30,VIR1"_s);
    types.addWithoutDoubles(RVProductType(u"DUN9_40"_s)); // the same family as DUN9_30

    QCOMPARE(types.toStringList(), QStringList({ u"DUN9"_s, u"VIR1"_s }));
    QVERIFY(types.containsCalendar());
    //! [RVProductTypeList]
}

void tst_examples_geometry::spineConfig()
{
    //! [RVSpineConfig]
    const RVPageCountOrganization pages(RVIntRange(26, 154), 4);
    const RVSpineConfig spine(pages, 2, RVDistance(8, DISTANCE_UNIT_MILLIMETRE),
                              RVDistance(1, DISTANCE_UNIT_MILLIMETRE), RVDistance(0.5, DISTANCE_UNIT_MILLIMETRE));

    QCOMPARE(spine.spineWidth(26).value(DISTANCE_UNIT_MILLIMETRE), 9.0);
    QCOMPARE(spine.spineWidth(34).value(DISTANCE_UNIT_MILLIMETRE), 10.0);
    //! [RVSpineConfig]
}

void tst_examples_geometry::spineConfigImpl()
{
    //! [RVSpineConfigImpl]
    const RVPageCountOrganization pages(RVIntRange(26, 154), 4);
    const RVSpineConfigImpl spine(pages, 2, RVDistance(80), RVDistance(10), RVDistance(5));

    QCOMPARE(spine.baseWidth.value(), 80.0);
    //! [RVSpineConfigImpl]
}

QTEST_MAIN(tst_examples_geometry)
#include "tst_examples_geometry.moc"
