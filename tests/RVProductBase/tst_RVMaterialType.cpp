#include "AttributeTest.h"

#include <RVProductBase/RVMaterialType.h>

using namespace Qt::StringLiterals;

class tst_RVMaterialType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void combinations();
    void debugOutput();
};

void tst_RVMaterialType::keywordTable()
{
    const KeywordTableTest<RVMaterialType> test(
            {
                    { 1, { u"notebook"_s } },
                    { 2, { u"picture_box"_s } },
                    { 4, { u"card_playing"_s } },
                    { 8, { u"deco_print"_s } },
                    { 16, { u"retro_print"_s } },
                    { 32, { u"picture_bundle"_s } },
            },
            u""_s, 0);
    test.check();
}

void tst_RVMaterialType::combinations()
{
    const RVMaterialType material(u"Deco_Print,retro_print"_s);
    QCOMPARE(qint64(material.value()), 24);
    QCOMPARE(material.encode(), u""_s);
    QCOMPARE(material.encodeCSV(), u"deco_print, retro_print"_s);
    QCOMPARE(sizeof(RVMaterialTypeEnum), std::size_t(8));
}

void tst_RVMaterialType::debugOutput()
{
    QCOMPARE(debugText(RVMaterialType(MATERIAL_TYPE_NOTEBOOK | MATERIAL_TYPE_DECO_PRINT)),
             u"RVMaterialType(notebook, deco_print) "_s);
    QCOMPARE(debugText(RVMaterialType()), u"RVMaterialType() "_s);
}

QTEST_GUILESS_MAIN(tst_RVMaterialType)
#include "tst_RVMaterialType.moc"
