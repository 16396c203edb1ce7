#include "AttributeTest.h"

#include <RVCore/RVSpotColor.h>
#include <RVProductBase/RVPageType.h>

using namespace Qt::StringLiterals;

namespace {

RVPageType pageType(int value)
{
    return RVPageType(RVPageTypeEnum(value));
}

/// Records the last call of the operation that adds bits to page types.
class WatchedPageType : public RVPageType
{
public:
    using RVPageType::operator|=;
    RVEnumWrapper<RVPageTypeEnum> &operator|=(RVPageTypeEnum value) override
    {
        added = value;
        return RVPageType::operator|=(value);
    }

    RVPageTypeEnum added = RVPageTypeEnum(0);
};

}

class tst_RVPageType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void combinations();
    void expandsToKeywords();
    void rules_data();
    void rules();
    void spotColors_data();
    void spotColors();
    void debugOutput();
};

void tst_RVPageType::keywordTable()
{
    const KeywordTableTest<RVPageType> test(
            {
                    { 0x20, { u"fullcover"_s } },
                    { 0xF03E1, { u"cover"_s } },
                    { 0x1, { u"spine"_s } },
                    { 0x10, { u"emptypage"_s, u"empty"_s } },
                    { 0x8, { u"normalpage"_s, u"normal"_s, u"content"_s } },
                    { 0x4, { u"cardback"_s } },
                    { 0x2, { u"cardfront"_s } },
                    { 0xC, { u"normalcardback"_s } },
                    { 0xA, { u"normalcardfront"_s } },
                    { 0x408, { u"normaladvdoorback"_s } },
                    { 0x400, { u"advdoorback"_s } },
                    { 0x1000, { u"duplexcard"_s } },
                    { 0x2000, { u"foldedduplexcard"_s } },
                    { 0x4000, { u"artprints"_s } },
                    { 0x8000, { u"advwithdoorbackprint"_s } },
                    { 0x200, { u"leather"_s } },
                    { 0x100, { u"cromolinen"_s } },
                    { 0x80, { u"calendarcoverback"_s } },
                    { 0x40, { u"calendarcoverfront"_s, u"calendercoverfront"_s } },
                    { 0x800, { u"normalpages"_s } },
                    { 0xF03F9, { u"all"_s } },
                    { 0x40000, { u"slipcasefrontcover"_s } },
                    { 0x80000, { u"slipcasebackcover"_s } },
                    { 0x10000, { u"slipcasespine"_s } },
                    { 0x20000, { u"slipcaseemptyspine"_s } },
                    { 0x100000, { u"slipcasesequence"_s } },
                    { 0xC0000, { u"slipcasecover"_s } },
                    { 0xF0000, { u"slipcasepages"_s } },
                    { 0x28, { u"pc57insertedfoto"_s } },
                    { 0x200008, { u"panobasepage"_s } },
                    { 0x400008, { u"panowingpage"_s } },
                    { 0x200000, { u"panorama_base"_s } },
                    { 0x400000, { u"panorama_wing"_s } },
                    { 0x600000, { u"PanoramaPages"_s } },
            },
            u""_s, 0);
    test.check();
}

void tst_RVPageType::combinations()
{
    QCOMPARE(pageType(0x3).encode(), u""_s);
    QCOMPARE(pageType(0x3).encodeCSV(), u"spine, cardfront"_s);
    QCOMPARE(int(RVPageType(u"panoramapages"_s).value()), 0x600000);
}

void tst_RVPageType::expandsToKeywords()
{
    WatchedPageType tested;
    tested.setValue(PAGE_TYPE_SPINE);
    tested.expandToKeyword(u"fullcover, cardfront"_s);
    QCOMPARE(int(tested.value()), 0x23);
    QCOMPARE(int(tested.added), 0x22);
    tested.expandToKeyword(u"no such page"_s);
    QCOMPARE(int(tested.value()), 0x23);
    QCOMPARE(int(tested.added), 0);
}

void tst_RVPageType::rules_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("rendering");
    QTest::addColumn<int>("orderPage");
    QTest::addColumn<int>("templates");
    QTest::addColumn<int>("photos");
    const auto row = [](int value, int rendering, int orderPage, int templates, int photos) {
        QTest::addRow("0x%x", unsigned(value)) << value << rendering << orderPage << templates << photos;
    };
    row(0x0, 2, -1, 0, 3);
    row(0x1, 2, 0, 7, 3);
    row(0x2, 2, -1, 7, 3);
    row(0x4, 2, -1, 7, 3);
    row(0x8, 1, -1, 3, 3);
    row(0x9, 2, 0, 7, 3);
    row(0xA, 1, -1, 3, 3);
    row(0xC, 1, -1, 3, 3);
    row(0xE, 2, -1, 7, 3);
    row(0x10, 0, -1, 0, 0);
    row(0x18, 2, -1, 7, 3);
    row(0x20, 2, 0, 7, 3);
    row(0x28, 2, 0, 7, 3);
    row(0x40, 1, 1, 3, 3);
    row(0x48, 2, -1, 7, 3);
    row(0x80, 0, 1, 0, 0);
    row(0xC0, 2, -1, 7, 3);
    row(0x100, 2, 0, 7, 0);
    row(0x200, 2, 0, 7, 0);
    row(0x300, 2, 0, 7, 3);
    row(0x400, 2, -1, 7, 3);
    row(0x408, 2, -1, 7, 3);
    row(0x800, 2, -1, 7, 3);
    row(0x1000, 2, -1, 7, 3);
    row(0x10000, 1, 2, 7, 3);
    row(0x10001, 2, 0, 7, 3);
    row(0x20000, 0, -1, 7, 3);
    row(0x40000, 1, 2, 7, 3);
    row(0x80000, 1, 1, 7, 3);
    row(0xC0000, 2, -1, 7, 3);
    row(0x100000, 2, -1, 7, 3);
    row(0x200000, 2, -1, 7, 3);
    row(0x200008, 1, -1, 3, 3);
    row(0x400008, 1, -1, 3, 3);
    row(0x600000, 2, -1, 7, 3);
    row(0xF03E1, 2, 0, 7, 3);
    row(-1, 2, 0, 7, 3);
}

void tst_RVPageType::rules()
{
    QFETCH(int, value);
    QTEST(pageType(value).productionRenderingRule(), "rendering");
    QTEST(pageType(value).explicitOrderPageNumber(), "orderPage");
    QTEST(pageType(value).acceptTemplateRule(), "templates");
    QTEST(pageType(value).acceptFotoRule(), "photos");
    const LyingAttribute<RVPageType> lying { RVPageTypeEnum(value) };
    QTEST(lying.productionRenderingRule(), "rendering");
    QTEST(lying.explicitOrderPageNumber(), "orderPage");
    QTEST(lying.acceptTemplateRule(), "templates");
    QTEST(lying.acceptFotoRule(), "photos");
}

void tst_RVPageType::spotColors_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<int>>("colors");
    QTest::addColumn<bool>("allowed");
    const auto row = [](const char *name, int value, const QList<int> &colors, bool allowed) {
        QTest::newRow(name) << value << colors << allowed;
    };
    row("linen, none", 0x100, {}, true);
    row("linen, gold and silver", 0x100, { 2, 4, 8 }, true);
    row("linen, gloss", 0x100, { 2, 1 }, false);
    row("linen, silver ink", 0x100, { 16 }, false);
    row("leather, gloss", 0x200, { 1 }, false);
    row("leather, silver ink", 0x200, { 16 }, false);
    row("leather, rose gold", 0x200, { 8 }, true);
    row("linen and full cover, silver ink", 0x120, { 16 }, false);
    row("linen, gloss with gold as one value", 0x100, { 3 }, true);
    row("full cover, silver ink", 0x20, { 16 }, true);
    row("card front, silver ink", 0x2, { 1, 16 }, true);
    row("content page and card front, silver ink", 0xA, { 16 }, true);
    row("content page, silver ink", 0x8, { 16 }, false);
    row("spine, silver ink", 0x1, { 16 }, false);
    row("none, silver ink", 0x0, { 16 }, false);
    row("content page, gloss", 0x8, { 1, 2, 4, 8 }, true);
    row("content page, none", 0x8, {}, true);
    row("content page, silver ink with gold as one value", 0x8, { 18 }, true);
}

void tst_RVPageType::spotColors()
{
    QFETCH(int, value);
    QFETCH(QList<int>, colors);
    QList<RVSpotColor> spotColors;
    for (const int color : colors)
        spotColors += RVSpotColor(RVSpotColorEnum(color));
    QTEST(pageType(value).isSpotColorAllowed(spotColors), "allowed");
    QTEST(LyingAttribute<RVPageType>(RVPageTypeEnum(value)).isSpotColorAllowed(spotColors), "allowed");
}

void tst_RVPageType::debugOutput()
{
    QCOMPARE(debugText(pageType(0x28)), u"RVPageType(normalpage, fullcover) "_s);
    QCOMPARE(debugText(pageType(0)), u"RVPageType() "_s);
}

QTEST_GUILESS_MAIN(tst_RVPageType)
#include "tst_RVPageType.moc"
