#include "LockWatch.h"

#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVProductCheckerRegistry.h>

#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <functional>
#include <thread>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int THREADS = 8;

/// Returns a given answer, and records the call in a common list.
class Checker : public RVProductChecker
{
public:
    Checker(const QString &name, RVProductCheckerType kinds, bool answer, QStringList *asked)
        : myName(name),
          myKinds(kinds),
          myAnswer(answer),
          myAsked(asked)
    { }

    bool isValid(const RVProductType &type) const override
    {
        *myAsked += myName + u':' + type.toString();
        return myAnswer;
    }
    RVProductCheckerType checkerTypes() const override { return myKinds; }
    bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &variants) const override
    {
        *myAsked += myName + u':' + type.toString() + u'/' + variants.toKTX();
        return myAnswer;
    }

private:
    QString myName;
    RVProductCheckerType myKinds;
    bool myAnswer;
    QStringList *myAsked;
};

/// Calls the registry with another type and another kind before it returns.
class AskingChecker : public RVProductChecker
{
public:
    explicit AskingChecker(RVProductCheckerRegistry *registry) : myRegistry(registry) { }

    bool isValid(const RVProductType &type) const override
    {
        return type == RVProductType(u"base"_s) || myRegistry->isValid(RVProductType(u"base"_s), 1);
    }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &, const RVArticleVariants &) const override { return false; }

private:
    RVProductCheckerRegistry *myRegistry;
};

/// Changes the type of the call, and refuses.
class ChangingChecker : public RVProductChecker
{
public:
    explicit ChangingChecker(RVProductType *type) : myType(type) { }

    bool isValid(const RVProductType &) const override
    {
        *myType = RVProductType(u"changed"_s);
        return false;
    }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &, const RVArticleVariants &) const override { return false; }

private:
    RVProductType *myType;
};

/// Blocks the result for the type "slow" until it is released.
class SlowChecker : public RVProductChecker
{
public:
    bool isValid(const RVProductType &type) const override
    {
        if (type == RVProductType(u"slow"_s)) {
            asked.release();
            mayAnswer.acquire();
        }
        return true;
    }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &, const RVArticleVariants &) const override { return true; }

    mutable QSemaphore asked;
    mutable QSemaphore mayAnswer;
};

/// Counts the calls and accepts even numbers.
class CountingChecker : public RVProductChecker
{
public:
    bool isValid(const RVProductType &type) const override
    {
        ++count;
        return type.toString().toInt() % 2 == 0;
    }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &, const RVArticleVariants &) const override { return true; }

    mutable std::atomic<int> count { 0 };
};

using Operation = std::function<void(RVProductCheckerRegistry *)>;

}

Q_DECLARE_METATYPE(Operation)

class tst_RVProductCheckerRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneInstance();
    void acceptsWithoutCheckers();
    void asksTheResponsible_data();
    void asksTheResponsible();
    void cachesPerTypeAndKinds();
    void forgetsOnRegistration();
    void asksTwiceRegisteredTwice();
    void unregistersEveryOccurrence();
    void ignoresNull();
    void neverCachesBoxStyles();
    void checkersMayCallBack();
    void checkersMayChangeTheType();
    void threads();
    void othersNeedNotWait_data();
    void othersNeedNotWait();
    void otherQuestionsWait_data();
    void otherQuestionsWait();
    void slotOrder();
};

void tst_RVProductCheckerRegistry::oneInstance()
{
    QVERIFY(RVProductCheckerRegistry::instance());
    QCOMPARE(RVProductCheckerRegistry::instance(), RVProductCheckerRegistry::instance());
    QVERIFY(std::has_virtual_destructor_v<RVProductCheckerRegistry>);
    QVERIFY(std::has_virtual_destructor_v<RVProductChecker>);
    QVERIFY(std::is_abstract_v<RVProductChecker>);
}

void tst_RVProductCheckerRegistry::acceptsWithoutCheckers()
{
    const RVProductCheckerRegistry registry;
    QVERIFY(registry.isValid(u"DUN9"_s, 1));
    QVERIFY(registry.isValid(RVProductType(), 0));
    QVERIFY(registry.isValidWorker(u"DUN9"_s, 0xFFFFFFFF));
    QVERIFY(registry.isValidBoxStyle(u"DUN9"_s, RVArticleVariants(), 1));
}

void tst_RVProductCheckerRegistry::asksTheResponsible_data()
{
    QTest::addColumn<RVProductCheckerType>("kinds");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QStringList>("asked");
    // Registered: first (kinds 1 and 2, accepts), second (2, refuses), third (2 and 0x80000000, refuses).
    QTest::newRow("one accepts") << 1u << true << QStringList { u"first:DUN9"_s };
    QTest::newRow("stops at the first refusal") << 2u << false << QStringList { u"first:DUN9"_s, u"second:DUN9"_s };
    QTest::newRow("highest bit") << 0x80000000u << false << QStringList { u"third:DUN9"_s };
    QTest::newRow("several kinds") << 0x80000001u << false << QStringList { u"first:DUN9"_s, u"third:DUN9"_s };
    QTest::newRow("no checker responsible") << 4u << true << QStringList();
    QTest::newRow("no kind") << 0u << true << QStringList();
}

void tst_RVProductCheckerRegistry::asksTheResponsible()
{
    QFETCH(RVProductCheckerType, kinds);
    QFETCH(QStringList, asked);
    QStringList actual;
    Checker first(u"first"_s, 3, true, &actual);
    Checker second(u"second"_s, 2, false, &actual);
    Checker third(u"third"_s, 0x80000002, false, &actual);
    RVProductCheckerRegistry registry;
    registry.registerChecker(&first);
    registry.registerChecker(&second);
    registry.registerChecker(&third);

    QTEST(registry.isValidWorker(u"DUN9"_s, kinds), "valid");
    QCOMPARE(actual, asked);
    QTEST(registry.isValid(u"DUN9"_s, kinds), "valid");
    QCOMPARE(actual, asked + asked);

    actual.clear();
    QTEST(registry.isValidBoxStyle(u"DUN9"_s, RVArticleVariants(u"boxstyle"_s, u"wood"_s), kinds), "valid");
    asked.replaceInStrings(u"DUN9"_s, u"DUN9/boxstyle:wood"_s);
    QCOMPARE(actual, asked);
}

void tst_RVProductCheckerRegistry::cachesPerTypeAndKinds()
{
    QStringList asked;
    Checker checker(u"c"_s, 3, false, &asked);
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!registry.isValid(u"A"_s, 1));
        QVERIFY(!registry.isValid(u"A"_s, 3));
        QVERIFY(!registry.isValid(u"B"_s, 1));
        QVERIFY(registry.isValid(u"A"_s, 4));
    }
    QCOMPARE(asked, (QStringList { u"c:A"_s, u"c:A"_s, u"c:B"_s }));
    registry.clearCaches();
    QVERIFY(!registry.isValid(u"A"_s, 1));
    QCOMPARE(asked.size(), 4);
    QVERIFY(!registry.isValidWorker(u"A"_s, 1));
    QCOMPARE(asked.size(), 5);
}

void tst_RVProductCheckerRegistry::forgetsOnRegistration()
{
    QStringList asked;
    Checker refusing(u"c"_s, 1, false, &asked);
    RVProductCheckerRegistry registry;
    QVERIFY(registry.isValid(u"A"_s, 1));
    registry.registerChecker(&refusing);
    QVERIFY(!registry.isValid(u"A"_s, 1));
    registry.unregisterChecker(&refusing);
    QVERIFY(registry.isValid(u"A"_s, 1));
}

void tst_RVProductCheckerRegistry::asksTwiceRegisteredTwice()
{
    QStringList asked;
    Checker checker(u"c"_s, 1, true, &asked);
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    registry.registerChecker(&checker);
    QVERIFY(registry.isValid(u"A"_s, 1));
    QCOMPARE(asked, (QStringList { u"c:A"_s, u"c:A"_s }));
}

void tst_RVProductCheckerRegistry::unregistersEveryOccurrence()
{
    QStringList asked;
    Checker checker(u"c"_s, 1, false, &asked);
    Checker other(u"o"_s, 1, true, &asked);
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    registry.registerChecker(&other);
    registry.registerChecker(&checker);
    registry.unregisterChecker(&checker);
    QVERIFY(registry.isValid(u"A"_s, 1));
    QCOMPARE(asked, QStringList { u"o:A"_s });
    registry.unregisterChecker(&checker); // unknown by now: only the cache is emptied
    QVERIFY(registry.isValid(u"A"_s, 1));
    QCOMPARE(asked, (QStringList { u"o:A"_s, u"o:A"_s }));
}

void tst_RVProductCheckerRegistry::ignoresNull()
{
    RVProductCheckerRegistry registry;
    registry.registerChecker(nullptr);
    QVERIFY(registry.isValid(u"A"_s, 1));
    registry.unregisterChecker(nullptr);
}

void tst_RVProductCheckerRegistry::neverCachesBoxStyles()
{
    QStringList asked;
    Checker checker(u"c"_s, 1, true, &asked);
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    const RVArticleVariants variants(u"boxstyle"_s, u"wood"_s);
    QVERIFY(registry.isValidBoxStyle(u"A"_s, variants, 1));
    QVERIFY(registry.isValidBoxStyle(u"A"_s, variants, 1));
    QCOMPARE(asked, (QStringList { u"c:A/boxstyle:wood"_s, u"c:A/boxstyle:wood"_s }));
}

void tst_RVProductCheckerRegistry::checkersMayCallBack()
{
    RVProductCheckerRegistry registry;
    AskingChecker checker(&registry);
    registry.registerChecker(&checker);
    QVERIFY(registry.isValid(u"other"_s, 1));
}

// The result is cached for the type of the call.
void tst_RVProductCheckerRegistry::checkersMayChangeTheType()
{
    RVProductCheckerRegistry registry;
    RVProductType type(u"VIR29"_s);
    ChangingChecker checker(&type);
    registry.registerChecker(&checker);
    QVERIFY(!registry.isValid(type, 1));
    QCOMPARE(type.toString(), u"changed"_s);
    type = RVProductType(u"untouched"_s);
    QVERIFY(!registry.isValid(RVProductType(u"VIR29"_s), 1));
    QCOMPARE(type.toString(), u"untouched"_s);
    QVERIFY(!registry.isValid(RVProductType(u"changed"_s), 1));
    QCOMPARE(type.toString(), u"changed"_s);
}

void tst_RVProductCheckerRegistry::threads()
{
    constexpr int types = 200;
    RVProductCheckerRegistry registry;
    CountingChecker checker;
    registry.registerChecker(&checker);
    std::atomic<int> ready { 0 };
    std::atomic<int> wrong { 0 };
    std::vector<std::thread> threads;
    for (int thread = 0; thread < THREADS; ++thread) {
        threads.emplace_back([&] {
            ++ready;
            while (ready < THREADS)
                std::this_thread::yield();
            for (int i = 0; i < types; ++i) {
                if (registry.isValid(QString::number(i), 1) != (i % 2 == 0))
                    ++wrong;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
    QCOMPARE(checker.count.load(), types);
}

void tst_RVProductCheckerRegistry::othersNeedNotWait_data()
{
    QTest::addColumn<Operation>("operation");
    const auto row = [](const char *name, const Operation &operation) { QTest::newRow(name) << operation; };
    static CountingChecker checker;
    row("register", [](RVProductCheckerRegistry *registry) { registry->registerChecker(&checker); });
    row("unregister", [](RVProductCheckerRegistry *registry) { registry->unregisterChecker(&checker); });
    row("clear the cache", [](RVProductCheckerRegistry *registry) { registry->clearCaches(); });
    row("past the cache", [](RVProductCheckerRegistry *registry) { registry->isValidWorker(u"A"_s, 1); });
    row("box style", [](RVProductCheckerRegistry *registry) { registry->isValidBoxStyle(u"A"_s, {}, 1); });
}

// Only isValid() waits for a running isValid(); the other functions take no lock.
void tst_RVProductCheckerRegistry::othersNeedNotWait()
{
    QFETCH(Operation, operation);
    SlowChecker checker;
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    std::thread slow([&registry] { registry.isValid(u"slow"_s, 1); });
    checker.asked.acquire();
    QSemaphore done;
    std::thread other([&registry, &operation, &done] {
        operation(&registry);
        done.release();
    });
    const bool doneMeanwhile = done.tryAcquire(1, 10000);
    checker.mayAnswer.release();
    slow.join();
    other.join();
    QVERIFY(doneMeanwhile);
}

void tst_RVProductCheckerRegistry::otherQuestionsWait_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("new") << u"new"_s;
    QTest::newRow("cached") << u"cached"_s;
}

void tst_RVProductCheckerRegistry::otherQuestionsWait()
{
    QFETCH(QString, type);
    SlowChecker checker;
    RVProductCheckerRegistry registry;
    registry.registerChecker(&checker);
    registry.isValid(u"cached"_s, 1);
    std::thread slow([&registry] { registry.isValid(u"slow"_s, 1); });
    checker.asked.acquire();
    QSemaphore asksOrIsDone;
    std::atomic<bool> done = false;
    std::thread other([&registry, &type, &asksOrIsDone, &done] {
        const LockWatch watch([&asksOrIsDone] { asksOrIsDone.release(); }, nullptr);
        registry.isValid(type, 1);
        done = true;
        asksOrIsDone.release();
    });
    asksOrIsDone.acquire();
    const bool doneTooEarly = done;
    checker.mayAnswer.release();
    slow.join();
    other.join();
    QVERIFY(!doneTooEarly);
    QVERIFY(done);
}

// The registry may be older than the checker, so it finds the operations only by their slots.
void tst_RVProductCheckerRegistry::slotOrder()
{
    struct Slots
    {
        // Two entries for the destructor, then the operations.
        void *destructors[2];
        bool (*isValid)(const void *, const RVProductType &);
        RVProductCheckerType (*checkerTypes)(const void *);
        bool (*isValidBoxStyle)(const void *, const RVProductType &, const RVArticleVariants &);
    };
    QStringList asked;
    Checker checker(u"c"_s, 42, true, &asked);
    const RVProductChecker *object = &checker;
    const Slots *table = *reinterpret_cast<const Slots *const *>(object);
    QVERIFY(table->isValid(object, u"A"_s));
    QCOMPARE(table->checkerTypes(object), 42u);
    QVERIFY(table->isValidBoxStyle(object, u"B"_s, RVArticleVariants(u"k"_s, u"v"_s)));
    QCOMPARE(asked, (QStringList { u"c:A"_s, u"c:B/k:v"_s }));
}

QTEST_GUILESS_MAIN(tst_RVProductCheckerRegistry)
#include "tst_RVProductCheckerRegistry.moc"
