#include "VirtualSlot.h"

#include <RVTemplateClasses/RVEnumWrapper.h>

#include <QTest>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

enum FinishEnum : qint32 {
    FINISH_GLOSS = 1,
    FINISH_MATT = 2,
    FINISH_LINEN = 8,
    FINISH_SHINY = FINISH_GLOSS | FINISH_LINEN,
};
RV_DECLARE_ENUM_OPERATORS(FinishEnum)

enum RacedEnum : qint64 { };
enum SilentEnum : qint32 { };

enum WideEnum : qint64 {
    WIDE_LOWEST = 1,
    WIDE_MIDDLE = Q_INT64_C(0x80000000),
    WIDE_HIGHEST = Q_INT64_C(0x4000000000000000),
};
RV_DECLARE_ENUM_OPERATORS(WideEnum)

namespace {

class Finish : public RVEnumWrapper<FinishEnum>
{
public:
    Finish(FinishEnum value = FinishEnum(0)) : RVEnumWrapper(value) { }
    Finish(const QString &text) : Finish() { setValue(text); }

    void fillTable(RVEnumToStringTable<FinishEnum> *table) const override
    {
        table->insert(u"Gloss"_s, FINISH_GLOSS);
        table->insert(u"glossy"_s, FINISH_GLOSS);
        table->insert(u"matt"_s, FINISH_MATT);
        table->insert(u"linen"_s, FINISH_LINEN);
        table->insert(u"shiny"_s, FINISH_SHINY);
        table->insert(u"cloth"_s, FINISH_LINEN);
        table->defaultKeyword = u"plain"_s;
        table->defaultValue = FinishEnum(64);
    }
};

/// Fills its table slowly and counts how often that happens.
class Raced : public RVEnumWrapper<RacedEnum>
{
public:
    Raced() : RVEnumWrapper(RacedEnum(1)) { }

    void fillTable(RVEnumToStringTable<RacedEnum> *table) const override
    {
        ++fillings;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        table->insert(u"raced"_s, RacedEnum(1));
    }

    static inline std::atomic<int> fillings { 0 };
};

/// Inserts nothing into the table, and counts the calls.
class Silent : public RVEnumWrapper<SilentEnum>
{
public:
    Silent() : RVEnumWrapper(SilentEnum(1)) { }

    void fillTable(RVEnumToStringTable<SilentEnum> *) const override { ++fillings; }

    static inline int fillings = 0;
};

class Talkative : public RVEnumWrapper<SilentEnum>
{
public:
    Talkative() : RVEnumWrapper(SilentEnum(1)) { }

    void fillTable(RVEnumToStringTable<SilentEnum> *table) const override { table->insert(u"a"_s, SilentEnum(1)); }
};

class Wide : public RVEnumWrapper<WideEnum>
{
public:
    Wide(WideEnum value) : RVEnumWrapper(value) { }

    void fillTable(RVEnumToStringTable<WideEnum> *table) const override
    {
        table->insert(u"highest"_s, WIDE_HIGHEST);
        table->insert(u"middle"_s, WIDE_MIDDLE);
        table->insert(u"lowest"_s, WIDE_LOWEST);
    }
};

template<int>
struct Fresh
{
    enum Enum : qint32 { };
};

/// Each N has its own table, which was not used before.
template<int N>
class FreshWrapper : public RVEnumWrapper<typename Fresh<N>::Enum>
{
public:
    FreshWrapper() : RVEnumWrapper<typename Fresh<N>::Enum>(typename Fresh<N>::Enum(1)) { }

    void fillTable(RVEnumToStringTable<typename Fresh<N>::Enum> *table) const override
    {
        ++fillings;
        table->defaultKeyword = u"fresh"_s;
    }

    static inline int fillings = 0;
};

/// Records the virtual operation that was called last.
class Watched : public Finish
{
public:
    using Finish::exclude;
    using Finish::expandTo;
    using Finish::Finish;

    RVEnumWrapper<FinishEnum> &expandTo(FinishEnum value) override
    {
        calls += u"expandTo %1"_s.arg(int(value));
        return Finish::expandTo(value);
    }
    RVEnumWrapper<FinishEnum> &exclude(FinishEnum value) override
    {
        calls += u"exclude %1"_s.arg(int(value));
        return Finish::exclude(value);
    }

    QStringList calls;
};

Finish finish(int value)
{
    return Finish(FinishEnum(value));
}

}

class tst_RVEnumWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainWrapperKeepsTheTableFree();
    void tableWithoutKeywordsIsKept();
    void tableIsBuiltOnce();
    void countingBuildsTheTable();
    void values_data();
    void values();
    void setsValues();
    void asksForBits_data();
    void asksForBits();
    void changesBits();
    void changesReturnTheObject();
    void setsBitsThroughVirtuals();
    void togglesBits_data();
    void togglesBits();
    void togglesItself();
    void compares_data();
    void compares();
    void encodes_data();
    void encodes();
    void decodes();
    void warns();
    void listsKeywords();
    void combinesEnumerators();
    void slotOrder();
    void wideValues();
    void copies();
    void assigns();
};

// This comes first, because the table is still missing.
void tst_RVEnumWrapper::plainWrapperKeepsTheTableFree()
{
    const RVEnumWrapper<FinishEnum> plain(FINISH_MATT);
    QCOMPARE(plain.encode(), QString());
    QCOMPARE(plain.countBits(), 1);
    QCOMPARE(finish(2).encode(), u"matt"_s);
    QCOMPARE(plain.encode(), u"matt"_s);
}

void tst_RVEnumWrapper::tableWithoutKeywordsIsKept()
{
    const auto *const table = Silent().enumToStringTable();
    QCOMPARE(Silent::fillings, 1);
    QCOMPARE(table->allKnownKeywords(), QStringList());
    Silent().encode();
    QCOMPARE(Silent::fillings, 1);
    QCOMPARE(Silent().enumToStringTable(), table);
    QCOMPARE(Talkative().enumToStringTable(), table); // the class of the first object has filled it
    QCOMPARE(Talkative().encode(), QString());
    QCOMPARE(RVEnumWrapper(SilentEnum(1)).enumToStringTable(), table);
}

void tst_RVEnumWrapper::tableIsBuiltOnce()
{
    constexpr int threadCount = 8;
    std::atomic<int> ready { 0 };
    std::vector<const void *> tables(threadCount);
    std::vector<int> keywords(threadCount);
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ++ready;
            while (ready < threadCount)
                std::this_thread::yield();
            const auto *table = Raced().enumToStringTable();
            tables[i] = table;
            keywords[i] = int(table->allKnownKeywords().size());
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(Raced::fillings.load(), 1);
    for (int i = 0; i < threadCount; ++i) {
        QCOMPARE(tables[i], static_cast<const void *>(Raced().enumToStringTable()));
        QCOMPARE(keywords[i], 1);
    }
}

void tst_RVEnumWrapper::countingBuildsTheTable()
{
    FreshWrapper<0>().countBits();
    QCOMPARE(FreshWrapper<0>::fillings, 1);
    FreshWrapper<1>().hasExactlyOneBit();
    QCOMPARE(FreshWrapper<1>::fillings, 1);
    FreshWrapper<2>().isConglumerate();
    QCOMPARE(FreshWrapper<2>::fillings, 1);
    FreshWrapper<3>().splitToBits();
    QCOMPARE(FreshWrapper<3>::fillings, 1);
    FreshWrapper<4>().splitToBitsSorted();
    QCOMPARE(FreshWrapper<4>::fillings, 1);
    FreshWrapper<4>().countBits();
    QCOMPARE(FreshWrapper<4>::fillings, 1);
    QCOMPARE(FreshWrapper<4>().encode(), u"fresh"_s);
    FreshWrapper<5> toggled;
    QVERIFY(!toggled.isNull());
    toggled.toggleBits(Fresh<5>::Enum(1)); // made from a bare value, which fills nothing
    QCOMPARE(FreshWrapper<5>::fillings, 0);
    toggled.toggleBits(FreshWrapper<5>());
    QCOMPARE(FreshWrapper<5>::fillings, 1);
}

void tst_RVEnumWrapper::values_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("null");
    QTest::addColumn<int>("bits");
    QTest::addColumn<QList<int>>("split");
    QTest::newRow("none") << 0 << true << 0 << QList<int>();
    QTest::newRow("lowest bit") << 1 << false << 1 << QList<int> { 1 };
    QTest::newRow("highest bit") << 0x40000000 << false << 1 << QList<int> { 0x40000000 };
    QTest::newRow("two bits") << 10 << false << 2 << QList<int> { 2, 8 };
    QTest::newRow("three bits") << 0x40000003 << false << 3 << QList<int> { 1, 2, 0x40000000 };
    QTest::newRow("negative") << -1 << false << 0 << QList<int>();
    QTest::newRow("smallest") << int(0x80000000) << false << 0 << QList<int>();
}

void tst_RVEnumWrapper::values()
{
    QFETCH(int, value);
    QFETCH(bool, null);
    QFETCH(int, bits);
    const Finish tested = finish(value);
    QCOMPARE(int(tested.value()), value);
    QCOMPARE(tested.isNull(), null);
    QCOMPARE(tested.isValid(), !null);
    QCOMPARE(tested.countBits(), bits);
    QCOMPARE(tested.hasExactlyOneBit(), bits == 1);
    QCOMPARE(tested.isConglumerate(), bits > 1);
    QList<int> sorted;
    for (const FinishEnum bit : tested.splitToBitsSorted())
        sorted += bit;
    QTEST(sorted, "split");
    QList<int> unsorted;
    const QSet<FinishEnum> singleBits = tested.splitToBits();
    for (const FinishEnum bit : singleBits)
        unsorted += bit;
    std::sort(unsorted.begin(), unsorted.end());
    QTEST(unsorted, "split");
}

void tst_RVEnumWrapper::setsValues()
{
    Finish tested;
    tested.setValue(FINISH_LINEN);
    QCOMPARE(tested.value(), FINISH_LINEN);
    QCOMPARE(int(tested.setValue(u" GLOSSY ,Matt"_s)), 3);
    QCOMPARE(int(tested.value()), 3);
    QCOMPARE(int(tested.setValue(u"velvet"_s)), 64);
    QCOMPARE(int(tested.value()), 64);
    QCOMPARE(int(Finish(u"shiny"_s).value()), 9);
}

void tst_RVEnumWrapper::asksForBits_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("other");
    QTest::addColumn<bool>("has");
    QTest::addColumn<bool>("matches");
    QTest::addColumn<bool>("containsAll");
    QTest::newRow("equal") << 3 << 3 << true << true << true;
    QTest::newRow("one common") << 3 << 6 << false << true << false;
    QTest::newRow("part") << 3 << 2 << false << true << true;
    QTest::newRow("whole") << 2 << 3 << false << true << false;
    QTest::newRow("none common") << 3 << 4 << false << false << false;
    QTest::newRow("no bits asked for") << 3 << 0 << false << false << true;
    QTest::newRow("no bits on both sides") << 0 << 0 << true << false << true;
    QTest::newRow("negative") << -1 << 8 << false << true << true;
    QTest::newRow("sign bit") << -1 << int(0x80000000) << false << true << true;
    QTest::newRow("all bits") << 3 << -1 << false << true << false;
}

void tst_RVEnumWrapper::asksForBits()
{
    QFETCH(int, value);
    QFETCH(int, other);
    QTEST(finish(value).hasValue(FinishEnum(other)), "has");
    QTEST(finish(value).matches(FinishEnum(other)), "matches");
    QTEST(finish(value).matches(finish(other)), "matches");
    QTEST(finish(value).containsAll(FinishEnum(other)), "containsAll");
    QTEST(finish(value).containsAll(finish(other)), "containsAll");
}

void tst_RVEnumWrapper::changesBits()
{
    QCOMPARE(int((finish(3) |= FinishEnum(6)).value()), 7);
    QCOMPARE(int((finish(3) |= finish(6)).value()), 7);
    QCOMPARE(int((finish(3) &= FinishEnum(6)).value()), 2);
    QCOMPARE(int((finish(3) &= finish(6)).value()), 2);
    QCOMPARE(int(finish(3) | finish(6)), 7);
    QCOMPARE(int(finish(3) & finish(6)), 2);
    QCOMPARE(int(finish(3).exclude(FinishEnum(6)).value()), 1);
    QCOMPARE(int(finish(3).exclude(finish(6)).value()), 1);
    QCOMPARE(int(finish(3).expandTo(FinishEnum(6)).value()), 7);
    QCOMPARE(int(finish(3).expandTo(finish(6)).value()), 7);
    QCOMPARE(int(finish(3).reduceTo(FinishEnum(6)).value()), 2);
    QCOMPARE(int(finish(1).setBit(FinishEnum(2), true).value()), 3);
    QCOMPARE(int(finish(3).setBit(FinishEnum(2), false).value()), 1);
    QCOMPARE(int(finish(1).setBit(FinishEnum(2), false).value()), 1);
    const Finish unchanged = finish(3);
    QCOMPARE(int(unchanged.reducedTo(FinishEnum(6))), 2);
    QCOMPARE(int(unchanged.value()), 3);
    Finish self = finish(3);
    QCOMPARE(int(self.exclude(self).value()), 0);
}

void tst_RVEnumWrapper::changesReturnTheObject()
{
    Finish tested = finish(3);
    QCOMPARE(&(tested |= FinishEnum(4)), &tested);
    QCOMPARE(&(tested &= tested), &tested);
    QCOMPARE(&tested.exclude(FinishEnum(4)), &tested);
    QCOMPARE(&tested.expandTo(FinishEnum(4)), &tested);
    QCOMPARE(&tested.reduceTo(FinishEnum(7)), &tested);
    QCOMPARE(&tested.setBit(FinishEnum(4), true), &tested);
    QCOMPARE(&tested.toggleBits(finish(4)), &tested);
}

void tst_RVEnumWrapper::setsBitsThroughVirtuals()
{
    Watched tested(FINISH_MATT);
    tested.setBit(FINISH_GLOSS, true);
    tested.setBit(FINISH_MATT, false);
    tested.expandTo(finish(12));
    QCOMPARE(tested.calls, (QStringList { u"expandTo 1"_s, u"exclude 2"_s, u"expandTo 12"_s }));
    tested.calls.clear();
    tested.toggleBits(finish(3));
    tested.calls.sort();
    QCOMPARE(tested.calls, (QStringList { u"exclude 1"_s, u"expandTo 2"_s }));
}

void tst_RVEnumWrapper::togglesBits_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("result");
    QTest::newRow("one of two set") << 1 << 3 << 2;
    QTest::newRow("none set") << 4 << 3 << 7;
    QTest::newRow("all set") << 7 << 3 << 4;
    QTest::newRow("nothing") << 5 << 0 << 5;
    QTest::newRow("negative") << 5 << -1 << 5;
}

void tst_RVEnumWrapper::togglesBits()
{
    QFETCH(int, value);
    QFETCH(int, other);
    QTEST(int(finish(value).toggleBits(finish(other)).value()), "result");
}

void tst_RVEnumWrapper::togglesItself()
{
    Finish tested = finish(11);
    tested.toggleBits(tested);
    QVERIFY(tested.isNull());
}

void tst_RVEnumWrapper::compares_data()
{
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("order");
    QTest::newRow("less") << 2 << 3 << -1;
    QTest::newRow("equal") << 3 << 3 << 0;
    QTest::newRow("greater") << 8 << 3 << 1;
    QTest::newRow("signed") << -1 << 0 << -1;
}

void tst_RVEnumWrapper::compares()
{
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, order);
    const Finish first = finish(a);
    const Finish second = finish(b);
    QCOMPARE(first == second, order == 0);
    QCOMPARE(first == FinishEnum(b), order == 0);
    QCOMPARE(first != second, order != 0);
    QCOMPARE(first != FinishEnum(b), order != 0);
    QCOMPARE(first < second, order < 0);
    QCOMPARE(first <= second, order <= 0);
    QCOMPARE(first > second, order > 0);
}

void tst_RVEnumWrapper::encodes_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QString>("csv");
    QTest::addColumn<QStringList>("list");
    QTest::newRow("bit") << 1 << u"Gloss"_s << u"Gloss"_s << QStringList { u"Gloss"_s };
    QTest::newRow("named combination") << 9 << u"shiny"_s << u"Gloss, linen"_s
                                       << QStringList { u"Gloss"_s, u"linen"_s };
    QTest::newRow("unnamed combination") << 3 << u"plain"_s << u"Gloss, matt"_s
                                         << QStringList { u"Gloss"_s, u"matt"_s };
    QTest::newRow("none") << 0 << u"plain"_s << u"plain"_s << QStringList();
    QTest::newRow("negative") << -1 << u"plain"_s << u"plain"_s << QStringList();
}

void tst_RVEnumWrapper::encodes()
{
    QFETCH(int, value);
    QTEST(finish(value).encode(), "exact");
    QTEST(finish(value).encodeCSV(), "csv");
    QTEST(finish(value).encodeBits(), "list");
}

void tst_RVEnumWrapper::decodes()
{
    const Finish tested = finish(2);
    QCOMPARE(int(tested.decodeCSV(u"gloss,linen"_s)), 9);
    QCOMPARE(int(tested.decodeOneElement(u" LINEN"_s)), 8);
    QCOMPARE(int(tested.value()), 2);
}

void tst_RVEnumWrapper::warns()
{
    QTest::ignoreMessage(QtWarningMsg, "undecodable: \"velvet\" (using default in 10FinishEnum )");
    QCOMPARE(int(finish(0).decodeOneElement(u"velvet"_s)), 64);
    QTest::failOnWarning(QRegularExpression(u"."_s));
    QCOMPARE(int(finish(0).decodeOneElement(u""_s)), 64);
    QCOMPARE(int(finish(0).decodeCSV(u"velvet"_s)), 64);
}

void tst_RVEnumWrapper::listsKeywords()
{
    QStringList known = Finish().allKnownKeywords();
    known.sort();
    QCOMPARE(known, (QStringList { u"cloth"_s, u"gloss"_s, u"glossy"_s, u"linen"_s, u"matt"_s, u"shiny"_s }));
    QList<FinishEnum> values = Finish().allKnownEnumValues();
    std::sort(values.begin(), values.end());
    QCOMPARE(values, (QList<FinishEnum> { FINISH_GLOSS, FINISH_MATT, FINISH_LINEN, FINISH_SHINY }));
    QCOMPARE(finish(9).allPossibleKeywords(), (QStringList { u"gloss"_s, u"glossy"_s, u"cloth"_s, u"linen"_s }));
    QCOMPARE(finish(9).allPossibleKeywordsOneElement(), QStringList { u"shiny"_s });
    QCOMPARE(finish(8).allPossibleKeywordsOneElement(), (QStringList { u"cloth"_s, u"linen"_s }));
    QVERIFY(finish(3).allPossibleKeywordsOneElement().isEmpty());
}

void tst_RVEnumWrapper::combinesEnumerators()
{
    constexpr FinishEnum either = FINISH_GLOSS | FINISH_MATT;
    static_assert(either == FinishEnum(3));
    static_assert((either & FINISH_MATT) == FINISH_MATT);
    static_assert((either & ~FINISH_MATT) == FINISH_GLOSS);
    FinishEnum changed = FINISH_GLOSS;
    changed |= FINISH_LINEN;
    QCOMPARE(int(changed), 9);
    changed |= FINISH_LINEN;
    QCOMPARE(int(changed), 9);
    changed &= FINISH_LINEN | FINISH_MATT;
    QCOMPARE(int(changed), 8);
}

// Applications were compiled against this order.
void tst_RVEnumWrapper::slotOrder()
{
    using W = RVEnumWrapper<FinishEnum>;
    using E = FinishEnum;
    int next = 2; // behind the two destructors
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(const W &) const>(&W::operator<)), next++);
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(const W &) const>(&W::operator<=)), next++);
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(const W &) const>(&W::operator>)), next++);
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(const W &) const>(&W::operator==)), next++);
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(E) const>(&W::operator==)), next++);
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(const W &) const>(&W::operator!=)), next++);
    QCOMPARE(virtualSlot(static_cast<bool (W::*)(E) const>(&W::operator!=)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(const W &)>(&W::operator|=)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(E)>(&W::operator|=)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(const W &)>(&W::operator&=)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(E)>(&W::operator&=)), next++);
    QCOMPARE(virtualSlot(static_cast<E (W::*)(const W &) const>(&W::operator&)), next++);
    QCOMPARE(virtualSlot(static_cast<E (W::*)(const W &) const>(&W::operator|)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(const W &)>(&W::exclude)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(E)>(&W::exclude)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(const W &)>(&W::expandTo)), next++);
    QCOMPARE(virtualSlot(static_cast<W &(W::*)(E)>(&W::expandTo)), next++);
    QCOMPARE(virtualSlot(&W::reduceTo), next++);
    QCOMPARE(virtualSlot(&W::reducedTo), next++);
    QCOMPARE(virtualSlot(&W::isValid), next++);
    QCOMPARE(virtualSlot(&W::fillTable), next++);
    QCOMPARE(sizeof(W), 2 * sizeof(void *));
}

void tst_RVEnumWrapper::wideValues()
{
    const Wide wide(WIDE_LOWEST | WIDE_MIDDLE | WIDE_HIGHEST);
    QCOMPARE(wide.countBits(), 3);
    QVERIFY(wide.isConglumerate());
    QCOMPARE(wide.splitToBitsSorted(), (QList<WideEnum> { WIDE_LOWEST, WIDE_MIDDLE, WIDE_HIGHEST }));
    QCOMPARE(wide.encodeCSV(), u"lowest, middle, highest"_s);
    QCOMPARE(wide.decodeCSV(u"highest,lowest"_s), WideEnum(Q_INT64_C(0x4000000000000001)));
    QVERIFY(Wide(WIDE_MIDDLE).hasExactlyOneBit());
    QVERIFY(Wide(WIDE_HIGHEST).hasExactlyOneBit());
    QCOMPARE(Wide(WIDE_HIGHEST).encode(), u"highest"_s);
    QVERIFY(Wide(WIDE_HIGHEST).isValid());
    QVERIFY(!Wide(WIDE_HIGHEST).isNull());
    QVERIFY(wide.matches(WIDE_HIGHEST));
    QVERIFY(!Wide(WIDE_LOWEST).matches(WIDE_HIGHEST));
    QVERIFY(!Wide(WIDE_LOWEST).containsAll(WIDE_LOWEST | WIDE_HIGHEST));
    QVERIFY(Wide(WIDE_MIDDLE) < Wide(WIDE_HIGHEST));
    QVERIFY(Wide(WIDE_LOWEST) < Wide(WIDE_MIDDLE));
    QVERIFY(Wide(WIDE_HIGHEST) != Wide(WideEnum(0)));
    QVERIFY(Wide(WIDE_HIGHEST) != WideEnum(0));
    Wide changed = wide;
    changed.exclude(WIDE_MIDDLE);
    QCOMPARE(changed.value(), WideEnum(Q_INT64_C(0x4000000000000001)));
    changed.toggleBits(wide);
    QCOMPARE(changed.value(), WIDE_MIDDLE);
    changed |= Wide(WIDE_HIGHEST);
    QCOMPARE(changed.value(), WideEnum(Q_INT64_C(0x4000000080000000)));
}

void tst_RVEnumWrapper::copies()
{
    Finish first = finish(3);
    const Finish copy = first;
    first |= FinishEnum(4);
    QCOMPARE(int(copy.value()), 3);
    const Finish moved = std::move(first);
    QCOMPARE(int(moved.value()), 7);
}

void tst_RVEnumWrapper::assigns()
{
    const Finish source = finish(3);
    Finish target = finish(8);
    target = source;
    QCOMPARE(int(target.value()), 3);
    target.exclude(FINISH_MATT);
    QCOMPARE(int(source.value()), 3);
    target = finish(10);
    QCOMPARE(int(target.value()), 10);
    const Finish &self = target;
    target = self;
    QCOMPARE(int(target.value()), 10);
}

QTEST_APPLESS_MAIN(tst_RVEnumWrapper)
#include "tst_RVEnumWrapper.moc"
