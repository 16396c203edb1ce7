#include <RVCatalogue/RVCatalogueAttribute.h>
#include <RVCatalogue/RVCatalogueAttributes.h>
#include <RVCatalogue/RVCatalogueCheck.h>
#include <RVCatalogue/RVCatalogueComparison.h>
#include <RVCatalogue/RVCatalogueElement.h>
#include <RVCatalogue/RVCatalogueFileSet.h>
#include <RVCatalogue/RVCatalogueFinding.h>
#include <RVCatalogue/RVCatalogueProduct.h>
#include <RVCatalogue/RVCatalogueProject.h>
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVCatalogue/RVCatalogueRule.h>
#include <RVCatalogue/RVCheckConfiguration.h>
#include <RVCatalogue/RVFileEditor.h>
#include <RVCatalogue/RVNearestText.h>
#include <RVCatalogue/RVProductChange.h>
#include <RVCatalogue/RVProductComparison.h>
#include <RVCatalogue/RVRelatedPlace.h>

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

/// The examples of the classes of RVCatalogue.
class tst_examples_catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void attribute();
    void attributeRow();
    void check();
    void comparison();
    void element();
    void fileSet();
    void finding();
    void product();
    void project();
    void reader();
    void readerIterator();
    void rule();
    void configuration();
    void fileEdit();
    void fileEditor();
    void filePosition();
    void fileRange();
    void nearestText();
    void productChange();
    void productComparison();
    void relatedPlace();
};

void tst_examples_catalogues::attribute()
{
    //! [RVCatalogueAttribute]
    const auto cover = RVCatalogueAttribute::find(u"cover_type");

    QCOMPARE(cover.label(), u"Cover"_s);
    //! [RVCatalogueAttribute]
    //! [RVCatalogueAttributeValue]
    const RVCatalogueAttributeValue hardcover = cover.values().constFirst();

    QCOMPARE(hardcover.value, qint64(HARDCOVER));
    QCOMPARE(hardcover.keyword, u"HARDCOVER"_s);
    //! [RVCatalogueAttributeValue]
    //! [RVCatalogueAttributeDecoding]
    const RVCatalogueAttributeDecoding decoding = cover.decode(u"hardcover, velvet"_s);

    QCOMPARE(decoding.text, u"HARDCOVER"_s);
    QCOMPARE(decoding.unknownPieces, QStringList(u"velvet"_s));
    //! [RVCatalogueAttributeDecoding]
}

void tst_examples_catalogues::attributeRow()
{
    //! [RVCatalogueAttributeRow]
    const auto &row = std::get<RVCatalogueAttributeRow<RVCoverType>>(RV_CATALOGUE_ATTRIBUTES);

    QCOMPARE(row.name, "cover_type"_L1);
    QVERIFY(row.isOfProducts);
    //! [RVCatalogueAttributeRow]
}

void tst_examples_catalogues::check()
{
    QByteArray text = "<product type='KAL2' article_id='1020' cover_type='hardcovr'/>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    //! [RVCatalogueCheck]
    RVCatalogueCheck check;
    check.setSeverity(RVCatalogueRule::find(u"keyword-unknown"), RVCatalogueSeverity::Warning);

    RVCatalogueReader reader(&file);
    reader.setCheck(check);
    const RVCatalogueFinding finding = reader.next().findings().constFirst();

    QCOMPARE(finding.text(), u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s);
    QCOMPARE(finding.severity(), RVCatalogueSeverity::Warning);
    //! [RVCatalogueCheck]
}

void tst_examples_catalogues::comparison()
{
    QByteArray text = "<products><product type='KAL2'/></products>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    //! [RVCatalogueComparison]
    RVCatalogueReader before(u"products.xml"_s); // a book and a box of prints
    RVCatalogueReader after(&file); // a calendar
    RVCatalogueComparison comparison(&before, &after);
    QStringList differing;
    for (auto product = comparison.next(); !product.isNull(); product = comparison.next())
        differing += product.product().type().toString();

    QCOMPARE(differing.size(), 3);
    QVERIFY(differing.contains(u"KAL2"_s));
    //! [RVCatalogueComparison]
    //! [RVComparisonCounts]
    const RVComparisonCounts counts = comparison.counts();

    QCOMPARE(counts.added, 1);
    QCOMPARE(counts.removed, 2);
    //! [RVComparisonCounts]
}

void tst_examples_catalogues::element()
{
    //! [RVCatalogueElement]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.next();
    const RVCatalogueElement spine = book.element().firstChildElement("composition"_L1).firstChildElement("spine"_L1);

    QCOMPARE(spine.attribute("base_width"_L1), u"8"_s);
    QCOMPARE(spine.position().line, 12);
    QVERIFY(spine.firstChildElement("missing"_L1).isNull());
    //! [RVCatalogueElement]
}

void tst_examples_catalogues::fileSet()
{
    //! [RVCatalogueFileSet]
    RVCatalogueFileSet files;
    qsizetype findings = 0;
    for (int i = 0; i < 2; ++i) { // the same file twice
        RVCatalogueReader reader(u"products.xml"_s);
        reader.setCheck(RVCatalogueCheck(), &files);
        for (const RVCatalogueProduct &product : reader) {
            for (const RVCatalogueFinding &finding : product.findings())
                findings += finding.rule().name() == "type-duplicate"_L1;
        }
    }

    QCOMPARE(findings, 2);
    //! [RVCatalogueFileSet]
}

void tst_examples_catalogues::finding()
{
    QByteArray text = "<product type='KAL2' article_id='1020' cover_type='hardcovr'/>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    //! [RVCatalogueFinding]
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    const RVCatalogueFinding finding = reader.next().findings().constFirst();

    QCOMPARE(finding.rule().name(), "keyword-unknown"_L1);
    QCOMPARE(finding.range().begin.column, 40); // the "c" of cover_type
    QCOMPARE(finding.fix().constFirst().text, u"hardcover"_s);
    //! [RVCatalogueFinding]
}

void tst_examples_catalogues::product()
{
    //! [RVCatalogueProduct]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.find(RVProductType(u"DUN9"_s));

    QCOMPARE(book.name(), u"Fotobuch Groß Hardcover"_s);
    QCOMPARE(book.coverType().value(), HARDCOVER);
    QCOMPARE(book.pageCounts().maxPages(), 154);
    QCOMPARE(book.spine().spineWidth(34).value(DISTANCE_UNIT_MILLIMETRE), 10.0);
    //! [RVCatalogueProduct]
}

void tst_examples_catalogues::project()
{
    //! [RVCatalogueProject]
    QByteArray text = "<project productname='DUN9_30' pages='34' variants='alcolor:red'/>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const RVCatalogueProject project = RVCatalogueProject::read(&file);

    QVERIFY(!project.hasError());
    QCOMPARE(project.type().toString(), u"DUN9"_s);
    QCOMPARE(project.pages(), u"34"_s);
    //! [RVCatalogueProject]
}

void tst_examples_catalogues::reader()
{
    //! [RVCatalogueReader]
    QStringList names;
    RVCatalogueReader reader(u"products.xml"_s);
    for (const RVCatalogueProduct &product : reader)
        names += product.name();

    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QCOMPARE(names, QStringList({ u"Fotobuch Groß Hardcover"_s, u"Fotobox mit Abzügen"_s }));
    //! [RVCatalogueReader]
}

void tst_examples_catalogues::readerIterator()
{
    //! [RVCatalogueReader_Iterator]
    RVCatalogueReader reader(u"products.xml"_s);
    RVCatalogueReader::Iterator product = reader.begin();

    QCOMPARE((*product).type().toString(), u"DUN9"_s);

    ++product;

    QCOMPARE((*product).type().toString(), u"TOS3"_s);
    //! [RVCatalogueReader_Iterator]
}

void tst_examples_catalogues::rule()
{
    //! [RVCatalogueRule]
    const auto rule = RVCatalogueRule::find(u"keyword-unknown");

    QCOMPARE(rule.severity(), RVCatalogueSeverity::Error);
    QVERIFY(rule.explanation().startsWith(rule.reason()));
    QVERIFY(RVCatalogueRule::find(u"no-such-rule").isNull());
    //! [RVCatalogueRule]
}

void tst_examples_catalogues::configuration()
{
    //! [RVCheckConfiguration]
    const auto configuration = RVCheckConfiguration::find(u"products.xml"_s); // rvcatalog.toml beside it
    QVERIFY2(!configuration.hasError(), qPrintable(configuration.errorString()));

    RVCatalogueCheck check;
    configuration.apply(&check);

    QCOMPARE(check.pageSize(RVProductType(u"DUN9"_s)), QSizeF(210, 297));
    //! [RVCheckConfiguration]
}

void tst_examples_catalogues::fileEdit()
{
    //! [RVFileEdit]
    const RVFileEdit edit { { { 1, 25 }, { 1, 26 } }, u"."_s };
    RVFileEditor editor;
    QVERIFY(editor.add({ edit }));

    QCOMPARE(editor.apply("<spine base_width   = '8,5'/>"), QByteArray("<spine base_width   = '8.5'/>"));
    //! [RVFileEdit]
}

void tst_examples_catalogues::fileEditor()
{
    const QByteArray bytes = "<product type='KAL2' article_id='1020' cover_type='hardcovr'/>";
    QByteArray text = bytes;
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    //! [RVFileEditor]
    RVFileEditor editor;
    for (const RVCatalogueProduct &product : reader) {
        for (const RVCatalogueFinding &finding : product.findings())
            editor.add(finding.fix());
    }

    QCOMPARE(editor.apply(bytes), QByteArray("<product type='KAL2' article_id='1020' cover_type='hardcover'/>"));
    //! [RVFileEditor]
}

void tst_examples_catalogues::filePosition()
{
    //! [RVFilePosition]
    const RVFilePosition begin; // line 1, column 1
    const RVFilePosition later { 2, 42 };

    QVERIFY(begin < later);
    QCOMPARE(later.column, 42);
    //! [RVFilePosition]
}

void tst_examples_catalogues::fileRange()
{
    //! [RVFileRange]
    const RVFileRange attribute { { 2, 42 }, { 2, 63 } };

    QCOMPARE(attribute.end.column - attribute.begin.column, 21); // letters
    //! [RVFileRange]
}

void tst_examples_catalogues::nearestText()
{
    //! [RVNearestText]
    RVNearestText nearest(u"hardcovr"_s, 3);
    nearest.offer(u"softcover"_s);
    nearest.offer(u"hardcover"_s);

    QCOMPARE(nearest.text(), u"hardcover"_s);
    QCOMPARE(nearest.distance(), 1);
    //! [RVNearestText]
}

void tst_examples_catalogues::productChange()
{
    //! [RVComparedValue]
    const RVComparedValue before { u"26"_s, 26 };
    const RVComparedValue after { u"30"_s, 30 };
    //! [RVComparedValue]
    //! [RVProductChange]
    const RVProductChange change("pages.lowest"_L1, u"Lowest page count"_s, before, after);

    QCOMPARE(change.kind(), RVChangeKind::Changed);
    QCOMPARE(change.newValue().value.toInt(), 30);
    //! [RVProductChange]
}

void tst_examples_catalogues::productComparison()
{
    //! [RVProductComparison]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.next();
    const RVCatalogueProduct box = reader.next();
    const RVProductComparison comparison(book, box);

    QCOMPARE(comparison.kind(), RVChangeKind::Changed);
    QCOMPARE(comparison.changes().constFirst().label(), u"Type"_s);
    QVERIFY(RVProductComparison(book, book).changes().isEmpty());
    //! [RVProductComparison]
}

void tst_examples_catalogues::relatedPlace()
{
    QByteArray text =
            "<products>\n<product type='KAL2' article_id='1'/>\n<product type='KAL2' article_id='2'/>\n</products>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    reader.next();
    //! [RVRelatedPlace]
    const RVCatalogueFinding duplicate = reader.next().findings().constFirst(); // the type of the product above
    const RVRelatedPlace first = duplicate.relatedPlaces().constFirst();

    QCOMPARE(duplicate.range().begin.line, 3);
    QCOMPARE(first.range.begin.line, 2);
    //! [RVRelatedPlace]
}

QTEST_MAIN(tst_examples_catalogues)
#include "tst_examples_catalogues.moc"
