#include "GuideProducts.h"

#include <RVCore/RVAngle.h>
#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVDirectoryName.h>
#include <RVCore/RVDistance.h>
#include <RVCore/RVFontCreator.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVCore/RVIntRange.h>
#include <RVCore/RVNamedColor.h>
#include <RVCore/RVRegularExpression.h>
#include <RVProductBase/RVOrientation.h>
#include <RVProductBase/RVPageOrganizationManager.h>
#include <RVTemplateClasses/RVEnumToStringTable.h>
#include <RVTemplateClasses/RVKeywordIndex.h>
#include <RVTemplateClasses/RVRange.h>
#include <RVTemplateClasses/RVSingleton.h>
#include <RVXML/RVXMLBuilder.h>
#include <RVXML/RVXMLParser.h>

#include <QColor>
#include <QFont>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

//! [RVSingleton]
class Settings : public RVSingleton<Settings>
{
public:
    void setupInstance() { language = u"de"_s; }

    QString language;
};
//! [RVSingleton]

}

/// The examples of the templates and of the platform layer.
class tst_examples_platform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void angle();
    void directoryConfig();
    void directoryName();
    void distance();
    void distanceUnit();
    void enumToStringTable();
    void enumWrapper();
    void fontCreator();
    void fontSizeManager();
    void intRange();
    void keywordIndex();
    void namedColor();
    void range();
    void regularExpression();
    void singleton();
    void xmlBuilder();
    void xmlParser();
};

void tst_examples_platform::angle()
{
    //! [RVAngle]
    QVERIFY(RVAngle().isNull());
    QVERIFY(!RVAngle(90).isNull());
    QCOMPARE(RVOrientation::createFromPageTilt(RVAngle(90)).value(), ORIENTATION_PORTRAIT);
    //! [RVAngle]
}

void tst_examples_platform::directoryConfig()
{
    //! [RVDirectoryConfig]
    RVDirectoryConfig *directories = RVDirectoryConfig::instance();
    directories->addSearchDirectory(u"."_s);

    QVERIFY(directories->resource(u"products.xml"_s, false) != u"products.xml"_s); // with its directory
    QCOMPARE(directories->resource(u"missing.xml"_s, false), u"missing.xml"_s); // found nowhere
    //! [RVDirectoryConfig]
}

void tst_examples_platform::directoryName()
{
    //! [RVDirectoryName]
    QCOMPARE(RVDirectoryName(DIRECTORY_CLIPARTS).name(), u"cliparts"_s);
    //! [RVDirectoryName]
}

void tst_examples_platform::distance()
{
    //! [RVDistance]
    const RVDistance width = RVDistance(21, DISTANCE_UNIT_CENTIMETRE) + RVDistance(5, DISTANCE_UNIT_MILLIMETRE);

    QCOMPARE(width.value(), 2150.0); // in tenths of a millimetre
    QCOMPARE(width.value(DISTANCE_UNIT_MILLIMETRE), 215.0);
    //! [RVDistance]
}

void tst_examples_platform::distanceUnit()
{
    //! [RVDistanceUnit]
    const RVDistanceUnit unit(u"cm"_s);

    QCOMPARE(unit.code(), int(DISTANCE_UNIT_CENTIMETRE));
    QCOMPARE(unit.units2Pixels(2), 200.0); // in tenths of a millimetre
    //! [RVDistanceUnit]
}

void tst_examples_platform::enumToStringTable()
{
    //! [RVEnumToStringTable]
    RVEnumToStringTable<RVOrientationEnum> table;
    table.insert(u"upright"_s, ORIENTATION_PORTRAIT);
    table.insert(u"high"_s, ORIENTATION_PORTRAIT); // an alias
    table.insert(u"wide"_s, ORIENTATION_LANDSCAPE);

    QCOMPARE(table.decodeCSV(u"High, wide"_s), ORIENTATION_PORTRAIT | ORIENTATION_LANDSCAPE);
    QCOMPARE(table.encode(ORIENTATION_PORTRAIT), u"upright"_s);
    //! [RVEnumToStringTable]
}

void tst_examples_platform::enumWrapper()
{
    //! [RVEnumWrapper]
    RVOrientation offered(u"portrait, square"_s); // derives from RVEnumWrapper<RVOrientationEnum>
    offered.expandTo(ORIENTATION_LANDSCAPE);
    offered.exclude(ORIENTATION_PORTRAIT);

    QVERIFY(offered.matches(ORIENTATION_SQUARE));
    QCOMPARE(offered.countBits(), 2);
    QCOMPARE(offered.encodeCSV(), u"landscape, square"_s);
    //! [RVEnumWrapper]
}

void tst_examples_platform::fontCreator()
{
    //! [RVFontCreator]
    const RVFontCreator *fonts = RVFontCreator::instance();
    const QFont font = fonts->createFont(fonts->defaultFontFamily(), 12);

    QCOMPARE(font.pointSize(), 12);
    //! [RVFontCreator]
}

void tst_examples_platform::fontSizeManager()
{
    //! [RVFontSizeManager]
    RVFontSizeManager *sizes = RVFontSizeManager::instance();
    sizes->setDefaultFontSizes({ 24, 8, 12 });

    QCOMPARE(sizes->defaultFontSizes(), QList<int>({ 8, 12, 24 }));
    //! [RVFontSizeManager]
}

void tst_examples_platform::intRange()
{
    //! [RVIntRange]
    const RVIntRange pages(26, 154);

    QVERIFY(pages.contains(34));
    QCOMPARE(pages.shifted(4), RVIntRange(30, 158));
    QCOMPARE(pages.stretched(2), RVIntRange(52, 308));
    //! [RVIntRange]
}

void tst_examples_platform::keywordIndex()
{
    //! [RVKeywordIndex]
    const RVKeywordIndex index(QHash<QString, RVOrientationEnum> { { u"portrait"_s, ORIENTATION_PORTRAIT } });

    QCOMPARE(*index.find(u" Portrait "), qint64(ORIENTATION_PORTRAIT));
    QVERIFY(!index.find(u"landscape"));
    //! [RVKeywordIndex]
}

void tst_examples_platform::namedColor()
{
    //! [RVNamedColor]
    const QString swatch = RVNamedColor::renderColorPreviewHTML(QColor(0x8c, 0x1c, 0x2b));

    QVERIFY(swatch.startsWith(u"<span"_s));
    //! [RVNamedColor]
}

void tst_examples_platform::range()
{
    //! [RVRange]
    RVRange<int> counts(26, 38);
    counts.expandTo(42);

    QCOMPARE(counts.max, 42);
    QVERIFY(counts.contains(30));
    QVERIFY(counts.intersects(RVRange<int>(42, 50)));
    //! [RVRange]
}

void tst_examples_platform::regularExpression()
{
    //! [RVRegularExpression]
    const RVRegularExpression code(u"^[A-Z]+\\d+$"_s);

    QVERIFY(code.match(u"KUR2"_s).hasMatch());
    //! [RVRegularExpression]
}

void tst_examples_platform::singleton()
{
    //! [RVSingletonUse]
    QCOMPARE(Settings::instance()->language, u"de"_s);
    QCOMPARE(Settings::instance(), Settings::instance());
    //! [RVSingletonUse]
}

void tst_examples_platform::xmlBuilder()
{
    //! [RVXMLBuilder]
    QDomDocument document;
    QDomElement order = document.createElement(u"order"_s);
    RVXMLBuilder::buildDomElement(order, u"price_class"_s, u"KUR2"_s);

    QCOMPARE(order.firstChildElement(u"price_class"_s).text(), u"KUR2"_s);
    //! [RVXMLBuilder]
}

void tst_examples_platform::xmlParser()
{
    const QDomElement product = guideProduct(u"DUN9_30"_s);
    //! [RVXMLParser]
    QCOMPARE(RVXMLParser::attribute(product, u"cover_type"_s, QString()), u"hardcover"_s);
    QCOMPARE(RVXMLParser::intAttribute(product, u"pages"_s, 1), 26);
    QCOMPARE(RVXMLParser::intAttribute(product, u"pieces"_s, 1), 1); // missing, so the default
    //! [RVXMLParser]
}

QTEST_MAIN(tst_examples_platform)
#include "tst_examples_platform.moc"
