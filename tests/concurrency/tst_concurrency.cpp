// Eight threads at a common starting line, each time at something that no thread has used before.
#include <RVCatalogue/RVCatalogueAttributes.h>
#include <RVCore/RVDirectoryConfig.h>
#include <RVCore/RVFontCreator.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVConfiguredArticleVariant.h>
#include <RVProductBase/RVCoverType.h>
#include <RVProductBase/RVMargins.h>
#include <RVProductBase/RVPageBinding.h>
#include <RVProductBase/RVPageOrganizationCalculator.h>
#include <RVProductBase/RVPageOrganizationManager.h>
#include <RVProductBase/RVPaperType.h>
#include <RVProductBase/RVPriceClassSet.h>
#include <RVProductBase/RVProductCheckerRegistry.h>
#include <RVProductBase/RVSpaceMagnitude.h>
#include <RVProductBase/RVSpineConfig.h>

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int THREADS = 8;

/// The answers that the threads get when all call at once.
template<typename Function>
auto atOnce(Function function) -> std::vector<decltype(function())>
{
    static_assert(!std::is_same_v<decltype(function()), bool>, "the threads would write to one byte");
    std::vector<decltype(function())> results(THREADS);
    std::atomic<int> ready { 0 };
    std::vector<std::thread> threads;
    for (int i = 0; i < THREADS; ++i) {
        threads.emplace_back([&, i] {
            ++ready;
            while (ready < THREADS)
                std::this_thread::yield();
            results[i] = function();
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    return results;
}

template<typename Function, typename Expected>
bool allGet(Function function, const Expected &expected)
{
    for (const auto &result : atOnce(function)) {
        if (result != expected) {
            qWarning() << "got" << result << "instead of" << expected;
            return false;
        }
    }
    return true;
}

/// The keyword table of an attribute as a thread sees it.
template<typename Attribute>
auto tableOf()
{
    const Attribute attribute;
    return std::pair { attribute.enumToStringTable(), attribute.allKnownKeywords() };
}

template<typename Attribute>
bool allGetTheTable()
{
    const auto seen = atOnce(tableOf<Attribute>);
    const auto table = tableOf<Attribute>();
    return !table.second.isEmpty()
            && std::all_of(seen.begin(), seen.end(), [&](const auto &each) { return each == table; });
}

struct TextCase
{
    const char *name;
    QString expected;
    std::function<QString()> ask;
};

struct SetCase
{
    const char *name;
    int size;
    QString member;
    RVPriceClassSet (*ask)();
};

/// Gives the type "N" the counts 1 to N, and asks the manager about the type "1" in between.
class Calculator : public RVPageOrganizationCalculator
{
public:
    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        const int pages = type.toString().toInt();
        if (pages > 1)
            RVPageOrganizationManager::instance()->organization(u"1"_s);
        return RVPageCountOrganization(RVIntRange(1, pages), 1);
    }
};

/// Gives the type "N" the counts 1 to N without asking another service.
class IndependentCalculator : public RVPageOrganizationCalculator
{
public:
    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        return RVPageCountOrganization(RVIntRange(1, type.toString().toInt()), 1);
    }
};

/// Accepts types that end with 0.
class Checker : public RVProductChecker
{
public:
    bool isValid(const RVProductType &type) const override { return type.toString().endsWith(u'0'); }
    RVProductCheckerType checkerTypes() const override { return 1; }
    bool isValidBoxStyle(const RVProductType &type, const RVArticleVariants &) const override
    {
        return type.toString().size() == 3;
    }
};

}

class tst_concurrency : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keywordTables_data();
    void keywordTables();
    void texts_data();
    void texts();
    void priceClassSets_data();
    void priceClassSets();
    void designPriceClasses();
    void singletons();
    void platformSettings();
    void pageOrganizations();
    void replacedCalculators();
    void managersOfTheirOwn();
    void productCheckers();
    void boxStyles();
    void sharedValues();
};

// No thread has used a table before, so the rows come first.
void tst_concurrency::keywordTables_data()
{
    using Check = bool (*)();
    QTest::addColumn<Check>("allGetTheTable");
    const auto add = [](const auto &row) {
        using Attribute = typename std::decay_t<decltype(row)>::Class;
        QTest::newRow(row.name.data()) << Check(allGetTheTable<Attribute>);
    };
    std::apply([&](const auto &...rows) { (add(rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
}

void tst_concurrency::keywordTables()
{
    using Check = bool (*)();
    QFETCH(const Check, allGetTheTable);
    QVERIFY(allGetTheTable());
}

// Each row uses a table of names, of previews or of separators.
void tst_concurrency::texts_data()
{
    QTest::addColumn<TextCase>("tested");
    const TextCase cases[] = {
        { "names of covers", u"Leder"_s, [] { return RVCoverType(LEATHER).humanReadableName(); } },
        { "tool tips of covers", u"Individuell gestaltbarer flexibler Einband mit Rückstichbindung."_s,
          [] { return RVCoverType(BOOKLET).toolTip(); } },
        { "names of bindings", u"Lay-Flat-Bindung"_s, [] { return RVPageBinding(LAYFLAT).humanReadableName(); } },
        { "texts of paper", u"Digitaldruck Hochglanz"_s,
          [] { return RVPaperType::translatedPaperTypes().value(u"Digitaldruck Glaenzend"_s); } },
        { "names of paper", u"Premiumpapier"_s, [] { return RVPaperType(PREMIUM).humanReadableName(); } },
        { "names of size classes", u"A4"_s, [] { return RVSpaceMagnitude(u"A4"_s).humanReadableName(); } },
        { "previews", u"calendar_binding_spiral_black"_s,
          [] { return RVConfiguredArticleVariant(u"spiral"_s, u"black"_s).preview(); } },
        { "separators of variants", u"a:b"_s, [] { return RVArticleVariants(u"a|b"_s).toKTX(); } },
    };
    for (const TextCase &each : cases)
        QTest::newRow(each.name) << each;
}

void tst_concurrency::texts()
{
    QFETCH(TextCase, tested);
    QVERIFY(allGet(tested.ask, tested.expected));
}

void tst_concurrency::priceClassSets_data()
{
    QTest::addColumn<SetCase>("tested");
    using Set = RVPriceClassSet;
    const SetCase cases[] = {
        { "gloss", 19, u"KUR50"_s, Set::spotColorGloss },
        { "gold and silver", 30, u"KUR551"_s, Set::spotColorGoldSilver },
        { "silver ink", 0, QString(), Set::spotColorSilverInk },
        { "all spot colours", 49, u"KUR2"_s, Set::spotColorAll },
        { "gift boxes for books", 4, u"VEL7"_s, Set::bookGiftBoxes },
        { "gift service for books", 4, u"HAZ8"_s, Set::bookGiftService },
        { "gift service for calendars", 1, u"HAZ9"_s, Set::calendarGiftService },
        { "gift boxes for calendars", 2, u"HAZ11"_s, Set::calendarGiftBoxes },
        { "maps", 2, u"JOT51"_s, Set::maps },
        { "envelopes", 9, u"YIB9"_s, Set::envelops },
        { "calendar frames", 5, u"QO20"_s, Set::calendarFrameClasses },
        { "poster strips", 5, u"BIX5"_s, Set::posterWoodenStrips },
        { "wall holders", 18, u"QO212"_s, Set::wallholderPriceClasses },
        { "matt covers", 8, u"KUR36"_s, Set::mattCoverPriceClasses },
        { "linen covers", 6, u"LEZ6"_s, Set::linenCoverPriceClasses },
        { "fly-leaves", 13, u"SAV13"_s, Set::flyleafAndInsideCoverPriceClasses },
        { "pockets", 8, u"GEK8"_s, Set::memorabiliaPocketPriceClass },
        { "art print boxes", 2, u"TY65"_s, Set::artPrintBoxPriceClasses },
        { "panoramas", 1, u"WAF3"_s, Set::pxwPanoPagesPriceClasses },
        { "new designs", 2, u"premium_cover_design"_s, Set::pxwNewDesignPriceClasses },
        { "videos", 14, u"MUL55"_s, Set::videoNames },
        { "frame glasses", 2, u"RUN1"_s, Set::frameGlasses },
        { "calendar strips", 3, u"NUS3"_s, Set::calendarStrips },
        { "calendar stands", 1, u"ZUD1"_s, Set::calendarStandPriceClasses },
        { "wall holder like a frame", 1, u"QO20"_s, Set::wallholderThatActsLikeAFrame },
        { "inner pages design", 1, u"premium_inner_pages_design"_s, Set::pxwInnerPagesDesignPriceClasses },
        { "cover design", 1, u"premium_cover_design"_s, Set::pxwCoverDesignPriceClasses },
        { "page increments", 2, u"KEMI62"_s, Set::pageIncrements },
    };
    for (const SetCase &each : cases)
        QTest::newRow(each.name) << each;
}

void tst_concurrency::priceClassSets()
{
    QFETCH(SetCase, tested);
    QVERIFY(allGet([&] { return int(tested.ask().size()); }, tested.size));
    QVERIFY(allGet([&] { return int(tested.ask().contains(tested.member)); }, tested.size > 0 ? 1 : 0));
}

// Every call changes the one set that is stored.
void tst_concurrency::designPriceClasses()
{
    for (int round = 0; round < 100; ++round) {
        QVERIFY(allGet(
                [] {
                    RVPriceClassSet set = RVPriceClassSet::designPriceClasses();
                    const int size = int(set.size());
                    set.clear();
                    return size;
                },
                9));
    }
}

void tst_concurrency::singletons()
{
    const auto check = [](auto ask) {
        const auto instances = atOnce(ask);
        for (const auto *instance : instances) {
            if (!instance || instance != instances.front())
                return false;
        }
        return true;
    };
    QVERIFY(check(RVPageOrganizationManager::instance));
    QVERIFY(check(RVProductCheckerRegistry::instance));
    QVERIFY(check(RVFontCreator::instance));
    QVERIFY(check(RVFontSizeManager::instance));
    QVERIFY(check(RVDirectoryConfig::instance));
}

// Sizes that are set on one thread are seen whole on the others: all of the sizes, or none.
void tst_concurrency::platformSettings()
{
    RVFontSizeManager *sizes = RVFontSizeManager::instance();
    RVDirectoryConfig *directories = RVDirectoryConfig::instance();
    const QTemporaryDir folder;
    QVERIFY(QFile(folder.filePath(u"mask.png"_s)).open(QFile::WriteOnly));
    const QList<int> before = sizes->defaultFontSizes();
    sizes->setDefaultFontSizes({ 8, 10 });
    std::atomic<int> number { 0 };
    const auto setAndAsk = [&] {
        const bool sets = number++ % 2 == 0;
        int right = 0;
        for (int i = 0; i < 200; ++i) {
            if (sets) {
                sizes->setDefaultFontSizes(i % 2 == 0 ? QList<int> { 36, 72 } : QList<int> { 10, 8 });
                directories->addSearchDirectory(folder.path());
            }
            const QList<int> read = sizes->defaultFontSizes();
            const QString found = directories->resource(u"mask.png"_s, false);
            right += (read == QList<int> { 36, 72 } || read == QList<int> { 8, 10 })
                    && (found == u"mask.png"_s || found == folder.filePath(u"mask.png"_s));
        }
        return right;
    };
    const bool allRight = allGet(setAndAsk, 200);
    sizes->setDefaultFontSizes(before);
    QVERIFY(allRight);
}

namespace {

/// The page counts that threads ask for are 1 to this number.
constexpr int COUNTS = 100;

/// Empties the cache as long as others ask.
int emptyTheCache(const std::atomic<int> &asking)
{
    do {
        RVPageOrganizationManager::instance()->clearCache();
        std::this_thread::yield();
    } while (asking > 0);
    return COUNTS;
}

/// Reads what it was given in the beginning as long as others ask. Returns how many answers stayed right.
int readWhatWasGiven(const std::atomic<int> &asking)
{
    std::vector<const RVPageCountOrganization *> kept;
    for (int pages = 1; pages <= COUNTS; ++pages)
        kept.push_back(RVPageOrganizationManager::instance()->organization(QString::number(pages)));
    int right = COUNTS;
    do {
        for (int i = 0; i < COUNTS; ++i)
            right -= kept[i]->maxPages() != i + 1;
        std::this_thread::yield();
    } while (asking > 0);
    return right;
}

/// Returns how many answers are right.
int ask(std::atomic<int> *asking)
{
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    int right = 0;
    for (int pages = 1; pages <= COUNTS; ++pages) {
        const RVProductType type = QString::number(pages);
        const int found = manager->organization(type)->maxPages();
        right += found == pages && manager->pageCountOrganzation(type).maxPages() == pages;
    }
    --*asking;
    return right;
}

}

// Six threads ask, and the calculator asks in turn. One empties the cache all the while, one goes on reading what it
// was given before.
void tst_concurrency::pageOrganizations()
{
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    manager->setCalculator(new Calculator);
    std::atomic<int> number { 0 };
    std::atomic<int> asking { 0 };
    const auto work = [&] {
        switch (number++ % THREADS) {
        case 0:
            return emptyTheCache(asking);
        case 1:
            return readWhatWasGiven(asking);
        default:
            return ask(&asking);
        }
    };
    for (int round = 0; round < 10; ++round) {
        asking = THREADS - 2;
        QVERIFY(allGet(work, COUNTS));
    }
    manager->setCalculator(nullptr);
}

// A calculator that is replaced while others ask is not deleted before they have their answers.
void tst_concurrency::replacedCalculators()
{
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    manager->setCalculator(new Calculator);
    std::atomic<int> number { 0 };
    const auto replace = [&] {
        const bool replaces = number++ % THREADS == 0;
        int right = 0;
        for (int pages = 1; pages <= COUNTS; ++pages) {
            if (replaces)
                manager->setCalculator(new Calculator);
            const std::unique_ptr<RVPageCountOrganization> created(
                    manager->createPageOrganization(QString::number(pages)));
            right += created->maxPages() == pages
                    && manager->pageCountOrganzation(QString::number(pages)).maxPages() == pages;
        }
        return right;
    };
    QVERIFY(allGet(replace, COUNTS));
    manager->setCalculator(nullptr);
}

// Managers beside the process's one are independent, but what they hand out is kept in one place.
void tst_concurrency::managersOfTheirOwn()
{
    const auto ask = [] {
        RVPageOrganizationManager manager;
        manager.setCalculator(new IndependentCalculator);
        int right = 0;
        for (int pages = 1; pages <= 100; ++pages)
            right += manager.organization(QString::number(pages))->maxPages() == pages;
        return right;
    };
    QVERIFY(allGet(ask, 100));
}

void tst_concurrency::productCheckers()
{
    RVProductCheckerRegistry *registry = RVProductCheckerRegistry::instance();
    Checker checker;
    registry->registerChecker(&checker);
    const auto ask = [&] {
        int accepted = 0;
        for (int i = 1; i <= 200; ++i)
            accepted += registry->isValid(QString::number(i), 1);
        return accepted;
    };
    for (int round = 0; round < 5; ++round) {
        QVERIFY(allGet(ask, 20));
        registry->clearCaches();
    }
    registry->unregisterChecker(&checker);
}

// Box styles are neither cached nor locked: each thread gets the answer of the checkers themselves.
void tst_concurrency::boxStyles()
{
    RVProductCheckerRegistry *registry = RVProductCheckerRegistry::instance();
    Checker checker;
    registry->registerChecker(&checker);
    const RVArticleVariants wood(u"boxstyle:wood"_s);
    const auto ask = [&] {
        int accepted = 0;
        for (int i = 1; i <= 200; ++i)
            accepted += registry->isValidBoxStyle(QString::number(i), wood, 1);
        return accepted;
    };
    QVERIFY(allGet(ask, 101)); // 100 to 200
    registry->unregisterChecker(&checker);
}

// Copies share their data; the last one to go deletes it.
void tst_concurrency::sharedValues()
{
    const RVMargins margins(1, 2, 3, 4);
    const RVSpineConfig spine(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, RVDistance(80), RVDistance(10),
                              RVDistance(5));
    const RVConfiguredArticleVariant option(u"k"_s, u"v"_s);
    const auto copy = [&] {
        int right = 0;
        for (int i = 0; i < 1000; ++i) {
            const RVMargins marginsCopy = margins;
            const RVSpineConfig spineCopy = spine;
            RVConfiguredArticleVariant changed = option;
            changed.merge(RVConfiguredArticleVariant());
            right += marginsCopy.right() == 4 && spineCopy.spineWidth(34) == RVDistance(100) && changed == option;
        }
        return right;
    };
    QVERIFY(allGet(copy, 1000));
}

QTEST_GUILESS_MAIN(tst_concurrency)
#include "tst_concurrency.moc"
