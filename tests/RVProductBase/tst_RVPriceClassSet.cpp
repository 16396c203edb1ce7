#include <RVProductBase/RVPriceClassSet.h>

#include <RVCore/RVSpotColor.h>

#include <QDebug>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <future>
#include <limits>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(std::has_virtual_destructor_v<RVPriceClassSet>);
static_assert(std::is_base_of_v<QSet<RVPriceClass>, RVPriceClassSet>);
static_assert(std::is_convertible_v<RVPriceClassSet *, QSet<RVPriceClass> *>);
static_assert(sizeof(RVPriceClassSet) == sizeof(void *) + sizeof(QSet<RVPriceClass>));
static_assert(std::is_convertible_v<RVPriceClass, RVPriceClassSet>);
static_assert(std::is_convertible_v<QSet<RVPriceClass>, RVPriceClassSet>);
static_assert(std::is_same_v<decltype(RVPriceClassSet::framePassepartout()), RVPriceClass>);
static_assert(std::is_same_v<decltype(RVPriceClassSet::frameGlass()), RVPriceClass>);
static_assert(std::is_same_v<decltype(RVPriceClassSet::frameLamination()), RVPriceClass>);

namespace {

using GroupFunction = RVPriceClassSet (*)();

struct Group
{
    const char *name;
    GroupFunction function;
    int size;
    bool builtOnce;
    QStringView codes;
};

/// The address of the first element of a set; copies share it.
const RVPriceClass *firstElement(const RVPriceClassSet &set)
{
    return &*set.constBegin();
}

const RVPriceClass *firstElementOnAnotherThread(GroupFunction function)
{
    return std::async(std::launch::async, [function] { return firstElement(function()); }).get();
}

const Group GROUPS[] = {
    { "spotColorGloss", RVPriceClassSet::spotColorGloss, 19, true,
      u"KUR2 KUR4 KUR6 KUR8 KUR10 KUR12 KUR14 KUR16 KUR18 KUR20 KUR22 KUR24 KUR38 KUR40 KUR42 "
      u"KUR44 KUR46 KUR48 KUR50" },
    { "spotColorGoldSilver", RVPriceClassSet::spotColorGoldSilver, 30, true,
      u"KUR1 KUR3 KUR5 KUR7 KUR9 KUR11 KUR13 KUR15 KUR17 KUR19 KUR21 KUR23 KUR25 KUR26 KUR37 "
      u"KUR39 KUR41 KUR43 KUR45 KUR47 KUR49 KUR501 KUR502 KUR503 KUR504 KUR505 KUR507 KUR508 "
      u"KUR509 KUR551" },
    { "spotColorSilverInk", RVPriceClassSet::spotColorSilverInk, 0, false, u"" },
    { "bookGiftBoxes", RVPriceClassSet::bookGiftBoxes, 4, true, u"VEL4 VEL5 VEL6 VEL7" },
    { "bookGiftService", RVPriceClassSet::bookGiftService, 4, true, u"HAZ5 HAZ6 HAZ7 HAZ8" },
    { "calendarGiftService", RVPriceClassSet::calendarGiftService, 1, true, u"HAZ9" },
    { "calendarGiftBoxes", RVPriceClassSet::calendarGiftBoxes, 2, true, u"HAZ10 HAZ11" },
    { "maps", RVPriceClassSet::maps, 2, true, u"JOT1 JOT51" },
    { "envelops", RVPriceClassSet::envelops, 9, true, u"YIB1 YIB2 YIB3 YIB4 YIB5 YIB6 YIB7 YIB8 YIB9" },
    { "calendarStrips", RVPriceClassSet::calendarStrips, 3, true, u"NUS1 NUS2 NUS3" },
    { "posterWoodenStrips", RVPriceClassSet::posterWoodenStrips, 5, true, u"BIX1 BIX2 BIX3 BIX4 BIX5" },
    { "wallholderThatActsLikeAFrame", RVPriceClassSet::wallholderThatActsLikeAFrame, 1, true, u"QO20" },
    { "wallholderPriceClasses", RVPriceClassSet::wallholderPriceClasses, 18, true,
      u"QO2 QO4 QO5 QO6 QO7 QO8 QO9 QO10 QO11 QO12 QO16 QO17 QO18 QO19 QO20 QO21 QO202 QO212" },
    { "mattCoverPriceClasses", RVPriceClassSet::mattCoverPriceClasses, 8, true,
      u"KUR29 KUR30 KUR31 KUR32 KUR33 KUR34 KUR35 KUR36" },
    { "linenCoverPriceClasses", RVPriceClassSet::linenCoverPriceClasses, 6, true, u"LEZ1 LEZ2 LEZ3 LEZ4 LEZ5 LEZ6" },
    { "flyleafAndInsideCoverPriceClasses", RVPriceClassSet::flyleafAndInsideCoverPriceClasses, 13, true,
      u"SAV1 SAV2 SAV3 SAV4 SAV5 SAV6 SAV7 SAV8 SAV9 SAV10 SAV11 SAV12 SAV13" },
    { "calendarStandPriceClasses", RVPriceClassSet::calendarStandPriceClasses, 1, true, u"ZUD1" },
    { "memorabiliaPocketPriceClass", RVPriceClassSet::memorabiliaPocketPriceClass, 8, true,
      u"GEK1 GEK2 GEK3 GEK4 GEK5 GEK6 GEK7 GEK8" },
    { "artPrintBoxPriceClasses", RVPriceClassSet::artPrintBoxPriceClasses, 2, true, u"TY64 TY65" },
    { "pxwPanoPagesPriceClasses", RVPriceClassSet::pxwPanoPagesPriceClasses, 1, true, u"WAF3" },
    { "pxwInnerPagesDesignPriceClasses", RVPriceClassSet::pxwInnerPagesDesignPriceClasses, 1, true,
      u"premium_inner_pages_design" },
    { "pxwCoverDesignPriceClasses", RVPriceClassSet::pxwCoverDesignPriceClasses, 1, true, u"premium_cover_design" },
    { "videoNames", RVPriceClassSet::videoNames, 14, true,
      u"MUL1 MUL2 MUL3 MUL4 MUL5 MUL6 MUL7 MUL8 MUL9 MUL51 MUL52 MUL53 MUL54 MUL55" },
    { "pageIncrements", RVPriceClassSet::pageIncrements, 2, true, u"RODA6x9 KEMI62" },
    { "designPriceClasses", RVPriceClassSet::designPriceClasses, 9, false,
      u"61 62 63 64 65 66 premium_design premium_inner_pages_design premium_cover_design" },
    { "frameGlasses", RVPriceClassSet::frameGlasses, 2, false, u"RUN1 DOS1" },
    { "spotColorAll", RVPriceClassSet::spotColorAll, 49, false,
      u"KUR1 KUR2 KUR3 KUR4 KUR5 KUR6 KUR7 KUR8 KUR9 KUR10 KUR11 KUR12 KUR13 KUR14 KUR15 KUR16 "
      u"KUR17 KUR18 KUR19 KUR20 KUR21 KUR22 KUR23 KUR24 KUR25 KUR26 KUR37 KUR38 KUR39 KUR40 "
      u"KUR41 KUR42 KUR43 KUR44 KUR45 KUR46 KUR47 KUR48 KUR49 KUR50 KUR501 KUR502 KUR503 KUR504 "
      u"KUR505 KUR507 KUR508 KUR509 KUR551" },
    { "calendarFrameClasses", RVPriceClassSet::calendarFrameClasses, 5, false, u"NUS1 NUS2 NUS3 ZUD1 QO20" },
    { "pxwNewDesignPriceClasses", RVPriceClassSet::pxwNewDesignPriceClasses, 2, false,
      u"premium_cover_design premium_inner_pages_design" },
};

QStringList sorted(QStringList codes)
{
    std::sort(codes.begin(), codes.end());
    return codes;
}

QStringList inIterationOrder(const RVPriceClassSet &set)
{
    QStringList codes;
    for (const RVPriceClass &priceClass : set)
        codes += priceClass.toString();
    return codes;
}

QStringList sortedCodes(const RVPriceClassSet &set)
{
    return sorted(inIterationOrder(set));
}

QStringList split(const QString &text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

RVPriceClassSet setOf(const QStringList &codes)
{
    RVPriceClassSet set;
    for (const QString &code : codes)
        set.insert(RVPriceClass(code));
    return set;
}

QString debugText(const RVPriceClassSet &set)
{
    QString text;
    QDebug(&text) << set;
    return text;
}

}

class tst_RVPriceClassSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUseByManyThreads();
    void singlePriceClasses_data();
    void singlePriceClasses();
    void groups_data();
    void groups();
    void spotColors_data();
    void spotColors();
    void designIsOneSet();
    void designFromManyThreads();
    void defaultIsEmpty();
    void fromSet();
    void fromPriceClass();
    void fromCodes_data();
    void fromCodes();
    void copies();
    void moves();
    void setOperations();
    void containsOneOf_data();
    void containsOneOf();
    void containsOneOfItself();
    void toString_data();
    void toString();
    void debugOutput_data();
    void debugOutput();
    void debugOutputOfSeveral();
};

// This test must run first, because every group is built afterwards.
void tst_RVPriceClassSet::firstUseByManyThreads()
{
    constexpr int threadCount = 8;
    std::atomic<int> waiting = threadCount;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&waiting, &wrong] {
            --waiting;
            while (waiting > 0) { }
            for (const Group &group : GROUPS) {
                if (sortedCodes(group.function()) != sorted(split(group.codes.toString())))
                    ++wrong;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

void tst_RVPriceClassSet::singlePriceClasses_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("expected");
    QTest::newRow("framePassepartout") << RVPriceClassSet::framePassepartout().toString() << u"TEV1"_s;
    QTest::newRow("frameGlass") << RVPriceClassSet::frameGlass().toString() << u"RUN1"_s;
    QTest::newRow("frameLamination") << RVPriceClassSet::frameLamination().toString() << u"DOS1"_s;
}

void tst_RVPriceClassSet::singlePriceClasses()
{
    QFETCH(QString, code);
    QTEST(code, "expected");
}

void tst_RVPriceClassSet::groups_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(GROUPS)); ++i)
        QTest::newRow(GROUPS[i].name) << i;
}

void tst_RVPriceClassSet::groups()
{
    QFETCH(int, index);
    const Group &group = GROUPS[index];
    const QStringList expected = sorted(split(group.codes.toString()));
    RVPriceClassSet set = group.function();
    QCOMPARE(sortedCodes(set), expected);
    QCOMPARE(set.size(), group.size);
    const RVPriceClassSet again = group.function();
    QCOMPARE(sortedCodes(again), expected);
    if (group.builtOnce)
        QCOMPARE(firstElementOnAnotherThread(group.function), firstElement(again));
    set.insert(RVPriceClass(u"XYZ1"_s));
    set.subtract(again);
    QCOMPARE(sortedCodes(set), QStringList { u"XYZ1"_s });
    QCOMPARE(sortedCodes(again), expected);
    QCOMPARE(sortedCodes(group.function()), expected);
}

void tst_RVPriceClassSet::spotColors_data()
{
    const QStringList gloss = split(u"KUR2 KUR4 KUR6 KUR8 KUR10 KUR12 KUR14 KUR16 KUR18 KUR20 KUR22 KUR24 "
                                    u"KUR38 KUR40 KUR42 KUR44 KUR46 KUR48 KUR50"_s);
    const QStringList goldSilver = split(
            u"KUR1 KUR3 KUR5 KUR7 KUR9 KUR11 KUR13 KUR15 KUR17 KUR19 KUR21 KUR23 KUR25 KUR26 "
            u"KUR37 KUR39 KUR41 KUR43 KUR45 KUR47 KUR49 KUR501 KUR502 KUR503 KUR504 KUR505 "
            u"KUR507 KUR508 KUR509 KUR551"_s);
    const QStringList none;
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("codes");
    QTest::newRow("none") << 0 << none;
    QTest::newRow("gloss") << 1 << gloss;
    QTest::newRow("gold") << 2 << goldSilver;
    QTest::newRow("gloss and gold") << 3 << none;
    QTest::newRow("silver") << 4 << goldSilver;
    QTest::newRow("gloss and silver") << 5 << none;
    QTest::newRow("gold and silver") << 6 << none;
    QTest::newRow("rose gold") << 8 << goldSilver;
    QTest::newRow("gold, silver and rose gold") << 14 << none;
    QTest::newRow("silver ink") << 16 << none;
    QTest::newRow("gloss and silver ink") << 17 << none;
    QTest::newRow("all") << 31 << none;
    QTest::newRow("unknown bit") << 32 << none;
    QTest::newRow("unknown bit and gloss") << 33 << none;
    QTest::newRow("all bits") << -1 << none;
    QTest::newRow("sign bit") << std::numeric_limits<int>::min() << none;
    QTest::newRow("all but the sign bit") << std::numeric_limits<int>::max() << none;
}

void tst_RVPriceClassSet::spotColors()
{
    QFETCH(int, value);
    QFETCH(QStringList, codes);
    const RVPriceClassSet set = RVPriceClassSet::spotColorPriceClasses(RVSpotColor(RVSpotColorEnum(value)));
    QCOMPARE(sortedCodes(set), sorted(codes));
}

// Every call changes the stored set in place, because no copy of it exists here.
void tst_RVPriceClassSet::designIsOneSet()
{
    const RVPriceClass *first = firstElement(RVPriceClassSet::designPriceClasses());
    QCOMPARE(firstElementOnAnotherThread(RVPriceClassSet::designPriceClasses), first);
}

void tst_RVPriceClassSet::designFromManyThreads()
{
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&wrong] {
            for (int round = 0; round < 500; ++round) {
                const RVPriceClassSet set = RVPriceClassSet::designPriceClasses();
                if (set.size() != 9 || !set.contains(RVPriceClass(u"premium_cover_design"_s)))
                    ++wrong;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

void tst_RVPriceClassSet::defaultIsEmpty()
{
    const RVPriceClassSet set;
    QVERIFY(set.isEmpty());
    QCOMPARE(set.size(), 0);
    QCOMPARE(set.toString(), u""_s);
}

void tst_RVPriceClassSet::fromSet()
{
    QSet<RVPriceClass> source { RVPriceClass(u"VEL4"_s), RVPriceClass(u"VEL5"_s) };
    RVPriceClassSet set = source;
    QCOMPARE(sortedCodes(set), QStringList({ u"VEL4"_s, u"VEL5"_s }));
    QCOMPARE(&*set.constBegin(), &*source.constBegin());
    source.insert(RVPriceClass(u"VEL6"_s));
    set.remove(RVPriceClass(u"VEL4"_s));
    QCOMPARE(sortedCodes(set), QStringList { u"VEL5"_s });
    QCOMPARE(source.size(), 3);
}

void tst_RVPriceClassSet::fromPriceClass()
{
    QCOMPARE(inIterationOrder(RVPriceClass(u"QO20"_s)), QStringList { u"QO20"_s });
    const RVPriceClassSet ofEmpty = RVPriceClass();
    QCOMPARE(ofEmpty.size(), 1);
    QVERIFY(ofEmpty.contains(RVPriceClass()));
}

void tst_RVPriceClassSet::fromCodes_data()
{
    QTest::addColumn<RVPriceClassSet>("set");
    QTest::addColumn<QStringList>("codes");
    QTest::newRow("one") << RVPriceClassSet { u"KUR2"_s } << QStringList { u"KUR2"_s };
    QTest::newRow("two") << RVPriceClassSet { u"KUR2"_s, u"KUR10"_s } << QStringList { u"KUR10"_s, u"KUR2"_s };
    QTest::newRow("double") << RVPriceClassSet { u"KUR2"_s, u"KUR2"_s } << QStringList { u"KUR2"_s };
    QTest::newRow("other case") << RVPriceClassSet { u"KUR2"_s, u"kur2"_s } << QStringList { u"KUR2"_s, u"kur2"_s };
    QTest::newRow("blank in front") << RVPriceClassSet { u" A"_s, u"A"_s } << QStringList { u" A"_s, u"A"_s };
    QTest::newRow("null and empty") << RVPriceClassSet { QString(), u""_s } << QStringList { u""_s };
    QTest::newRow("comma is no separator") << RVPriceClassSet { u"A,B"_s } << QStringList { u"A,B"_s };
}

void tst_RVPriceClassSet::fromCodes()
{
    QFETCH(RVPriceClassSet, set);
    QTEST(sortedCodes(set), "codes");
}

void tst_RVPriceClassSet::copies()
{
    const RVPriceClassSet source { u"VEL4"_s, u"VEL5"_s };
    RVPriceClassSet copy = source;
    QCOMPARE(copy, source);
    QCOMPARE(&*copy.constBegin(), &*source.constBegin());
    copy.remove(RVPriceClass(u"VEL5"_s));
    QCOMPARE(sortedCodes(copy), QStringList { u"VEL4"_s });
    QCOMPARE(sortedCodes(source), QStringList({ u"VEL4"_s, u"VEL5"_s }));
    RVPriceClassSet assigned { u"HAZ5"_s };
    assigned = source;
    QCOMPARE(sortedCodes(assigned), QStringList({ u"VEL4"_s, u"VEL5"_s }));
    const RVPriceClassSet &self = assigned;
    assigned = self;
    QCOMPARE(sortedCodes(assigned), QStringList({ u"VEL4"_s, u"VEL5"_s }));
}

void tst_RVPriceClassSet::moves()
{
    RVPriceClassSet source { u"VEL4"_s };
    RVPriceClassSet target = std::move(source);
    QCOMPARE(sortedCodes(target), QStringList { u"VEL4"_s });
    RVPriceClassSet assigned { u"HAZ5"_s };
    assigned = std::move(target);
    QCOMPARE(sortedCodes(assigned), QStringList { u"VEL4"_s });
    source = assigned;
    QCOMPARE(sortedCodes(source), QStringList { u"VEL4"_s });
}

void tst_RVPriceClassSet::setOperations()
{
    RVPriceClassSet set { u"VEL4"_s };
    set.unite(RVPriceClassSet { u"VEL4"_s, u"VEL5"_s });
    QCOMPARE(sortedCodes(set), QStringList({ u"VEL4"_s, u"VEL5"_s }));
    set.unite(set);
    QCOMPARE(set.size(), 2);
    QVERIFY(set.intersects(RVPriceClassSet { u"VEL5"_s, u"VEL6"_s }));
    QVERIFY(set.remove(RVPriceClass(u"VEL4"_s)));
    QVERIFY(!set.contains(RVPriceClass(u"VEL4"_s)));
    QVERIFY(set.contains(RVPriceClass(u"VEL5"_s)));
}

void tst_RVPriceClassSet::containsOneOf_data()
{
    QTest::addColumn<QString>("codes");
    QTest::addColumn<QString>("others");
    QTest::addColumn<bool>("expected");
    QTest::newRow("both empty") << u""_s << u""_s << false;
    QTest::newRow("nothing asked for") << u"KUR2 KUR4"_s << u""_s << false;
    QTest::newRow("asked of an empty set") << u""_s << u"KUR2"_s << false;
    QTest::newRow("same") << u"KUR2"_s << u"KUR2"_s << true;
    QTest::newRow("one of several") << u"KUR2 KUR4 KUR6"_s << u"KUR4"_s << true;
    QTest::newRow("one among others") << u"KUR4"_s << u"KUR2 KUR4 KUR6"_s << true;
    QTest::newRow("one in common") << u"KUR2 KUR4"_s << u"KUR4 KUR6"_s << true;
    QTest::newRow("all in common") << u"KUR2 KUR4"_s << u"KUR4 KUR2"_s << true;
    QTest::newRow("none in common") << u"KUR2 KUR4"_s << u"KUR3 KUR5"_s << false;
    QTest::newRow("other case") << u"KUR2"_s << u"kur2"_s << false;
    QTest::newRow("prefix") << u"KUR20"_s << u"KUR2"_s << false;
}

void tst_RVPriceClassSet::containsOneOf()
{
    QFETCH(QString, codes);
    QFETCH(QString, others);
    QTEST(setOf(split(codes)).containsOneOf(setOf(split(others))), "expected");
}

void tst_RVPriceClassSet::containsOneOfItself()
{
    const RVPriceClassSet empty;
    QVERIFY(!empty.containsOneOf(empty));
    const RVPriceClassSet set { u"KUR2"_s, u"KUR4"_s };
    QVERIFY(set.containsOneOf(set));
    QVERIFY(set.containsOneOf(RVPriceClass(u"KUR4"_s)));
    QVERIFY(RVPriceClassSet { u""_s }.containsOneOf(RVPriceClass()));
}

void tst_RVPriceClassSet::toString_data()
{
    QTest::addColumn<QStringList>("codes");
    QTest::addColumn<QStringList>("pieces");
    QTest::newRow("empty set") << QStringList() << QStringList { u""_s };
    QTest::newRow("one") << QStringList { u"KUR2"_s } << QStringList { u"KUR2"_s };
    QTest::newRow("two") << QStringList { u"KUR2"_s, u"KUR10"_s } << QStringList { u"KUR10"_s, u"KUR2"_s };
    QTest::newRow("double") << QStringList { u"KUR2"_s, u"KUR2"_s } << QStringList { u"KUR2"_s };
    QTest::newRow("blanks") << QStringList { u" A "_s, u"B"_s } << QStringList { u" A "_s, u"B"_s };
    QTest::newRow("empty code") << QStringList { u""_s } << QStringList { u""_s };
    QTest::newRow("empty code and another") << QStringList { u""_s, u"A"_s } << QStringList { u""_s, u"A"_s };
    QTest::newRow("three") << QStringList { u"C"_s, u"A"_s, u"B"_s } << QStringList { u"A"_s, u"B"_s, u"C"_s };
}

void tst_RVPriceClassSet::toString()
{
    QFETCH(QStringList, codes);
    const RVPriceClassSet set = setOf(codes);
    const QStringList pieces = set.toString().split(u',');
    QTEST(sorted(pieces), "pieces");
    if (!set.isEmpty())
        QCOMPARE(pieces, inIterationOrder(set));
}

void tst_RVPriceClassSet::debugOutput_data()
{
    QTest::addColumn<RVPriceClassSet>("set");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty set") << RVPriceClassSet() << u""_s;
    QTest::newRow("one") << RVPriceClassSet { u"KUR2"_s } << u"\"KUR2\" "_s;
    QTest::newRow("empty code") << RVPriceClassSet { u""_s } << u"\"\" "_s;
    QTest::newRow("quote") << RVPriceClassSet { u"a\"b"_s } << u"\"a\\\"b\" "_s;
    QTest::newRow("line break") << RVPriceClassSet { u"a\nb"_s } << u"\"a\\nb\" "_s;
}

void tst_RVPriceClassSet::debugOutput()
{
    QFETCH(RVPriceClassSet, set);
    QTEST(debugText(set), "text");
}

void tst_RVPriceClassSet::debugOutputOfSeveral()
{
    const RVPriceClassSet set { u"KUR2"_s, u"VEL4"_s };
    const bool inOrder = set.constBegin()->toString() == u"KUR2"_s;
    QCOMPARE(debugText(set), inOrder ? u"\"KUR2\" \"VEL4\" "_s : u"\"VEL4\" \"KUR2\" "_s);
    QString text;
    QDebug(&text).nospace() << set << 1;
    QCOMPARE(text, inOrder ? u"\"KUR2\"\"VEL4\"1"_s : u"\"VEL4\"\"KUR2\"1"_s);
    text.clear();
    QDebug(&text).noquote() << 1 << RVPriceClassSet { u"KUR2"_s } << 2;
    QCOMPARE(text, u"1 KUR2 2 "_s);
}

QTEST_GUILESS_MAIN(tst_RVPriceClassSet)
#include "tst_RVPriceClassSet.moc"
