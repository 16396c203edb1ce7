#include <RVFirstLines_p.h>

#include <QTest>

#include <limits>

class tst_RVFirstLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void first();
    void extremes_data();
    void extremes();
    void spacedOut_data();
    void spacedOut();
    void memoryOfAMillion();
};

namespace {

constexpr quint64 GOLDEN_RATIO = 0x9e37'79b9'7f4a'7c15;

/// As good as random, as the hashes of texts are, and never the same for two numbers.
quint64 scattered(quint32 number)
{
    const quint64 mixed = number * GOLDEN_RATIO;
    return (mixed ^ (mixed >> 29)) * GOLDEN_RATIO;
}

}

void tst_RVFirstLines::first()
{
    RVFirstLines<quint32> lines;
    QCOMPARE(lines.insert(7, 3), 0U);
    QCOMPARE(lines.insert(8, 4), 0U);
    QCOMPARE(lines.insert(7, 5), 3U);
    QCOMPARE(lines.insert(7, 6), 3U);
    QCOMPARE(lines.insert(8, 7), 4U);
}

void tst_RVFirstLines::extremes_data()
{
    QTest::addColumn<quint64>("key");
    QTest::addColumn<quint64>("neighbour");

    QTest::newRow("nothing") << quint64(0) << quint64(1);
    QTest::newRow("all bits") << std::numeric_limits<quint64>::max() << std::numeric_limits<quint64>::max() - 1;
    QTest::newRow("highest bit") << (quint64(1) << 63) << quint64(0);
    QTest::newRow("words exchanged") << ((quint64(2) << 32) | 1) << ((quint64(1) << 32) | 2);
}

void tst_RVFirstLines::extremes()
{
    QFETCH(quint64, key);
    QFETCH(quint64, neighbour);
    RVFirstLines<quint64> lines;
    QCOMPARE(lines.insert(key, 1), 0U);
    QCOMPARE(lines.insert(neighbour, 2), 0U);
    QCOMPARE(lines.insert(key, 3), 1U);
    QCOMPARE(lines.insert(neighbour, 4), 2U);
}

void tst_RVFirstLines::spacedOut_data()
{
    QTest::addColumn<quint32>("step");

    QTest::newRow("one after the other") << 1U;
    QTest::newRow("thousands") << 1000U;
    QTest::newRow("the same low bits") << 4096U;
}

// Lines are found again whatever the keys have in common, in whatever order they came.
void tst_RVFirstLines::spacedOut()
{
    QFETCH(quint32, step);
    constexpr quint32 count = 50000;
    RVFirstLines<quint32> lines;
    const auto keyOf = [step](quint32 number) { return (number % 2 ? number : count * 2 - number) * step; };
    for (quint32 number = 1; number <= count; ++number)
        QCOMPARE(lines.insert(keyOf(number), number), 0U);
    for (quint32 number = 1; number <= count; ++number)
        QCOMPARE(lines.insert(keyOf(number), count + number), number);
}

// Both maps that a file needs, and no step of their growth.
void tst_RVFirstLines::memoryOfAMillion()
{
    constexpr quint32 count = 1000000;
    constexpr quint32 many = 200000;
    RVFirstLines<quint64> types;
    RVFirstLines<quint32> articleIds;
    std::size_t before = 0;
    for (quint32 number = 1; number <= count; ++number) {
        types.insert(scattered(number), number);
        articleIds.insert(number, number);
        if (number % 1000 != 0 || number < many)
            continue;
        const std::size_t bytes = types.bytes() + articleIds.bytes();
        QVERIFY2(bytes <= std::size_t(number) * 24, QByteArray::number(double(bytes) / number).constData());
        if (number > many)
            QVERIFY2(bytes - before <= bytes / 30, QByteArray::number(number).constData());
        before = bytes;
    }
    QVERIFY(types.bytes() > std::size_t(count) * 12);
    QVERIFY(articleIds.bytes() > std::size_t(count) * 8);
}

QTEST_GUILESS_MAIN(tst_RVFirstLines)
#include "tst_RVFirstLines.moc"
