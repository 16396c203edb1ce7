#include "NameSpaces.h"

#include <RVCore/RVFontCreator.h>
#include <RVCore/RVFontSizeManager.h>
#include <RVProductBase/RVSpineConfig.h>

#include <QDomDocument>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QTest>

#include <cmath>
#include <limits>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();
constexpr unsigned largestUnsigned = std::numeric_limits<unsigned>::max();

RVDistance millimetres(qreal amount)
{
    return RVDistance(amount, DISTANCE_UNIT_MILLIMETRE);
}

/// A spine for 26 to 154 pages in steps of 4: 8 mm, 1 mm for each block of 2 packages, 0.5 mm on each side.
RVSpineConfig photoBook()
{
    return RVSpineConfig(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, millimetres(8), millimetres(1),
                         millimetres(0.5));
}

QDomElement element(const QString &xml)
{
    static QDomDocument document;
    document.setContent(xml);
    return document.documentElement();
}

int lineSpacing(const QString &family, int pointSize)
{
    return QFontMetrics(RVFontCreator::instance()->createFont(family, pointSize)).lineSpacing();
}

/// A spine whose usable height is this many tenths of a millimetre, after the reduction to 85 %.
RVSpineConfig spineFor(qreal usableTenths)
{
    return RVSpineConfig(RVPageCountOrganization(RVIntRange(26, 26), 0), 0, RVDistance(usableTenths / 0.85),
                         RVDistance(), RVDistance(30));
}

}

class tst_RVSpineConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { RVFontSizeManager::instance()->setDefaultFontSizes({ 6, 8, 10, 12, 20, 48 }); }
    void defaultConstruction();
    void addsInOneOrder();
    void widths_data();
    void widths();
    void blocks_data();
    void blocks();
    void implComputesTheSame();
    void coverReduceSize_data();
    void coverReduceSize();
    void reads_data();
    void reads();
    void readsNameSpaces();
    void compares_data();
    void compares();
    void comparesUnordinaryWidths();
    void implFields();
    void fontSizes();
    void fontSizesRoundTheLimit();
    void highestLine_data();
    void highestLine();
    void roomForText();
    void fontSizesOfTheDefaultFamily();
    void fontSizeLists_data();
    void fontSizeLists();
    void copiesShareData();
};

void tst_RVSpineConfig::defaultConstruction()
{
    const RVSpineConfig config;
    QVERIFY(!config.isValid());
    QCOMPARE(config.spineWidth(100).value(), 0.0);
    QCOMPARE(config.additionalSpineWidth().value(), 0.0);
    QCOMPARE(config.additionalPagePackageBlocks(100), 0);
    QCOMPARE(config.coverReduceSize(), 0);
    QVERIFY(config == RVSpineConfig());
    QVERIFY(photoBook().isValid());
}

// The sum is base and growth, then the sides: every other order gives a different last digit here.
void tst_RVSpineConfig::addsInOneOrder()
{
    const RVSpineConfig config(RVPageCountOrganization(RVIntRange(26, 154), 4), 1, RVDistance(0.2), RVDistance(0.3),
                               RVDistance(0.2));
    QVERIFY(config.spineWidth(30).value() == 0.9);
}

void tst_RVSpineConfig::widths_data()
{
    QTest::addColumn<unsigned>("pages");
    QTest::addColumn<qreal>("millimetres");
    QTest::newRow("no pages") << 0u << 9.0;
    QTest::newRow("below the lowest count") << 25u << 9.0;
    QTest::newRow("lowest count") << 26u << 9.0;
    QTest::newRow("one page above the lowest count") << 27u << 9.0;
    QTest::newRow("one package") << 30u << 9.0;
    QTest::newRow("just below a block") << 33u << 9.0;
    QTest::newRow("one block") << 34u << 10.0;
    QTest::newRow("one block and a package") << 38u << 10.0;
    QTest::newRow("two blocks") << 42u << 11.0;
    QTest::newRow("highest count") << 154u << 25.0;
    QTest::newRow("above the highest count") << 162u << 26.0;
}

void tst_RVSpineConfig::widths()
{
    QFETCH(unsigned, pages);
    QTEST(photoBook().spineWidth(pages).value(DISTANCE_UNIT_MILLIMETRE), "millimetres");
    QCOMPARE(photoBook().additionalSpineWidth().value(), 5.0);
    const RVSpineConfig rigid(RVPageCountOrganization(RVIntRange(26, 154), 4), 0, millimetres(8), millimetres(1),
                              millimetres(0.5));
    QCOMPARE(rigid.spineWidth(pages).value(), 90.0);
}

void tst_RVSpineConfig::blocks_data()
{
    QTest::addColumn<int>("packagesPerBlock");
    QTest::addColumn<int>("pageStep");
    QTest::addColumn<unsigned>("pages");
    QTest::addColumn<int>("blocks");
    QTest::newRow("no growth") << 0 << 4 << 154u << 0;
    QTest::newRow("no packages") << 2 << 0 << 154u << 0;
    QTest::newRow("3 packages, 2 a block") << 2 << 4 << 38u << 1;
    QTest::newRow("below the lowest count") << 1 << 4 << 3u << 0;
    QTest::newRow("negative packages a block") << -2 << 4 << 38u << -1;
    QTest::newRow("negative page increment") << 2 << -4 << 38u << -1;
    QTest::newRow("more pages than an int holds") << 1 << 1 << largestUnsigned << largest - 26;
    QTest::newRow("largest packages a block") << largest << 1 << largestUnsigned << 0;
    QTest::newRow("smallest packages a block") << smallest << 1 << largestUnsigned << 0;
}

void tst_RVSpineConfig::blocks()
{
    QFETCH(int, packagesPerBlock);
    QFETCH(int, pageStep);
    QFETCH(unsigned, pages);
    const RVSpineConfig config(RVPageCountOrganization(RVIntRange(26, 154), pageStep), packagesPerBlock, RVDistance(),
                               RVDistance(), RVDistance());
    QTEST(config.additionalPagePackageBlocks(pages), "blocks");
    const RVSpineConfig overflowing(RVPageCountOrganization(RVIntRange(smallest, largest), -1), -1, RVDistance(),
                                    RVDistance(), RVDistance());
    QCOMPARE(overflowing.additionalPagePackageBlocks(largestUnsigned), largest);
}

void tst_RVSpineConfig::implComputesTheSame()
{
    const RVSpineConfigImpl impl(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, millimetres(8), millimetres(1),
                                 millimetres(0.5));
    QVERIFY(impl.isValid());
    QCOMPARE(impl.additionalPagePackageBlocks(42), 2);
    QCOMPARE(impl.additionalWithForPages(42).value(), 20.0);
    QCOMPARE(impl.additionalWithForPages(26).value(), 0.0);
    QCOMPARE(impl.spineWidth(42).value(), 110.0);
    QCOMPARE(impl.additionalSpineWidth().value(), 5.0);
    QCOMPARE(impl.coverReduceSize(), 5);
    QCOMPARE(impl.spineMaxFontHeigth(42, u"DejaVu Sans"_s), photoBook().spineMaxFontHeigth(42, u"DejaVu Sans"_s));
}

void tst_RVSpineConfig::coverReduceSize_data()
{
    QTest::addColumn<qreal>("additionalWidth");
    QTest::addColumn<int>("size");
    QTest::newRow("truncated") << 2.9 << 2;
    QTest::newRow("toward zero") << -2.9 << -2;
    QTest::newRow("too large") << 1e300 << largest;
    QTest::newRow("too small") << -1e300 << smallest;
    QTest::newRow("not a number") << std::nan("") << 0;
}

void tst_RVSpineConfig::coverReduceSize()
{
    QFETCH(qreal, additionalWidth);
    const RVSpineConfig config(RVPageCountOrganization(), 0, RVDistance(), RVDistance(), RVDistance(additionalWidth));
    QTEST(config.coverReduceSize(), "size");
}

void tst_RVSpineConfig::reads_data()
{
    QTest::addColumn<QString>("composition");
    QTest::addColumn<int>("packagesPerBlock");
    QTest::addColumn<QList<qreal>>("tenths");
    const QString spine = u"<spine packages_per_block='3' base_width='8' block_width='1.5' additional_width='0.5'/>"_s;
    const auto row = [](const char *name, const QString &composition, int packagesPerBlock,
                        const QList<qreal> &tenths) {
        QTest::newRow(name) << composition << packagesPerBlock << tenths;
    };
    row("millimetres", u"<composition units='mm'>%1</composition>"_s.arg(spine), 3, { 80, 15, 5 });
    row("default unit", u"<composition>%1</composition>"_s.arg(spine), 3, { 80, 15, 5 });
    row("empty unit", u"<composition units=''>%1</composition>"_s.arg(spine), 3, { 80, 15, 5 });
    row("centimetres", u"<composition units='cm'>%1</composition>"_s.arg(spine), 3, { 800, 150, 50 });
    row("inches", u"<composition units='inch'>%1</composition>"_s.arg(spine), 3, { 2032, 381, 127 });
    row("points",
        u"<composition units='pt'><spine base_width='36' block_width='72' additional_width='144'/></composition>"_s, 0,
        { 127, 254, 508 });
    row("tenths", u"<composition units='0.1mm'>%1</composition>"_s.arg(spine), 3, { 8, 1.5, 0.5 });
    row("empty spine", u"<composition units='cm'><spine/></composition>"_s, 0, { 0, 0, 0 });
    row("no spine", u"<composition units='cm'/>"_s, 0, { 0, 0, 0 });
    row("no composition", u""_s, 0, { 0, 0, 0 });
    row("spine outside the composition", spine + u"<composition/>"_s, 0, { 0, 0, 0 });
    row("first composition only", u"<composition/><composition>%1</composition>"_s.arg(spine), 0, { 0, 0, 0 });
    row("first spine only", u"<composition><spine/>%1</composition>"_s.arg(spine), 0, { 0, 0, 0 });
    row("instructions of the same names", u"<?composition a?><composition><?spine b?>%1</composition>"_s.arg(spine), 3,
        { 80, 15, 5 });
    row("deeper", u"<x><composition>%1</composition></x>"_s.arg(spine), 0, { 0, 0, 0 });
    row("no numbers", u"<composition><spine packages_per_block='x' base_width='8mm' block_width=''/></composition>"_s,
        0, { 0, 0, 0 });
}

void tst_RVSpineConfig::reads()
{
    QFETCH(QString, composition);
    QFETCH(int, packagesPerBlock);
    QFETCH(QList<qreal>, tenths);
    const QDomElement product = element(
            u"<product pages='26' max_pages='154' page_step='4'>%1</product>"_s.arg(composition));
    const RVSpineConfig expected(RVPageCountOrganization(RVIntRange(26, 154), 4), packagesPerBlock,
                                 RVDistance(tenths.at(0)), RVDistance(tenths.at(1)), RVDistance(tenths.at(2)));
    const RVSpineConfig config = RVSpineConfig::createFromProductsXML(product);
    QVERIFY(config == expected);
    QVERIFY(RVSpineConfigImpl::createFromProductsXML(product)
            == RVSpineConfigImpl(RVPageCountOrganization(RVIntRange(26, 154), 4), packagesPerBlock,
                                 RVDistance(tenths.at(0)), RVDistance(tenths.at(1)), RVDistance(tenths.at(2))));
    QVERIFY(RVSpineConfig::createFromProductsXML(QDomElement())
            == RVSpineConfig(RVPageCountOrganization(RVIntRange(1, 1), 0), 0, RVDistance(), RVDistance(),
                             RVDistance()));
}

// Prefixes do not count if the document was parsed with name spaces.
void tst_RVSpineConfig::readsNameSpaces()
{
    const QString xml = u"<product xmlns:shop='urn:shop'><shop:composition units='cm'><shop:spine base_width='2'/>"
                        "</shop:composition></product>"_s;
    const QDomDocument document = parseWithNameSpaces(xml);
    QCOMPARE(RVSpineConfig::createFromProductsXML(document.documentElement()).spineWidth(1).value(), 200.0);
    QCOMPARE(RVSpineConfig::createFromProductsXML(element(xml)).spineWidth(1).value(), 0.0);
}

void tst_RVSpineConfig::compares_data()
{
    QTest::addColumn<RVSpineConfig>("other");
    QTest::addColumn<bool>("equal");
    const RVPageCountOrganization pages(RVIntRange(26, 154), 4);
    const auto config = [&](int packagesPerBlock, qreal base, qreal block, qreal additional) {
        return RVSpineConfig(pages, packagesPerBlock, millimetres(base), millimetres(block), millimetres(additional));
    };
    QTest::newRow("equal, built separately") << photoBook() << true;
    QTest::newRow("fuzzily equal") << config(2, 8 + 1e-13, 1 + 1e-14, 0.5 + 1e-14) << true;
    QTest::newRow("page counts") << RVSpineConfig(RVPageCountOrganization(RVIntRange(26, 150), 4), 2, millimetres(8),
                                                  millimetres(1), millimetres(0.5))
                                 << false;
    QTest::newRow("packages a block") << config(3, 8, 1, 0.5) << false;
    QTest::newRow("base width") << config(2, 8.001, 1, 0.5) << false;
    QTest::newRow("block width") << config(2, 8, 1.001, 0.5) << false;
    QTest::newRow("additional width") << config(2, 8, 1, 0.501) << false;
}

void tst_RVSpineConfig::compares()
{
    QFETCH(RVSpineConfig, other);
    QFETCH(bool, equal);
    QCOMPARE(photoBook() == other, equal);
    QCOMPARE(photoBook() != other, !equal);
    QCOMPARE(other == photoBook(), equal);
}

void tst_RVSpineConfig::comparesUnordinaryWidths()
{
    const auto config = [](qreal base) {
        return RVSpineConfig(RVPageCountOrganization(), 0, RVDistance(base), RVDistance(), RVDistance());
    };
    const RVSpineConfig notANumber = config(std::nan(""));
    const RVSpineConfig copy = notANumber;
    QVERIFY(notANumber == copy); // the same data, so nothing is compared
    QVERIFY(!(notANumber == config(std::nan(""))));
    QVERIFY(!(config(0.0) == config(1e-300)));
}

void tst_RVSpineConfig::implFields()
{
    RVSpineConfigImpl impl;
    QVERIFY(!impl.isValid());
    QCOMPARE(impl.packagesPerBlock, 0);
    QVERIFY(impl.pageCountOrganization == RVPageCountOrganization());
    QCOMPARE(impl.baseWidth.value(), 0.0);
    QCOMPARE(impl.blockWidth.value(), 0.0);
    QCOMPARE(impl.additionalWidth.value(), 0.0);
    const RVSpineConfigImpl other(RVPageCountOrganization(RVIntRange(26, 154), 4), 2, RVDistance(1), RVDistance(2),
                                  RVDistance(3));
    QCOMPARE(other.packagesPerBlock, 2);
    QCOMPARE(other.pageCountOrganization.maxPages(), 154);
    QCOMPARE(other.baseWidth.value(), 1.0);
    QCOMPARE(other.blockWidth.value(), 2.0);
    QCOMPARE(other.additionalWidth.value(), 3.0);
    QVERIFY(impl != other);
    QVERIFY(other == RVSpineConfigImpl(other));
    QVERIFY(std::has_virtual_destructor_v<RVSpineConfigImpl>);
    QVERIFY((std::is_base_of_v<QSharedData, RVSpineConfigImpl>));
}

// The sides do not count, and the line spacing itself still fits.
void tst_RVSpineConfig::fontSizes()
{
    const QString family = u"DejaVu Sans"_s;
    const QList<int> sizes = { 6, 8, 10, 12, 20, 48 };
    for (qsizetype i = 1; i < sizes.size(); ++i) {
        const int spacing = lineSpacing(family, sizes.at(i));
        QVERIFY(spacing > lineSpacing(family, sizes.at(i - 1)));
        QCOMPARE(spineFor(spacing - 1).spineMaxFontHeigth(26, family), sizes.at(i - 1));
        QCOMPARE(spineFor(spacing).spineMaxFontHeigth(26, family), sizes.at(i));
    }
    QCOMPARE(spineFor(0).spineMaxFontHeigth(26, family), 6);
    QCOMPARE(spineFor(-50).spineMaxFontHeigth(26, family), 6);
    QCOMPARE(spineFor(1e300).spineMaxFontHeigth(26, family), 48);
    QCOMPARE(spineFor(std::nan("")).spineMaxFontHeigth(26, family), 6);
}

void tst_RVSpineConfig::fontSizesRoundTheLimit()
{
    const QString family = u"DejaVu Sans"_s;
    const int spacing = lineSpacing(family, 20);
    // The width is so close to the limit that 85.01 % would fail.
    QCOMPARE(spineFor(spacing - 0.50001).spineMaxFontHeigth(26, family), 12);
    QCOMPARE(spineFor(spacing - 0.49999).spineMaxFontHeigth(26, family), 20);
    // The sides take the whole base.
    const RVSpineConfig swallowed(RVPageCountOrganization(RVIntRange(26, 26), 0), 0, RVDistance(1000), RVDistance(),
                                  RVDistance(1e20));
    QCOMPARE(swallowed.spineMaxFontHeigth(26, family), 6);
}

void tst_RVSpineConfig::highestLine_data()
{
    QTest::addColumn<RVSpineConfig>("spine");
    QTest::addColumn<unsigned>("pages");
    QTest::addColumn<int>("height");
    const RVPageCountOrganization counts(RVIntRange(26, 154), 4);
    const RVSpineConfig growing(counts, 2, RVDistance(80), RVDistance(10), RVDistance(5));
    QTest::newRow("lowest count, without the sides") << growing << 26U << 68; // of 80
    QTest::newRow("one block more, rounded up") << growing << 34U << 77; // 76.5 of 90
    QTest::newRow("two blocks more") << growing << 42U << 85; // of 100
    QTest::newRow("rounded down") << RVSpineConfig(counts, 0, RVDistance(97), {}, {}) << 26U << 82; // 82.45
    QTest::newRow("sides alone") << RVSpineConfig(counts, 0, {}, {}, RVDistance(50)) << 26U << 0;
    QTest::newRow("negative width") << RVSpineConfig(counts, 0, RVDistance(-100), {}, {}) << 26U << -85;
    QTest::newRow("default") << RVSpineConfig() << 26U << 0;
}

void tst_RVSpineConfig::highestLine()
{
    QFETCH(RVSpineConfig, spine);
    QFETCH(unsigned, pages);
    QTEST(spine.highestLine(pages), "height");
}

// Only the smallest size counts, and its line spacing itself still fits.
void tst_RVSpineConfig::roomForText()
{
    const QString family = u"DejaVu Sans"_s;
    const int spacing = lineSpacing(family, 6);
    QVERIFY(RVSpineConfig::canMeasureText());
    QVERIFY(spineFor(spacing).hasRoomForText(26, family));
    QVERIFY(!spineFor(spacing - 1).hasRoomForText(26, family));
    QVERIFY(!spineFor(-50).hasRoomForText(26, family));
    QVERIFY(spineFor(lineSpacing(QGuiApplication::font().family(), 6)).hasRoomForText(26));
    RVFontSizeManager::instance()->setDefaultFontSizes({});
    QVERIFY(spineFor(-50).hasRoomForText(26, family));
}

void tst_RVSpineConfig::fontSizesOfTheDefaultFamily()
{
    const QString mono = u"DejaVu Sans Mono"_s;
    const QString serif = u"DejaVu Serif"_s;
    const QFont previous = QGuiApplication::font();
    QGuiApplication::setFont(QFont(mono));
    const RVSpineConfig spine = spineFor(lineSpacing(mono, 20));
    QCOMPARE(spine.spineMaxFontHeigth(26, QString()), 20);
    QCOMPARE(spine.spineMaxFontHeigth(26, u""_s), 20);
    QCOMPARE(spine.spineMaxFontHeigth(26, serif), lineSpacing(serif, 20) > lineSpacing(mono, 20) ? 12 : 20);
    QGuiApplication::setFont(previous);
}

void tst_RVSpineConfig::fontSizeLists_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<qreal>("usableTenths");
    QTest::addColumn<int>("size");
    QTest::newRow("one size, never measured") << QList<int> { 48 } << 0.0 << 48;
    QTest::newRow("two sizes, the second too tall") << QList<int> { 20, 48 } << 0.0 << 20;
    QTest::newRow("two sizes, both fit") << QList<int> { 20, 48 } << 1000.0 << 48;
    QTest::newRow("no sizes") << QList<int>() << 1000.0 << 0;
}

void tst_RVSpineConfig::fontSizeLists()
{
    QFETCH(QList<int>, sizes);
    QFETCH(qreal, usableTenths);
    RVFontSizeManager::instance()->setDefaultFontSizes(sizes);
    QTEST(spineFor(usableTenths).spineMaxFontHeigth(26, u"DejaVu Sans"_s), "size");
}

void tst_RVSpineConfig::copiesShareData()
{
    RVSpineConfig first = photoBook();
    const RVSpineConfig copy = first;
    first = RVSpineConfig();
    QVERIFY(copy == photoBook());
    RVSpineConfig moved = std::move(first);
    QVERIFY(!moved.isValid());
    QVERIFY(first == RVSpineConfig()); // moving shares
    moved = copy;
    QVERIFY(moved == photoBook());
    RVSpineConfig target;
    target = std::move(moved);
    QVERIFY(target == photoBook());
    QVERIFY(!moved.isValid()); // what the target was
    QCOMPARE(moved.spineWidth(34).value(), 0.0);
    QCOMPARE(moved.additionalPagePackageBlocks(34), 0);
    QCOMPARE(moved.additionalSpineWidth().value(), 0.0);
    QCOMPARE(moved.coverReduceSize(), 0);
    QCOMPARE(moved.spineMaxFontHeigth(34, QString()), 6);
    QVERIFY(moved == RVSpineConfig());
    QVERIFY(moved != target);
    QVERIFY(!std::is_polymorphic_v<RVSpineConfig>);
}

QTEST_MAIN(tst_RVSpineConfig)
#include "tst_RVSpineConfig.moc"
