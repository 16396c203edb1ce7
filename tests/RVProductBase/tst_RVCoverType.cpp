#include "AttributeTest.h"

#include <RVProductBase/RVCoverType.h>

using namespace Qt::StringLiterals;

namespace {

RVCoverType coverType(qint64 value)
{
    return RVCoverType(RVCoverTypeEnum(value));
}

using LyingCover = LyingAttribute<RVCoverType>;

}

class tst_RVCoverType : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumerators();
    void keywordTable();
    void predicates_data();
    void predicates();
    void displayNames_data();
    void displayNames();
    void combinationsHaveNoName();
    void readsDisplayNames_data();
    void readsDisplayNames();
    void toolTips_data();
    void toolTips();
    void tables();
    void debugOutput();
};

void tst_RVCoverType::enumerators()
{
    const RVCoverTypeEnum inBitOrder[] = {
        HARDCOVER,
        SOFTCOVER,
        CROMOLINEN,
        LEATHER,
        BOOKLET,
        CALENDAR_SIMPLEX,
        CALENDAR_DUPLEX,
        CALENDAR_ONE_PAGE,
        CALENDAR_ANNUAL_DUPLEX,
        GIFT,
        AGENDA,
        ACRYL_GLAS,
        CANVAS,
        ALU_DIBOND,
        HARD_FOAM,
        DECORATION,
        POSTER_DECORATION,
        POSTER_PREMIUM,
        POSTER_SELF_ADHESIVE,
        POSTER_STANDARD,
        POSTER_XXL,
        GALLERY_PRINT,
        CALENDER_ADVENT_EMPTY,
        CALENDER_ADVENT_CHOCOLATE,
        CALENDER_ADVENT_PHOTO,
        CERAMICS,
        GAMES,
        OFFICE,
        TEXTILES,
        WOOD,
        SET,
        WIRE_O,
    };
    qint64 bit = 1;
    for (const RVCoverTypeEnum value : inBitOrder) {
        QCOMPARE(qint64(value), bit);
        bit *= 2;
    }
    QCOMPARE(bit, Q_INT64_C(0x100000000));
}

void tst_RVCoverType::keywordTable()
{
    const KeywordTableTest<RVCoverType> test(
            {
                    { 0x1, { u"HARDCOVER"_s, u"HARD"_s } },
                    { 0x2, { u"SOFTCOVER"_s, u"SOFT"_s } },
                    { 0x20, { u"CALENDAR_SIMPLEX"_s, u"wall_calendar"_s } },
                    { 0x40, { u"CALENDAR_DUPLEX"_s, u"table_calendar"_s } },
                    { 0x80, { u"CALENDAR_ONE_PAGE"_s, u"CALENDAR_ANNUAL_SIMPLEX"_s } },
                    { 0x100, { u"CALENDAR_ANNUAL_DUPLEX"_s } },
                    { 0x200, { u"GIFT"_s } },
                    { 0x10, { u"BOOKLET"_s, u"tacked"_s } },
                    { 0x4, { u"CROMOLINEN"_s, u"CROMO"_s } },
                    { 0x8, { u"LEATHER"_s } },
                    { 0x400, { u"AGENDA"_s } },
                    { 0x800, { u"acryl_glas"_s } },
                    { 0x1000, { u"canvas"_s } },
                    { 0x2000, { u"alu_dibond"_s } },
                    { 0x4000, { u"hard_foam"_s } },
                    { 0x8000, { u"decoration"_s } },
                    { 0x200000, { u"gallery_print"_s } },
                    { 0x400000, { u"calender_advent_empty"_s } },
                    { 0x800000, { u"calender_advent_chocolate"_s } },
                    { 0x1000000, { u"calender_advent_photo"_s } },
                    { 0x2000000, { u"ceramics"_s } },
                    { 0x4000000, { u"games"_s } },
                    { 0x8000000, { u"office"_s } },
                    { 0x10000, { u"poster_decoration"_s } },
                    { 0x20000, { u"poster_premium"_s } },
                    { 0x40000, { u"poster_self_adhesive"_s } },
                    { 0x80000, { u"poster_standard"_s } },
                    { 0x100000, { u"poster_xxl"_s } },
                    { 0x10000000, { u"textiles"_s } },
                    { 0x20000000, { u"wood"_s } },
                    { 0x40000000, { u"set"_s } },
                    { 0x80000000, { u"wire-o"_s } },
            },
            u""_s, 0);
    test.check();
}

void tst_RVCoverType::predicates_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<bool>("regular");
    QTest::addColumn<bool>("fullCover");
    QTest::addColumn<bool>("simplex");
    for (int bit = 0; bit < 32; ++bit) {
        const bool fullCover = bit == 0 || bit == 1 || bit == 4;
        const bool simplex = bit == 5 || bit == 7 || bit == 8 || bit == 9 || bit == 10;
        QTest::addRow("bit %d", bit) << (Q_INT64_C(1) << bit) << (bit != 31) << fullCover << simplex;
    }
    QTest::newRow("none") << Q_INT64_C(0) << false << false << false;
    QTest::newRow("wire-o with hard cover") << Q_INT64_C(0x80000001) << true << true << false;
    QTest::newRow("leather and agenda") << Q_INT64_C(0x408) << true << false << true;
}

void tst_RVCoverType::predicates()
{
    QFETCH(qint64, value);
    QTEST(coverType(value).isRegularCover(), "regular");
    QTEST(coverType(value).isFullCover(), "fullCover");
    QTEST(coverType(value).isSimplex(), "simplex");
    // A cover class of an application may redefine isValid(), which affects only the query for regular covers.
    const LyingCover lying { RVCoverTypeEnum(value) };
    QCOMPARE(lying.isRegularCover(), value == 0);
    QTEST(lying.isFullCover(), "fullCover");
    QTEST(lying.isSimplex(), "simplex");
}

void tst_RVCoverType::displayNames_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("name");
    QTest::newRow("hard cover") << Q_INT64_C(0x1) << u"Hardcover"_s;
    QTest::newRow("soft cover") << Q_INT64_C(0x2) << u"Softcover"_s;
    QTest::newRow("linen") << Q_INT64_C(0x4) << u"Leinen"_s;
    QTest::newRow("leather") << Q_INT64_C(0x8) << u"Leder"_s;
    QTest::newRow("booklet") << Q_INT64_C(0x10) << u"Heft"_s;
    QTest::newRow("wall calendar") << Q_INT64_C(0x20) << u"Kalender einseitig"_s;
    QTest::newRow("table calendar") << Q_INT64_C(0x40) << u"Kalender doppelseitig"_s;
    QTest::newRow("one-page calendar") << Q_INT64_C(0x80) << u"1-Seiten-Kalender"_s;
    QTest::newRow("annual planner") << Q_INT64_C(0x100) << u"2-Seiten-Jahresplaner"_s;
    QTest::newRow("wire-o") << Q_INT64_C(0x80000000) << u"Kunststoff-Spiralbindung"_s;
    for (int bit = 9; bit < 31; ++bit)
        QTest::addRow("bit %d", bit) << (Q_INT64_C(1) << bit) << (bit == 25 ? u"unbekannter Bindungstyp"_s : u""_s);
    QTest::newRow("none") << Q_INT64_C(0) << u"unbekannter Bindungstyp"_s;
    QTest::newRow("two at once") << Q_INT64_C(0x3) << u"unbekannter Bindungstyp"_s;
    QTest::newRow("unknown bit") << Q_INT64_C(0x100000000) << u"unbekannter Bindungstyp"_s;
}

void tst_RVCoverType::displayNames()
{
    QFETCH(qint64, value);
    QFETCH(QString, name);
    QCOMPARE(coverType(value).humanReadableName(), name);
    if (!name.isEmpty() && name != u"unbekannter Bindungstyp"_s)
        QCOMPARE(qint64(RVCoverType::createFromHumanReadable(name).value()), value);
}

void tst_RVCoverType::combinationsHaveNoName()
{
    for (qint64 value = 0; value < 0x1000; ++value) {
        if (qPopulationCount(quint64(value)) < 2)
            continue;
        for (const qint64 combination : { value, value << 10, value << 20 }) {
            QCOMPARE(coverType(combination).humanReadableName(), u"unbekannter Bindungstyp"_s);
            QCOMPARE(coverType(combination).toolTip(), u"unbekannter Bindungstyp"_s);
        }
    }
}

void tst_RVCoverType::readsDisplayNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint64>("value");
    QTest::newRow("leather") << u"Leder"_s << Q_INT64_C(0x8);
    QTest::newRow("other letter case") << u"leder"_s << Q_INT64_C(0);
    QTest::newRow("blank") << u"Leder "_s << Q_INT64_C(0);
    QTest::newRow("the unknown name") << u"unbekannter Bindungstyp"_s << Q_INT64_C(0);
    QTest::newRow("empty, the first of many") << u""_s << Q_INT64_C(0x200);
    QTest::newRow("null") << QString() << Q_INT64_C(0x200);
}

void tst_RVCoverType::readsDisplayNames()
{
    QFETCH(QString, name);
    QFETCH(qint64, value);
    QCOMPARE(qint64(RVCoverType::createFromHumanReadable(name).value()), value);
}

void tst_RVCoverType::toolTips_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("soft cover") << Q_INT64_C(0x2)
                                << u"Individuell gestaltbarer elastischer Einband mit Klebebindung.\n"
                                   "Das Cover ist vollständig gestaltbar."_s;
    QTest::newRow("hard cover") << Q_INT64_C(0x1)
                                << u"Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\n"
                                   "Das Cover ist vollständig gestaltbar."_s;
    QTest::newRow("wall calendar") << Q_INT64_C(0x20)
                                   << u"Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,\n"
                                      "da die leere Seite zur Wand zeigt, und daher nicht gesehen werden kann."_s;
    QTest::newRow("table calendar") << Q_INT64_C(
            0x40) << u"Doppelseitig bedruckte Kalender eignen sich besonders zum auf-den-Tisch-Legen."_s;
    QTest::newRow("one-page calendar")
            << Q_INT64_C(0x80)
            << u"Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte "
               "Kalenderjahr.\nAlles auf einen Blick."_s;
    QTest::newRow("annual planner")
            << Q_INT64_C(0x100)
            << u"Ein großformatiger Beidseitig bedruckter Jahreskalender gibt übersicht über das gesamte "
               "Kalenderjahr.\nAlles auf einen Blick."_s;
    QTest::newRow("linen") << Q_INT64_C(0x4)
                           << u"Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.\n"
                              "Das Cover kann nur mit veredelten Elementen gestaltet werden."_s;
    QTest::newRow("leather") << Q_INT64_C(0x8)
                             << u"Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.\n"
                                "Das Cover kann nur mit veredelten Elementen gestaltet werden."_s;
    QTest::newRow("booklet") << Q_INT64_C(0x10)
                             << u"Individuell gestaltbarer flexibler Einband mit Rückstichbindung."_s;
    QTest::newRow("none") << Q_INT64_C(0) << u"unbekannter Bindungstyp"_s;
    QTest::newRow("gift") << Q_INT64_C(0x200) << u"unbekannter Bindungstyp"_s;
    QTest::newRow("wire-o") << Q_INT64_C(0x80000000) << u"unbekannter Bindungstyp"_s;
    QTest::newRow("two at once") << Q_INT64_C(0x3) << u"unbekannter Bindungstyp"_s;
}

void tst_RVCoverType::toolTips()
{
    QFETCH(qint64, value);
    QTEST(coverType(value).toolTip(), "text");
}

void tst_RVCoverType::tables()
{
    QCOMPARE(RVCoverType::bindingNames().names.size(), 31);
    QVERIFY(RVCoverType::bindingNames().defaultValue.isNull());
    QCOMPARE(RVCoverType::bindingNames().unknownName, u"unbekannter Bindungstyp"_s);
    QCOMPARE(RVCoverType::bindingToolTips().names.size(), 9);
    QVERIFY(RVCoverType::bindingToolTips().defaultValue.isNull());
    QVERIFY(RVCoverType::bindingToolTips().value(u"no such text"_s).isNull());
    QCOMPARE(RVCoverType::bindingToolTips().unknownName, u"unbekannter Bindungstyp"_s);
    QCOMPARE(onAnotherThread([] { return &RVCoverType::bindingNames(); }), &RVCoverType::bindingNames());
    QCOMPARE(onAnotherThread([] { return &RVCoverType::bindingToolTips(); }), &RVCoverType::bindingToolTips());
}

void tst_RVCoverType::debugOutput()
{
    QCOMPARE(debugText(RVCoverType(HARDCOVER | CANVAS)), u"RVCoverType(HARDCOVER, canvas) "_s);
    QCOMPARE(debugText(RVCoverType()), u"RVCoverType() "_s);
}

QTEST_GUILESS_MAIN(tst_RVCoverType)
#include "tst_RVCoverType.moc"
