#include "CatalogueBuffer.h"
#include "RandomCatalogue.h"

#include <RVCatalogueComparison.h>
#include <RVCatalogueReader.h>

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The results of a comparison, one line for each product: its kind, its types and the changed subjects.
struct Result
{
    QStringList products;
    RVComparisonCounts counts;
    bool hasError = false;
};

QString describe(const RVProductComparison &product)
{
    QStringList words { rvChangeKindName(product.kind()) };
    if (product.isRenamed())
        words += product.oldProduct().type().toString() + u'>';
    words += product.product().type().toString();
    for (const RVProductChange &change : product.changes())
        words += change.subject();
    return words.join(u' ');
}

Result compare(const QByteArray &before, const QByteArray &after)
{
    CatalogueBuffer oldFile(before);
    CatalogueBuffer newFile(after);
    RVCatalogueReader oldReader(&oldFile);
    RVCatalogueReader newReader(&newFile);
    RVCatalogueComparison comparison(&oldReader, &newReader);
    Result result;
    for (auto product = comparison.next(); !product.isNull(); product = comparison.next())
        result.products += describe(product);
    result.counts = comparison.counts();
    result.hasError = comparison.hasError();
    return result;
}

QByteArray text(const RVComparisonCounts &counts)
{
    return u"%1 added, %2 removed, %3 changed, %4 renamed, %5 equal"_s.arg(counts.added)
            .arg(counts.removed)
            .arg(counts.changed)
            .arg(counts.renamed)
            .arg(counts.equal)
            .toUtf8();
}

/// Products of these types, one on each line, in one group.
QByteArray catalogue(const QByteArrayList &types)
{
    QByteArray result = "<products>\n";
    for (const QByteArray &type : types)
        result += "<product type='" + type + "'/>\n";
    return result + "</products>";
}

/// Random products, each with its own type.
class RandomProducts
{
public:
    RandomProducts(quint32 seed, int count) : myRandom(seed)
    {
        for (int i = 0; i < count; ++i) {
            const QString type = u" type=\"T%1\""_s.arg(i);
            QString product = myRandom.product();
            static const QRegularExpression givenType(u" type=\"[^\"]*\""_s);
            const qsizetype end = product.indexOf(u'>');
            product = product.first(end).remove(givenType) + product.sliced(end);
            myProducts += product.insert(QByteArray("<product").size(), type).toUtf8();
        }
    }

    const QByteArrayList &products() const { return myProducts; }
    static QByteArray catalogueOf(const QByteArrayList &products)
    {
        return "<p><g name='&lt;&quot;x'>" + products.join('\n') + "</g></p>";
    }

private:
    RandomCatalogue myRandom;
    QByteArrayList myProducts;
};

}

class tst_RVCatalogueComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void products_data();
    void products();
    void errors_data();
    void errors();
    void noReader();
    void places();
    void familiesCount();
    void largeProducts();
    void manyProducts();
    void remaining();
    void randomCatalogueEqualsItself();
    void oneChangedValue();
};

void tst_RVCatalogueComparison::products_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<QByteArray>("counts");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after,
                        const QStringList &expected,
                        const QByteArray &counts) { QTest::newRow(name) << before << after << expected << counts; };
    row("equal", catalogue({ "A", "B" }), catalogue({ "A", "B" }), {},
        "0 added, 0 removed, 0 changed, 0 renamed, 2 equal");
    row("no products", catalogue({}), catalogue({}), {}, "0 added, 0 removed, 0 changed, 0 renamed, 0 equal");
    row("added", catalogue({ "A" }), catalogue({ "A", "B" }), { u"added B"_s },
        "1 added, 0 removed, 0 changed, 0 renamed, 1 equal");
    row("all removed", catalogue({ "A", "B" }), catalogue({}), { u"removed A"_s, u"removed B"_s },
        "0 added, 2 removed, 0 changed, 0 renamed, 0 equal");
    row("removed ones at their place", catalogue({ "A", "B", "C", "D", "E" }), catalogue({ "F", "B", "G", "E" }),
        { u"removed A"_s, u"added F"_s, u"removed C"_s, u"removed D"_s, u"added G"_s },
        "2 added, 3 removed, 0 changed, 0 renamed, 2 equal");
    row("a removed one behind a changed one", catalogue({ "A", "B" }), "<p><product type='A' name='N'/></p>",
        { u"changed A name"_s, u"removed B"_s }, "0 added, 1 removed, 1 changed, 0 renamed, 0 equal");
    row("moved", catalogue({ "A", "B", "C" }), catalogue({ "C", "A", "B" }), {},
        "0 added, 0 removed, 0 changed, 0 renamed, 3 equal");
    row("type of the same family", catalogue({ "DUN9_30" }), catalogue({ "DUN9_40" }), {},
        "0 added, 0 removed, 0 changed, 0 renamed, 1 equal");
    row("type in another letter case", catalogue({ "A" }), catalogue({ "a" }), { u"removed A"_s, u"added a"_s },
        "1 added, 1 removed, 0 changed, 0 renamed, 0 equal");
    row("written in another way", "<p><product type='A' pages='3' cover_type='hard'/></p>",
        "<p><x><product\ncover_type='HARDCOVER'  pages='03' type='A'></product></x></p>", {},
        "0 added, 0 removed, 0 changed, 0 renamed, 1 equal");
    row("changed", "<p><product type='A' pages='3'/><product type='B'/></p>",
        "<p><product type='A' pages='3' name='x'/><product type='B' name='y' price_class='z'/></p>",
        { u"changed A name"_s, u"changed B name price_class"_s }, "0 added, 0 removed, 2 changed, 0 renamed, 0 equal");
    row("same value in another attribute", "<p><product type='A' name='x'/></p>",
        "<p><product type='A' price_class='x'/></p>", { u"changed A name price_class"_s },
        "0 added, 0 removed, 1 changed, 0 renamed, 0 equal");
    row("element outside of its list", "<p><product type='A'><forms><form key='a' value='b'/></forms></product></p>",
        "<p><product type='A'><forms/><form key='a' value='b'/></product></p>",
        { u"changed A option option.default"_s }, "0 added, 0 removed, 1 changed, 0 renamed, 0 equal");
    row("element with another name", "<p><product type='A'><forms><form key='a' value='b'/></forms></product></p>",
        "<p><product type='A'><forms><from key='a' value='b'/></forms></product></p>",
        { u"changed A option option.default"_s }, "0 added, 0 removed, 1 changed, 0 renamed, 0 equal");
    row("attributes in place of elements",
        "<p><product type='A'><x forms='4'/><form key='a' value='b'><z/></form></product></p>",
        "<p><product type='A'><x/><forms><form key='a' value='b' z='4'/></forms></product></p>",
        { u"changed A option option.default"_s }, "0 added, 0 removed, 1 changed, 0 renamed, 0 equal");
    row("second of a type", "<p><product type='A' name='1'/><product type='A' name='2'/></p>",
        "<p><product type='A' name='1'/><product type='A' name='3'/><product type='A' name='4'/></p>",
        { u"changed A name"_s, u"added A"_s }, "1 added, 0 removed, 1 changed, 0 renamed, 1 equal");
    row("without a type", "<p><product name='1'/><product name='2'/></p>", "<p><product name='1'/></p>",
        { u"removed "_s }, "0 added, 1 removed, 0 changed, 0 renamed, 1 equal");
    row("renamed", "<p><product type='A' article_id='7' name='1'/><product type='B' article_id='8'/></p>",
        "<p><product type='B' article_id='8'/><product type='C' article_id='7' name='2'/></p>",
        { u"changed A> C type name"_s }, "0 added, 0 removed, 1 changed, 1 renamed, 1 equal");
    row("renamed with the lowest article", "<p><product type='A' article_id='1'/></p>",
        "<p><product type='B' article_id='1'/></p>", { u"changed A> B type"_s },
        "0 added, 0 removed, 1 changed, 1 renamed, 0 equal");
    row("articles below 0", "<p><product type='A' article_id='-1'/></p>", "<p><product type='B' article_id='-1'/></p>",
        { u"removed A"_s, u"added B"_s }, "1 added, 1 removed, 0 changed, 0 renamed, 0 equal");
    row("article of a product that stayed", "<p><product type='A' article_id='7'/></p>",
        "<p><product type='C' article_id='7'/><product type='A' article_id='7'/></p>", { u"added C"_s },
        "1 added, 0 removed, 0 changed, 0 renamed, 1 equal");
    row("no article", "<p><product type='A' article_id='0'/></p>", "<p><product type='C' article_id='0'/></p>",
        { u"removed A"_s, u"added C"_s }, "1 added, 1 removed, 0 changed, 0 renamed, 0 equal");
    row("two renamed with one article", "<p><product type='A' article_id='7'/><product type='B' article_id='7'/></p>",
        "<p><product type='C' article_id='7'/><product type='D' article_id='7'/></p>",
        { u"changed A> C type"_s, u"changed B> D type"_s }, "0 added, 0 removed, 2 changed, 2 renamed, 0 equal");
}

void tst_RVCatalogueComparison::products()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const Result result = compare(before, after);
    QTEST(result.products, "expected");
    QTEST(text(result.counts), "counts");
    QVERIFY(!result.hasError);
}

void tst_RVCatalogueComparison::errors_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    const QByteArray broken = "<p><product type='A'/><product></p>";
    QTest::newRow("old") << broken << catalogue({ "A" });
    QTest::newRow("new") << catalogue({ "A" }) << broken;
    QTest::newRow("both") << broken << broken;
    QTest::newRow("empty file") << QByteArray() << catalogue({ "A" });
}

void tst_RVCatalogueComparison::errors()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const Result result = compare(before, after);
    QVERIFY(result.hasError);
    QCOMPARE(result.products, QStringList());
}

void tst_RVCatalogueComparison::noReader()
{
    CatalogueBuffer file(catalogue({ "A", "B" }));
    RVCatalogueReader reader(&file);
    RVCatalogueComparison comparison(nullptr, &reader);
    QCOMPARE(describe(comparison.next()), u"added A"_s);
    QCOMPARE(describe(comparison.next()), u"added B"_s);
    QVERIFY(comparison.next().isNull());
    RVCatalogueComparison nothing(nullptr, nullptr);
    QVERIFY(nothing.next().isNull());
    QVERIFY(!nothing.hasError());
}

void tst_RVCatalogueComparison::places()
{
    CatalogueBuffer oldFile("<p>\n<product type='A'/> <product type='B'/></p>");
    CatalogueBuffer newFile("<p>\n\n\n  <product type='A' name='x'/><product type='C'/></p>");
    RVCatalogueReader oldReader(&oldFile);
    RVCatalogueReader newReader(&newFile);
    RVCatalogueComparison comparison(&oldReader, &newReader);
    const RVProductComparison changed = comparison.next();
    QCOMPARE(changed.oldPosition(), RVFilePosition({ 2, 1 }));
    QCOMPARE(changed.newPosition(), RVFilePosition({ 4, 3 }));
    const RVProductComparison removed = comparison.next();
    QCOMPARE(removed.oldPosition(), RVFilePosition({ 2, 21 }));
    QCOMPARE(removed.newPosition(), RVFilePosition());
    const RVProductComparison added = comparison.next();
    QCOMPARE(added.oldPosition(), RVFilePosition());
    QCOMPARE(added.newPosition(), RVFilePosition({ 4, 31 }));
}

void tst_RVCatalogueComparison::familiesCount()
{
    const QByteArray before = "<p><f name='a&#10;\"&amp;&lt;'><product type='A' name='x'/></f></p>";
    CatalogueBuffer oldFile(before);
    CatalogueBuffer newFile("<p><f name='b'><product type='A' name='x'/></f></p>");
    RVCatalogueReader oldReader(&oldFile);
    RVCatalogueReader newReader(&newFile);
    RVCatalogueComparison comparison(&oldReader, &newReader);
    const RVProductComparison changed = comparison.next();
    QCOMPARE(describe(changed), u"changed A families"_s);
    QCOMPARE(changed.oldProduct().families(), QStringList { u"a\n\"&<"_s });
    QCOMPARE(changed.newProduct().families(), QStringList { u"b"_s });
    QCOMPARE(text(compare(before, before).counts), "0 added, 0 removed, 0 changed, 0 renamed, 1 equal");
}

// A document type adds attributes to tags, which are then larger than the limit for files.
void tst_RVCatalogueComparison::largeProducts()
{
    const QByteArray image(60000, 'i');
    const QByteArray head = "<!DOCTYPE p [<!ATTLIST form preview CDATA '" + image + "' name CDATA '" + image
            + "'>]><p>";
    const QByteArray before = head + "<product type='A'><forms><form key='a' value='b'/></forms></product></p>";
    QByteArray after = before;
    after.replace("value='b'/>", "value='b' color='red'/>");
    QCOMPARE(compare(before, after).products, QStringList { u"changed A option.color"_s });
    QCOMPARE(compare(before, before).products, QStringList());
}

void tst_RVCatalogueComparison::manyProducts()
{
    QByteArray before = "<p>";
    QByteArray after = "<p>";
    for (int i = 0; i < 5000; ++i) {
        const QByteArray product = "<product type='T" + QByteArray::number(i) + "' pages='3'/>\n";
        before += product;
        if (i % 100 != 50)
            after += i % 7 == 3 ? QByteArray(product).replace("'3'", "'4'") : product;
    }
    const Result result = compare(before + "</p>", after + "</p>");
    QCOMPARE(text(result.counts), "0 added, 50 removed, 707 changed, 0 renamed, 4243 equal");
    QCOMPARE(result.products.first(2),
             (QStringList { u"changed T3 pages.lowest pages.highest pages.counts pages.counts"_s,
                            u"changed T10 pages.lowest pages.highest pages.counts pages.counts"_s }));
    QCOMPARE(result.products.indexOf(u"removed T50"_s), 7);
}

void tst_RVCatalogueComparison::remaining()
{
    CatalogueBuffer oldFile(catalogue({ "A", "B", "C" }));
    CatalogueBuffer newFile(catalogue({ "C", "D", "E" }));
    RVCatalogueReader oldReader(&oldFile);
    RVCatalogueReader newReader(&newFile);
    RVCatalogueComparison comparison(&oldReader, &newReader);
    QList<qint64> remaining { comparison.remaining() };
    while (!comparison.next().isNull())
        remaining += comparison.remaining();
    QCOMPARE(remaining, QList<qint64>({ 4, 3, 2, 1, 0 }));
    QCOMPARE(RVCatalogueComparison(nullptr, nullptr).remaining(), 0);
}

void tst_RVCatalogueComparison::randomCatalogueEqualsItself()
{
    const RandomProducts random(17, 500);
    const QByteArray before = RandomProducts::catalogueOf(random.products());
    CatalogueBuffer file(before);
    QByteArrayList again;
    for (const RVCatalogueProduct &product : RVCatalogueReader(&file).readAll())
        again.prepend("<!-- x -->\n" + product.toXml());
    QCOMPARE(again.size(), 500);
    const Result result = compare(before, RandomProducts::catalogueOf(again));
    QCOMPARE(result.products, QStringList());
    QCOMPARE(result.counts.equal, 500);
}

// Texts are read literally, and no product has this number.
void tst_RVCatalogueComparison::oneChangedValue()
{
    static const QRegularExpression attribute(u" (name|price_class|page_price_class|article_id|shipping_group|pages|"
                                              "max_pages|page_step)=\"([^\"]*)\""_s);
    const RandomProducts random(23, 400);
    const QByteArray before = RandomProducts::catalogueOf(random.products());
    QRandomGenerator numbers(5);
    QSet<QString> changed;
    for (qsizetype i = 0; i < random.products().size(); ++i) {
        QString product = QString::fromUtf8(random.products().at(i));
        QList<QRegularExpressionMatch> matches;
        for (auto match = attribute.globalMatch(product.first(product.indexOf(u'>'))); match.hasNext();)
            matches += match.next();
        // Page counts that are too large for a number because of "pieces" may become equal.
        if (matches.isEmpty() || product.contains(u" pieces="_s))
            continue;
        const QRegularExpressionMatch match = matches.at(numbers.bounded(int(matches.size())));
        product.replace(match.capturedStart(2), match.capturedLength(2), u"77"_s);
        QByteArrayList products = random.products();
        products[i] = product.toUtf8();
        const Result result = compare(before, RandomProducts::catalogueOf(products));
        QVERIFY2(result.products.size() == 1 && result.products.constFirst().startsWith(u"changed T%1 "_s.arg(i)),
                 qPrintable(match.captured() + product));
        changed += match.captured(1);
    }
    QCOMPARE(changed.size(), 8);
}

QTEST_GUILESS_MAIN(tst_RVCatalogueComparison)
#include "tst_RVCatalogueComparison.moc"
