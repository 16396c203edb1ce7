#include "AttributeTest.h"

#include <RVProductBase/RVPaperType.h>

using namespace Qt::StringLiterals;

namespace {

RVPaperType paper(int value)
{
    return RVPaperType(RVPaperTypeEnum(value));
}

}

class tst_RVPaperType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTable();
    void combinations();
    void displayNames_data();
    void displayNames();
    void combinationsHaveNoName();
    void readsDisplayNames_data();
    void readsDisplayNames();
    void translatedPaperTypes();
    void nameTable();
    void debugOutput();
};

void tst_RVPaperType::keywordTable()
{
    const KeywordTableTest<RVPaperType> test(
            {
                    { 0, { u"unbekanntes Papier"_s } },
                    { 0x1, { u"indigo"_s, u"digital_printing_standard"_s } },
                    { 0x2, { u"indigo-glossy"_s, u"glossy"_s, u"digital_printing_glossy"_s } },
                    { 0x4, { u"fotopaper"_s, u"photopaper_matt"_s } },
                    { 0x8, { u"fotopaper-glossy"_s, u"photopaper_glossy"_s } },
                    { 0x20, { u"premium"_s, u"digital_printing_premium"_s } },
                    { 0x40, { u"premium-matt"_s, u"digital_printing_matt"_s } },
                    { 0x10, { u"fotopaper-premium-matt"_s, u"photopaper_classy_matt"_s } },
                    { 0x80, { u"digital_printing_recycled"_s } },
            },
            u"indigo"_s, 1);
    test.check();
    const RVPaperTypeEnum inBitOrder[] = { INDIGO,
                                           INDIGO_GLOSSY,
                                           FOTOPAPER,
                                           FOTOPAPER_GLOSSY,
                                           FOTOPAPER_PREMIUM_MATT,
                                           PREMIUM,
                                           PREMIUM_MATT,
                                           DIGITAL_PRINTING_RECYCLED };
    int bit = 1;
    for (const RVPaperTypeEnum value : inBitOrder) {
        QCOMPARE(int(value), bit);
        bit *= 2;
    }
    QCOMPARE(int(UNKNOWN_PAPER), 0);
}

void tst_RVPaperType::combinations()
{
    QCOMPARE(paper(3).encode(), u"indigo"_s);
    QCOMPARE(paper(6).encodeCSV(), u"indigo-glossy, fotopaper"_s);
    QCOMPARE(int(RVPaperType(u"glossy, no such paper"_s).value()), 3);
}

void tst_RVPaperType::displayNames_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("digital, matt") << 0x1 << u"Digitaldruck Matt"_s;
    QTest::newRow("digital, glossy") << 0x2 << u"Digitaldruck Hochglanz"_s;
    QTest::newRow("photo, matt") << 0x4 << u"Fotopapier Matt"_s;
    QTest::newRow("photo, glossy") << 0x8 << u"Fotopapier Glänzend"_s;
    QTest::newRow("photo, premium matt") << 0x10 << u"Fotopapier Premium-Matt"_s;
    QTest::newRow("premium") << 0x20 << u"Premiumpapier"_s;
    QTest::newRow("digital, premium matt") << 0x40 << u"Digitaldruck Premium-Matt"_s;
    QTest::newRow("recycled") << 0x80 << u"Digitaldruck Matt (100% recycelt)"_s;
    QTest::newRow("unknown") << 0 << u"unbekannter Papiertyp"_s;
    QTest::newRow("two at once") << 0x3 << u"unbekannter Papiertyp"_s;
    QTest::newRow("unknown bit") << 0x100 << u"unbekannter Papiertyp"_s;
}

void tst_RVPaperType::displayNames()
{
    QFETCH(int, value);
    QTEST(paper(value).humanReadableName(), "name");
}

void tst_RVPaperType::combinationsHaveNoName()
{
    for (int value = 0; value < 0x400; ++value) {
        if (value >= 0x100 || qPopulationCount(quint32(value)) != 1)
            QCOMPARE(paper(value).humanReadableName(), u"unbekannter Papiertyp"_s);
    }
}

void tst_RVPaperType::readsDisplayNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("value");
    QTest::newRow("digital, matt") << u"Digitaldruck Matt"_s << 0x1;
    QTest::newRow("digital, glossy") << u"Digitaldruck Hochglanz"_s << 0x2;
    QTest::newRow("photo, matt") << u"Fotopapier Matt"_s << 0x4;
    QTest::newRow("photo, glossy: lost in Latin-1") << u"Fotopapier Glänzend"_s << 0x1;
    QTest::newRow("photo, premium matt") << u"Fotopapier Premium-Matt"_s << 0x10;
    QTest::newRow("premium") << u"Premiumpapier"_s << 0x20;
    QTest::newRow("digital, premium matt") << u"Digitaldruck Premium-Matt"_s << 0x40;
    QTest::newRow("recycled") << u"Digitaldruck Matt (100% recycelt)"_s << 0x80;
    QTest::newRow("a key that is no name") << u"Digitaldruck Glaenzend"_s << 0x1;
    QTest::newRow("other letter case") << u"premiumpapier"_s << 0x1;
    QTest::newRow("empty") << u""_s << 0x1;
}

void tst_RVPaperType::readsDisplayNames()
{
    QFETCH(QString, name);
    QFETCH(int, value);
    QCOMPARE(int(RVPaperType::createFromHumanReadable(name).value()), value);
}

void tst_RVPaperType::translatedPaperTypes()
{
    const QHash<QString, QString> expected = {
        { u"Digitaldruck Matt"_s, u"Digitaldruck Matt"_s },
        { u"Digitaldruck Matt (100% recycelt)"_s, u"Digitaldruck Matt (100% recycelt)"_s },
        { u"Digitaldruck Glaenzend"_s, u"Digitaldruck Hochglanz"_s },
        { u"Digitaldruck Premium-Matt"_s, u"Digitaldruck Premium-Matt"_s },
        { u"Fotopapier Glaenzend"_s, u"Fotopapier Glänzend"_s },
        { u"Fotopapier Premium-Matt"_s, u"Fotopapier Premium-Matt"_s },
        { u"Fotopapier Matt"_s, u"Fotopapier Matt"_s },
        { u"Premiumpapier"_s, u"Premiumpapier"_s },
    };
    QHash<QString, QString> texts = RVPaperType::translatedPaperTypes();
    QCOMPARE(texts, expected);
    texts.clear();
    QCOMPARE(RVPaperType::translatedPaperTypes(), expected);
}

void tst_RVPaperType::nameTable()
{
    QCOMPARE(RVPaperType::paperTypeNames().names.size(), 8);
    QCOMPARE(int(RVPaperType::paperTypeNames().defaultValue.value()), 1);
    QCOMPARE(RVPaperType::paperTypeNames().unknownName, u"unbekannter Papiertyp"_s);
    QCOMPARE(onAnotherThread([] { return &RVPaperType::paperTypeNames(); }), &RVPaperType::paperTypeNames());
    const auto text = [] {
        const QHash<QString, QString> texts = RVPaperType::translatedPaperTypes();
        return static_cast<const void *>(&*texts.constBegin());
    };
    QCOMPARE(onAnotherThread(text), text());
}

void tst_RVPaperType::debugOutput()
{
    QCOMPARE(debugText(paper(0x28)), u"RVPaperType(fotopaper-glossy, premium) "_s);
    QCOMPARE(debugText(paper(0)), u"RVPaperType(indigo) "_s);
}

QTEST_GUILESS_MAIN(tst_RVPaperType)
#include "tst_RVPaperType.moc"
