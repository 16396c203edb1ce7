#include <RVFirstPlaces_p.h>

#include <QTest>

#include <limits>

class tst_RVFirstPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void first();
    void largePlaces();
    void extremes_data();
    void extremes();
    void spacedOut_data();
    void spacedOut();
    void memoryOfAMillion();
};

namespace {

constexpr quint64 GOLDEN_RATIO = 0x9e37'79b9'7f4a'7c15;

/// A pseudo-random number, like the hash of a text, but never the same for two numbers.
quint64 scattered(quint32 number)
{
    const quint64 mixed = number * GOLDEN_RATIO;
    return (mixed ^ (mixed >> 29)) * GOLDEN_RATIO;
}

}

void tst_RVFirstPlaces::first()
{
    RVFirstPlaces<quint32> places;
    QCOMPARE(places.insert(7, 3), 0U);
    QCOMPARE(places.insert(8, 4), 0U);
    QCOMPARE(places.insert(7, 5), 3U);
    QCOMPARE(places.insert(7, 6), 3U);
    QCOMPARE(places.insert(8, 7), 4U);
}

void tst_RVFirstPlaces::largePlaces()
{
    constexpr quint64 large = 0xfe'dcba'9876'5432;
    RVFirstPlaces<quint32> ids;
    RVFirstPlaces<quint64> types;
    QCOMPARE(ids.insert(7, large), 0U);
    QCOMPARE(ids.insert(7, 1), large);
    QCOMPARE(types.insert(7, large), 0U);
    QCOMPARE(types.insert(7, 1), large);
}

void tst_RVFirstPlaces::extremes_data()
{
    QTest::addColumn<quint64>("key");
    QTest::addColumn<quint64>("neighbour");

    QTest::newRow("nothing") << quint64(0) << quint64(1);
    QTest::newRow("all bits") << std::numeric_limits<quint64>::max() << std::numeric_limits<quint64>::max() - 1;
    QTest::newRow("highest bit") << (quint64(1) << 63) << quint64(0);
    QTest::newRow("words exchanged") << ((quint64(2) << 32) | 1) << ((quint64(1) << 32) | 2);
}

void tst_RVFirstPlaces::extremes()
{
    QFETCH(quint64, key);
    QFETCH(quint64, neighbour);
    RVFirstPlaces<quint64> places;
    QCOMPARE(places.insert(key, 1), 0U);
    QCOMPARE(places.insert(neighbour, 2), 0U);
    QCOMPARE(places.insert(key, 3), 1U);
    QCOMPARE(places.insert(neighbour, 4), 2U);
}

void tst_RVFirstPlaces::spacedOut_data()
{
    QTest::addColumn<quint32>("step");

    QTest::newRow("one after the other") << 1U;
    QTest::newRow("thousands") << 1000U;
    QTest::newRow("the same low bits") << 4096U;
}

// Places are found again for keys with common bits, in any order.
void tst_RVFirstPlaces::spacedOut()
{
    QFETCH(quint32, step);
    constexpr quint32 count = 50000;
    RVFirstPlaces<quint32> places;
    const auto keyOf = [step](quint32 number) { return (number % 2 ? number : count * 2 - number) * step; };
    for (quint32 number = 1; number <= count; ++number)
        QCOMPARE(places.insert(keyOf(number), number), 0U);
    for (quint32 number = 1; number <= count; ++number)
        QCOMPARE(places.insert(keyOf(number), count + number), number);
}

// The memory of both maps of a file, without a step of their growth.
void tst_RVFirstPlaces::memoryOfAMillion()
{
    constexpr quint32 count = 1000000;
    constexpr quint32 many = 200000;
    RVFirstPlaces<quint64> types;
    RVFirstPlaces<quint32> articleIds;
    std::size_t before = 0;
    for (quint32 number = 1; number <= count; ++number) {
        types.insert(scattered(number), number);
        articleIds.insert(number, number);
        if (number % 1000 != 0 || number < many)
            continue;
        const std::size_t bytes = types.bytes() + articleIds.bytes();
        QVERIFY2(bytes <= std::size_t(number) * 30, QByteArray::number(double(bytes) / number).constData());
        if (number > many)
            QVERIFY2(bytes - before <= bytes / 30, QByteArray::number(number).constData());
        before = bytes;
    }
    QVERIFY(types.bytes() > std::size_t(count) * 15);
    QVERIFY(articleIds.bytes() > std::size_t(count) * 11);
}

QTEST_GUILESS_MAIN(tst_RVFirstPlaces)
#include "tst_RVFirstPlaces.moc"
