#include <RVCatalogue/RVFilePosition.h>

#include <QTest>
#include <QTypeInfo>

#include <type_traits>

class tst_RVFilePosition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsTheBeginOfTheFile();
    void isPlainValue();
    void compares_data();
    void compares();
};

void tst_RVFilePosition::defaultIsTheBeginOfTheFile()
{
    const RVFilePosition position;
    QCOMPARE(position.line, 1);
    QCOMPARE(position.column, 1);
}

void tst_RVFilePosition::isPlainValue()
{
    QVERIFY(std::is_trivially_copyable_v<RVFilePosition>);
    QVERIFY(!QTypeInfo<RVFilePosition>::isComplex);
    constexpr RVFilePosition place { 2, 7 };
    static_assert(place == RVFilePosition { 2, 7 } && place != RVFilePosition() && RVFilePosition() < place);
    QCOMPARE(place.line, 2);
    QCOMPARE(place.column, 7);
}

void tst_RVFilePosition::compares_data()
{
    QTest::addColumn<qint64>("line");
    QTest::addColumn<qint64>("column");
    QTest::addColumn<int>("order"); // of 5:10 beside it: -1 before, 0 the same, 1 behind
    const auto row = [](const char *name, qint64 line, qint64 column, int order) {
        QTest::newRow(name) << line << column << order;
    };
    row("same place", 5, 10, 0);
    row("column before", 5, 9, 1);
    row("column behind", 5, 11, -1);
    row("line before, column behind", 4, 11, 1);
    row("line behind, column before", 6, 1, -1);
    row("line behind, same column", 6, 10, -1);
    row("more than 32 bits", (Q_INT64_C(1) << 32) + 5, 10, -1);
    row("column of more than 32 bits", 5, (Q_INT64_C(1) << 32) + 10, -1);
}

void tst_RVFilePosition::compares()
{
    QFETCH(qint64, line);
    QFETCH(qint64, column);
    QFETCH(int, order);
    const RVFilePosition position { 5, 10 };
    const RVFilePosition other { line, column };
    QCOMPARE(position == other, order == 0);
    QCOMPARE(position != other, order != 0);
    QCOMPARE(position < other, order < 0);
    QCOMPARE(other < position, order > 0);
}

QTEST_GUILESS_MAIN(tst_RVFilePosition)
#include "tst_RVFilePosition.moc"
