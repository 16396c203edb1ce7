#include "MessageLog.h"

#include <RVTemplateClasses/RVEnumToStringTable.h>

#include <QTest>

#include <algorithm>
#include <type_traits>
#include <utility>

using namespace Qt::StringLiterals;

enum FinishEnum : qint32 {
    FINISH_GLOSS = 1,
    FINISH_MATT = 2,
    FINISH_LINEN = 8,
    FINISH_SHINY = FINISH_GLOSS | FINISH_LINEN,
};

enum WideEnum : qint64 { };

namespace {

using Table = RVEnumToStringTable<FinishEnum>;

static_assert(std::is_same_v<decltype(&Table::splitToBitsSorted), QList<FinishEnum> (Table::*)(FinishEnum) const>);

Table filledTable()
{
    Table table;
    table.insert(u"Glossy"_s, FINISH_GLOSS);
    table.insert(u"GLOSS"_s, FINISH_GLOSS);
    table.insert(u"matt"_s, FINISH_MATT);
    table.insert(u"Linen"_s, FINISH_LINEN);
    table.insert(u"shiny"_s, FINISH_SHINY);
    table.insert(u"fabric"_s, FINISH_LINEN);
    table.insert(u"a cloth"_s, FINISH_LINEN);
    table.defaultKeyword = u"plain"_s;
    table.defaultValue = FinishEnum(64);
    return table;
}

template<typename List>
List sorted(List list)
{
    std::sort(list.begin(), list.end());
    return list;
}

}

class tst_RVEnumToStringTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyTable();
    void decodes_data();
    void decodes();
    void replacesKeywords();
    void doesNotTrimOnInsert();
    void decodesOneElement_data();
    void decodesOneElement();
    void decodesValuesBelowOne_data();
    void decodesValuesBelowOne();
    void decodesLists_data();
    void decodesLists();
    void decodesSilently();
    void encodes_data();
    void encodes();
    void encodesKeywordsOfAnyLength();
    void insertsIntoAnOptimizedTable();
    void splits_data();
    void splits();
    void splitsWideValues();
    void possibleKeywords_data();
    void possibleKeywords();
    void sortsKeywordsByCodeUnits();
    void knownKeywords();
    void isUntouched();
    void copies();
    void isWholeAfterAMove();
};

void tst_RVEnumToStringTable::emptyTable()
{
    const Table table;
    QVERIFY(table.defaultKeyword.isEmpty());
    QCOMPARE(int(table.defaultValue), 0);
    QCOMPARE(int(table.decode(u"matt"_s, FINISH_LINEN)), 8);
    QCOMPARE(int(table.decodeCSV(u"matt"_s)), 0);
    QCOMPARE(table.encode(FINISH_MATT), QString());
    QCOMPARE(table.encodeCSV(FINISH_MATT), QString());
    QCOMPARE(table.encodeAsList(FinishEnum(3)), (QStringList { QString(), QString() }));
    QVERIFY(table.allPossibleKeywords(FINISH_MATT).isEmpty());
    QVERIFY(table.allKnownKeywords().isEmpty());
    QVERIFY(table.allKnownEnumValues().isEmpty());
}

void tst_RVEnumToStringTable::decodes_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<int>("value");
    QTest::newRow("as inserted") << u"Glossy"_s << 1;
    QTest::newRow("alias") << u"GLOSS"_s << 1;
    QTest::newRow("other letter case") << u"gLoSsY"_s << 1;
    QTest::newRow("blanks around") << u" \tmatt \n"_s << 2;
    QTest::newRow("combination") << u"shiny"_s << 9;
    QTest::newRow("blank inside") << u"A Cloth"_s << 8;
    QTest::newRow("two blanks inside") << u"a  cloth"_s << 32;
    QTest::newRow("unknown") << u"velvet"_s << 32;
    QTest::newRow("empty") << u""_s << 32;
    QTest::newRow("null") << QString() << 32;
    QTest::newRow("list") << u"matt,linen"_s << 32;
    QTest::newRow("default keyword is no keyword") << u"plain"_s << 32;
}

void tst_RVEnumToStringTable::decodes()
{
    QFETCH(QString, keyword);
    QTEST(int(filledTable().decode(keyword, FinishEnum(32))), "value");
}

void tst_RVEnumToStringTable::replacesKeywords()
{
    Table table = filledTable();
    table.insert(u"MATT"_s, FinishEnum(4));
    QCOMPARE(int(table.decode(u"matt"_s, FinishEnum(32))), 4);
    QCOMPARE(table.encode(FinishEnum(4)), u"MATT"_s);
    QCOMPARE(table.encode(FINISH_MATT), u"matt"_s);
    QCOMPARE(table.allKnownKeywords().size(), 7);
}

void tst_RVEnumToStringTable::doesNotTrimOnInsert()
{
    Table table;
    table.insert(u" matt"_s, FINISH_MATT);
    QCOMPARE(int(table.decode(u" matt"_s, FinishEnum(32))), 32);
    QCOMPARE(table.encode(FINISH_MATT), u" matt"_s);
}

void tst_RVEnumToStringTable::decodesOneElement_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<bool>("warn");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("warnings");
    const QString place = u"warning default libs/RVTemplateClasses/RVEnumToStringTable:186 ENUM "
                          "RVEnumToStringTable<ENUM>::decodeOneElement(const QString&, bool) const "
                          "[with ENUM = FinishEnum]: "_s;
    const auto warning = [&place](const QString &keyword) {
        return QStringList { place + u"undecodable: \"%1\" (using default in 10FinishEnum )"_s.arg(keyword) };
    };
    QTest::newRow("known") << u" MATT "_s << true << 2 << QStringList();
    QTest::newRow("unknown") << u"xyz"_s << true << 64 << warning(u"xyz"_s);
    QTest::newRow("unknown, without a warning") << u"xyz"_s << false << 64 << QStringList();
    QTest::newRow("empty") << u""_s << true << 64 << QStringList();
    QTest::newRow("null") << QString() << true << 64 << QStringList();
    QTest::newRow("blanks only") << u"  "_s << true << 64 << warning(u"  "_s);
    QTest::newRow("a list is one keyword") << u"matt,gloss"_s << true << 64 << warning(u"matt,gloss"_s);
}

void tst_RVEnumToStringTable::decodesOneElement()
{
    QFETCH(QString, keyword);
    QFETCH(bool, warn);
    const MessageLog log;
    QTEST(int(filledTable().decodeOneElement(keyword, warn)), "value");
    QTEST(log.lines(), "warnings");
}

void tst_RVEnumToStringTable::decodesValuesBelowOne_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<int>("value");
    QTest::newRow("zero") << u"none"_s << 0;
    QTest::newRow("minus one") << u"any"_s << -1;
    QTest::newRow("smallest") << u"sign"_s << int(0x80000000);
}

void tst_RVEnumToStringTable::decodesValuesBelowOne()
{
    QFETCH(QString, keyword);
    Table table = filledTable();
    table.insert(u"none"_s, FinishEnum(0));
    table.insert(u"any"_s, FinishEnum(-1));
    table.insert(u"sign"_s, FinishEnum(0x80000000));
    const MessageLog log;
    QTEST(int(table.decode(keyword, FINISH_MATT)), "value");
    QTEST(int(table.decodeOneElement(keyword, true)), "value");
    QTEST(int(table.decodeCSV(keyword)), "value");
    QCOMPARE(log.lines(), QStringList());
}

void tst_RVEnumToStringTable::decodesLists_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("one") << u"matt"_s << 2;
    QTest::newRow("two") << u"matt, GLOSS"_s << 3;
    QTest::newRow("blanks everywhere") << u" matt ,\tlinen "_s << 10;
    QTest::newRow("twice the same") << u"matt,matt"_s << 2;
    QTest::newRow("combination and bit") << u"shiny,matt"_s << 11;
    QTest::newRow("empty") << u""_s << 64;
    QTest::newRow("null") << QString() << 64;
    QTest::newRow("unknown") << u"velvet"_s << 64;
    QTest::newRow("known and unknown") << u"matt,velvet"_s << 66;
    QTest::newRow("empty part between") << u"matt,,gloss"_s << 67;
    QTest::newRow("trailing comma") << u"matt,"_s << 66;
    QTest::newRow("semicolon is no separator") << u"matt;gloss"_s << 64;
    QTest::newRow("blank is no separator") << u"matt gloss"_s << 64;
}

void tst_RVEnumToStringTable::decodesLists()
{
    QFETCH(QString, text);
    QTEST(int(filledTable().decodeCSV(text)), "value");
}

void tst_RVEnumToStringTable::decodesSilently()
{
    const MessageLog log;
    filledTable().decodeCSV(u"velvet,,silk"_s);
    filledTable().decode(u"velvet"_s, FINISH_MATT);
    QCOMPARE(log.lines(), QStringList());
}

void tst_RVEnumToStringTable::encodes_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("exact");
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QString>("csv");
    QTest::newRow("first keyword in its letter case") << 1 << u"Glossy"_s << QStringList { u"Glossy"_s } << u"Glossy"_s;
    QTest::newRow("unnamed combination, lowest bit first")
            << 3 << u"plain"_s << QStringList { u"Glossy"_s, u"matt"_s } << u"Glossy, matt"_s;
    QTest::newRow("named combination") << 9 << u"shiny"_s << QStringList { u"Glossy"_s, u"Linen"_s }
                                       << u"Glossy, Linen"_s;
    QTest::newRow("bit without a keyword") << 4 << u"plain"_s << QStringList { u"plain"_s } << u"plain"_s;
    QTest::newRow("bit without a keyword between")
            << 14 << u"plain"_s << QStringList { u"matt"_s, u"plain"_s, u"Linen"_s } << u"matt, plain, Linen"_s;
    QTest::newRow("none") << 0 << u"plain"_s << QStringList() << u"plain"_s;
    QTest::newRow("negative") << -1 << u"plain"_s << QStringList() << u"plain"_s;
}

void tst_RVEnumToStringTable::encodes()
{
    QFETCH(int, value);
    QTEST(filledTable().encode(FinishEnum(value)), "exact");
    QTEST(filledTable().encodeAsList(FinishEnum(value)), "list");
    QTEST(filledTable().encodeCSV(FinishEnum(value)), "csv");
    Table optimized = filledTable();
    optimized.optimize();
    QTEST(optimized.encode(FinishEnum(value)), "exact");
    QTEST(optimized.encodeCSV(FinishEnum(value)), "csv");
    QVERIFY(Table().encodeCSV(FINISH_MATT).isNull());
}

// Different letters show that each is in its place, and a neighbour behind them shows that there are not too many.
void tst_RVEnumToStringTable::encodesKeywordsOfAnyLength()
{
    const QString letters = u"abcdefghijklmnopqrstuvwxyz"_s;
    for (int length = 0; length <= letters.size(); ++length) {
        for (int next = 0; next <= letters.size(); ++next) {
            Table table;
            table.insert(letters.left(length), FINISH_GLOSS);
            table.insert(letters.right(next), FINISH_MATT);
            QCOMPARE(table.encodeCSV(FinishEnum(FINISH_GLOSS | FINISH_MATT)),
                     letters.left(length) + u", "_s + letters.right(next));
        }
    }
}

void tst_RVEnumToStringTable::insertsIntoAnOptimizedTable()
{
    Table table = filledTable();
    table.optimize();
    QCOMPARE(table.decode(u"matt"_s, FinishEnum(-7)), FINISH_MATT);
    table.insert(u"silk"_s, FinishEnum(4));
    QCOMPARE(table.decode(u"silk"_s, FinishEnum(-7)), FinishEnum(4));
    QCOMPARE(table.encode(FinishEnum(4)), u"silk"_s);
    table.optimize();
    table.insert(u"matt"_s, FINISH_GLOSS);
    QCOMPARE(table.decode(u"matt"_s, FinishEnum(-7)), FINISH_GLOSS);
    QCOMPARE(table.encode(FINISH_MATT), u"matt"_s);
}

void tst_RVEnumToStringTable::splits_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QList<int>>("bits");
    QTest::newRow("none") << 0 << QList<int>();
    QTest::newRow("negative") << -1 << QList<int>();
    QTest::newRow("smallest") << int(0x80000000) << QList<int>();
    QTest::newRow("lowest") << 1 << QList<int> { 1 };
    QTest::newRow("highest") << 0x40000000 << QList<int> { 0x40000000 };
    QTest::newRow("several") << 0x40000013 << QList<int> { 1, 2, 16, 0x40000000 };
}

void tst_RVEnumToStringTable::splits()
{
    QFETCH(int, value);
    QList<int> bits;
    for (const FinishEnum bit : Table().splitToBitsSorted(FinishEnum(value)))
        bits += bit;
    QTEST(bits, "bits");
}

void tst_RVEnumToStringTable::splitsWideValues()
{
    const QList<WideEnum> bits = RVEnumToStringTable<WideEnum>().splitToBitsSorted(
            WideEnum(Q_INT64_C(0x4000000080000001)));
    QCOMPARE(bits, (QList<WideEnum> { WideEnum(1), WideEnum(0x80000000), WideEnum(Q_INT64_C(0x4000000000000000)) }));
}

void tst_RVEnumToStringTable::possibleKeywords_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("keywords");
    QTest::newRow("one bit, sorted") << 8 << QStringList { u"a cloth"_s, u"fabric"_s, u"linen"_s };
    QTest::newRow("lower bit first") << 9
                                     << QStringList { u"gloss"_s, u"glossy"_s, u"a cloth"_s, u"fabric"_s, u"linen"_s };
    QTest::newRow("unknown bit") << 4 << QStringList();
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("negative") << -1 << QStringList();
}

void tst_RVEnumToStringTable::possibleKeywords()
{
    QFETCH(int, value);
    QTEST(filledTable().allPossibleKeywords(FinishEnum(value)), "keywords");
}

void tst_RVEnumToStringTable::sortsKeywordsByCodeUnits()
{
    Table table;
    for (const QString &keyword : { u"zinc"_s, u"äther"_s, u"a_b"_s, u"a1"_s, u"a b"_s, u"Ab"_s })
        table.insert(keyword, FINISH_MATT);
    const QStringList expected = { u"a b"_s, u"a1"_s, u"a_b"_s, u"ab"_s, u"zinc"_s, u"äther"_s };
    QCOMPARE(table.allPossibleKeywords(FINISH_MATT), expected);
    QCOMPARE(table.keywords(FINISH_MATT), expected);
}

void tst_RVEnumToStringTable::knownKeywords()
{
    QCOMPARE(sorted(filledTable().allKnownKeywords()),
             (QStringList { u"a cloth"_s, u"fabric"_s, u"gloss"_s, u"glossy"_s, u"linen"_s, u"matt"_s, u"shiny"_s }));
    QCOMPARE(sorted(filledTable().allKnownEnumValues()),
             (QList<FinishEnum> { FINISH_GLOSS, FINISH_MATT, FINISH_LINEN, FINISH_SHINY }));
}

void tst_RVEnumToStringTable::isUntouched()
{
    QVERIFY(Table().isUntouched());
    Table withKeyword;
    withKeyword.insert(u""_s, FinishEnum(0));
    QVERIFY(!withKeyword.isUntouched());
    Table withDefaultKeyword;
    withDefaultKeyword.defaultKeyword = u""_s;
    QVERIFY(!withDefaultKeyword.isUntouched());
    Table withDefaultValue;
    withDefaultValue.defaultValue = FinishEnum(-1);
    QVERIFY(!withDefaultValue.isUntouched());
}

void tst_RVEnumToStringTable::copies()
{
    Table table = filledTable();
    const Table copy = table;
    table.insert(u"matt"_s, FinishEnum(4));
    table.defaultKeyword = u"changed"_s;
    table.defaultValue = FINISH_MATT;
    QCOMPARE(int(copy.decode(u"matt"_s, FinishEnum(32))), 2);
    QCOMPARE(copy.encode(FinishEnum(4)), u"plain"_s);
    QCOMPARE(int(copy.decodeCSV(u"velvet"_s)), 64);
}

void tst_RVEnumToStringTable::isWholeAfterAMove()
{
    Table table = filledTable();
    table.optimize();
    const Table taken = std::move(table);
    for (const Table *each : { &std::as_const(table), &taken }) {
        const bool isKnown = each->decode(u"matt"_s, FinishEnum(32)) == FINISH_MATT;
        QCOMPARE(each->encode(FINISH_MATT), isKnown ? u"matt"_s : each->defaultKeyword);
        QCOMPARE(each->encodeCSV(FINISH_MATT), each->encode(FINISH_MATT));
        QCOMPARE(each->allKnownKeywords().contains(u"matt"_s), isKnown);
    }
    QCOMPARE(taken.encode(FINISH_MATT), u"matt"_s);
}

QTEST_APPLESS_MAIN(tst_RVEnumToStringTable)
#include "tst_RVEnumToStringTable.moc"
