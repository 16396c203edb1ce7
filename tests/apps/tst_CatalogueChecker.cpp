#include "RVCatalogue/SampleProduct.h"

#include <CatalogueChecker.h>

#include <QBuffer>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString describe(const CatalogueFinding &finding)
{
    return u"%1:%2 %3 %4: %5"_s.arg(QString::number(finding.position.line), QString::number(finding.position.column),
                                    severityName(finding.severity), finding.rule, finding.text);
}

struct Check
{
    QStringList findings;
    QList<qint64> products;
    CatalogueCheckResult result;
};

Check check(QByteArray file, const QSet<QString> &disabledRules = {})
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    Check check;
    check.result = CatalogueChecker(disabledRules).check(&buffer, [&](const CatalogueFinding &finding) {
        check.findings += describe(finding);
        check.products += finding.product;
    });
    return check;
}

/// The clean catalogue with one change.
QByteArray changed(const QByteArray &from, const QByteArray &to)
{
    const QByteArray clean = CLEAN_CATALOGUE;
    return clean.count(from) == 1 ? QByteArray(clean).replace(from, to) : QByteArray();
}

QByteArray withSecondProduct(const QByteArray &product)
{
    return changed("<product type='FOT1' article_id='2' article_class='foto' foto_paper_type='matt'/>", product);
}

QByteArray utf16(const QByteArray &text)
{
    const QString decoded = QString::fromUtf8(text);
    return "\xff\xfe" + QByteArray(reinterpret_cast<const char *>(decoded.utf16()), decoded.size() * 2);
}

}

class tst_CatalogueChecker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rules();
    void clean_data();
    void clean();
    void broken_data();
    void broken();
    void mismatchHidesNoOtherKey();
    void everyRuleIsBroken();
    void disabledRule();
    void sampleIsClean();
    void encodings_data();
    void encodings();
    void unreadable_data();
    void unreadable();
    void longTexts();
    void orderOfManyFindings();
    void duplicatesFarApart();
    void progressAndCancel();
};

void tst_CatalogueChecker::rules()
{
    static const QRegularExpression kebabCase(u"^[a-z]+(-[a-z]+)+$"_s);
    QFile page(u"" DOCS "/catalogue-format.md"_s);
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QString documented = QString::fromUtf8(page.readAll());
    QSet<QString> names;
    for (const CatalogueRule &rule : catalogueRules()) {
        QVERIFY2(kebabCase.match(rule.name).hasMatch(), rule.name.data());
        QVERIFY2(QLatin1StringView(rule.reason).endsWith(u'.'), rule.name.data());
        QVERIFY2(QString::fromLatin1(rule.reason).count(". "_L1) == 0, rule.name.data());
        QCOMPARE(catalogueRules().at(indexOfRule(rule.name.toString())).name, rule.name);
        QCOMPARE(documented.count("\n| `"_L1 + rule.name + "` | "_L1), 1);
        names.insert(rule.name);
    }
    QCOMPARE(names.size(), catalogueRules().size());
    QCOMPARE(indexOfRule(u"no-such-rule"), -1);
    QCOMPARE(indexOfRule(u""), -1);
}

void tst_CatalogueChecker::clean_data()
{
    QTest::addColumn<QByteArray>("file");

    QTest::newRow("as it is") << QByteArray(CLEAN_CATALOGUE);
    QTest::newRow("only what a product must have") << withSecondProduct("<product type='A' article_id='2'/>");
    QTest::newRow("fixed page count of several pieces")
            << withSecondProduct("<product type='A' article_id='2' pages='4' pieces='10'/>");
    QTest::newRow("step of a fixed page count")
            << withSecondProduct("<product type='A' article_id='2' pages='4' page_step='2'/>");
    QTest::newRow("photo box") << withSecondProduct("<product type='A' article_id='2' pages='10' photo_box='TRUE'/>");
    QTest::newRow("photo box in tens") << withSecondProduct(
            "<product type='A' article_id='2' pages='10' max_pages='60' page_step='10' photo_box='1'/>");
    QTest::newRow("letter case and blanks of keywords")
            << changed("cover_type='hardcover'", "cover_type=' HardCover '");
    QTest::newRow("keyword list") << changed("orientation='portrait'", "orientation='portrait, square'");
    QTest::newRow("keyword of a combination") << changed("orientation='portrait'", "orientation='all'");
    QTest::newRow("code of a photo paper") << changed("foto_paper_type='matt'", "foto_paper_type='2'");
    QTest::newRow("stapled book without spine")
            << withSecondProduct("<product type='A' article_id='2' article_class='book' page_binding='stapled'/>");
    QTest::newRow("calendar without spine") << withSecondProduct(
            "<product type='A' article_id='2' article_class='calendar' page_binding='spiral' pages='13'/>");
    QTest::newRow("spine that does not grow")
            << changed("packages_per_block='2' base_width='0.8' block_width='0.1'", "base_width='0.8'");
    QTest::newRow("thin spine") << changed("base_width='0.8' block_width='0.1'", "base_width='0.01'");
    for (const char *unit : { "mm", "cm", "inch", "in", "pt", "point", "0.1mm" })
        QTest::addRow("unit %s", unit) << changed("units='cm'", QByteArray("units='") + unit + '\'');
    QTest::newRow("no unit") << changed(" units='cm'", "");
    QTest::newRow("one option without a default")
            << withSecondProduct("<product type='A' article_id='2'><forms><form key='a' value='b'/></forms></product>");
    QTest::newRow("options of two keys with the same value")
            << changed("value='red'", "value='red' name='a'/>\n<form key='c' value='red' preselected='on'");
    QTest::newRow("colour without text") << changed("color='red'", "color=''");
    QTest::newRow("colour with transparency") << changed("color='red'", "color='#80ff0000'");
    QTest::newRow("free price class") << changed("price_class='LEZ2'", "price_class='0815'");
    QTest::newRow("empty price class") << changed("price_class='LEZ2'", "price_class=''");
    QTest::newRow("shipping group 0") << changed("shipping_group='2'", "shipping_group='0'");
    QTest::newRow("plus and blanks around numbers") << changed("pages='26'", "pages=' +26 '");
    QTest::newRow("numbers with an exponent") << changed("position_y='290.5' width='38' height='10' pageNr='2'/>",
                                                         "position_y='2.905e2' width='38' height='1e1' pageNr='2'/>");
    QTest::newRow("barcodes side by side") << changed("position_x='62'", "position_x='50'");
    QTest::newRow("barcodes of one place on two pages")
            << changed("position_x='62' position_y='290.5' width='38' height='10' pageNr='2'",
                       "position_x='12' position_y='290.5' "
                       "width='38' height='10' pageNr='3'");
    QTest::newRow("barcode at the edge") << changed("position_x='12' position_y='290.5'",
                                                    "position_x='0' position_y='10'");
    QTest::newRow("barcode on the last page") << changed("pageNr='2'/>", "pageNr='154'/>");
    QTest::newRow("barcode on no page") << changed(" pageNr='2'/>", "/>");
    QTest::newRow("barcode far away on a page of any size")
            << changed("space_magnitude='600cm2' ", "").replace("position_x='62'", "position_x='900'");
    QTest::newRow("barcode far away on the largest page")
            << changed("space_magnitude='600cm2' ", "space_magnitude='2400cm2' ")
                       .replace("position_x='62'", "position_x='900'");
    QTest::newRow("other elements and attributes") << changed(
            "<forms>", "text<description foo='bar'>a &amp; b</description><x:y xmlns:x='z'/><forms foo='bar'>");
    QTest::newRow("barcode at the corner of a page of its usual area") << withSecondProduct(
            "<product type='A' article_id='2' space_magnitude='220cm2' orientation='square'><barcodes>"
            "<barcode position_x='112' position_y='150' width='38' height='10'/></barcodes></product>");
    QTest::newRow("barcode at the corner of a wide page") << withSecondProduct(
            "<product type='A' article_id='2' space_magnitude='600cm2' orientation='landscape'><barcodes>"
            "<barcode position_x='259' position_y='210' width='38' height='10'/></barcodes></product>");
    QTest::newRow("barcode at the corner of a panorama") << withSecondProduct(
            "<product type='A' article_id='2' space_magnitude='1200cm2' orientation='landscape_slim'><barcodes>"
            "<barcode position_x='862' position_y='130' width='38' height='10'/></barcodes></product>");
    QTest::newRow("shipping group below 0") << changed("shipping_group='2'", "shipping_group='-2'");
    QTest::newRow("parts of no product") << changed("<products>", "<products><forms/><forms/><spine/><spine/>");
    QTest::newRow("parts of something else") << changed("<forms>", "<x><forms/><product/></x><x><forms/></x><forms>");
    QTest::newRow("family around products")
            << changed("<products>", "<products><family name='x'>").replace("</products>", "</family></products>");
    QTest::newRow("other root") << changed("<products>", "<p>").replace("</products>", "</p>");
    QTest::newRow("document type") << "<?xml version='1.0'?><!DOCTYPE products>" + QByteArray(CLEAN_CATALOGUE);
}

void tst_CatalogueChecker::clean()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    const Check checked = check(file);
    QCOMPARE(checked.findings, QStringList());
    QCOMPARE(checked.result.error, QString());
    QCOMPARE(checked.result.products, qint64(2));
    QVERIFY(!checked.result.isCancelled);
}

void tst_CatalogueChecker::broken_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("finding");

    QTest::newRow("no product") << QByteArray("<products>\n<Product/></products>")
                                << u"1:1 error products-missing: there is no product in this file"_s;

    QTest::newRow("type missing") << changed("type='DUN9' ", "")
                                  << u"2:1 error type-missing: the product has no type"_s;
    QTest::newRow("type empty") << changed("type='DUN9' ", "type=' ' ")
                                << u"2:1 error type-missing: the product has no type"_s;
    QTest::newRow("type twice")
            << changed("type='FOT1'", "type='DUN9'")
            << u"17:1 error type-duplicate: the type \"DUN9\" is already that of the product in line 2"_s;
    QTest::newRow("type twice in one family")
            << changed("type='FOT1'", "type='DUN9_30'")
            << u"17:1 error type-duplicate: the type \"DUN9_30\", that is \"DUN9\", is already that of the product in line 2"_s;
    QTest::newRow("article id missing") << changed(" article_id='1'", "")
                                        << u"2:1 error article-id-missing: the product has no article id"_s;
    QTest::newRow("article id empty") << changed("article_id='1'", "article_id=''")
                                      << u"2:1 error article-id-missing: the product has no article id"_s;
    for (const char *id : { "0", "-1", "12a", "1.5", "2147483648" })
        QTest::addRow("article id %s", id)
                << changed("article_id='1'", QByteArray("article_id='") + id + '\'')
                << u"2:1 error article-id-invalid: the article id \"%1\" is no whole number above 0"_s.arg(
                           QLatin1StringView(id));
    QTest::newRow("article id twice")
            << changed("article_id='2'", "article_id='+1'")
            << u"17:1 error article-id-duplicate: the article id 1 is already that of the product in line 2"_s;
    for (const char *group : { "-1", "two", "" })
        QTest::addRow("shipping group %s", group)
                << changed("shipping_group='2'", QByteArray("shipping_group='") + group + '\'')
                << u"2:1 error shipping-group-invalid: the shipping group \"%1\" is none"_s.arg(
                           QLatin1StringView(group));

    QTest::newRow("unknown keyword")
            << changed("cover_type='hardcover'", "cover_type='hardcovr'")
            << u"2:1 error keyword-unknown: \"hardcovr\" is no keyword of cover_type; did you mean \"hardcover\"?"_s;
    QTest::newRow("unknown keyword in capitals")
            << changed("cover_type='hardcover'", "cover_type='HARDCOVRE'")
            << u"2:1 error keyword-unknown: \"HARDCOVRE\" is no keyword of cover_type; did you mean \"HARDCOVER\"?"_s;
    QTest::newRow("unknown keyword that is like none")
            << changed("orientation='portrait'", "orientation='xyz'")
            << u"2:1 error keyword-unknown: \"xyz\" is no keyword of orientation"_s;
    QTest::newRow("unknown keyword in a list")
            << changed("orientation='portrait'", "orientation='portrait, sqare'")
            << u"2:1 error keyword-unknown: \"sqare\" is no keyword of orientation; did you mean \"square\"?"_s;
    QTest::newRow("empty keyword") << changed("paper_type='fotopaper'", "paper_type=''")
                                   << u"2:1 error keyword-unknown: there is an empty keyword in paper_type"_s;
    QTest::newRow("unknown binding")
            << changed("page_binding='glue'", "page_binding='gluu'")
            << u"2:1 error keyword-unknown: \"gluu\" is no keyword of page_binding; did you mean \"glue\"?"_s;
    QTest::newRow("unknown article class") << changed("article_class='book'", "article_class='buch'")
                                           << u"2:1 error keyword-unknown: \"buch\" is no keyword of article_class"_s;
    QTest::newRow("unknown size")
            << changed("space_magnitude='600cm2'", "space_magnitude='600cm'")
            << u"2:1 error keyword-unknown: \"600cm\" is no keyword of space_magnitude; did you mean \"600cm2\"?"_s;
    QTest::newRow("unknown photo paper")
            << changed("foto_paper_type='matt'", "foto_paper_type='mat'")
            << u"17:1 error keyword-unknown: \"mat\" is no keyword of foto_paper_type; did you mean \"matt\"?"_s;
    QTest::newRow("alias")
            << changed("cover_type='hardcover'", "cover_type='hard'")
            << u"2:1 note keyword-legacy: \"hard\" is an alias in cover_type; the main keyword is \"hardcover\""_s;
    QTest::newRow("alias of the binding keeps the spine")
            << changed("page_binding='glue'", "page_binding='Glued'")
            << u"2:1 note keyword-legacy: \"Glued\" is an alias in page_binding; the main keyword is \"glue\""_s;

    QTest::newRow("page counts reversed")
            << changed("max_pages='154'", "max_pages='18'")
            << u"2:1 error page-counts-reversed: the lowest page count 26 is above the highest, 18"_s;
    QTest::newRow("no pages")
            << changed("foto_paper_type='matt'", "pages='0'")
            << u"17:1 error page-counts-invalid: there are no valid page counts (min: 0; max: 0; increment: 0)"_s;
    QTest::newRow("no step") << changed(
            " page_step='4'",
            "") << u"2:1 error page-counts-invalid: there is no step (page_step) that leads from 26 to 154 pages"_s;
    QTest::newRow("negative step")
            << changed("page_step='4'", "page_step='-4'")
            << u"2:1 error page-counts-invalid: there are no valid page counts (min: 26; max: 154; increment: -4)"_s;
    QTest::newRow("negative step of a fixed count")
            << changed("foto_paper_type='matt'", "page_step='-4'")
            << u"17:1 error page-counts-invalid: there are no valid page counts (min: 1; max: 1; increment: -4)"_s;
    QTest::newRow("negative pages")
            << changed("foto_paper_type='matt'", "pages='-4'")
            << u"17:1 error page-counts-invalid: there are no valid page counts (min: -4; max: -4; increment: 0)"_s;
    QTest::newRow("no pieces") << changed("pieces='1'", "pieces='0'")
                               << u"2:1 error page-counts-invalid: there are 0 pieces"_s;
    QTest::newRow("step misses the highest count")
            << changed("page_step='4'", "page_step='6'")
            << u"2:1 warning page-step-misses-highest: steps of 6 from 26 pages end at 152 and never meet 154"_s;
    QTest::newRow("pages are no number") << changed("pages='26'", "pages='many'")
                                         << u"2:1 error number-invalid: pages is \"many\", which is no whole number"_s;
    QTest::newRow("pages are no whole number")
            << changed("pages='26'", "pages='26.5'")
            << u"2:1 error number-invalid: pages is \"26.5\", which is no whole number"_s;
    QTest::newRow("photo box is no boolean")
            << changed("pages='26'", "pages='26' photo_box='ja'")
            << u"2:1 error boolean-invalid: photo_box is \"ja\", which is neither true nor false"_s;

    QTest::newRow("no composition") << changed(
            "<composition units='cm'>\n<spine packages_per_block='2' base_width='0.8' block_width='0.1' "
            "additional_width='0.05'/>\n</composition>\n",
            "") << u"2:1 error spine-missing: the product is bound (glue), but has no spine in a composition"_s;
    QTest::newRow("no spine") << changed(
            "<spine packages_per_block='2' base_width='0.8' block_width='0.1' additional_width='0.05'/>\n",
            "") << u"7:1 error spine-missing: the product is bound (glue), but has no spine in a composition"_s;
    QTest::newRow("spine without width") << changed(
            " packages_per_block='2' base_width='0.8' block_width='0.1' additional_width='0.05'",
            "") << u"8:1 error spine-missing: the product is bound, but its spine has no width"_s;
    QTest::newRow("unknown unit of the spine")
            << changed("units='cm'", "units='CM'")
            << u"7:1 error unit-unknown: there is no unit \"CM\"; there are mm, cm, inch, in, pt, point and 0.1mm"_s;
    QTest::newRow("negative base width") << changed("base_width='0.8'", "base_width='-0.8'")
                                         << u"8:1 error spine-negative: base_width is below 0"_s;
    QTest::newRow("negative additional width") << changed("additional_width='0.05'", "additional_width='-0.05'")
                                               << u"8:1 error spine-negative: additional_width is below 0"_s;
    QTest::newRow("shrinks a little") << changed("block_width='0.1'", "block_width='-0.001'")
                                      << u"8:1 error spine-negative: block_width is below 0"_s;
    QTest::newRow("packages below 0") << changed("packages_per_block='2'", "packages_per_block='-100'")
                                      << u"8:1 error spine-negative: packages_per_block is below 0"_s;
    QTest::newRow("shrinks too far")
            << changed("block_width='0.1'", "block_width='-0.05'")
            << u"8:1 warning spine-font-too-small: the spine shrinks, so that at 154 pages it is too narrow for the smallest font"_s;
    QTest::newRow("grows backwards")
            << changed("packages_per_block='2'", "packages_per_block='-1'")
            << u"8:1 warning spine-font-too-small: the spine shrinks, so that at 154 pages it is too narrow for the smallest font"_s;
    QTest::newRow("width is no number") << changed("base_width='0.8'", "base_width='0,8'")
                                        << u"8:1 error number-invalid: base_width is \"0,8\", which is no number"_s;
    QTest::newRow("width is infinite") << changed("base_width='0.8'", "base_width='inf'")
                                       << u"8:1 error number-invalid: base_width is \"inf\", which is no number"_s;
    QTest::newRow("width is too large") << changed(
            "base_width='0.8'",
            "base_width='1e308'") << u"8:1 error number-invalid: the widths of the spine are too large for a number"_s;
    QTest::newRow("width becomes too large")
            << changed("block_width='0.1'", "block_width='1e306'")
            << u"8:1 error number-invalid: the widths of the spine are too large for a number"_s;
    QTest::newRow("packages are no number")
            << changed("packages_per_block='2'", "packages_per_block='2x'")
            << u"8:1 error number-invalid: packages_per_block is \"2x\", which is no whole number"_s;

    QTest::newRow("option without key") << changed("key='alcolor' value='red'", "value='red'")
                                        << u"12:1 error option-incomplete: the option has no key"_s;
    QTest::newRow("default option without key") << changed("key='alcolor' value='black'", "key='' value='black'")
                                                << u"11:1 error option-incomplete: the option has no key"_s;
    QTest::newRow("option without value")
            << changed("value='red'", "value=''") << u"12:1 error option-incomplete: the option has no value"_s;
    QTest::newRow("default option without value")
            << changed(" value='black'", "") << u"11:1 error option-incomplete: the option has no value"_s;
    QTest::newRow("option with nothing") << changed("<forms>\n", "<forms><form/>\n")
                                         << u"10:8 error option-incomplete: the option has no key and no value"_s;
    QTest::newRow("option twice")
            << changed("value='red'", "value='black'")
            << u"12:1 error option-duplicate: the option \"black\" of \"alcolor\" is already there in line 11"_s;
    QTest::newRow("default option twice")
            << changed("value='red'", "value='black' preselected='true'")
            << u"12:1 error option-duplicate: the option \"black\" of \"alcolor\" is already there in line 11"_s;
    QTest::newRow("two defaults")
            << changed("value='red'", "value='red' preselected='true'")
            << u"12:1 error option-default-twice: \"red\" is preselected for \"alcolor\", but \"black\" in line 11 is so already"_s;
    QTest::newRow("three defaults")
            << changed("value='red' color='red' price_class='LEZ2'/>",
                       "value='red' preselected='true'/>\n<form key='alcolor' value='blue' preselected='true'/>")
            << u"12:1 error option-default-twice: \"red\" is preselected for \"alcolor\", but \"black\" in line 11 is so already"_s;
    QTest::newRow("no default of one key")
            << changed(" preselected='true'", "")
            << u"11:1 warning option-default-missing: no option of \"alcolor\" is preselected, so an order comes without any"_s;
    QTest::newRow("no default of the only key")
            << withSecondProduct("<product type='A' article_id='2'><forms>\n<form key='a' value='b'/>\n<form key='a' "
                                 "value='c'/></forms></product>")
            << u"18:1 warning option-default-missing: no option of \"a\" is preselected, so the first is taken"_s;
    QTest::newRow("default with a mistake in its keys")
            << changed("key='a;b' value='x;y'", "key='ab' value='x;y'")
            << u"13:1 error option-composite-mismatch: the keys \"ab\" and the values \"x;y\" are not equally many"_s;
    QTest::newRow("option with a mistake in its keys")
            << changed("key='a;b' value='v;w'", "key='ab' value='v;w'")
            << u"14:1 error option-composite-mismatch: the keys \"ab\" and the values \"v;w\" are not equally many"_s;
    QTest::newRow("default with a mistake in its values")
            << changed("value='x;y'", "value='xy'")
            << u"13:1 error option-composite-mismatch: the keys \"a;b\" and the values \"xy\" are not equally many"_s;
    QTest::newRow("option without value beside a single one")
            << withSecondProduct("<product type='A' article_id='2'><forms>\n<form key='a' value='b'/>\n<form key='a'/>"
                                 "</forms></product>")
            << u"19:1 error option-incomplete: the option has no value"_s;
    QTest::newRow("options of another key without value") << changed("<forms>\n", "<forms>\n<form key='c'/>\n")
                                                          << u"11:1 error option-incomplete: the option has no value"_s;
    QTest::newRow("barcodes twice")
            << changed("</forms>", "</forms>\n<barcodes><barcode width='-1'/></barcodes>")
            << u"16:1 error element-ignored: only the first barcodes is read, the one in line 3"_s;
    QTest::newRow("composition twice")
            << changed("</forms>", "</forms>\n<composition><spine base_width='x'/></composition>")
            << u"16:1 error element-ignored: only the first composition is read, the one in line 7"_s;
    QTest::newRow("forms twice") << changed("</forms>", "</forms>\n<forms><form/></forms>")
                                 << u"16:1 error element-ignored: only the first forms is read, the one in line 10"_s;
    QTest::newRow("two spines") << changed("</composition>", "<spine/></composition>")
                                << u"9:1 error element-ignored: only the first spine is read, the one in line 8"_s;
    QTest::newRow("product in a product") << changed("<forms>", "<product/><forms>")
                                          << u"10:1 error element-ignored: a product inside a product is not read"_s;
    QTest::newRow("unreadable colour") << changed("color='red'", "color='weinrot'")
                                       << u"12:1 warning option-color-invalid: \"weinrot\" is no colour"_s;
    QTest::newRow("colour with too few digits") << changed("color='#1a1a1a'", "color='#1a1a1'")
                                                << u"11:1 warning option-color-invalid: \"#1a1a1\" is no colour"_s;
    QTest::newRow("more keys than values")
            << changed("value='v;w'", "value='v'")
            << u"14:1 error option-composite-mismatch: the keys \"a;b\" and the values \"v\" are not equally many"_s;
    QTest::newRow("more values than keys")
            << changed("value='red'", "value='red;blue'")
            << u"12:1 error option-composite-mismatch: the keys \"alcolor\" and the values \"red;blue\" are not equally many"_s;
    QTest::newRow("preselected is no boolean")
            << changed("preselected='true'", "preselected='x'")
            << u"11:1 error boolean-invalid: preselected is \"x\", which is neither true nor false"_s;
    QTest::newRow("not_accountable is no boolean")
            << changed("not_accountable='true'", "not_accountable=''")
            << u"13:1 error boolean-invalid: not_accountable is \"\", which is neither true nor false"_s;

    QTest::newRow("barcode without width")
            << changed("width='38' height='10' pageNr='2'/>", "width='0' height='10' pageNr='2'/>")
            << u"4:1 error barcode-invalid: the barcode has no width or no height"_s;
    QTest::newRow("barcode with negative height")
            << changed("height='10' pageNr='2'/>", "height='-10' pageNr='2'/>")
            << u"4:1 error barcode-invalid: the barcode has no width or no height"_s;
    QTest::newRow("barcode without image")
            << changed("image='a.png'", "image=''") << u"5:1 error barcode-invalid: the barcode has no image"_s;
    QTest::newRow("barcode behind the last page")
            << changed("pageNr='2'/>", "pageNr='155'/>")
            << u"4:1 error barcode-page-impossible: there is no page 155; the product has at most 154"_s;
    QTest::newRow("barcode on a negative page")
            << changed("pageNr='2'/>", "pageNr='-1'/>") << u"4:1 error barcode-page-impossible: there is no page -1"_s;
    QTest::newRow("barcode left of the page")
            << changed("position_x='12'", "position_x='-0.1'")
            << u"4:1 error barcode-outside-page: the barcode begins left of the page"_s;
    QTest::newRow("barcode above the page")
            << changed("position_x='12' position_y='290.5'", "position_x='12' position_y='9'")
            << u"4:1 error barcode-outside-page: the barcode begins above the page"_s;
    QTest::newRow("barcode right of the page")
            << changed("position_x='62'", "position_x='600'")
            << u"5:1 error barcode-outside-page: the barcode ends 638 mm from the left and 290.5 mm from the top, where there is no page"_s;
    QTest::newRow("barcode below the page")
            << changed("position_x='62' position_y='290.5'", "position_x='62' position_y='2905'")
            << u"5:1 error barcode-outside-page: the barcode ends 100 mm from the left and 2905 mm from the top, where there is no page"_s;
    QTest::newRow("barcode right of an upright page")
            << changed("position_x='62' position_y='290.5'", "position_x='250' position_y='100'")
            << u"5:1 error barcode-outside-page: the barcode ends 288 mm from the left and 100 mm from the top, where there is no page"_s;
    QTest::newRow("barcode below a wide page")
            << changed("orientation='portrait'", "orientation='landscape'")
                       .replace("position_x='12' position_y='290.5'", "position_y='200'")
                       .replace("position_y='290.5'", "position_y='277'")
            << u"5:1 error barcode-outside-page: the barcode ends 100 mm from the left and 277 mm from the top, where there is no page"_s;
    QTest::newRow("barcode outside of a square page")
            << changed("orientation='portrait'", "orientation='square'")
                       .replace("position_y='290.5'", "position_y='200'")
                       .replace("position_x='62'", "position_x='270'")
            << u"5:1 error barcode-outside-page: the barcode ends 308 mm from the left and 200 mm from the top, where there is no page"_s;
    QTest::newRow("barcode on a page that would be a ribbon")
            << changed("orientation='portrait' ", "")
                       .replace("position_x='62' position_y='290.5'", "position_x='900' position_y='20'")
            << u"5:1 error barcode-outside-page: the barcode ends 938 mm from the left and 20 mm from the top, where there is no page"_s;
    QTest::newRow("barcode far from a page of any size")
            << changed("space_magnitude='600cm2' ", "").replace("position_x='62'", "position_x='9999'")
            << u"5:1 error barcode-outside-page: the barcode ends 10037 mm from the left and 290.5 mm from the top, where there is no page"_s;
    QTest::newRow("barcode half outside over another")
            << changed("position_x='62'", "position_x='-2'")
            << u"5:1 error barcode-outside-page: the barcode begins left of the page"_s;
    QTest::newRow("lengths in an unknown unit")
            << changed("<barcodes units='mm'>", "<barcodes units='0.1 mm'>").replace("290.5", "2905")
            << u"3:1 error unit-unknown: there is no unit \"0.1 mm\"; there are mm, cm, inch, in, pt, point and 0.1mm"_s;
    QTest::newRow("barcodes overlap") << changed("position_x='62'", "position_x='49.9'")
                                      << u"5:1 error barcode-overlap: the barcode overlaps the one in line 4"_s;
    QTest::newRow("barcode position is no number")
            << changed("position_x='62'", "position_x='12mm'")
            << u"5:1 error number-invalid: position_x is \"12mm\", which is no number"_s;
    QTest::newRow("barcode page is no number")
            << changed("pageNr='2'/>", "pageNr='x'/>")
            << u"4:1 error number-invalid: pageNr is \"x\", which is no whole number"_s;
    QTest::newRow("unknown unit of barcodes")
            << changed("<barcodes units='mm'>", "<barcodes units='metre'>")
            << u"3:1 error unit-unknown: there is no unit \"metre\"; there are mm, cm, inch, in, pt, point and 0.1mm"_s;

    QTest::newRow("price class of an option")
            << changed("price_class='LEZ2'", "price_class='LEZ7'")
            << u"12:1 warning price-class-unknown: the price class \"LEZ7\" belongs to no known group"_s;
    QTest::newRow("price class in small letters")
            << changed("price_class='LEZ2'", "price_class='lez2'")
            << u"12:1 warning price-class-unknown: the price class \"lez2\" belongs to no known group"_s;
    QTest::newRow("price class of pages")
            << changed("page_price_class='RODA6x9'", "page_price_class='RODA'")
            << u"2:1 warning price-class-unknown: the price class \"RODA\" belongs to no known group"_s;
}

void tst_CatalogueChecker::broken()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, finding);
    QVERIFY(!file.isEmpty());
    const Check checked = check(file);
    QCOMPARE(checked.findings, QStringList { finding });
    QCOMPARE(checked.result.error, QString());
    const int line = finding.section(u':', 0, 0).toInt();
    const qint64 product = line == 1 ? -1 : line < 17 ? 0 : 1;
    QCOMPARE(checked.products, QList<qint64> { product });
}

// One mistake is one finding, and two are two.
void tst_CatalogueChecker::mismatchHidesNoOtherKey()
{
    const QString missing =
            u"13:1 warning option-default-missing: no option of \"a;b\" is preselected, so an order comes "
            "without any"_s;
    const Check incomplete = check(changed(" preselected='yes'", "").replace("value='black'", "value=''"));
    QCOMPARE(incomplete.findings, QStringList({ u"11:1 error option-incomplete: the option has no value"_s, missing }));
    const Check checked = check(changed("value='v;w'", "value='vw'").replace(" preselected='true'", ""));
    QCOMPARE(checked.findings,
             QStringList({ u"11:1 warning option-default-missing: no option of \"alcolor\" is preselected, so an order "
                           "comes without any"_s,
                           u"14:1 error option-composite-mismatch: the keys \"a;b\" and the values \"vw\" are not "
                           "equally many"_s }));
}

void tst_CatalogueChecker::everyRuleIsBroken()
{
    QByteArray file = "<products>";
    // One product of every row above would do; these break all rules at once.
    file += "<product/><product type='A' article_id='x' shipping_group='x' cover_type='hard,foo' pages='x' "
            "page_binding='glue' page_price_class='x' photo_box='x'/>"
            "<product type='A' article_id='1' pages='5' max_pages='4'/>"
            "<product type='B' article_id='1' pages='0' space_magnitude='50cm2'>"
            "<composition units='x'><spine base_width='-1'/></composition>"
            "<barcodes><barcode width='0'/><barcode pageNr='-1'/><barcode pageNr='-1' position_x='-1'/>"
            "<barcode pageNr='-1'/></barcodes>"
            "<barcodes/><forms><form/><form key='a' value='b' preselected='1'/><form key='a' value='b'/>"
            "<form key='a' value='c' preselected='1' color='x'/><form key='d' value='e;f'/></forms></product>"
            "<product type='C' article_id='2' pages='1' max_pages='10' page_step='6'/>"
            "<product type='D' article_id='3' pages='1' max_pages='100' page_step='1'>"
            "<composition><spine packages_per_block='1' base_width='20' block_width='-1'/></composition>"
            "<forms><form key='a' value='b'/><form key='a' value='c'/></forms></product>"
            "</products>";
    QSet<QString> broken;
    const QStringList findings = check(file).findings;
    for (const QString &finding : findings)
        broken.insert(finding.section(u' ', 2, 2).chopped(1));
    QSet<QString> expected;
    for (const CatalogueRule &rule : catalogueRules())
        expected.insert(rule.name);
    expected.remove(u"products-missing"_s);
    QCOMPARE(broken, expected);
    QCOMPARE(check(file, expected).findings, QStringList());
}

void tst_CatalogueChecker::disabledRule()
{
    const QByteArray file = changed("cover_type='hardcover'", "cover_type='hard, foo'");
    QCOMPARE(check(file).findings.size(), 2);
    QCOMPARE(check(file, { u"keyword-legacy"_s }).findings,
             QStringList { u"2:1 error keyword-unknown: \"foo\" is no keyword of cover_type"_s });
    QCOMPARE(check(file, { u"keyword-legacy"_s, u"keyword-unknown"_s }).findings, QStringList());
    QCOMPARE(check("<p/>", { u"products-missing"_s }).findings, QStringList());
    QCOMPARE(check(changed("type='FOT1' article_id='2'", "type='DUN9' article_id='1'"),
                   { u"type-duplicate"_s, u"article-id-duplicate"_s })
                     .findings,
             QStringList());
}

void tst_CatalogueChecker::sampleIsClean()
{
    QFile sample(u"" SAMPLES "/products.xml"_s);
    QVERIFY(sample.open(QIODevice::ReadOnly));
    const Check checked = check(sample.readAll());
    QCOMPARE(checked.findings, QStringList());
    QCOMPARE(checked.result.error, QString());
    QCOMPARE(checked.result.products, qint64(49));
}

void tst_CatalogueChecker::encodings_data()
{
    QTest::addColumn<QByteArray>("file");

    const QByteArray text =
            "<products>\n<product type='Ä' article_id='1'/>\n<p>ü<product type='Ä' article_id='2'/></p>\n"
            "</products>\n";
    const QByteArray latin1 = QString::fromUtf8(text).toLatin1();
    QTest::newRow("UTF-8") << text;
    QTest::newRow("byte order mark") << "\xef\xbb\xbf" + text;
    QTest::newRow("UTF-16") << utf16(text);
    QTest::newRow("Latin-1") << "<?xml version='1.0' encoding='ISO-8859-1'?>" + latin1;
    QTest::newRow("CRLF") << QByteArray(text).replace("\n", "\r\n");
    QTest::newRow("CR") << QByteArray(text).replace("\n", "\r");
}

void tst_CatalogueChecker::encodings()
{
    QFETCH(QByteArray, file);
    const Check checked = check(file);
    QCOMPARE(checked.findings,
             QStringList { u"3:5 error type-duplicate: the type \"Ä\" is already that of the product in line 2"_s });
    QCOMPARE(checked.result.error, QString());
}

void tst_CatalogueChecker::unreadable_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QStringList>("findings");

    const QByteArray fault = "<p>\n<product type='A'/>\n";
    const QStringList before = { u"2:1 error article-id-missing: the product has no article id"_s };
    QTest::newRow("empty") << QByteArray() << u"1:1 the file is empty"_s << QStringList();
    QTest::newRow("no XML") << QByteArray("hello") << u"1:1 Start tag expected."_s << QStringList();
    QTest::newRow("cut off") << fault + "<product" << u"3:8 the file ends too early"_s << before;
    QTest::newRow("cut off in UTF-16") << utf16(fault).chopped(1) << u"2:19 the file ends too early"_s << before;
    QTest::newRow("wrong end tag") << fault + "</q>" << u"3:4 Opening and ending tag mismatch."_s << before;
    QTest::newRow("wrong encoding")
            << fault + "<a b='\xe4'/>"
            << u"3:7 this is not encoded in UTF-8, as files are that do not say otherwise in their first line"_s
            << QStringList();
    QTest::newRow("deep") << fault + QByteArray("<a>").repeated(300)
                          << u"3:768 elements are nested deeper than 256 levels"_s << before;
    QTest::newRow("large") << fault + "<product a='" + QByteArray(2000000, 'x') + "'/></p>"
                           << u"3:1056748 an element, text, comment or declaration is larger than 1 MiB"_s << before;
    QTest::newRow("entities") << QByteArray("<!DOCTYPE p [<!ENTITY a 'b'>]><p/>")
                              << u"1:21 entity declarations are not supported"_s << QStringList();
}

void tst_CatalogueChecker::unreadable()
{
    QFETCH(QByteArray, file);
    const Check checked = check(file);
    QTEST(checked.findings, "findings");
    QTEST(u"%1:%2 %3"_s.arg(checked.result.errorPosition.line)
                  .arg(checked.result.errorPosition.column)
                  .arg(checked.result.error),
          "error");
}

// A finding stays one line of moderate length whatever the catalogue says.
void tst_CatalogueChecker::longTexts()
{
    const QByteArray file = changed("cover_type='hardcover'", "cover_type='a&#10;" + QByteArray(100000, 'x') + '\'');
    QCOMPARE(check(file).findings,
             QStringList {
                     u"2:1 error keyword-unknown: \"a %1…\" is no keyword of cover_type"_s.arg(QString(78, u'x')) });
    const QByteArray many = changed("cover_type='hardcover'",
                                    "cover_type='" + QByteArray("x,").repeated(100000) + '\'');
    QCOMPARE(check(many).findings.size(), 100);
}

void tst_CatalogueChecker::orderOfManyFindings()
{
    constexpr int count = 30000;
    QByteArray file = "<products>\n";
    QStringList expected;
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        file += "<product type='T" + number + "' article_id='" + number + (i % 7 ? "'/>\n" : "' pages='x'/>\n");
        if (i % 7 == 0)
            expected += u"%1:1 error number-invalid: pages is \"x\", which is no whole number"_s.arg(i + 1);
    }
    file += "</products>";
    const Check checked = check(file);
    QCOMPARE(checked.findings, expected);
    QCOMPARE(checked.result.products, qint64(count));
    for (qsizetype i = 0; i < checked.products.size(); ++i)
        QCOMPARE(checked.products.at(i), qint64((i + 1) * 7 - 1));
}

void tst_CatalogueChecker::duplicatesFarApart()
{
    QByteArray file = "<products>\n<product type='T' article_id='1000000'/>\n";
    for (int i = 1; i <= 20000; ++i)
        file += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i) + "'/>\n";
    file += "<product type='T' article_id='1000000'/>\n<product type='t' article_id='1000001'/>\n</products>";
    QCOMPARE(
            check(file).findings,
            (QStringList {
                    u"20003:1 error type-duplicate: the type \"T\" is already that of the product in line 2"_s,
                    u"20003:1 error article-id-duplicate: the article id 1000000 is already that of the product in line 2"_s }));
}

void tst_CatalogueChecker::progressAndCancel()
{
    QByteArray file = "<products>\n" + QByteArray("<product type='a'/>\n").repeated(50000) + "</products>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueChecker checker({ u"type-duplicate"_s, u"article-id-missing"_s });
    QList<qint64> steps;
    checker.setProgress([&](qint64 bytesRead) {
        steps += bytesRead;
        return true;
    });
    const CatalogueCheckResult whole = checker.check(&buffer, [](const CatalogueFinding &) { });
    QCOMPARE(whole.products, qint64(50000));
    QVERIFY(!whole.isCancelled);
    QVERIFY(steps.size() > 3);
    QVERIFY(std::is_sorted(steps.begin(), steps.end()));
    QCOMPARE(steps.last(), qint64(file.size()));

    buffer.seek(0);
    checker.setProgress([](qint64) { return false; });
    const CatalogueCheckResult cancelled = checker.check(&buffer, [](const CatalogueFinding &) { });
    QVERIFY(cancelled.isCancelled);
    QCOMPARE(cancelled.error, QString());
    QVERIFY(cancelled.products < 50000);
}

QTEST_MAIN(tst_CatalogueChecker)
#include "tst_CatalogueChecker.moc"
