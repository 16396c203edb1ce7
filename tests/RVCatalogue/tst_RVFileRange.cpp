#include <RVCatalogue/RVFileRange.h>

#include <QTest>
#include <QTypeInfo>

#include <type_traits>

class tst_RVFileRange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsEmptyAtTheBeginOfTheFile();
    void isPlainValue();
    void compares_data();
    void compares();
};

void tst_RVFileRange::defaultIsEmptyAtTheBeginOfTheFile()
{
    const RVFileRange range;
    QCOMPARE(range.begin, RVFilePosition({ 1, 1 }));
    QCOMPARE(range.end, RVFilePosition({ 1, 1 }));
}

void tst_RVFileRange::isPlainValue()
{
    QVERIFY(std::is_trivially_copyable_v<RVFileRange>);
    QVERIFY(!QTypeInfo<RVFileRange>::isComplex);
    constexpr RVFileRange range { { 2, 7 }, { 3, 1 } };
    static_assert(range == RVFileRange { { 2, 7 }, { 3, 1 } } && range != RVFileRange());
    QCOMPARE(range.begin.line, 2);
    QCOMPARE(range.begin.column, 7);
    QCOMPARE(range.end.line, 3);
    QCOMPARE(range.end.column, 1);
}

void tst_RVFileRange::compares_data()
{
    QTest::addColumn<RVFileRange>("other");
    QTest::addColumn<bool>("equal");
    QTest::newRow("equal") << RVFileRange { { 2, 7 }, { 3, 1 } } << true;
    QTest::newRow("line of the begin") << RVFileRange { { 1, 7 }, { 3, 1 } } << false;
    QTest::newRow("column of the begin") << RVFileRange { { 2, 8 }, { 3, 1 } } << false;
    QTest::newRow("line of the end") << RVFileRange { { 2, 7 }, { 4, 1 } } << false;
    QTest::newRow("column of the end") << RVFileRange { { 2, 7 }, { 3, 2 } } << false;
    QTest::newRow("begin and end swapped") << RVFileRange { { 3, 1 }, { 2, 7 } } << false;
}

void tst_RVFileRange::compares()
{
    QFETCH(RVFileRange, other);
    QFETCH(bool, equal);
    const RVFileRange range { { 2, 7 }, { 3, 1 } };
    QCOMPARE(range == other, equal);
    QCOMPARE(other == range, equal);
    QCOMPARE(range != other, !equal);
}

QTEST_GUILESS_MAIN(tst_RVFileRange)
#include "tst_RVFileRange.moc"
