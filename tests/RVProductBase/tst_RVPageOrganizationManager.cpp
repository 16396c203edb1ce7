#include "LockWatch.h"

#include <RVProductBase/RVPageOrganizationCalculator.h>
#include <RVProductBase/RVPageOrganizationManager.h>

#include <QCoreApplication>
#include <QMetaMethod>
#include <QSemaphore>
#include <QTest>

#include <atomic>
#include <functional>
#include <memory>
#include <new>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(std::is_base_of_v<QObject, RVPageOrganizationManager>);
static_assert(std::is_base_of_v<RVSingleton<RVPageOrganizationManager>, RVPageOrganizationManager>);
static_assert(std::is_same_v<decltype(RVPageOrganizationManager::instance()), RVPageOrganizationManager *>);
static_assert(std::is_abstract_v<RVPageOrganizationCalculator>);
static_assert(std::has_virtual_destructor_v<RVPageOrganizationCalculator>);
static_assert(std::is_same_v<decltype(&RVPageOrganizationCalculator::calculate),
                             RVPageCountOrganization (RVPageOrganizationCalculator::*)(const RVProductType &)>);

namespace {

RVPageCountOrganization organization(int min, int max, int increment)
{
    return RVPageCountOrganization(RVIntRange(min, max), increment);
}

/// The calls of a calculator, and the number of deleted calculators. It outlives the calculator.
struct Log
{
    QStringList asked;
    int deleted = 0;
};

/// Counts the destroyed objects of its class.
class WatchedOrganization : public RVPageCountOrganization
{
public:
    ~WatchedOrganization() override { ++destroyed; }

    static inline int destroyed = 0;
};

/// Replaces an organisation by a watched one.
void watch(RVPageCountOrganization *organization)
{
    static_assert(sizeof(WatchedOrganization) == sizeof(RVPageCountOrganization));
    organization->~RVPageCountOrganization();
    new (organization) WatchedOrganization;
}

using Rule = std::function<RVPageCountOrganization(const RVProductType &)>;

class Calculator : public RVPageOrganizationCalculator
{
public:
    Calculator(Log *log, Rule rule) : myLog(log), myRule(std::move(rule)) { }
    ~Calculator() override { ++myLog->deleted; }

    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        myLog->asked += type.toString();
        return myRule(type);
    }

private:
    Log *myLog;
    Rule myRule;
};

Rule always(int min, int max, int increment)
{
    return [=](const RVProductType &) { return organization(min, max, increment); };
}

const int threadCount = 8;

/// Runs the function in several threads that start together.
void inThreads(const std::function<void(int)> &function)
{
    std::atomic<int> waiting = threadCount;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&waiting, &function, i] {
            --waiting;
            while (waiting > 0)
                std::this_thread::yield();
            function(i);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

/// Calls the manager once more in its destructor.
class PartingCalculator : public RVPageOrganizationCalculator
{
public:
    PartingCalculator(RVPageOrganizationManager *manager, int *lastAnswer)
        : myManager(manager),
          myLastAnswer(lastAnswer)
    { }
    ~PartingCalculator() override { *myLastAnswer = myManager->pageCountOrganzation(u"30"_s).minPages(); }

    RVPageCountOrganization calculate(const RVProductType &) override { return RVPageCountOrganization(); }

private:
    RVPageOrganizationManager *myManager;
    int *myLastAnswer;
};

}

class tst_RVPageOrganizationManager : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void catalogueReloaded();

private Q_SLOTS:
    void instanceForManyThreads();
    void instanceBelongsToTheApplication();
    void metaObject();
    void withoutCalculator();
    void asksOncePerType();
    void handsOutCopies();
    void copiesUnderTheLock();
    void remembersInvalidAnswers();
    void createsPastTheCache();
    void createsPlainOrganizations();
    void clearsTheCache();
    void clearsTheCacheOnSignal();
    void replacesTheCalculator();
    void removesTheCalculator();
    void keepsTheSameCalculator();
    void pointersOutliveTheManager();
    void neverFreesOrganizations();
    void calculatorAsksTheManager();
    void calculatorChangesTheType();
    void calculatorClearsTheCache();
    void calculatorSetsItself();
    void calculatorAsksWhenItGoes();
    void managersAreIndependent();
    void manyThreadsAskAtOnce();
    void oneCalculationAtATime();
    void othersWaitForTheCalculation_data();
    void othersWaitForTheCalculation();
    void threadsClearAndReplace();
};

// This test must run first, because the instance exists afterwards.
void tst_RVPageOrganizationManager::instanceForManyThreads()
{
    RVPageOrganizationManager *seen[threadCount] = {};
    inThreads([&seen](int i) { seen[i] = RVPageOrganizationManager::instance(); });
    QVERIFY(seen[0]);
    for (const RVPageOrganizationManager *manager : seen)
        QCOMPARE(manager, seen[0]);
    QCOMPARE(RVPageOrganizationManager::instance(), seen[0]);
    QCOMPARE(seen[0]->parent(), nullptr);
    seen[0]->setupInstance();
    QCOMPARE(RVPageOrganizationManager::instance(), seen[0]);
    QCOMPARE(seen[0]->pageCountOrganzation(RVProductType(u"VIR29"_s)), organization(0, 0, 0));
}

// The threads of the first calls have ended.
void tst_RVPageOrganizationManager::instanceBelongsToTheApplication()
{
    RVPageOrganizationManager *const manager = RVPageOrganizationManager::instance();
    QCOMPARE(manager->thread(), QCoreApplication::instance()->thread());
    const RVPageCountOrganization *const before = manager->organization(u"VIR29"_s);
    const auto connection = connect(this, &tst_RVPageOrganizationManager::catalogueReloaded, manager,
                                    &RVPageOrganizationManager::clearCache);
    std::thread(&tst_RVPageOrganizationManager::catalogueReloaded, this).join();
    QCoreApplication::processEvents();
    QVERIFY(manager->organization(u"VIR29"_s) != before);
    const RVPageCountOrganization *const between = manager->organization(u"VIR29"_s);
    Q_EMIT catalogueReloaded();
    QVERIFY(manager->organization(u"VIR29"_s) != between);
    disconnect(connection);
}

void tst_RVPageOrganizationManager::metaObject()
{
    const QMetaObject &metaObject = RVPageOrganizationManager::staticMetaObject;
    QCOMPARE(QByteArray(metaObject.className()), "RVPageOrganizationManager"_ba);
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 1);
    const QMetaMethod method = metaObject.method(metaObject.methodOffset());
    QCOMPARE(method.methodSignature(), "clearCache()"_ba);
    QCOMPARE(method.methodType(), QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Public);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
}

void tst_RVPageOrganizationManager::withoutCalculator()
{
    RVPageOrganizationManager manager;
    QCOMPARE(manager.parent(), nullptr);
    const RVPageCountOrganization *empty = manager.organization(RVProductType(u"DUN9"_s));
    QVERIFY(empty);
    QCOMPARE(*empty, organization(0, 0, 0));
    QVERIFY(!empty->isValid());
    QCOMPARE(manager.pageCountOrganzation(RVProductType(u"DUN9"_s)), organization(0, 0, 0));
    const std::unique_ptr<RVPageCountOrganization> created(manager.createPageOrganization(RVProductType(u"DUN9"_s)));
    QCOMPARE(*created, organization(0, 0, 0));

    Log log;
    manager.setCalculator(new Calculator(&log, always(26, 154, 4)));
    QCOMPARE(*manager.organization(RVProductType(u"DUN9"_s)), organization(26, 154, 4));
    QCOMPARE(*empty, organization(0, 0, 0));
}

void tst_RVPageOrganizationManager::asksOncePerType()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, [](const RVProductType &type) {
        return type.isCalendar() ? organization(12, 12, 0) : organization(26, 154, 4);
    }));
    QCOMPARE(log.asked, QStringList());
    RVPageCountOrganization *book = manager.organization(RVProductType(u"DUN9_30"_s));
    RVPageCountOrganization *calendar = manager.organization(RVProductType(u"VIR29"_s));
    RVPageCountOrganization *unknown = manager.organization(RVProductType());
    QCOMPARE(*book, organization(26, 154, 4));
    QCOMPARE(*calendar, organization(12, 12, 0));
    QCOMPARE(*unknown, organization(26, 154, 4));
    QVERIFY(book != calendar);
    QVERIFY(book != unknown);
    QCOMPARE(manager.organization(RVProductType(u"DUN9XL"_s)), book);
    QCOMPARE(manager.organization(RVProductType(u"VIR29"_s)), calendar);
    QCOMPARE(manager.organization(RVProductType()), unknown);
    QCOMPARE(log.asked, QStringList({ u"DUN9"_s, u"VIR29"_s, u""_s }));
    QVERIFY(manager.organization(RVProductType(u"vir29"_s)) != calendar);
    QCOMPARE(log.asked, QStringList({ u"DUN9"_s, u"VIR29"_s, u""_s, u"vir29"_s }));
}

void tst_RVPageOrganizationManager::handsOutCopies()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, always(26, 154, 4)));
    const RVProductType type(u"DUN9"_s);
    RVPageCountOrganization copy = manager.pageCountOrganzation(type);
    QCOMPARE(copy, organization(26, 154, 4));
    QCOMPARE(copy, *manager.organization(type));
    copy -= 20;
    QCOMPARE(*manager.organization(type), organization(26, 154, 4));
    QCOMPARE(manager.pageCountOrganzation(type), organization(26, 154, 4));
    QCOMPARE(log.asked, QStringList { u"DUN9"_s });
}

// Another thread changes the organisation at every point where it can.
void tst_RVPageOrganizationManager::copiesUnderTheLock()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, always(26, 154, 4)));
    const RVProductType type(u"DUN9"_s);
    RVPageCountOrganization *cached = manager.organization(type);
    int held = 0;
    const LockWatch watch([&held] { ++held; },
                          [&held, cached] {
                              if (--held == 0)
                                  *cached = organization(3, 3, 0);
                          });
    QCOMPARE(manager.pageCountOrganzation(type), organization(26, 154, 4));
    QCOMPARE(*cached, organization(3, 3, 0));
}

void tst_RVPageOrganizationManager::remembersInvalidAnswers()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, always(0, 0, 0)));
    RVPageCountOrganization *first = manager.organization(RVProductType(u"DUN9"_s));
    QCOMPARE(manager.organization(RVProductType(u"DUN9"_s)), first);
    QCOMPARE(log.asked, QStringList { u"DUN9"_s });
}

void tst_RVPageOrganizationManager::createsPastTheCache()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, always(26, 154, 4)));
    const RVPageOrganizationManager &constManager = manager;
    const RVProductType type(u"DUN9"_s);
    const std::unique_ptr<RVPageCountOrganization> first(constManager.createPageOrganization(type));
    const std::unique_ptr<RVPageCountOrganization> second(constManager.createPageOrganization(type));
    QVERIFY(first != second);
    QCOMPARE(*first, organization(26, 154, 4));
    QCOMPARE(*second, organization(26, 154, 4));
    QCOMPARE(log.asked.size(), 2);
    const RVPageCountOrganization *cached = manager.organization(type);
    QCOMPARE(log.asked.size(), 3);
    const std::unique_ptr<RVPageCountOrganization> third(constManager.createPageOrganization(type));
    QVERIFY(third.get() != cached);
    QCOMPARE(manager.organization(type), cached);
    QCOMPARE(log.asked.size(), 4);
}

void tst_RVPageOrganizationManager::createsPlainOrganizations()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, always(5, 2, -3)));
    const std::unique_ptr<RVPageCountOrganization> created(manager.createPageOrganization(RVProductType(u"A"_s)));
    QCOMPARE(created->minPages(), 5);
    QCOMPARE(created->maxPages(), 2);
    QCOMPARE(created->pageIncrement(), -3);
}

void tst_RVPageOrganizationManager::clearsTheCache()
{
    Log log;
    int lowest = 26;
    RVPageOrganizationManager manager;
    manager.setCalculator(
            new Calculator(&log, [&lowest](const RVProductType &) { return organization(lowest, 154, 4); }));
    const RVProductType type(u"DUN9"_s);
    RVPageCountOrganization *before = manager.organization(type);
    manager.organization(RVProductType(u"VIR29"_s));
    lowest = 30;
    QCOMPARE(manager.organization(type), before);
    manager.clearCache();
    QCOMPARE(log.asked.size(), 2);
    RVPageCountOrganization *after = manager.organization(type);
    manager.organization(RVProductType(u"VIR29"_s));
    QCOMPARE(log.asked, QStringList({ u"DUN9"_s, u"VIR29"_s, u"DUN9"_s, u"VIR29"_s }));
    QVERIFY(after != before);
    QCOMPARE(*before, organization(26, 154, 4));
    QCOMPARE(*after, organization(30, 154, 4));
    manager.clearCache();
    manager.clearCache();
    QCOMPARE(*before, organization(26, 154, 4));
    QCOMPARE(*after, organization(30, 154, 4));
    QCOMPARE(log.deleted, 0);
}

void tst_RVPageOrganizationManager::clearsTheCacheOnSignal()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, always(26, 154, 4)));
    connect(this, &tst_RVPageOrganizationManager::catalogueReloaded, &manager, &RVPageOrganizationManager::clearCache);
    manager.organization(RVProductType(u"DUN9"_s));
    Q_EMIT catalogueReloaded();
    manager.organization(RVProductType(u"DUN9"_s));
    QCOMPARE(log.asked.size(), 2);
    QVERIFY(QMetaObject::invokeMethod(&manager, "clearCache"));
    manager.organization(RVProductType(u"DUN9"_s));
    QCOMPARE(log.asked.size(), 3);
}

void tst_RVPageOrganizationManager::replacesTheCalculator()
{
    Log first;
    Log second;
    {
        RVPageOrganizationManager manager;
        manager.setCalculator(new Calculator(&first, always(26, 154, 4)));
        const RVProductType type(u"DUN9"_s);
        RVPageCountOrganization *before = manager.organization(type);
        manager.setCalculator(new Calculator(&second, always(10, 20, 2)));
        QCOMPARE(first.deleted, 1);
        RVPageCountOrganization *after = manager.organization(type);
        QVERIFY(after != before);
        QCOMPARE(*before, organization(26, 154, 4));
        QCOMPARE(*after, organization(10, 20, 2));
        QCOMPARE(first.asked.size(), 1);
        QCOMPARE(second.asked.size(), 1);
        QCOMPARE(second.deleted, 0);
    }
    QCOMPARE(first.deleted, 1);
    QCOMPARE(second.deleted, 1);
}

void tst_RVPageOrganizationManager::removesTheCalculator()
{
    Log log;
    {
        RVPageOrganizationManager manager;
        manager.setCalculator(nullptr);
        manager.setCalculator(new Calculator(&log, always(26, 154, 4)));
        RVPageCountOrganization *before = manager.organization(RVProductType(u"DUN9"_s));
        manager.setCalculator(nullptr);
        QCOMPARE(log.deleted, 1);
        QCOMPARE(manager.pageCountOrganzation(RVProductType(u"DUN9"_s)), organization(0, 0, 0));
        QCOMPARE(*before, organization(26, 154, 4));
        manager.setCalculator(nullptr);
    }
    QCOMPARE(log.deleted, 1);
}

void tst_RVPageOrganizationManager::keepsTheSameCalculator()
{
    Log log;
    {
        RVPageOrganizationManager manager;
        auto *const calculator = new Calculator(&log, always(26, 154, 4));
        manager.setCalculator(calculator);
        RVPageCountOrganization *before = manager.organization(RVProductType(u"DUN9"_s));
        manager.setCalculator(calculator);
        QCOMPARE(log.deleted, 0);
        RVPageCountOrganization *after = manager.organization(RVProductType(u"DUN9"_s));
        QVERIFY(after != before);
        QCOMPARE(*after, organization(26, 154, 4));
        QCOMPARE(log.asked.size(), 2);
    }
    QCOMPARE(log.deleted, 1);
}

void tst_RVPageOrganizationManager::pointersOutliveTheManager()
{
    Log log;
    auto manager = std::make_unique<RVPageOrganizationManager>();
    manager->setCalculator(new Calculator(&log, always(26, 154, 4)));
    QList<RVPageCountOrganization *> pointers;
    for (int i = 0; i < 100; ++i)
        pointers += manager->organization(RVProductType(QString::number(i)));
    manager.reset();
    QCOMPARE(log.deleted, 1);
    for (const RVPageCountOrganization *pointer : pointers)
        QCOMPARE(*pointer, organization(26, 154, 4));
}

void tst_RVPageOrganizationManager::neverFreesOrganizations()
{
    Log log;
    auto manager = std::make_unique<RVPageOrganizationManager>();
    manager->setCalculator(new Calculator(&log, always(26, 154, 4)));
    const RVProductType type(u"DUN9"_s);
    RVPageCountOrganization *own = manager->createPageOrganization(type);
    watch(own);
    delete own; // the caller owns it
    QCOMPARE(std::exchange(WatchedOrganization::destroyed, 0), 1);
    watch(manager->organization(type));
    manager->clearCache();
    watch(manager->organization(type));
    manager->setCalculator(nullptr);
    watch(manager->organization(type));
    manager.reset();
    QCOMPARE(WatchedOrganization::destroyed, 0);
}

void tst_RVPageOrganizationManager::calculatorAsksTheManager()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, [&manager](const RVProductType &type) {
        if (type == RVProductType(u"base"_s))
            return organization(26, 154, 4);
        if (type == RVProductType(u"middle"_s))
            return manager.organization(RVProductType(u"base"_s))->adaptedTo(30);
        return manager.pageCountOrganzation(RVProductType(u"middle"_s)).clone(true);
    }));
    QCOMPARE(*manager.organization(RVProductType(u"top"_s)), organization(30, 30, 4));
    QCOMPARE(*manager.organization(RVProductType(u"middle"_s)), organization(30, 154, 4));
    QCOMPARE(*manager.organization(RVProductType(u"base"_s)), organization(26, 154, 4));
    QCOMPARE(log.asked, QStringList({ u"top"_s, u"middle"_s, u"base"_s }));
}

// The result is cached for the type of the call, not for the changed object.
void tst_RVPageOrganizationManager::calculatorChangesTheType()
{
    Log log;
    RVPageOrganizationManager manager;
    RVProductType type(u"before"_s);
    manager.setCalculator(new Calculator(&log, [&type](const RVProductType &asked) {
        if (asked.toString() != "before"_L1)
            return organization(20, 20, 2);
        type = RVProductType(u"after"_s);
        return organization(10, 10, 2);
    }));
    QCOMPARE(*manager.organization(type), organization(10, 10, 2));
    QCOMPARE(type.toString(), u"after"_s);
    QCOMPARE(*manager.organization(type), organization(20, 20, 2));
    QCOMPARE(*manager.organization(RVProductType(u"before"_s)), organization(10, 10, 2));
    QCOMPARE(log.asked, QStringList({ u"before"_s, u"after"_s }));
}

void tst_RVPageOrganizationManager::calculatorClearsTheCache()
{
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, [&manager](const RVProductType &type) {
        if (type.isCalendar())
            manager.clearCache();
        return organization(26, 154, 4);
    }));
    RVPageCountOrganization *book = manager.organization(RVProductType(u"DUN9"_s));
    RVPageCountOrganization *calendar = manager.organization(RVProductType(u"VIR29"_s));
    QCOMPARE(manager.organization(RVProductType(u"VIR29"_s)), calendar);
    QVERIFY(manager.organization(RVProductType(u"DUN9"_s)) != book);
    QCOMPARE(*book, organization(26, 154, 4));
    QCOMPARE(log.asked, QStringList({ u"DUN9"_s, u"VIR29"_s, u"DUN9"_s }));
}

void tst_RVPageOrganizationManager::calculatorSetsItself()
{
    Log log;
    RVPageOrganizationManager manager;
    Calculator *calculator = nullptr;
    calculator = new Calculator(&log, [&manager, &calculator](const RVProductType &) {
        manager.setCalculator(calculator);
        return organization(26, 154, 4);
    });
    manager.setCalculator(calculator);
    RVPageCountOrganization *book = manager.organization(RVProductType(u"DUN9"_s));
    QCOMPARE(*book, organization(26, 154, 4));
    QCOMPARE(log.deleted, 0);
    QCOMPARE(manager.organization(RVProductType(u"DUN9"_s)), book);
}

void tst_RVPageOrganizationManager::calculatorAsksWhenItGoes()
{
    int lastAnswer = -1;
    Log log;
    {
        RVPageOrganizationManager manager;
        manager.setCalculator(new PartingCalculator(&manager, &lastAnswer));
        manager.setCalculator(new Calculator(&log, always(30, 30, 0)));
        QCOMPARE(lastAnswer, 30);
        manager.setCalculator(new PartingCalculator(&manager, &lastAnswer));
    }
    QCOMPARE(lastAnswer, 0);
}

void tst_RVPageOrganizationManager::managersAreIndependent()
{
    Log first;
    Log second;
    RVPageOrganizationManager one;
    RVPageOrganizationManager other;
    one.setCalculator(new Calculator(&first, always(26, 154, 4)));
    other.setCalculator(new Calculator(&second, always(10, 20, 2)));
    const RVProductType type(u"DUN9"_s);
    RVPageCountOrganization *ofOne = one.organization(type);
    QCOMPARE(*ofOne, organization(26, 154, 4));
    QCOMPARE(*other.organization(type), organization(10, 20, 2));
    other.clearCache();
    QCOMPARE(one.organization(type), ofOne);
}

void tst_RVPageOrganizationManager::manyThreadsAskAtOnce()
{
    constexpr int typeCount = 50;
    Log log;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(
            &log, [](const RVProductType &type) { return organization(type.toString().toInt(), 154, 4); }));
    RVPageCountOrganization *seen[threadCount][typeCount] = {};
    inThreads([&manager, &seen](int thread) {
        for (int i = 0; i < typeCount; ++i)
            seen[thread][i] = manager.organization(RVProductType(QString::number(i)));
    });
    for (int i = 0; i < typeCount; ++i) {
        QCOMPARE(seen[0][i]->minPages(), i);
        for (int thread = 1; thread < threadCount; ++thread)
            QCOMPARE(seen[thread][i], seen[0][i]);
    }
    QCOMPARE(log.asked.size(), typeCount);
}

void tst_RVPageOrganizationManager::oneCalculationAtATime()
{
    Log log;
    std::atomic<int> running = 0;
    std::atomic<int> mostRunning = 0;
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&log, [&running, &mostRunning](const RVProductType &) {
        mostRunning = qMax(mostRunning.load(), ++running);
        std::this_thread::yield();
        --running;
        return organization(26, 154, 4);
    }));
    inThreads([&manager](int thread) {
        for (int i = 0; i < 200; ++i) {
            const RVProductType type(u"%1_%2"_s.arg(thread).arg(i));
            manager.organization(type);
            manager.pageCountOrganzation(type);
            delete manager.createPageOrganization(type);
        }
    });
    QCOMPARE(mostRunning.load(), 1);
    QCOMPARE(log.asked.size(), 2 * 200 * threadCount);
}

using Operation = std::function<void(RVPageOrganizationManager *)>;
Q_DECLARE_METATYPE(Operation)

void tst_RVPageOrganizationManager::othersWaitForTheCalculation_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::newRow("organization") << Operation(
            [](RVPageOrganizationManager *manager) { manager->organization(RVProductType(u"other"_s)); });
    QTest::newRow("cached organization") << Operation(
            [](RVPageOrganizationManager *manager) { manager->organization(RVProductType(u"cached"_s)); });
    QTest::newRow("cached copy") << Operation(
            [](RVPageOrganizationManager *manager) { manager->pageCountOrganzation(RVProductType(u"cached"_s)); });
    QTest::newRow("created") << Operation([](RVPageOrganizationManager *manager) {
        delete manager->createPageOrganization(RVProductType(u"other"_s));
    });
    QTest::newRow("clear the cache") << Operation([](RVPageOrganizationManager *manager) { manager->clearCache(); });
    QTest::newRow("remove the calculator")
            << Operation([](RVPageOrganizationManager *manager) { manager->setCalculator(nullptr); });
}

namespace {

/// A calculator that waits for a permission in the calculation of the type "slow".
Calculator *slowCalculator(Log *log, QSemaphore *started, QSemaphore *mayFinish)
{
    return new Calculator(log, [started, mayFinish](const RVProductType &type) {
        if (type == RVProductType(u"slow"_s)) {
            started->release();
            mayFinish->acquire();
        }
        return organization(26, 154, 4);
    });
}

}

void tst_RVPageOrganizationManager::othersWaitForTheCalculation()
{
    QFETCH(Operation, operation);
    Log log;
    QSemaphore started;
    QSemaphore mayFinish;
    RVPageOrganizationManager manager;
    manager.setCalculator(slowCalculator(&log, &started, &mayFinish));
    manager.organization(RVProductType(u"cached"_s));

    std::thread slow([&manager] { manager.organization(RVProductType(u"slow"_s)); });
    started.acquire();
    QSemaphore asksOrIsDone;
    std::atomic<bool> done = false;
    std::thread other([&manager, &operation, &asksOrIsDone, &done] {
        const LockWatch watch([&asksOrIsDone] { asksOrIsDone.release(); }, nullptr);
        operation(&manager);
        done = true;
        asksOrIsDone.release();
    });
    asksOrIsDone.acquire();
    const bool doneTooEarly = done;
    const int deletedTooEarly = log.deleted;
    mayFinish.release();
    slow.join();
    other.join();
    QVERIFY(!doneTooEarly);
    QCOMPARE(deletedTooEarly, 0);
    QVERIFY(done);
}

void tst_RVPageOrganizationManager::threadsClearAndReplace()
{
    constexpr int rounds = 200;
    Log logs[threadCount];
    std::atomic<int> wrong = 0;
    {
        RVPageOrganizationManager manager;
        inThreads([&manager, &logs, &wrong](int thread) {
            for (int i = 0; i < rounds; ++i) {
                if (thread == 0)
                    manager.clearCache();
                if (thread == 1)
                    manager.setCalculator(new Calculator(&logs[thread], always(26, 154, 4)));
                const RVPageCountOrganization *pointer = manager.organization(RVProductType(QString::number(i % 7)));
                if (*pointer != organization(26, 154, 4) && *pointer != organization(0, 0, 0))
                    ++wrong;
            }
        });
        QCOMPARE(wrong.load(), 0);
        QCOMPARE(logs[1].deleted, rounds - 1);
    }
    QCOMPARE(logs[1].deleted, rounds);
}

QTEST_GUILESS_MAIN(tst_RVPageOrganizationManager)
#include "tst_RVPageOrganizationManager.moc"
