//! [includes]
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVProductBase/RVArticleVariants.h>
#include <RVProductBase/RVPageOrganizationCalculator.h>
#include <RVProductBase/RVPageOrganizationManager.h>
#include <RVProductBase/RVProductChecker.h>
#include <RVProductBase/RVProductCheckerRegistry.h>

#include <QTest>

#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
//! [includes]

//! [calculator]
class CatalogueCalculator : public RVPageOrganizationCalculator
{
public:
    RVPageCountOrganization calculate(const RVProductType &type) override
    {
        ++calls;
        RVCatalogueReader reader(u"products.xml"_s);
        return reader.find(type).pageCounts();
    }

    int calls = 0;
};
//! [calculator]

//! [checker]
constexpr RVProductCheckerType SOLD_IN_SHOP = 1;

class ShopChecker : public RVProductChecker
{
public:
    bool isValid(const RVProductType &type) const override { return !type.isCalendar(); }
    RVProductCheckerType checkerTypes() const override { return SOLD_IN_SHOP; }
    bool isValidBoxStyle(const RVProductType &, const RVArticleVariants &variants) const override
    {
        // The customer chooses a box together with its colour; toXTCI() takes such options apart.
        return variants.toXTCI().value(RVArticleVariants::pictureBoxKeyName()) != u"wood"_s;
    }
};
//! [checker]

//! [latechecker]
class LateShopChecker : public ShopChecker
{
public:
    bool isValid(const RVProductType &) const override
    {
        if (RVProductChecker *checker = std::exchange(myLate, nullptr))
            RVProductCheckerRegistry::instance()->registerChecker(checker);
        return true;
    }
    explicit LateShopChecker(RVProductChecker *late) : myLate(late) { }

private:
    mutable RVProductChecker *myLate;
};
//! [latechecker]

class tst_guide_services : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageCounts();
    void pointers();
    void threads();
    void checkers();
};

void tst_guide_services::pageCounts()
{
    //! [pagecounts]
    auto *calculator = new CatalogueCalculator;
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    manager->setCalculator(calculator);

    QCOMPARE(manager->pageCountOrganzation(u"DUN9"_s).maxPages(), 154);
    QCOMPARE(manager->pageCountOrganzation(u"DUN9_30"_s).maxPages(), 154);
    QCOMPARE(calculator->calls, 1);
    //! [pagecounts]
    manager->setCalculator(nullptr);
}

void tst_guide_services::pointers()
{
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    auto *calculator = new CatalogueCalculator;
    manager->setCalculator(calculator);
    //! [pointers]
    const RVPageCountOrganization *before = manager->organization(u"DUN9"_s);
    manager->clearCache();
    const RVPageCountOrganization *after = manager->organization(u"DUN9"_s);

    QVERIFY(before != after);
    QCOMPARE(before->minPages(), 26);
    //! [pointers]
    //! [shared]
    *manager->organization(u"DUN9"_s) -= 6;

    QCOMPARE(manager->pageCountOrganzation(u"DUN9"_s).minPages(), 20);

    manager->clearCache();
    RVPageCountOrganization copy = manager->pageCountOrganzation(u"DUN9"_s);
    copy -= 6;

    QCOMPARE(manager->pageCountOrganzation(u"DUN9"_s).minPages(), 26);
    //! [shared]
    QCOMPARE(calculator->calls, 3);
    manager->setCalculator(nullptr);
}

void tst_guide_services::threads()
{
    RVPageOrganizationManager *manager = RVPageOrganizationManager::instance();
    auto *calculator = new CatalogueCalculator;
    manager->setCalculator(calculator);
    //! [threads]
    int pages = 0;
    std::thread layout([&pages, manager] { pages = manager->pageCountOrganzation(u"DUN9"_s).constrain(35); });
    const bool allowed = manager->pageCountOrganzation(u"DUN9"_s).isValidPageCount(38);
    layout.join();

    QCOMPARE(pages, 38);
    QVERIFY(allowed);
    QCOMPARE(calculator->calls, 1);
    //! [threads]
    manager->setCalculator(nullptr);
}

void tst_guide_services::checkers()
{
    //! [registry]
    ShopChecker checker;
    RVProductCheckerRegistry *registry = RVProductCheckerRegistry::instance();
    registry->registerChecker(&checker);

    QVERIFY(registry->isValid(u"DUN9"_s, SOLD_IN_SHOP));
    QVERIFY(!registry->isValid(u"VIR1"_s, SOLD_IN_SHOP));

    const RVArticleVariants box(u"boxstyle;giftboxcolor"_s, u"wood;black"_s);

    QVERIFY(!registry->isValidBoxStyle(u"DUN9"_s, box, SOLD_IN_SHOP));
    QVERIFY(registry->isValidBoxStyle(u"DUN9"_s, RVArticleVariants(u"alcolor"_s, u"red"_s), SOLD_IN_SHOP));

    registry->unregisterChecker(&checker);

    QVERIFY(registry->isValid(u"VIR1"_s, SOLD_IN_SHOP));
    //! [registry]
    //! [meanwhile]
    LateShopChecker first(&checker); // registers the other one when it is asked
    registry->registerChecker(&first);

    QVERIFY(registry->isValid(u"VIR1"_s, SOLD_IN_SHOP));
    QVERIFY(registry->isValid(u"VIR1"_s, SOLD_IN_SHOP));

    registry->clearCaches();

    QVERIFY(!registry->isValid(u"VIR1"_s, SOLD_IN_SHOP));
    //! [meanwhile]
    registry->unregisterChecker(&first);
    registry->unregisterChecker(&checker);
}

QTEST_MAIN(tst_guide_services)
#include "tst_guide_services.moc"
