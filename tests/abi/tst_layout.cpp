// Applications and plug-ins were compiled against these sizes and these places of virtual operations.
#include "VirtualSlot.h"

#include <RVCatalogue/RVCatalogueAttribute.h>
#include <RVCatalogue/RVCatalogueAttributes.h>
#include <RVCatalogue/RVCatalogueComparison.h>
#include <RVCatalogue/RVCatalogueCheck.h>
#include <RVCatalogue/RVCatalogueElement.h>
#include <RVCatalogue/RVCatalogueFileSet.h>
#include <RVCatalogue/RVCatalogueFinding.h>
#include <RVCatalogue/RVCatalogueProduct.h>
#include <RVCatalogue/RVCatalogueProject.h>
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVCatalogue/RVCatalogueRule.h>
#include <RVCatalogue/RVCheckConfiguration.h>
#include <RVCatalogue/RVFileEdit.h>
#include <RVCatalogue/RVFileEditor.h>
#include <RVCatalogue/RVFilePosition.h>
#include <RVCatalogue/RVFileRange.h>
#include <RVCatalogue/RVNearestText.h>
#include <RVCatalogue/RVProductChange.h>
#include <RVCatalogue/RVProductComparison.h>
#include <RVCore/RVAngle.h>
#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVDirectoryName.h>
#include <RVCore/RVDistance.h>
#include <RVCore/RVDistanceUnit.h>
#include <RVCore/RVFontCreator.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVCore/RVIntRange.h>
#include <RVCore/RVNamedColor.h>
#include <RVCore/RVRegularExpression.h>
#include <RVProductBase/RVArticleClassList.h>
#include <RVProductBase/RVArticleId.h>
#include <RVProductBase/RVArticleIdSet.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVArticleVariantsList.h>
#include <RVProductBase/RVBarcodeDefinition.h>
#include <RVProductBase/RVBarcodeDefinitionList.h>
#include <RVProductBase/RVBleedMargin.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVConfiguredArticleVariantImpl.h>
#include <RVProductBase/RVConfiguredArticleVariantList.h>
#include <RVProductBase/RVContentStatistic.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVDisplayNames.h>
#include <RVProductBase/RVMargins.h>
#include <RVProductBase/RVMarginsImpl.h>
#include <RVProductBase/RVModelAddOnStatistic.h>
#include <RVProductBase/RVOrderId.h>
#include <RVProductBase/RVOrderIdList.h>
#include <RVProductBase/RVOrderProjectInfo.h>
#include <RVProductBase/RVPageContext.h>
#include <RVProductBase/RVPageCountOrganization.h>
#include <RVProductBase/RVPageCountOrganizationListModel.h>
#include <RVProductBase/RVPageOrganizationCalculator.h>
#include <RVProductBase/RVPageOrganizationManager.h>
#include <RVProductBase/RVPageSizeKey.h>
#include <RVProductBase/RVPageSizeSpec.h>
#include <RVProductBase/RVPriceClass.h>
#include <RVProductBase/RVPriceClassSet.h>
#include <RVProductBase/RVProductChecker.h>
#include <RVProductBase/RVProductCheckerRegistry.h>
#include <RVProductBase/RVProductType.h>
#include <RVProductBase/RVProductTypeList.h>
#include <RVProductBase/RVShippingGroupId.h>
#include <RVProductBase/RVShippingGroupIdList.h>
#include <RVProductBase/RVSpineConfig.h>
#include <RVProductBase/RVSpineConfigImpl.h>
#include <RVTemplateClasses/RVEnumToStringTable.h>
#include <RVTemplateClasses/RVEnumWrapper.h>
#include <RVTemplateClasses/RVKeywordIndex.h>
#include <RVTemplateClasses/RVRange.h>
#include <RVTemplateClasses/RVSingleton.h>
#include <RVXML/RVXMLBuilder.h>
#include <RVXML/RVXMLParser.h>

#include <QTest>

#include <tuple>
#include <type_traits>

class tst_layout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizes_data();
    void sizes();
    void members();
    void rangeSlots();
    void checkerSlots();
    void calculatorSlots();
    void clearCacheIsTheOnlyMetaMethod();
};

namespace {

template<typename T>
void row(const char *name, int size, int alignment)
{
    QTest::newRow(name) << int(sizeof(T)) << size << int(alignof(T)) << alignment;
}

/// The distance of a public member from the beginning of its object.
template<typename T, typename Member>
int offset(Member T::*member)
{
    const T object {};
    return int(reinterpret_cast<const char *>(&(object.*member)) - reinterpret_cast<const char *>(&object));
}

}

void tst_layout::sizes_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("expectedSize");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("expectedAlignment");
    row<RVKeywordIndex>("RVKeywordIndex", 24, 8);
    row<RVRange<int>>("RVRange", 16, 8);
    row<RVAngle>("RVAngle", 8, 8);
    row<RVDirectoryConfig>("RVDirectoryConfig", 32, 8);
    row<RVDirectoryName>("RVDirectoryName", 4, 4);
    row<RVDistance>("RVDistance", 8, 8);
    row<RVDistanceUnit>("RVDistanceUnit", 4, 4);
    row<RVFontCreator>("RVFontCreator", 1, 1);
    row<RVFontSizeManager>("RVFontSizeManager", 32, 8);
    row<RVIntRange>("RVIntRange", 16, 8);
    row<RVNamedColor>("RVNamedColor", 1, 1);
    row<RVRegularExpression>("RVRegularExpression", 8, 8);
    row<RVArticleClassList>("RVArticleClassList", 24, 8);
    row<RVArticleId>("RVArticleId", 4, 4);
    row<RVArticleIdSet>("RVArticleIdSet", 16, 8);
    row<RVArticleVariants>("RVArticleVariants", 16, 8);
    row<RVArticleVariantsList>("RVArticleVariantsList", 32, 8);
    row<RVBarcodeDefinition>("RVBarcodeDefinition", 80, 8);
    row<RVBarcodeDefinitionList>("RVBarcodeDefinitionList", 24, 8);
    row<RVBleedMargin>("RVBleedMargin", 16, 8);
    row<RVConfiguredArticleVariant>("RVConfiguredArticleVariant", 8, 8);
    row<RVConfiguredArticleVariantImpl>("RVConfiguredArticleVariantImpl", 200, 8);
    row<RVConfiguredArticleVariantList>("RVConfiguredArticleVariantList", 24, 8);
    row<RVContentStatistic>("RVContentStatistic", 24, 8);
    row<RVMargins>("RVMargins", 8, 8);
    row<RVMarginsImpl>("RVMarginsImpl", 20, 4);
    row<RVModelAddOnStatistic>("RVModelAddOnStatistic", 160, 8);
    row<RVOrderId>("RVOrderId", 32, 8);
    row<RVOrderIdList>("RVOrderIdList", 24, 8);
    row<RVOrderProjectInfo>("RVOrderProjectInfo", 72, 8);
    row<RVPageContext>("RVPageContext", 40, 8);
    row<RVPageCountOrganization>("RVPageCountOrganization", 32, 8);
    row<RVPageCountOrganizationListModel>("RVPageCountOrganizationListModel", 56, 8);
    row<RVPageCounts>("RVPageCounts", 16, 8);
    row<RVPageOrganizationCalculator>("RVPageOrganizationCalculator", 8, 8);
    row<RVPageOrganizationManager>("RVPageOrganizationManager", 56, 8);
    row<RVPageSizeKey>("RVPageSizeKey", 56, 8);
    row<RVPageSizeSpec>("RVPageSizeSpec", 24, 8);
    row<RVPriceClass>("RVPriceClass", 24, 8);
    row<RVPriceClassSet>("RVPriceClassSet", 16, 8);
    row<RVProductChecker>("RVProductChecker", 8, 8);
    row<RVProductCheckerRegistry>("RVProductCheckerRegistry", 64, 8);
    row<RVProductType>("RVProductType", 32, 8);
    row<RVProductTypeList>("RVProductTypeList", 24, 8);
    row<RVShippingGroupId>("RVShippingGroupId", 4, 4);
    row<RVShippingGroupIdList>("RVShippingGroupIdList", 32, 8);
    row<RVSpineConfig>("RVSpineConfig", 8, 8);
    row<RVSpineConfigImpl>("RVSpineConfigImpl", 80, 8);
    row<RVCatalogueAttribute>("RVCatalogueAttribute", 8, 8);
    row<RVCatalogueAttributeDecoding>("RVCatalogueAttributeDecoding", 128, 8);
    row<RVCatalogueAttributeValue>("RVCatalogueAttributeValue", 80, 8);
    row<RVCatalogueCheck>("RVCatalogueCheck", 8, 8);
    row<RVCatalogueComparison>("RVCatalogueComparison", 8, 8);
    row<RVCatalogueElement>("RVCatalogueElement", 16, 8);
    row<RVCatalogueFileSet>("RVCatalogueFileSet", 8, 8);
    row<RVCatalogueFinding>("RVCatalogueFinding", 8, 8);
    row<RVCatalogueProduct>("RVCatalogueProduct", 8, 8);
    row<RVComparedValue>("RVComparedValue", 48, 8);
    row<RVComparisonCounts>("RVComparisonCounts", 40, 8);
    row<RVProductChange>("RVProductChange", 8, 8);
    row<RVProductComparison>("RVProductComparison", 72, 8);
    row<RVCatalogueProject>("RVCatalogueProject", 48, 8);
    row<RVCatalogueReader>("RVCatalogueReader", 8, 8);
    row<RVCatalogueReader::Iterator>("RVCatalogueReader::Iterator", 16, 8);
    row<RVCatalogueRule>("RVCatalogueRule", 8, 8);
    row<RVCheckConfiguration>("RVCheckConfiguration", 8, 8);
    row<RVFileEdit>("RVFileEdit", 56, 8);
    row<RVFileEditor>("RVFileEditor", 8, 8);
    row<RVFilePosition>("RVFilePosition", 16, 8);
    row<RVFileRange>("RVFileRange", 32, 8);
    row<RVNearestText>("RVNearestText", 56, 8);
    row<RVXMLBuilder>("RVXMLBuilder", 1, 1);
    row<RVXMLParser>("RVXMLParser", 1, 1);
    // An attribute is its table of virtual functions and a number in every class.
    std::apply(
            [](const auto &...rows) {
                (row<typename std::decay_t<decltype(rows)>::Class>(rows.name.data(), 16, 8), ...);
            },
            RV_CATALOGUE_ATTRIBUTES);
}

void tst_layout::sizes()
{
    QFETCH(int, size);
    QTEST(size, "expectedSize");
    QFETCH(int, alignment);
    QTEST(alignment, "expectedAlignment");
}

void tst_layout::members()
{
    QCOMPARE(offset(&RVRange<int>::min), 8);
    QCOMPARE(offset(&RVRange<int>::max), 12);
    using Table = RVEnumToStringTable<RVCoverTypeEnum>;
    QCOMPARE(offset(&Table::defaultKeyword), 16);
    QCOMPARE(offset(&Table::defaultValue), 40);
    QCOMPARE(offset(&RVFilePosition::line), 0);
    QCOMPARE(offset(&RVFilePosition::column), 8);
    QCOMPARE(offset(&RVFileRange::begin), 0);
    QCOMPARE(offset(&RVFileRange::end), 16);
}

void tst_layout::rangeSlots()
{
    using R = RVRange<int>;
    QCOMPARE(virtualSlot(&R::operator==), 2); // behind the two destructors
    QCOMPARE(virtualSlot(&R::operator!=), 3);
    QCOMPARE(virtualSlot(&R::operator<), 4);
    QCOMPARE(virtualSlot(&R::expandTo), 5);
    QCOMPARE(virtualSlot(&R::center), 6);
    QCOMPARE(virtualSlot(&R::isValid), 7);
    QCOMPARE(virtualSlot(static_cast<bool (R::*)(const int &) const>(&R::contains)), 8);
    QCOMPARE(virtualSlot(static_cast<bool (R::*)(const R &) const>(&R::contains)), 9);
    QCOMPARE(virtualSlot(&R::intersects), 10);
}

void tst_layout::checkerSlots()
{
    QCOMPARE(virtualSlot(&RVProductChecker::isValid), 2);
    QCOMPARE(virtualSlot(&RVProductChecker::checkerTypes), 3);
    QCOMPARE(virtualSlot(&RVProductChecker::isValidBoxStyle), 4);
}

void tst_layout::calculatorSlots()
{
    QCOMPARE(virtualSlot(&RVPageOrganizationCalculator::calculate), 2);
}

void tst_layout::clearCacheIsTheOnlyMetaMethod()
{
    const QMetaObject &manager = RVPageOrganizationManager::staticMetaObject;
    QCOMPARE(manager.methodCount() - manager.methodOffset(), 1);
    QCOMPARE(manager.method(manager.methodOffset()).methodSignature(), QByteArray("clearCache()"));
}

QTEST_GUILESS_MAIN(tst_layout)
#include "tst_layout.moc"
