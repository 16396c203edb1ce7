//! [includes]
#include <RVCatalogue/RVCatalogueAttribute.h>
#include <RVCatalogue/RVCatalogueAttributes.h>
#include <RVCatalogue/RVCatalogueCheck.h>
#include <RVCatalogue/RVCatalogueElement.h>
#include <RVCatalogue/RVCatalogueFinding.h>
#include <RVCatalogue/RVCatalogueProduct.h>
#include <RVCatalogue/RVCatalogueReader.h>
#include <RVCatalogue/RVCatalogueRule.h>
#include <RVCatalogue/RVCheckConfiguration.h>
#include <RVCatalogue/RVFileEditor.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
//! [includes]

class tst_guide_catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeLines();
    void oneProduct();
    void element();
    void attributes();
    void classes();
    void all();
    void everyCore();
    void check();
    void rules();
    void mend();
    void apply();
    void configuration();
    void error();
};

void tst_guide_catalogue::threeLines()
{
    QTest::ignoreMessage(QtDebugMsg, "\"DUN9\" 154");
    QTest::ignoreMessage(QtDebugMsg, "\"TOS3\" 39");
    //! [threelines]
    RVCatalogueReader reader(u"products.xml"_s);
    for (const RVCatalogueProduct &product : reader)
        qDebug() << product.type().toString() << product.pageCounts().maxPages();
    //! [threelines]
    QVERIFY(!reader.hasError());
}

void tst_guide_catalogue::oneProduct()
{
    //! [find]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.find(RVProductType(u"DUN9_40"_s));

    QCOMPARE(book.name(), u"Fotobuch Groß Hardcover"_s);
    QCOMPARE(book.articleId().id(), 1001);
    QCOMPARE(book.coverType().value(), HARDCOVER);
    QCOMPARE(book.spine().spineWidth(34).value(DISTANCE_UNIT_MILLIMETRE), 10.0);
    QCOMPARE(book.options().size(), 6);
    QCOMPARE(book.optionPriceClass(u"alcolor"_s, u"red"_s).toString(), u"LEZ2"_s);
    QCOMPARE(book.families(), QStringList(u"Fotobücher"_s));

    QVERIFY(reader.find(RVProductType(u"KAL2"_s)).isNull());
    //! [find]
}

void tst_guide_catalogue::element()
{
    //! [element]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.next();
    const RVCatalogueElement spine = book.element().firstChildElement("composition"_L1).firstChildElement("spine"_L1);

    QCOMPARE(spine.attribute("base_width"_L1), u"8"_s);
    QCOMPARE(spine.attributeRange("base_width"_L1).begin.line, 12);
    QVERIFY(!spine.hasAttribute("comment"_L1));
    //! [element]
}

void tst_guide_catalogue::attributes()
{
    //! [attributes]
    RVCatalogueReader reader(u"products.xml"_s);
    const RVCatalogueProduct book = reader.next();
    QStringList texts;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::ofProducts()) {
        if (attribute.isIn(book))
            texts += attribute.label() + u": "_s + attribute.decode(book).text;
    }

    QCOMPARE(texts.first(2), (QStringList { u"Article class: book"_s, u"Cover: HARDCOVER"_s }));
    //! [attributes]
}

void tst_guide_catalogue::classes()
{
    //! [classes]
    qsizetype keywords = 0;
    std::apply(
            [&keywords](const auto &...rows) {
                // Each row knows the class of its attribute.
                ((keywords += typename std::decay_t<decltype(rows)>::Class().allKnownEnumValues().size()), ...);
            },
            RV_CATALOGUE_ATTRIBUTES);
    //! [classes]
    qsizetype expected = 0;
    for (const RVCatalogueAttribute &attribute : RVCatalogueAttribute::all())
        expected += attribute.values().size();
    QCOMPARE(keywords, expected);
}

void tst_guide_catalogue::all()
{
    //! [all]
    RVCatalogueReader reader(u"products.xml"_s);
    const QList<RVCatalogueProduct> products = reader.readAll();

    QVERIFY(!reader.hasError());
    QCOMPARE(products.size(), 2);
    QCOMPARE(products.last().name(), u"Fotobox mit Abzügen"_s);
    //! [all]
}

void tst_guide_catalogue::everyCore()
{
    //! [map]
    QStringList names;
    RVCatalogueReader reader(u"products.xml"_s);
    reader.map(
            [](const QList<RVCatalogueProduct> &products) {
                QStringList result;
                for (const RVCatalogueProduct &product : products)
                    result += product.name().toUpper();
                return result;
            },
            [&names](const QStringList &result) {
                names += result;
                return true;
            });

    QCOMPARE(names, (QStringList { u"FOTOBUCH GROSS HARDCOVER"_s, u"FOTOBOX MIT ABZÜGEN"_s }));
    //! [map]
}

void tst_guide_catalogue::check()
{
    //! [check]
    QByteArray text = "<products>\n"
                      "  <product type='KAL2' article_id='1020' cover_type='hardcovr'/>\n"
                      "</products>\n";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));

    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    const RVCatalogueProduct product = reader.next();
    const RVCatalogueFinding finding = product.findings().constFirst();

    QCOMPARE(finding.rule().name(), "keyword-unknown"_L1);
    QCOMPARE(finding.severity(), RVCatalogueSeverity::Error);
    QCOMPARE(finding.text(), u"\"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s);
    QCOMPARE(finding.range().begin, RVFilePosition({ 2, 42 })); // the "c" of cover_type
    QCOMPARE(finding.range().end, RVFilePosition({ 2, 63 })); // behind the quote
    //! [check]
    QCOMPARE(product.findings().size(), 1);
}

void tst_guide_catalogue::rules()
{
    QByteArray text = "<products/>";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));
    //! [rules]
    RVCatalogueCheck check;
    check.disable(RVCatalogueRule::find(u"keyword-legacy"));

    RVCatalogueReader reader(&file);
    reader.setCheck(check);
    QVERIFY(reader.finish());
    QCOMPARE(reader.findings().constFirst().rule().name(), "products-missing"_L1);
    //! [rules]
    QVERIFY(!check.isEnabled(RVCatalogueRule::find(u"keyword-legacy")));
}

void tst_guide_catalogue::mend()
{
    const QTemporaryDir folder;
    const QString guide = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QFile file(u"calendar.xml"_s);
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write("<product type='KAL2' article_id='1020' cover_type='hardcovr'/>");
    file.close();
    //! [mend]
    const QString fileName = u"calendar.xml"_s; // <product type='KAL2' article_id='1020' cover_type='hardcovr'/>
    RVFileEditor editor(fileName);
    RVCatalogueReader reader(fileName);
    reader.setCheck(RVCatalogueCheck());
    for (const RVCatalogueProduct &product : reader) {
        for (const RVCatalogueFinding &finding : product.findings())
            editor.add(finding.fix());
    }
    QVERIFY2(editor.save(), qPrintable(editor.errorString()));
    //! [mend]
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("<product type='KAL2' article_id='1020' cover_type='hardcover'/>"));
    QVERIFY(QDir::setCurrent(guide));
}

void tst_guide_catalogue::apply()
{
    //! [apply]
    const RVFileRange comma { { 1, 25 }, { 1, 26 } };
    RVFileEditor editor;
    QVERIFY(editor.add({ { comma, u"."_s } }));

    QCOMPARE(editor.apply("<spine base_width   = '8,5'/>"), QByteArray("<spine base_width   = '8.5'/>"));
    QCOMPARE(editor.count(), 1);
    //! [apply]
}

void tst_guide_catalogue::configuration()
{
    //! [configuration]
    const RVCheckConfiguration configuration = RVCheckConfiguration::find(u"products.xml"_s);
    QVERIFY2(!configuration.hasError(), qPrintable(configuration.errorString()));

    RVCatalogueCheck check;
    configuration.apply(&check);

    QVERIFY(!check.isEnabled(RVCatalogueRule::find(u"keyword-legacy")));
    QVERIFY(check.isForeign(u"supplier"_s));
    QCOMPARE(check.pageSize(RVProductType(u"DUN9_30"_s)), QSizeF(210, 297));
    //! [configuration]
    QVERIFY(!configuration.isNull());
}

void tst_guide_catalogue::error()
{
    //! [error]
    QByteArray text = "<products>\n"
                      "  <product type='KAL2'/>\n"
                      "</product>\n";
    QBuffer file(&text);
    QVERIFY(file.open(QIODevice::ReadOnly));

    RVCatalogueReader reader(&file);
    QCOMPARE(reader.readAll().size(), 1);
    QVERIFY(reader.hasError());
    QCOMPARE(reader.errorString(), u"</product> closes <products>, which was opened in line 1"_s);
    QCOMPARE(reader.errorPosition(), RVFilePosition({ 3, 1 }));
    //! [error]
}

QTEST_MAIN(tst_guide_catalogue)
#include "tst_guide_catalogue.moc"
