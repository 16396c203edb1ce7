// Cached results of the two services, compared with the smallest thread-safe cache.
#include "Comparison.h"

#include <RVPageOrganizationCalculator.h>
#include <RVPageOrganizationManager.h>
#include <RVProductCheckerRegistry.h>

#include <QHash>
#include <QList>
#include <QMutexLocker>
#include <QRecursiveMutex>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr RVProductCheckerType KINDS = 3;

/// The code of a product with its hash, calculated once.
struct Code
{
    QString name;
    std::size_t hash = 0;

    friend bool operator==(const Code &a, const Code &b) { return a.hash == b.hash && a.name == b.name; }
    friend std::size_t qHash(const Code &code, std::size_t seed = 0) { return seed ^ code.hash; }
};

using CodeAndKinds = std::pair<Code, RVProductCheckerType>;

template<typename Key, typename Value>
class Cache
{
public:
    void insert(const Key &key, const Value &value) { myValues.insert(key, value); }

    /// A real call, like a call into a library.
    Q_NEVER_INLINE Value value(const Key &key) const
    {
        const QMutexLocker locker(&myMutex);
        return myValues.value(key);
    }

private:
    mutable QRecursiveMutex myMutex;
    QHash<Key, Value> myValues;
};

class Calculator : public RVPageOrganizationCalculator
{
public:
    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        const int lowest = int(type.calcHashValue() % 100) + 2;
        return RVPageCountOrganization(RVIntRange(lowest, lowest + 4 * 30), 4);
    }
};

class Checker : public RVProductChecker
{
public:
    bool isValid(const RVProductType &type) const override { return type.calcHashValue() % 3 != 0; }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &, const RVArticleVariants &) const override { return true; }
};

QList<RVProductType> productTypes()
{
    QList<RVProductType> result;
    for (int i = 0; i < CORPUS_SIZE; ++i)
        result += RVProductType((i % 2 == 0 ? u"DUN"_s : u"VIR"_s) + QString::number(i));
    return result;
}

QList<Code> codes(const QList<RVProductType> &types)
{
    QList<Code> result;
    for (const RVProductType &type : types)
        result += { type.toString(), type.calcHashValue() };
    return result;
}

void addOrganization(const QList<RVProductType> &types)
{
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    manager->setCalculator(new Calculator);
    static Cache<Code, const RVPageCountOrganization *> cache;
    static std::vector<RVPageCountOrganization> organizations;
    organizations.reserve(CORPUS_SIZE);
    for (const RVProductType &type : types) {
        organizations.push_back(Calculator().calculate(type));
        cache.insert({ type.toString(), type.calcHashValue() }, &organizations.back());
    }
    Comparison("organization", types, [manager](const RVProductType &type) { return manager->organization(type); })
            .againstWithInputs(
                    "cache", codes(types), [](const Code &code) { return cache.value(code); },
                    [](const RVPageCountOrganization *ours, const RVPageCountOrganization *theirs) {
                        return *ours == *theirs;
                    });
}

void addIsValid(const QList<RVProductType> &types)
{
    static Checker checker;
    static Cache<CodeAndKinds, bool> cache;
    RVProductCheckerRegistry *registry = RVProductCheckerRegistry::instance();
    registry->registerChecker(&checker);
    for (const RVProductType &type : types)
        cache.insert({ { type.toString(), type.calcHashValue() }, KINDS }, checker.isValid(type));
    Comparison("isValid", types, [registry](const RVProductType &type) {
        return registry->isValid(type, KINDS);
    }).againstWithInputs("cache", codes(types), [](const Code &code) { return cache.value({ code, KINDS }); });
}

}

void addBenchmarks()
{
    const QList<RVProductType> types = productTypes();
    addOrganization(types);
    addIsValid(types);
}
