#include "FindingTools.h"

#include <RVCatalogueCheck.h>
#include <RVCatalogueReader.h>

#include <QRandomGenerator>
#include <QStringEncoder>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// "line:column-line:column rule: text"
QString describe(const RVCatalogueFinding &finding)
{
    return describe(finding.range()) + u' ' + finding.rule().name() + ": "_L1 + finding.text();
}

QStringList describe(const QList<RVCatalogueFinding> &findings)
{
    QStringList result;
    for (const RVCatalogueFinding &finding : findings)
        result += describe(finding);
    return result;
}

/// "line rule"
QStringList brief(const QList<RVCatalogueFinding> &findings)
{
    QStringList result;
    for (const RVCatalogueFinding &finding : findings)
        result += QString::number(finding.range().begin.line) + u' ' + finding.rule().name();
    return result;
}

/// All findings of a file that is read product by product.
QList<RVCatalogueFinding> findingsIn(QIODevice *file, const RVCatalogueCheck &check = {})
{
    RVCatalogueReader reader(file);
    reader.setCheck(check);
    QList<RVCatalogueFinding> result;
    for (const RVCatalogueProduct &product : reader)
        result += product.findings();
    return result + reader.findings();
}

QList<RVCatalogueFinding> findingsIn(const QByteArray &content, const RVCatalogueCheck &check = {})
{
    CatalogueBuffer file(content);
    return findingsIn(&file, check);
}

/// The same findings on many threads.
QList<RVCatalogueFinding> mappedFindingsIn(const QByteArray &content)
{
    CatalogueBuffer file(content);
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    QList<RVCatalogueFinding> result;
    reader.map(
            [](const QList<RVCatalogueProduct> &products) {
                QList<RVCatalogueFinding> findings;
                for (const RVCatalogueProduct &product : products)
                    findings += product.findings();
                return findings;
            },
            [&result](const QList<RVCatalogueFinding> &findings) {
                result += findings;
                return true;
            });
    return result + reader.findings();
}

QByteArray ignoring(const QByteArray &rules)
{
    return "<!-- rvcatalog: ignore " + rules + " -->";
}

/// A product without other findings, with these lines in it.
QByteArray product(const QByteArray &content, const QByteArray &attributes = {})
{
    return "<p><product type='A' article_id='1'" + attributes + ">\n" + content + "</product></p>\n";
}

QString unused(const QString &rules)
{
    return u"suppression-unused: this comment silences no finding of "_s + rules;
}

const QString WITHOUT_ELEMENT = u", as no element follows it"_s;
const QString NOT_UNDERSTOOD =
        u"this comment is not understood; one that silences rules reads \"rvcatalog: ignore RULE, RULE\""_s;

}

class tst_RVSuppression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reading_data();
    void reading();
    void unknownNamesHaveABound();
    void elements_data();
    void elements();
    void elements_byteByByte_data() { elements_data(); }
    void elements_byteByByte();
    void elements_mapped_data() { elements_data(); }
    void elements_mapped();
    void places_data();
    void places();
    void disabledRules();
    void severity();
    void typeOfTheProduct();
    void withoutAReader();
    void passedOver();
    void brokenFile();
    void withoutFonts();
    void manyGroups();
    void randomNesting();
};

void tst_RVSuppression::reading_data()
{
    QTest::addColumn<QByteArray>("comment");
    QTest::addColumn<QStringList>("texts");

    const QStringList one = { u"this comment silences no finding of type-missing"_s };
    const QStringList two = { u"this comment silences no finding of type-missing, spine-missing"_s };
    const QString foo = u"there is no rule \"foo\""_s;
    const QStringList misspelt = { NOT_UNDERSTOOD };
    const QStringList other;
    const auto row = [](const char *name, const QByteArray &comment, const QStringList &texts) {
        QTest::newRow(name) << comment << texts;
    };
    row("as documented", " rvcatalog: ignore type-missing, spine-missing ", two);
    row("without blanks", "rvcatalog:ignore type-missing,spine-missing", two);
    row("without the colon", " rvcatalog ignore type-missing ", one);
    row("with a hyphen", " rvcatalog-ignore type-missing ", one);
    row("colon behind the verb", " rvcatalog: ignore: type-missing ", one);
    row("letter case", " RVCatalog: Ignore Type-Missing ", one);
    row("over several lines", "\r\n  rvcatalog:\r\n\tignore\r\n  type-missing,\r\n  spine-missing\r\n", two);
    row("rules with blanks between them", " rvcatalog: ignore type-missing spine-missing ", two);
    row("rules with semicolons between them", " rvcatalog: ignore type-missing; spine-missing ", two);
    row("comma at the end", " rvcatalog: ignore type-missing, ", one);
    row("a rule twice", " rvcatalog: ignore type-missing, type-missing ", one);
    row("no rule", " rvcatalog: ignore ", { u"this comment names no rule to silence"_s });
    row("unknown rule", " rvcatalog: ignore type-missing, foo ", { foo, one.first() });
    row("unknown rule twice", " rvcatalog: ignore foo, Foo ", { foo });
    row("rule with underscores", " rvcatalog: ignore type_missing ",
        { u"there is no rule \"type_missing\"; did you mean \"type-missing\"?"_s });
    row("rule with half of its letters wrong", " rvcatalog: ignore type-mxxxxxx ",
        { u"there is no rule \"type-mxxxxxx\""_s });
    row("rule with nearly half of its letters wrong", " rvcatalog: ignore type-mixxxx ",
        { u"there is no rule \"type-mixxxx\"; did you mean \"type-missing\"?"_s });
    row("rule that is not ASCII", " rvcatalog: ignore größe ", { u"there is no rule \"größe\""_s });
    row("everything", " rvcatalog: ignore * ", { u"there is no rule \"*\""_s });

    row("verb misspelt", " rvcatalog: ingore type-missing ", misspelt);
    row("other verb", " rvcatalog: disable type-missing ", misspelt);
    row("no verb", " rvcatalog: type-missing ", misspelt);
    row("nothing behind the colon", " rvcatalog: ", misspelt);
    row("verb misspelt without a colon", " rvcatalog ignroe type-missing ", misspelt);
    row("program misspelt", " rvcatalogue: ignore type-missing ", misspelt);
    row("program misspelt without a colon", " rvcatlog ignore foo ", misspelt);
    row("program and verb misspelt", " rvcatlog: ignor type-missing ", misspelt);

    row("other words", " red covers ", other);
    row("other words with the letters", " rvc ", other);
    row("sentence about the program", " rvcatalog ignores what is far from any known name ", other);
    row("sentence that begins with something like it", " Catalog: ignore type-missing ", other);
    row("program of another name", " rvbrowser: ignore type-missing ", other);
    row("name of the program alone", " rvcatalog ", other);
    row("longer word", " rvcatalogignore type-missing ", other);
    row("further behind", " see rvcatalog: ignore type-missing ", other);
    row("empty", "", other);
    row("blank", " \n ", other);
}

// A comment in front of a product without faults has no effect with any rule.
void tst_RVSuppression::reading()
{
    QFETCH(QByteArray, comment);
    QStringList texts;
    for (const RVCatalogueFinding &finding :
         findingsIn("<p><!--" + comment + "--><product type='A' article_id='1'/></p>"))
        texts += finding.text();
    QTEST(texts, "texts");
}

void tst_RVSuppression::unknownNamesHaveABound()
{
    QByteArray names;
    for (int i = 0; i < 10000; ++i)
        names += "x" + QByteArray::number(i) + ' ';
    const QList<RVCatalogueFinding> findings = findingsIn("<p>" + ignoring(names + "type-missing")
                                                          + "<product article_id='1'/></p>");
    QCOMPARE(findings.size(), qsizetype(100));
    QCOMPARE(findings.last().text(), u"there is no rule \"x99\""_s);
}

void tst_RVSuppression::elements_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const QStringList none;
    const QString legacy = u" keyword-legacy"_s;
    const QString notUsed = u" suppression-unused"_s;
    const QByteArray hard = " cover_type='hard'"; // breaks keyword-legacy
    const auto row = [](const char *name, const QByteArray &file, const QStringList &findings) {
        QTest::newRow(name) << file << findings;
    };

    row("nothing silenced", "<p>\n<product type='A' article_id='1'" + hard + "/></p>", { u"2"_s + legacy });
    row("product", "<p>" + ignoring("keyword-legacy") + "\n<product type='A' article_id='1'" + hard + "/></p>", none);
    row("other rule", "<p>" + ignoring("keyword-unknown") + "\n<product type='A' article_id='1'" + hard + "/></p>",
        { u"1"_s + notUsed, u"2"_s + legacy });
    row("the next product is none of it",
        "<p>" + ignoring("keyword-legacy") + "\n<product type='A' article_id='1'" + hard
                + "/>\n<product type='B' article_id='2'" + hard + "/></p>",
        { u"3"_s + legacy });
    row("texts and comments between",
        "<p>" + ignoring("keyword-legacy")
                + "text<!-- because -->\n<![CDATA[<x/>]]><?pi?><product type='A' "
                  "article_id='1'"
                + hard + "/></p>",
        none);
    row("several comments",
        "<p>" + ignoring("keyword-legacy") + ignoring("number-invalid") + "\n<product type='A' article_id='1' pages='x'"
                + hard + "/></p>",
        none);
    row("everything in the product",
        "<p>" + ignoring("boolean-invalid, number-invalid")
                + product("<barcodes>\n<barcode width='x' height='9' pageNr='0'/></barcodes><forms>\n<form key='a' "
                          "value='b' "
                          "preselected='x'/></forms>"),
        none);
    row("part of a product",
        product(ignoring("option-incomplete") + "\n<forms>\n<form/>\n<form/></forms>", " pages='x'"),
        { u"1 number-invalid"_s });
    row("start tag of the part", product(ignoring("unit-unknown") + "\n<composition units='x'/>\n"), none);
    row("one of several children", product("<forms>\n" + ignoring("option-incomplete") + "\n<form/>\n<form/></forms>"),
        { u"5 option-incomplete"_s });
    row("the last of several children",
        product("<forms>\n<form/>\n" + ignoring("option-incomplete")
                + "\n<form/></forms>\n"
                  "<barcodes units='x'>\n</barcodes>"),
        { u"3 option-incomplete"_s, u"6 unit-unknown"_s });
    row("second of the elements of a kind",
        product("<forms/>\n" + ignoring("element-ignored") + "\n<forms/>\n<forms/>"), { u"5 element-ignored"_s });
    row("type that comes twice",
        "<p><product type='A' article_id='1'/>\n" + ignoring("type-duplicate")
                + "\n<product type='A' article_id='2'/>\n<product type='A' article_id='3'/></p>",
        { u"4 type-duplicate"_s });
    row("article id that comes twice",
        "<p><product type='A' article_id='1'/>\n" + ignoring("article-id-duplicate")
                + "\n<product type='A' article_id='1'/></p>",
        { u"3 type-duplicate"_s });
    row("first of two with a type",
        "<p>" + ignoring("type-duplicate")
                + "\n<product type='A' article_id='1'/>\n<product type='A' article_id='2'/>"
                  "</p>",
        { u"1"_s + notUsed, u"3 type-duplicate"_s });
    row("product is the root", ignoring("keyword-legacy") + "\n<product type='A' article_id='1'" + hard + "/>", none);

    row("group",
        "<p>" + ignoring("keyword-legacy") + "\n<g><product type='A' article_id='1'" + hard
                + "/><h>\n<product type='B' article_id='2'" + hard + "/></h></g>\n<product type='C' article_id='3'"
                + hard + "/></p>",
        { u"4"_s + legacy });
    row("root",
        ignoring("keyword-legacy") + "\n<p><g><product type='A' article_id='1'" + hard
                + "/>\n</g><product type='B' article_id='2'" + hard + "/></p>",
        none);
    row("root behind a declaration and a document type",
        "<?xml version='1.0'?>\n<!DOCTYPE p [\n" + ignoring("keyword-legacy")
                + "\n<!ELEMENT p ANY>]>\n<p><product type='A' article_id='1'" + hard + "/></p>",
        none);
    row("group without use",
        "<p>" + ignoring("keyword-legacy, number-invalid") + "\n<g><product type='A' article_id='1'" + hard
                + "/></g></p>",
        { u"1"_s + notUsed });
    row("group without products", "<p>" + ignoring("keyword-legacy") + "\n<g/><product type='A' article_id='1'/></p>",
        { u"1"_s + notUsed });
    const QByteArray stray = ignoring("element-misplaced") + "\n<forms/>";
    row("part of a product beside products", "<p>" + stray + "<product type='A' article_id='1'/></p>", none);
    row("part of a product in a group without products",
        "<p><g>" + stray + "</g><product type='A' article_id='1'/></p>", none);
    row("misspelt product", "<p>" + ignoring("element-misspelt") + "<prodct/><product type='A' article_id='1'/></p>",
        none);
    row("duplicate in a group",
        "<p><product type='A' article_id='1'/>" + ignoring("type-duplicate")
                + "\n<g><product type='A' article_id='2'/></g></p>",
        none);
    row("use in an inner group is one for the outer",
        "<p>" + ignoring("keyword-legacy") + "<g>" + ignoring("keyword-legacy") + "<h>" + ignoring("keyword-legacy")
                + "<product type='A' article_id='1'" + hard + "/></h></g></p>",
        none);
    row("no use in a group and in the one around it",
        "<p>\n" + ignoring("keyword-legacy") + "<g>\n" + ignoring("type-missing")
                + "<h><product type='A' article_id='1'/></h></g></p>",
        { u"2"_s + notUsed, u"3"_s + notUsed });
    row("two comments for the same",
        "<p>" + ignoring("keyword-legacy") + ignoring("keyword-legacy") + "<product type='A' article_id='1'" + hard
                + "/></p>",
        none);

    row("last in a product", product("<forms/>\n" + ignoring("option-incomplete") + "\n"), { u"3"_s + notUsed });
    row("last in a part", product("<forms><form/>\n" + ignoring("option-incomplete") + "</forms>\n<forms/>"),
        { u"2 option-incomplete"_s, u"3"_s + notUsed, u"4 element-ignored"_s });
    row("last in a group",
        "<p><g><product type='A' article_id='1'/>\n" + ignoring("keyword-legacy")
                + "</g>\n<product type='B' article_id='2'" + hard + "/></p>",
        { u"3"_s + legacy, u"2"_s + notUsed });
    row("last in the file", "<p><product type='A' article_id='1'/></p>\n" + ignoring("type-missing"),
        { u"2"_s + notUsed });

    row("unknown rules", "<p>" + ignoring("foo, keyword-unknwon") + "\n<product type='A' article_id='1'/></p>",
        { u"1 suppression-unknown"_s, u"1 suppression-unknown"_s });
    row("unknown rules of a group", "<p>" + ignoring("foo") + "\n<g><product type='A' article_id='1'/></g></p>",
        { u"1 suppression-unknown"_s });
    row("known rules beside unknown ones are silent",
        "<p>" + ignoring("foo, keyword-legacy") + "\n<product type='A' article_id='1'" + hard + "/></p>",
        { u"1 suppression-unknown"_s });

    row("comments themselves, in a group",
        ignoring("suppression-unused") + "\n<p>" + ignoring("type-missing") + "\n<product type='A' article_id='1'>\n"
                + ignoring("number-invalid") + "<forms/></product></p>",
        none);
    row("comments of groups themselves",
        ignoring("suppression-unused, suppression-unknown") + "\n<p>" + ignoring("type-missing, foo")
                + "\n<g><product type='A' article_id='1'/>" + ignoring("type-missing") + "</g></p>",
        none);
    row("comments themselves, in a product",
        "<p>" + ignoring("suppression-unused")
                + product(ignoring("number-invalid") + "<forms/>\n" + ignoring("number-invalid")),
        none);
    row("a comment stands outside of its element",
        "<p>" + ignoring("suppression-unused") + "\n" + ignoring("type-missing")
                + "\n<product type='A' article_id='1'/></p>",
        { u"1"_s + notUsed, u"2"_s + notUsed });
    row("a comment stands outside of the element before it",
        product(ignoring("suppression-unused") + "\n<forms/>\n" + ignoring("type-missing") + "\n<barcodes/>\n"
                + ignoring("type-missing")),
        { u"2"_s + notUsed, u"4"_s + notUsed, u"6"_s + notUsed });

    row("a comment alone in the next element",
        product(ignoring("suppression-unused") + "\n<forms/>\n<barcodes>" + ignoring("type-missing") + "</barcodes>"),
        { u"2"_s + notUsed, u"4"_s + notUsed });

    row("no products", ignoring("products-missing") + "\n<p/>", none);
    row("no products in a group", "<p>\n" + ignoring("products-missing") + "<g/></p>",
        { u"1 products-missing"_s, u"2"_s + notUsed });
    row("products that are there", ignoring("products-missing") + "\n<p><product type='A' article_id='1'/></p>",
        { u"1"_s + notUsed });
}

void tst_RVSuppression::elements()
{
    QFETCH(QByteArray, file);
    QTEST(brief(findingsIn(file)), "findings");
}

void tst_RVSuppression::elements_byteByByte()
{
    QFETCH(QByteArray, file);
    OneByteFile device(file);
    QTEST(brief(findingsIn(&device)), "findings");
}

void tst_RVSuppression::elements_mapped()
{
    QFETCH(QByteArray, file);
    QTEST(brief(mappedFindingsIn(file)), "findings");
}

void tst_RVSuppression::places_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    const QString utf16 =
            u"<p>Ä\U0001F4D5<!-- rvcatalog: ignore type-missing --><product type='A' article_id='1'/></p>"_s;
    QTest::newRow("one line") << "<p> " + ignoring("type-missing") + " <product type='A' article_id='1'/></p>"
                              << QStringList { u"1:5-1:44 "_s + unused(u"type-missing"_s) };
    QTest::newRow("several rules, in the order of the list")
            << "<p>\n" + ignoring("option-duplicate, type-missing") + "<product type='A' article_id='1'/></p>"
            << QStringList { u"2:1-2:58 "_s + unused(u"type-missing, option-duplicate"_s) };
    QTest::newRow("several lines") << QByteArray("<p>\n\n  <!--\n  rvcatalog: ignore\n  type-missing\n  -->\n"
                                                 "<product type='A' article_id='1'/></p>")
                                   << QStringList { u"3:3-6:6 "_s + unused(u"type-missing"_s) };
    QTest::newRow("CRLF") << QByteArray("<p>\r\n\r\n  <!--\r\n  rvcatalog: ignore\r\n  type-missing\r\n  -->\r\n"
                                        "<product type='A' article_id='1'/></p>")
                          << QStringList { u"3:3-6:6 "_s + unused(u"type-missing"_s) };
    QTest::newRow("UTF-8") << utf16.toUtf8() << QStringList { u"1:7-1:46 "_s + unused(u"type-missing"_s) };
    QTest::newRow("UTF-16") << QByteArray(QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(
            utf16)) << QStringList { u"1:7-1:46 "_s + unused(u"type-missing"_s) };
    QTest::newRow("letters beyond ASCII in the comment")
            << "<p>" + ignoring("type-missing größe") + "<product type='A' article_id='1'/></p>"
            << QStringList { u"1:4-1:49 suppression-unknown: there is no rule \"größe\""_s,
                             u"1:4-1:49 "_s + unused(u"type-missing"_s) };
    QTest::newRow("long comment") << "<p>" + ignoring(QByteArray(100000, ' ') + "type-missing")
                    + "<product type='A' article_id='1'/></p>"
                                  << QStringList { u"1:4-1:100043 "_s + unused(u"type-missing"_s) };
    QTest::newRow("behind a comment with signs of markup")
            << "<p><!-- <!- - -> !- - ! <!x> -->\n" + ignoring("type-missing")
                    + "<product type='A' article_id='1'/></p>"
            << QStringList { u"2:1-2:40 "_s + unused(u"type-missing"_s) };
    QTest::newRow("comment with signs of markup")
            << "<p>" + ignoring("type-missing !<! !") + "<product type='A' article_id='1'/></p>"
            << QStringList { u"1:4-1:49 suppression-unknown: there is no rule \"!<!\""_s,
                             u"1:4-1:49 suppression-unknown: there is no rule \"!\""_s,
                             u"1:4-1:49 "_s + unused(u"type-missing"_s) };
    QTest::newRow("in the document type") << "<!DOCTYPE p [\n" + ignoring("type-missing")
                    + "\n<!ELEMENT p ANY>]>\n<p><product type='A' article_id='1'/></p>"
                                          << QStringList { u"2:1-2:40 "_s + unused(u"type-missing"_s) };
    QTest::newRow("no element") << "<p><product type='A' article_id='1'/>" + ignoring("type-missing") + "</p>"
                                << QStringList { u"1:38-1:77 "_s + unused(u"type-missing"_s) + WITHOUT_ELEMENT };
    QTest::newRow("no rule") << QByteArray("<p><!-- rvcatalog: ignore --><product type='A' article_id='1'/></p>")
                             << QStringList { u"1:4-1:30 suppression-unused: this comment names no rule to silence"_s };
    QTest::newRow("not understood") << QByteArray("<p><!--rvcatalog: x--><product type='A' article_id='1'/></p>")
                                    << QStringList { u"1:4-1:23 suppression-unknown: "_s + NOT_UNDERSTOOD };
    QTest::newRow("unknown rule") << "<p>" + ignoring("Foo") + "<product type='A' article_id='1'/></p>"
                                  << QStringList { u"1:4-1:34 suppression-unknown: there is no rule \"foo\""_s };
    QTest::newRow("misspelt rule")
            << "<p>" + ignoring("keyword-unkown") + "<product type='A' article_id='1'/></p>"
            << QStringList { u"1:4-1:45 suppression-unknown: there is no rule \"keyword-unkown\"; did you mean "
                             "\"keyword-unknown\"?"_s };
}

void tst_RVSuppression::places()
{
    QFETCH(QByteArray, file);
    QTEST(describe(findingsIn(file)), "findings");
    OneByteFile device(file);
    QTEST(describe(findingsIn(&device)), "findings");
}

// A disabled rule has no findings to silence, but its comment is no fault.
void tst_RVSuppression::disabledRules()
{
    const QByteArray one = "<p>" + ignoring("keyword-legacy, type-missing")
            + "\n<product type='A' article_id='1'/></p>";
    QCOMPARE(describe(findingsIn(one, without({ u"type-missing"_s }))),
             QStringList { u"1:4-1:59 "_s + unused(u"keyword-legacy"_s) });
    const QByteArray group = "<p>" + ignoring("keyword-legacy") + "\n<g><product type='A' article_id='1'/></g></p>";
    QCOMPARE(brief(findingsIn(group)), QStringList { u"1 suppression-unused"_s });
    QCOMPARE(brief(findingsIn(group, without({ u"keyword-legacy"_s }))), QStringList());
    QCOMPARE(brief(findingsIn(group, without({ u"suppression-unused"_s }))), QStringList());
    QCOMPARE(brief(findingsIn("<p>" + ignoring("foo") + "<g/></p>", without({ u"products-missing"_s }))),
             QStringList { u"1 suppression-unknown"_s });
    QCOMPARE(brief(findingsIn(ignoring("products-missing") + "<p/>", without({ u"products-missing"_s }))),
             QStringList());
}

void tst_RVSuppression::severity()
{
    RVCatalogueCheck check;
    check.setSeverity(RVCatalogueRule::find(u"suppression-unused"), RVCatalogueSeverity::Error);
    const QList<RVCatalogueFinding> findings = findingsIn("<p>" + ignoring("foo") + ignoring("type-missing") + "<g/>"
                                                                  + ignoring("type-missing")
                                                                  + "<product type='A' article_id='1'/></p>",
                                                          check);
    QCOMPARE(brief(findings),
             QStringList({ u"1 suppression-unused"_s, u"1 suppression-unknown"_s, u"1 suppression-unused"_s }));
    QCOMPARE(findings.at(0).severity(), RVCatalogueSeverity::Error);
    QCOMPARE(findings.at(1).severity(), RVCatalogueSeverity::Warning);
    QCOMPARE(findings.at(2).severity(), RVCatalogueSeverity::Error);
}

void tst_RVSuppression::typeOfTheProduct()
{
    const QList<RVCatalogueFinding> findings = findingsIn("<p><g/>" + ignoring("type-missing")
                                                          + "<product type='A' article_id='1'/>"
                                                          + ignoring("type-missing") + "<g/></p>");
    QCOMPARE(findings.size(), qsizetype(2));
    QCOMPARE(findings.at(0).productType(), u"A"_s);
    QCOMPARE(findings.at(0).product(), qint64(0));
    QCOMPARE(findings.at(1).productType(), QString());
    QCOMPARE(findings.at(1).product(), qint64(-1));
}

// The check alone removes silenced findings, but does not report comments without effect.
void tst_RVSuppression::withoutAReader()
{
    CatalogueBuffer file("<p>" + ignoring("keyword-legacy, type-duplicate") + "<g>" + ignoring("boolean-invalid")
                         + "<product article_id='1' cover_type='hard'>" + ignoring("option-incomplete")
                         + "<forms><form/></forms></product></g></p>");
    const QList<RVCatalogueProduct> products = RVCatalogueReader(&file).readAll();
    QCOMPARE(products.size(), qsizetype(1));
    QVERIFY(products.first().findings().isEmpty());
    QCOMPARE(brief(RVCatalogueCheck().findings(products.first())), QStringList { u"1 type-missing"_s });
    QCOMPARE(brief(RVCatalogueCheck().findings(products.first())), QStringList { u"1 type-missing"_s });
}

// The faults of skipped products are unknown.
void tst_RVSuppression::passedOver()
{
    const QByteArray content = "<p>" + ignoring("keyword-legacy") + "<g><product type='A' article_id='1'/></g>"
            + ignoring("keyword-legacy") + "<g/></p>";
    CatalogueBuffer file(content);
    RVCatalogueReader reader(&file);
    reader.setCheck(RVCatalogueCheck());
    QVERIFY(reader.finish());
    QCOMPARE(describe(reader.findings()), QStringList { u"1:86-1:127 "_s + unused(u"keyword-legacy"_s) });
    QCOMPARE(findingsIn(content).size(), qsizetype(2));
}

// The faults in a group that was cut off are unknown as well.
void tst_RVSuppression::brokenFile()
{
    QCOMPARE(brief(findingsIn("<p>" + ignoring("type-missing") + "\n<g/>" + ignoring("type-missing")
                              + "\n<g><product article_id='x' type='A'/>")),
             QStringList({ u"3 article-id-invalid"_s, u"1 suppression-unused"_s }));
    QCOMPARE(brief(findingsIn("<p><product type='A' article_id='1'/></p>" + ignoring("type-missing") + "<")),
             QStringList());
}

// This program has no fonts, so the rule about them finds nothing.
void tst_RVSuppression::withoutFonts()
{
    QCOMPARE(brief(findingsIn("<p>" + ignoring("spine-font-too-small") + "<product type='A' article_id='1'/></p>")),
             QStringList());
}

void tst_RVSuppression::manyGroups()
{
    constexpr int count = 3000;
    QByteArray file = ignoring("article-id-missing") + "\n<p>\n";
    QStringList inProducts;
    QStringList inGroups;
    for (int i = 0; i < count; ++i) {
        const QString line = QString::number(3 + i);
        const QByteArray type = QByteArray::number(i);
        const QByteArray attributes = i % 3 == 0 ? " pages='x'" : i % 3 == 1 ? " cover_type='hard'" : "";
        file += ignoring("keyword-legacy") + "<g><h><product type='" + type + "'" + attributes
                + "/></h><product type='b" + type + "'/></g>\n";
        if (i % 3 == 0)
            inProducts += line + u" number-invalid"_s;
        if (i % 3 != 1)
            inGroups += line + u" suppression-unused"_s;
    }
    file += "</p>";
    QCOMPARE(brief(findingsIn(file)), inProducts + inGroups);
    QCOMPARE(brief(mappedFindingsIn(file)), inProducts + inGroups);
}

namespace {

/// A catalogue of randomly nested elements, and its findings by the plain rule.
class RandomNesting
{
public:
    explicit RandomNesting(quint32 seed) : myRandom(seed), myText("<product type='A' article_id='1'>\n")
    {
        ++myLine;
        addChildren(0);
        myText += "</product>\n";
    }

    const QByteArray &text() const { return myText; }
    /// The lines, sorted.
    const QStringList &findings()
    {
        for (const Comment &comment : myComments) {
            const bool isUsed = std::any_of(myFaults.begin(), myFaults.end(),
                                            [&](int line) { return line > comment.line && line < comment.end; });
            if (!isUsed)
                myFindings += QString::number(comment.line) + u" suppression-unused"_s;
        }
        for (const int fault : myFaults) {
            const bool isSilent = std::any_of(myComments.begin(), myComments.end(), [&](const Comment &comment) {
                return fault > comment.line && fault < comment.end;
            });
            if (!isSilent)
                myFindings += QString::number(fault) + u" option-incomplete"_s;
        }
        myFindings.sort();
        return myFindings;
    }

private:
    struct Comment
    {
        int line;
        int end; // the end of its element
    };

    // Only the first "forms" of a product is read, so the children of others have no faults.
    void addChildren(int level)
    {
        for (int i = myRandom.bounded(4); i >= 0; --i) {
            const int comments = myRandom.bounded(3);
            for (int j = 0; j < comments; ++j)
                addLine(ignoring("option-incomplete"));
            const int first = myLine - comments;
            if (level == 0 && !std::exchange(myHasForms, true))
                addForms();
            else
                addElement(level);
            for (int j = 0; j < comments; ++j)
                myComments += { first + j, myLine };
        }
        if (myRandom.bounded(3) == 0) {
            myComments += { myLine, myLine };
            addLine(ignoring("option-incomplete"));
        }
    }
    void addElement(int level)
    {
        addLine("<x>");
        if (level < 4)
            addChildren(level + 1);
        addLine("</x>");
    }
    void addForms()
    {
        addLine("<forms>");
        for (int i = myRandom.bounded(8); i > 0; --i) {
            const int comments = myRandom.bounded(2);
            for (int j = 0; j < comments; ++j)
                addLine(ignoring("option-incomplete"));
            const int first = myLine - comments;
            if (myRandom.bounded(2) == 0)
                myFaults += myLine;
            addLine(myFaults.endsWith(myLine) ? "<form/>" : "<y/>");
            for (int j = 0; j < comments; ++j)
                myComments += { first + j, myLine };
        }
        addLine("</forms>");
    }
    void addLine(const QByteArray &text)
    {
        myText += text + '\n';
        ++myLine;
    }

    QRandomGenerator myRandom;
    QByteArray myText;
    int myLine = 1; // the number of the next line
    QList<int> myFaults;
    QList<Comment> myComments;
    QStringList myFindings;
    bool myHasForms = false;
};

}

void tst_RVSuppression::randomNesting()
{
    for (quint32 seed = 1; seed <= 300; ++seed) {
        RandomNesting nesting(seed);
        QStringList findings = brief(findingsIn(nesting.text()));
        findings.sort();
        QVERIFY2(findings == nesting.findings(),
                 nesting.text() + findings.join(u'\n').toUtf8() + "\n--\n" + nesting.findings().join(u'\n').toUtf8());
    }
}

QTEST_GUILESS_MAIN(tst_RVSuppression)
#include "tst_RVSuppression.moc"
