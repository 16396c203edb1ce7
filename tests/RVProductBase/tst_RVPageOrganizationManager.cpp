#include <RVProductBase/RVPageOrganizationCalculator.h>
#include <RVProductBase/RVPageOrganizationManager.h>

#include <QTest>

#include <atomic>
#include <thread>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// Gives the type "N" the fixed count N, and counts the questions.
class Calculator : public RVPageOrganizationCalculator
{
public:
    explicit Calculator(std::atomic<int> *alive = nullptr) : myAlive(alive) { change(1); }
    ~Calculator() override { change(-1); }

    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        ++calls;
        const int pages = type.toString().toInt();
        return RVPageCountOrganization(RVIntRange(pages, pages), 0);
    }

    std::atomic<int> calls { 0 };

private:
    void change(int by)
    {
        if (myAlive)
            *myAlive += by;
    }

    std::atomic<int> *myAlive;
};

/// Asks the manager for half the number before it answers.
class AskingCalculator : public RVPageOrganizationCalculator
{
public:
    explicit AskingCalculator(RVPageOrganizationManager *manager) : myManager(manager) { }

    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        ++calls;
        const int pages = type.toString().toInt();
        if (pages < 2)
            return RVPageCountOrganization(RVIntRange(1, 1), 0);
        const RVPageCountOrganization half = myManager->pageCountOrganzation(QString::number(pages / 2));
        return RVPageCountOrganization(RVIntRange(half.maxPages(), pages), 1);
    }

    std::atomic<int> calls { 0 };

private:
    RVPageOrganizationManager *myManager;
};

}

class tst_RVPageOrganizationManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneInstance();
    void withoutCalculator();
    void asksOncePerType();
    void pointersStayValid();
    void copiesAreTheCallers();
    void createsPastTheCache();
    void ownsTheCalculator();
    void keepsTheSameCalculator();
    void removesTheCalculator();
    void calculatorMayCallBack();
    void clearCacheIsASlot();
    void threads();
    void slotOrder();
};

void tst_RVPageOrganizationManager::oneInstance()
{
    QVERIFY(RVPageOrganizationManager::instance());
    QCOMPARE(RVPageOrganizationManager::instance(), RVPageOrganizationManager::instance());
    QVERIFY((std::is_base_of_v<QObject, RVPageOrganizationManager>));
    QVERIFY(std::has_virtual_destructor_v<RVPageOrganizationCalculator>);
    QVERIFY(std::is_abstract_v<RVPageOrganizationCalculator>);
}

void tst_RVPageOrganizationManager::withoutCalculator()
{
    RVPageOrganizationManager manager;
    QVERIFY(manager.organization(u"26"_s));
    QVERIFY(*manager.organization(u"26"_s) == RVPageCountOrganization());
    QVERIFY(!manager.pageCountOrganzation(u"26"_s).isValid());
}

void tst_RVPageOrganizationManager::asksOncePerType()
{
    RVPageOrganizationManager manager;
    auto *calculator = new Calculator;
    manager.setCalculator(calculator);
    RVPageCountOrganization *first = manager.organization(u"26"_s);
    QCOMPARE(first->minPages(), 26);
    QCOMPARE(manager.organization(u"26"_s), first);
    QCOMPARE(manager.pageCountOrganzation(u"26"_s).minPages(), 26);
    QCOMPARE(calculator->calls.load(), 1);
    QCOMPARE(manager.organization(u"30"_s)->minPages(), 30);
    QCOMPARE(manager.organization(RVProductType())->minPages(), 0);
    QCOMPARE(calculator->calls.load(), 3);
    manager.clearCache();
    QCOMPARE(manager.organization(u"26"_s)->minPages(), 26);
    QCOMPARE(calculator->calls.load(), 4);
}

void tst_RVPageOrganizationManager::pointersStayValid()
{
    auto *manager = new RVPageOrganizationManager;
    manager->setCalculator(new Calculator);
    const RVPageCountOrganization *old = manager->organization(u"26"_s);
    manager->clearCache();
    QCOMPARE(old->minPages(), 26);
    QVERIFY(manager->organization(u"26"_s) != old);
    QCOMPARE(old->minPages(), 26);
    delete manager;
    QCOMPARE(old->minPages(), 26);
}

void tst_RVPageOrganizationManager::copiesAreTheCallers()
{
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator);
    RVPageCountOrganization copy = manager.pageCountOrganzation(u"26"_s);
    copy -= 20;
    QCOMPARE(copy.minPages(), 6);
    QCOMPARE(manager.organization(u"26"_s)->minPages(), 26);
}

void tst_RVPageOrganizationManager::createsPastTheCache()
{
    RVPageOrganizationManager manager;
    auto *calculator = new Calculator;
    manager.setCalculator(calculator);
    const std::unique_ptr<RVPageCountOrganization> first(manager.createPageOrganization(u"26"_s));
    const std::unique_ptr<RVPageCountOrganization> second(manager.createPageOrganization(u"26"_s));
    QVERIFY(first != second);
    QCOMPARE(second->minPages(), 26);
    QCOMPARE(calculator->calls.load(), 2);
    manager.organization(u"26"_s);
    QCOMPARE(calculator->calls.load(), 3);
}

void tst_RVPageOrganizationManager::ownsTheCalculator()
{
    std::atomic<int> alive { 0 };
    {
        RVPageOrganizationManager manager;
        manager.setCalculator(new Calculator(&alive));
        manager.setCalculator(new Calculator(&alive));
        QCOMPARE(alive.load(), 1);
    }
    QCOMPARE(alive.load(), 0);
}

void tst_RVPageOrganizationManager::keepsTheSameCalculator()
{
    std::atomic<int> alive { 0 };
    RVPageOrganizationManager manager;
    auto *calculator = new Calculator(&alive);
    manager.setCalculator(calculator);
    manager.organization(u"26"_s);
    manager.setCalculator(calculator);
    QCOMPARE(alive.load(), 1);
    manager.organization(u"26"_s);
    QCOMPARE(calculator->calls.load(), 2);
}

void tst_RVPageOrganizationManager::removesTheCalculator()
{
    std::atomic<int> alive { 0 };
    RVPageOrganizationManager manager;
    manager.setCalculator(new Calculator(&alive));
    const RVPageCountOrganization *old = manager.organization(u"26"_s);
    manager.setCalculator(nullptr);
    QCOMPARE(alive.load(), 0);
    QVERIFY(!manager.organization(u"26"_s)->isValid());
    QCOMPARE(old->minPages(), 26);
}

void tst_RVPageOrganizationManager::calculatorMayCallBack()
{
    RVPageOrganizationManager manager;
    auto *calculator = new AskingCalculator(&manager);
    manager.setCalculator(calculator);
    QVERIFY(manager.pageCountOrganzation(u"64"_s) == RVPageCountOrganization(RVIntRange(32, 64), 1));
    QCOMPARE(calculator->calls.load(), 7);
    QVERIFY(*manager.organization(u"32"_s) == RVPageCountOrganization(RVIntRange(16, 32), 1));
    QCOMPARE(calculator->calls.load(), 7);
}

void tst_RVPageOrganizationManager::clearCacheIsASlot()
{
    RVPageOrganizationManager manager;
    auto *calculator = new Calculator;
    manager.setCalculator(calculator);
    manager.organization(u"26"_s);
    QVERIFY(QMetaObject::invokeMethod(&manager, "clearCache"));
    manager.organization(u"26"_s);
    QCOMPARE(calculator->calls.load(), 2);
}

// Some ask, with a calculator that asks itself; one empties the cache; one reads what it was given long ago.
void tst_RVPageOrganizationManager::threads()
{
    constexpr int threadCount = 8;
    constexpr int rounds = 200;
    RVPageOrganizationManager manager;
    manager.setCalculator(new AskingCalculator(&manager));
    const RVPageCountOrganization *old = manager.organization(u"100"_s);
    std::atomic<int> ready { 0 };
    std::atomic<int> wrong { 0 };
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&, thread] {
            ++ready;
            while (ready < threadCount)
                std::this_thread::yield();
            std::vector<std::pair<int, const RVPageCountOrganization *>> kept;
            for (int round = 0; round < rounds; ++round) {
                if (thread == 0)
                    manager.clearCache();
                const int pages = 2 + round % 40;
                const RVPageCountOrganization *asked = manager.organization(QString::number(pages));
                kept.emplace_back(pages, asked);
                if (asked->maxPages() != pages || asked->minPages() != pages / 2 || old->maxPages() != 100)
                    ++wrong;
            }
            for (const auto &[pages, organization] : kept) {
                if (organization->maxPages() != pages)
                    ++wrong;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

// The manager may be older than the calculator: it finds the operation by its place alone.
void tst_RVPageOrganizationManager::slotOrder()
{
    struct Slots
    {
        void *destructors[2];
        RVPageCountOrganization (*calculate)(void *, const RVProductType &);
    };
    Calculator calculator;
    RVPageOrganizationCalculator *object = &calculator;
    const Slots *table = *reinterpret_cast<const Slots *const *>(object);
    QCOMPARE(table->calculate(object, u"26"_s).minPages(), 26);
}

QTEST_GUILESS_MAIN(tst_RVPageOrganizationManager)
#include "tst_RVPageOrganizationManager.moc"
