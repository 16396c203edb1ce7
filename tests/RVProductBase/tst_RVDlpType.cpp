#include "AttributeTest.h"

#include <RVProductBase/RVDlpType.h>

using namespace Qt::StringLiterals;

namespace {

RVDlpType dlpType(int value)
{
    return RVDlpType(RVDlpTypeEnum(value));
}

}

class tst_RVDlpType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void values_data();
    void values();
    void combinationsHaveNoName();
    void pluralForms();
    void button();
    void descriptions();
    void debugOutput();
};

void tst_RVDlpType::keywordTable()
{
    const KeywordTableTest<RVDlpType> test(
            {
                    { 1, { u"background"_s } },
                    { 2, { u"style_v2"_s } },
                    { 4, { u"template"_s } },
                    { 8, { u"clipart"_s } },
                    { 16, { u"mask"_s } },
                    { 32, { u"layoutcollection"_s } },
                    { 64, { u"storybook"_s } },
                    { 128, { u"form_parameter_data"_s } },
                    { 256, { u"predefined_project"_s } },
                    { 512, { u"filter_linnen_capable"_s } },
                    { 1024, { u"style_v2_coverpage"_s } },
                    { 2048, { u"style_v2_innerpage"_s } },
            },
            u""_s, 0, KeywordTableTest<RVDlpType>::Left);
    test.check();
}

void tst_RVDlpType::values_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("alternativePath");
    QTest::addColumn<QString>("query");
    const QString null;
    QTest::newRow("none") << 0 << null << null << null << u""_s;
    QTest::newRow("background") << 1 << u"Hintergründe"_s << u"backgrounds"_s << u"backgrounds"_s << u"background"_s;
    QTest::newRow("style") << 2 << u"Stile"_s << u"styles"_s << u"styles"_s << u"style_v2"_s;
    QTest::newRow("background and style") << 3 << null << null << null << u"style_v2"_s;
    QTest::newRow("design") << 4 << u"Designs"_s << u"templates"_s << u"designs"_s << u"template"_s;
    QTest::newRow("background and design") << 5 << null << null << null << u""_s;
    QTest::newRow("clipart") << 8 << u"Cliparts"_s << u"cliparts"_s << u"cliparts"_s << u"clipart"_s;
    QTest::newRow("mask") << 16 << u"Masken & Rahmen"_s << u"cliparts"_s << u"cliparts"_s << u"mask"_s;
    QTest::newRow("layouts") << 32 << null << u"layouts"_s << u"layouts"_s << u"layoutcollection"_s;
    QTest::newRow("book template") << 64 << u"Buchvorlagen"_s << null << null << u"style_v2"_s;
    QTest::newRow("book template and style") << 66 << u"Vorlagen"_s << null << null << u"style_v2"_s;
    QTest::newRow("form parameters") << 128 << null << u"formparameters"_s << u"formparameters"_s
                                     << u"form_parameter_data"_s;
    QTest::newRow("project") << 256 << null << u"templates"_s << u"templates"_s << u"predefined_project"_s;
    QTest::newRow("filter alone") << 512 << null << null << null << u""_s;
    QTest::newRow("background with filter")
            << 513 << u"Hintergründe"_s << u"backgrounds"_s << u"backgrounds"_s << u"background"_s;
    QTest::newRow("clipart with filter") << 520 << u"Cliparts"_s << u"cliparts"_s << u"cliparts"_s << u"clipart"_s;
    QTest::newRow("book template and style with filter") << 578 << u"Vorlagen"_s << null << null << u"style_v2"_s;
    QTest::newRow("cover page") << 1024 << null << null << null << u"style_v2"_s;
    QTest::newRow("inner page") << 2048 << null << null << null << u"style_v2"_s;
    QTest::newRow("unknown bit") << 4096 << null << null << null << u""_s;
}

void tst_RVDlpType::values()
{
    QFETCH(int, value);
    QFETCH(QString, name);
    QFETCH(QString, path);
    QFETCH(QString, alternativePath);
    const RVDlpType tested = dlpType(value);
    QCOMPARE(tested.visibleName(-1), name);
    QCOMPARE(tested.visibleName(-1).isNull(), name.isNull());
    QCOMPARE(tested.visibleName(7), name.isNull() ? QString() : u"7 "_s + name);
    QCOMPARE(tested.visibleName(7).isNull(), name.isNull());
    QCOMPARE(tested.dlpPath(false), path);
    QCOMPARE(tested.dlpPath(false).isNull(), path.isNull());
    QCOMPARE(tested.dlpPath(true), alternativePath);
    QTEST(tested.queryValue(), "query");
}

void tst_RVDlpType::combinationsHaveNoName()
{
    for (int value = 0; value < 0x2000; ++value) {
        const int type = value & ~512;
        if (qPopulationCount(quint32(type)) < 2)
            continue;
        QVERIFY(dlpType(value).dlpPath(false).isNull());
        QVERIFY(dlpType(value).dlpPath(true).isNull());
        if (type == 66)
            continue;
        QVERIFY(dlpType(value).visibleName(-1).isNull());
        QVERIFY(dlpType(value).visibleName(1).isNull());
    }
}

void tst_RVDlpType::pluralForms()
{
    QCOMPARE(dlpType(8).visibleName(0), u"0 Cliparts"_s);
    QCOMPARE(dlpType(8).visibleName(1), u"1 Cliparts"_s);
    QCOMPARE(dlpType(8).visibleName(-2), u"-2 Cliparts"_s);
}

void tst_RVDlpType::button()
{
    QVERIFY(dlpType(32).dlpButtonForbidden());
    QVERIFY(!dlpType(0).dlpButtonForbidden());
    QVERIFY(!dlpType(33).dlpButtonForbidden());
    QVERIFY(!dlpType(544).dlpButtonForbidden());
}

void tst_RVDlpType::descriptions()
{
    QCOMPARE(dlpType(9).describe(), u"9 | background, clipart"_s);
    QCOMPARE(dlpType(0).describe(), u"0 | "_s);
    QCOMPARE(dlpType(1024).describe(), u"1024 | style_v2_coverpage"_s);
    QCOMPARE(dlpType(520).describe(), u"520 | clipart, filter_linnen_capable"_s);
}

void tst_RVDlpType::debugOutput()
{
    QCOMPARE(debugText(dlpType(9)), u"RVDlpType(background, clipart) "_s);
    QCOMPARE(debugText(dlpType(0)), u"RVDlpType() "_s);
}

QTEST_GUILESS_MAIN(tst_RVDlpType)
#include "tst_RVDlpType.moc"
