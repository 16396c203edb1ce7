#include <RVTemplateClasses/RVSingleton.h>

#include <QTest>

#include <atomic>
#include <cstdlib>
#include <thread>
#include <utility>
#include <vector>

namespace {

class Plain : public RVSingleton<Plain>
{
};

/// Counts its constructions and its set-ups.
class Counted : public RVSingleton<Counted>
{
public:
    Counted()
    {
        ++constructions;
        std::this_thread::yield();
    }
    ~Counted() { ++destructions; }

    void setupInstance()
    {
        ++setups;
        std::this_thread::yield();
        isSetUp = true;
    }

    std::atomic<bool> isSetUp { false };
    static inline std::atomic<int> constructions { 0 };
    static inline std::atomic<int> setups { 0 };
    static inline std::atomic<int> destructions { 0 };
};

/// An object that is created before the first instance, so it is destroyed last when the process ends.
struct LastOne
{
    ~LastOne()
    {
        if (Counted::destructions > 0)
            std::_Exit(EXIT_FAILURE);
    }
} lastOne;

/// A separate class for each N, so that there are many first accesses to race for.
template<int N>
class Raced : public RVSingleton<Raced<N>>
{
public:
    Raced() { ++constructions; }

    static inline std::atomic<int> constructions { 0 };
};

std::atomic<int> arrivals { 0 };

template<int N>
void meetAtRaced()
{
    ++arrivals;
    while (arrivals < 2 * (N + 1))
        std::this_thread::yield();
    Raced<N>::instance();
}

template<int... N>
int constructionsByTwoThreads(std::integer_sequence<int, N...>)
{
    const auto meetAtEach = [] { (meetAtRaced<N>(), ...); };
    std::thread first(meetAtEach);
    std::thread second(meetAtEach);
    first.join();
    second.join();
    return (Raced<N>::constructions + ...);
}

}

class tst_RVSingleton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneInstanceForAllThreads();
    void oneInstanceHoweverOftenThreadsMeet();
    void oneInstancePerClass();
};

void tst_RVSingleton::oneInstanceForAllThreads()
{
    constexpr int threadCount = 8;
    std::atomic<int> ready { 0 };
    std::atomic<int> notSetUp { 0 };
    std::vector<Counted *> instances(threadCount);
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&, i] {
            ++ready;
            while (ready < threadCount)
                std::this_thread::yield();
            instances[i] = Counted::instance();
            if (!instances[i]->isSetUp)
                ++notSetUp;
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    for (const Counted *instance : instances)
        QCOMPARE(instance, Counted::instance());
    QCOMPARE(notSetUp.load(), 0);
    QCOMPARE(Counted::constructions.load(), 1);
    QCOMPARE(Counted::setups.load(), 1);
    QCOMPARE(Counted::destructions.load(), 0);
}

void tst_RVSingleton::oneInstanceHoweverOftenThreadsMeet()
{
    QCOMPARE(constructionsByTwoThreads(std::make_integer_sequence<int, 200>()), 200);
}

void tst_RVSingleton::oneInstancePerClass()
{
    QVERIFY(Plain::instance());
    QCOMPARE(Plain::instance(), Plain::instance());
    QVERIFY(static_cast<void *>(Plain::instance()) != static_cast<void *>(Counted::instance()));
    Plain::instance()->setupInstance();
    QVERIFY(!std::is_copy_constructible_v<Plain>);
}

QTEST_APPLESS_MAIN(tst_RVSingleton)
#include "tst_RVSingleton.moc"
