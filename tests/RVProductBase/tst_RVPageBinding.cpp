#include "AttributeTest.h"

#include <RVProductBase/RVPageBinding.h>

using namespace Qt::StringLiterals;

namespace {

RVPageBinding binding(int value)
{
    return RVPageBinding(RVPageBindingEnum(value));
}

}

class tst_RVPageBinding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void displayNames_data();
    void displayNames();
    void nameTable();
    void templates_data();
    void templates();
    void debugOutput();
};

void tst_RVPageBinding::keywordTable()
{
    const KeywordTableTest<RVPageBinding> test(
            {
                    { UNKNOWN, { u"unknown"_s } },
                    { GLUE, { u"glue"_s, u"glued"_s } },
                    { LAYFLAT, { u"layflat"_s, u"lay_flat"_s } },
                    { STAPLED, { u"stapled"_s } },
                    { SPIRAL, { u"spiral"_s } },
            },
            u""_s, 0);
    test.check();
    QCOMPARE(int(UNKNOWN), 0);
    QCOMPARE(int(GLUE), 1);
    QCOMPARE(int(LAYFLAT), 2);
    QCOMPARE(int(STAPLED), 4);
    QCOMPARE(int(SPIRAL), 8);
}

void tst_RVPageBinding::displayNames_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << 0 << u""_s;
    QTest::newRow("glue") << 1 << u"klassische Buchbindung"_s;
    QTest::newRow("lay-flat") << 2 << u"Lay-Flat-Bindung"_s;
    QTest::newRow("both") << 3 << u""_s;
    QTest::newRow("stapled") << 4 << u"Rückstichbindung"_s;
    QTest::newRow("spiral") << 8 << u""_s;
}

void tst_RVPageBinding::displayNames()
{
    QFETCH(int, value);
    QTEST(binding(value).humanReadableName(), "name");
    for (int combination = 0; combination < 0x100; ++combination) {
        if (combination != GLUE && combination != LAYFLAT && combination != STAPLED)
            QCOMPARE(binding(combination).humanReadableName(), u""_s);
    }
}

void tst_RVPageBinding::nameTable()
{
    QCOMPARE(RVPageBinding::pageBindingNames().names.size(), 3);
    QVERIFY(RVPageBinding::pageBindingNames().defaultValue.isNull());
    QVERIFY(RVPageBinding::pageBindingNames().value(u"no such name"_s).isNull());
    QCOMPARE(RVPageBinding::pageBindingNames().unknownName, u""_s);
    QCOMPARE(onAnotherThread([] { return &RVPageBinding::pageBindingNames(); }), &RVPageBinding::pageBindingNames());
}

void tst_RVPageBinding::templates_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("children");
    QTest::newRow("unknown") << 0 << QStringList();
    QTest::newRow("glue") << 1 << QStringList();
    QTest::newRow("lay-flat") << 2 << QStringList();
    QTest::newRow("stapled") << 4 << QStringList();
    QTest::newRow("spiral") << 8 << QStringList { u"pageBinding=spiral"_s };
    QTest::newRow("glue and spiral") << 9 << QStringList();
    QTest::newRow("lay-flat and spiral") << 10 << QStringList();
    QTest::newRow("stapled and spiral") << 12 << QStringList();
    QTest::newRow("a later bit") << 16 << QStringList { u"pageBinding="_s };
    QTest::newRow("spiral and a later bit") << 24 << QStringList { u"pageBinding=spiral, "_s };
}

void tst_RVPageBinding::templates()
{
    QFETCH(int, value);
    QDomDocument document;
    QDomElement parent = document.createElement(u"template"_s);
    binding(value).toTemplates2Format(parent);
    QTEST(childTexts(parent), "children");
    QDomElement other = document.createElement(u"template"_s);
    LyingAttribute<RVPageBinding>(RVPageBindingEnum(value)).toTemplates2Format(other);
    QTEST(childTexts(other), "children");
}

void tst_RVPageBinding::debugOutput()
{
    QCOMPARE(debugText(binding(9)), u"RVPageBinding(glue, spiral) "_s);
    QCOMPARE(debugText(binding(0)), u"RVPageBinding() "_s);
}

QTEST_GUILESS_MAIN(tst_RVPageBinding)
#include "tst_RVPageBinding.moc"
