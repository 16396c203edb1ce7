#include "CheckedCatalogue.h"
#include "CleanCatalogue.h"
#include "ListDifference.h"
#include "SampleProduct.h"
#include "WrittenFile.h"

#include <RVNameVocabulary_p.h>

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A product with type, article id, these attributes and this content.
QByteArray product(const QByteArray &attributes, const QByteArray &content = QByteArray())
{
    return "<products><product type='A' article_id='1' " + attributes + '>' + content + "</product></products>";
}

QByteArray barcode(const QByteArray &attributes, const QByteArray &attributesOfBarcodes = QByteArray())
{
    return product("pages='9'", "<barcodes " + attributesOfBarcodes + "><barcode " + attributes + "/></barcodes>");
}

QByteArray spine(const QByteArray &attributes, const QByteArray &attributesOfComposition = QByteArray())
{
    return product("page_binding='glue'",
                   "<composition " + attributesOfComposition + "><spine " + attributes + "/></composition>");
}

QByteArray forms(const QByteArray &content, const QByteArray &attributesOfForms = QByteArray())
{
    return product("", "<forms " + attributesOfForms + '>' + content + "</forms>");
}

/// The names of attributes by element, sorted.
using Attributes = QMap<QString, QStringList>;

/// Each attribute with its element, as in "pages of product".
QStringList listed(const Attributes &attributes)
{
    QStringList result;
    for (auto element = attributes.begin(); element != attributes.end(); ++element) {
        for (const QString &name : element.value())
            result += u"%1 of %2"_s.arg(name, element.key());
    }
    return result;
}

/// The changes that give RVNameVocabulary_p.h the attributes of a description; empty if it has them.
QString lackOfVocabulary(const Attributes &vocabulary, const Attributes &described)
{
    return listDifference(u"libs/RVCatalogue/RVNameVocabulary_p.h"_s, listed(vocabulary), listed(described));
}

Attributes ofVocabulary()
{
    Attributes result;
    for (const RVKnownElement &element : RV_KNOWN_ELEMENTS) {
        QStringList &names = result[element.name];
        for (const QLatin1StringView name : element.attributes)
            names += name;
        names.sort();
    }
    return result;
}

}

class tst_RVNameCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vocabularyOfTheSchema();
    void vocabularyOfTheDocumentation();
    void found_data();
    void found();
    void silent_data();
    void silent();
    void cleanCatalogues();
    void oneMistake_data();
    void oneMistake();
    void everyAttributeOfTheCleanCatalogue();
    void everyElementOfTheCleanCatalogue();
    void texts_data();
    void texts();
    void fixes_data();
    void fixes();
    void attributesOfTheDocumentType();
    void foreignNames();
    void switchedOff();
    void aboutTheFile();
    void mostOfAFile();
    void mendedExamples_data();
    void mendedExamples();
};

void tst_RVNameCheck::vocabularyOfTheSchema()
{
    QDomDocument schema;
    QVERIFY(bool(schema.setContent(readFile(QStringLiteral(SCHEMA)))));
    Attributes described;
    for (auto element = schema.documentElement().firstChildElement(u"xs:element"_s); !element.isNull();
         element = element.nextSiblingElement(u"xs:element"_s)) {
        QStringList &names = described[element.attribute(u"name"_s)];
        const QDomNodeList attributes = element.elementsByTagName(u"xs:attribute"_s);
        for (int i = 0; i < attributes.size(); ++i)
            names += attributes.at(i).toElement().attribute(u"name"_s);
        names.sort();
    }
    QVERIFY(described.remove(u"products"_s));
    QCOMPARE(lackOfVocabulary(ofVocabulary(), described), QString());
    QCOMPARE(ofVocabulary().keys(), described.keys());
}

// A section for each element whose attributes have a table; barcodes, composition and forms have units or nothing.
void tst_RVNameCheck::vocabularyOfTheDocumentation()
{
    static const QRegularExpression heading(u"^### `([a-z]+)`"_s);
    static const QRegularExpression row(u"^\\| (`[^|]*) \\|"_s);
    static const QRegularExpression name(u"`(\\w+)`"_s);
    const QString text = QString::fromUtf8(readFile(QStringLiteral(FORMAT)))
                                 .section(u"## Checking a catalogue"_s, 0, 0);
    Attributes described;
    QString element;
    for (const QString &line : text.split(u'\n')) {
        if (const auto match = heading.match(line); match.hasMatch())
            element = match.captured(1);
        if (const auto match = row.match(line); match.hasMatch() && !element.isEmpty()) {
            for (const QRegularExpressionMatch &each : name.globalMatch(match.captured(1)))
                described[element] += each.captured(1);
        }
    }
    for (QStringList &names : described)
        names.sort();
    Attributes expected = ofVocabulary();
    QCOMPARE(expected.take(u"barcodes"_s), QStringList { u"units"_s });
    QCOMPARE(expected.take(u"forms"_s), QStringList());
    QCOMPARE(lackOfVocabulary(expected, described), QString());
    QCOMPARE(described.keys(), expected.keys());
}

void tst_RVNameCheck::found_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("finding");

    const auto attribute = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << place + u": attribute-misspelt"_s;
    };
    attribute("letter missing at the end", product("max_page='8'"), u"max_page='8'"_s);
    attribute("letter case", product("Cover_Type='hardcover'"), u"Cover_Type='hardcover'"_s);
    attribute("all in capitals", product("COVER_TYPE='hardcover'"), u"COVER_TYPE='hardcover'"_s);
    attribute("no underscore", product("coverType='hardcover'"), u"coverType='hardcover'"_s);
    attribute("hyphen", product("shipping-group='2'"), u"shipping-group='2'"_s);
    attribute("full stop", product("shipping.group='2'"), u"shipping.group='2'"_s);
    attribute("number and letter behind a name", product("orientation2x='portrait'"), u"orientation2x='portrait'"_s);
    attribute("underscore at another place, letter too many", product("maxp_agess='8'"), u"maxp_agess='8'"_s);
    attribute("other number of words", spine("base_width='8' package_perblok='1'"), u"package_perblok='1'"_s);
    attribute("letter too many", product("pagess='2'"), u"pagess='2'"_s);
    attribute("letters swapped", product("peices='2'"), u"peices='2'"_s);
    attribute("letter replaced", product("pates='2'"), u"pates='2'"_s);
    attribute("two changes in two words", product("shiping_gruop='2'"), u"shiping_gruop='2'"_s);
    attribute("two changes in a long word", product("oreintatoin='portrait'"), u"oreintatoin='portrait'"_s);
    attribute("two changes in a word of six letters", product("page_bintng='glue'"), u"page_bintng='glue'"_s);
    attribute("two changes in a name of nine letters", spine("base_width='8' blcok_wdith='1' packages_per_block='1'"),
              u"blcok_wdith='1'"_s);
    attribute("photo", product("photo_paper_type='matt'"), u"photo_paper_type='matt'"_s);
    attribute("letter replaced behind a p", product("phges='2'"), u"phges='2'"_s);
    attribute("letter too many in photo", product("pages='9' phooto_box='true'"), u"phooto_box='true'"_s);
    attribute("foto", product("pages='9' foto_box='true'"), u"foto_box='true'"_s);
    attribute("foto and a wrong letter", product("pages='9' foto_bax='true'"), u"foto_bax='true'"_s);
    attribute("short name, letter missing", product("nam='a'"), u"nam='a'"_s);
    attribute("short name, letter too many", product("names='a'"), u"names='a'"_s);
    attribute("short name, letters swapped", product("nmae='a'"), u"nmae='a'"_s);
    attribute("beside the right one", product("pages='2' page='2'"), u"page='2'"_s);
    attribute("unit of barcodes", barcode("width='38' height='10' pageNr='2'", "unit='mm'"), u"unit='mm'"_s);
    attribute("page of a barcode", barcode("position_y='20' width='38' height='10' pageNR='2'"), u"pageNR='2'"_s);
    attribute("position of a barcode", barcode("width='38' height='10' pageNr='2' position_x='1' positoin_y='20'"),
              u"positoin_y='20'"_s);
    attribute("unit of a composition", spine("base_width='8'", "Units='mm'"), u"Units='mm'"_s);
    attribute("width of a spine", spine("base_width='8' block_widht='1' packages_per_block='1'"), u"block_widht='1'"_s);
    attribute("packages of a spine", spine("base_width='8' package_per_blok='1'"), u"package_per_blok='1'"_s);
    attribute("name of a key", forms("<form key='a' value='b' keyName='c'/>"), u"keyName='c'"_s);
    attribute("British colour", forms("<form key='a' value='b' colour='red'/>"), u"colour='red'"_s);
    attribute("billing", forms("<form key='a' value='b' not_acountable='true'/>"), u"not_acountable='true'"_s);
    attribute("Cyrillic letter", product("m\xd0\xb0x_pages='8'"), u"m\u0430x_pages='8'"_s);
    attribute("Cyrillic letters in a short name", product("n\xd0\xb0m\xd0\xb5='8'"), u"n\u0430m\u0435='8'"_s);
    attribute("accent", product("pagés='8'"), u"pagés='8'"_s);
    attribute("invisible letter", product("pages\xe2\x80\x8d='8'"), u"pages\u200d='8'"_s);

    const auto element = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << place + u": element-misspelt"_s;
    };
    element("option with swapped letters", forms("<from key='a' value='b'/>"), u"<from>"_s);
    element("option in capitals", forms("<FORM key='a' value='b'/>"), u"<FORM>"_s);
    element("part of a product", product("", "<barcods><barcode/></barcods>"), u"<barcods>"_s);
    element("part of a product in two words", product("", "<bar-codes/>"), u"<bar-codes>"_s);
    element("part of a product with two changes",
            product("", "<compositoin/><forms/>").replace("compositoin", "compositin"), u"<compositin>"_s);
    element("barcode", product("", "<barcodes><Barcode/></barcodes>"), u"<Barcode>"_s);
    element("spine", product("", "<composition><spin/></composition>"), u"<spin>"_s);
    element("capital letter at a wrong place, too", product("", "<Form key='a' value='b'/>"), u"<Form>"_s);
    element("product in a product", product("", "<Product/>"), u"<Product>"_s);
    element("Greek letter", forms("<f\xce\xbfrm key='a' value='b'/>"), u"<f\u03bfrm>"_s);
    element("product with swapped letters", "<products><prodcut type='A'/></products>", u"<prodcut>"_s);
    element("product with a capital", "<products><Product type='A'/></products>", u"<Product>"_s);
    element("product in capitals", "<products><f><PRODUCT type='A'/></f></products>", u"<PRODUCT>"_s);
    element("product as root", "<Product type='A'/>", u"<Product>"_s);
    element("product beside others", "<products><product type='A' article_id='1'/><pruduct/></products>",
            u"<pruduct>"_s);
    element("product with its parts", "<products><prodct><forms/><prodct/><barcodes/></prodct></products>",
            u"<prodct>"_s);

    const auto misplaced = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << place + u": attribute-misplaced"_s;
    };
    misplaced("units of the spine", spine("base_width='8' units='mm'"), u"units='mm'"_s);
    misplaced("units of the spine, too", spine("base_width='8' units='cm'", "units='mm'"), u"units='cm'"_s);
    misplaced("units of a barcode", barcode("width='38' height='10' pageNr='2' units='mm'"), u"units='mm'"_s);
    misplaced("units of the product", product("units='mm'"), u"units='mm'"_s);
    misplaced("base width of the composition", spine("", "base_width='8'"), u"base_width='8'"_s);
    misplaced("page of all barcodes", barcode("position_y='20' width='38' height='10'", "pageNr='2'"), u"pageNr='2'"_s);
    misplaced("width of all barcodes", barcode("height='10' pageNr='2'", "width='38'"), u"width='38'"_s);
    misplaced("key of all options", forms("<form value='b'/>", "key='a'"), u"key='a'"_s);
    misplaced("page counts of a part", product("", "<composition max_pages='9'/>"), u"max_pages='9'"_s);
    misplaced("orientation of a part", product("", "<composition orientation='portrait'/>"),
              u"orientation='portrait'"_s);
    misplaced("preselected product", product("preselected='true'"), u"preselected='true'"_s);

    const auto misplacedElement = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << place + u": element-misplaced"_s;
    };
    misplacedElement("option in the product", product("", "<form key='a' value='b'/>"), u"<form>"_s);
    misplacedElement("barcode in the product", product("", "<barcode/>"), u"<barcode>"_s);
    misplacedElement("spine in the product", product("", "<spine base_width='8'/>"), u"<spine>"_s);
    misplacedElement("barcode among options", forms("<barcode/>"), u"<barcode>"_s);
    misplacedElement("options in options", forms("<forms><form/></forms>"), u"<forms>"_s);
    misplacedElement("options in an option", forms("<form key='a' value='b'><form/></form>"), u"<form>"_s);
    misplacedElement("product among options", forms("<product/>"), u"<product>"_s);
    misplacedElement("options behind their product",
                     "<products><product type='A' article_id='1'/><forms><form/></forms></products>", u"<forms>"_s);
    misplacedElement("option behind its product", "<products><product type='A' article_id='1'/><form/></products>",
                     u"<form>"_s);
    misplacedElement("spine in front of its product",
                     "<products><f><spine/><product type='A' article_id='1'/></f></products>", u"<spine>"_s);

    const auto prefixed = [](const char *situation, const QByteArray &file, const QString &place) {
        QTest::newRow(situation) << file << place + u": element-prefixed"_s;
    };
    prefixed("option with a prefix", forms("<x:form xmlns:x='u' key='a' value='b'/>"), u"<x:form>"_s);
    prefixed("part of a product with a prefix", product("", "<x:forms xmlns:x='u'><form/></x:forms>"), u"<x:forms>"_s);
    prefixed("product with an empty prefix", "<products><:product type='A'/></products>", u"<:product>"_s);
    prefixed("product with a prefix", "<p:products xmlns:p='u'><p:product type='A'><forms/></p:product></p:products>",
             u"<p:product>"_s);
}

void tst_RVNameCheck::found()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, finding);
    QCOMPARE(CheckedCatalogue(file).rules(), QStringList { finding });
}

void tst_RVNameCheck::silent_data()
{
    QTest::addColumn<QByteArray>("file");

    for (const char *name : { "sku",
                              "min_pages",
                              "width",
                              "weight",
                              "image",
                              "value",
                              "color",
                              "key",
                              "page_size",
                              "base_price_class",
                              "print_class",
                              "paper_class",
                              "supplier",
                              "article_no",
                              "cover",
                              "binding",
                              "note",
                              "date",
                              "size",
                              "id",
                              "class",
                              "lang",
                              "label",
                              "min_step",
                              "x",
                              "_",
                              "größe",
                              "ä",
                              "\xd1\x86\xd0\xb2\xd0\xb5\xd1\x82" })
        QTest::addRow("%s of a product", name) << product(QByteArray(name) + "='1'");
    for (const char *name :
         { "page_type", "page_alignment", "material_type", "product_arrangement", "dlp_type", "spot_color" })
        QTest::addRow("%s of other XML formats", name) << product(QByteArray(name) + "='1'");
    QTest::newRow("long name") << product(QByteArray(5000, 'p') + "='1'");
    QTest::newRow("name spaces") << product("xmlns='u' xmlns:p='v'");
    QTest::newRow("attributes with prefixes")
            << product("xmlns:p='u' p:pages='8' p:page='8' xml:lang='de' xmlns:xsi='v' xsi:type='w'");
    QTest::newRow("prefixed name near another one") << product("xmlns:p='u' p:orientation='portrait'");
    QTest::newRow("element near that of an option, outside of its part") << product("", "<from key='a' value='b'/>");
    QTest::newRow("two changes in a name of nine letters") << product("covre_tyep='1'");
    QTest::newRow("other letters in most places") << product("\xd1\x80\xd0\xb0g\xd0\xb5s='1'");
    QTest::newRow("two changes in a short word") << forms("<form key='a' value='b' edtr_name='1'/>");
    for (const char *name :
         { "back_width", "book_width", "flack_width", "packages_per_book", "width", "name", "type", "key" })
        QTest::addRow("%s of a spine", name) << spine("base_width='8' " + QByteArray(name) + "='1'");
    for (const char *name : { "type", "rotation", "x", "page", "value", "name", "orientation" })
        QTest::addRow("%s of a barcode", name)
                << barcode("position_y='20' width='38' height='10' pageNr='2' " + QByteArray(name) + "='1'");
    for (const char *name : { "sort", "group", "type", "icon", "weight", "default", "label" })
        QTest::addRow("%s of an option", name) << forms("<form key='a' value='b' " + QByteArray(name) + "='1'/>");
    QTest::newRow("position beside position_x and position_y")
            << barcode("width='38' height='10' pageNr='2' position_x='1' position_y='20' position='1'");
    QTest::newRow("names of parts") << product("", "<forms name='a'/><barcodes name='b'/><composition name='c'/>");
    QTest::newRow("type and orientation of parts")
            << product("orientation='portrait'", "<forms type='a'/><barcodes orientation='b'/><composition type='c'/>");
    QTest::newRow("words that barcodes have as well") << barcode(
            "position_y='20' width='38' height='10' pageNr='2' image='a'", "width='40' height='12' image='b'");
    QTest::newRow("words that options have as well")
            << forms("<form key='a' value='b' color='red' preview='c'/>", "key='a' value='b' color='red' preview='c'");
    for (const char *name : { "weight", "width2", "pageNr2", "bar_width", "position_z2" })
        QTest::addRow("%s of a barcode", name)
                << barcode("position_y='20' width='38' height='10' pageNr='2' " + QByteArray(name) + "='1'");
    for (const char *name : { "editor_name_de", "editorNameEn", "key2", "name_1", "color2", "my_key", "a_key", "key_a",
                              "review", "price_class_2", "price_class2" })
        QTest::addRow("%s of an option", name) << forms("<form key='a' value='b' " + QByteArray(name) + "='1'/>");
    QTest::newRow("another width of a spine") << spine("base_width='8' case_width='1' base_width_2='3'");
    QTest::newRow("foreign elements") << product(
            "", "<description/><picture/><related/><format/><norm/><images/><prices/><position/><name/><options/>");
    QTest::newRow("foreign elements in parts")
            << product("",
                       "<forms><group/><option/><fort/></forms><barcodes><code/><label/></barcodes>"
                       "<composition><cover/><sprite/></composition>");
    QTest::newRow("known names in foreign elements")
            << product("max_pages='1'",
                       "<x><form max_page='1'/><from/><Forms/><barcode/><product/><y><spine units='mm'/></y></x>");
    QTest::newRow("known names in other name spaces")
            << product("", "<x:description xmlns:x='u'><x:form/></x:description><x:form xmlns:x='u'/>");
    QTest::newRow("contents of an ignored part") << product("", "<forms/><forms><from/><form max_page='1'/></forms>");
    for (const char *root : { "products", "Products", "PRODUCTS", "produkte", "productlist", "product_list",
                              "catalogue", "family", "production", "prod", "offers" })
        QTest::addRow("root %s without products", root)
                << '<' + QByteArray(root) + "><a/></" + root + "><!--" + root + "-->";
    QTest::newRow("root with a name near product")
            << QByteArray("<produkt><group><product type='A' article_id='1'/></group></produkt>");
    QTest::newRow("parts in a group without products") << QByteArray(
            "<products><product type='A' article_id='1'/><defaults><forms/><spine/></defaults></products>");
}

void tst_RVNameCheck::silent()
{
    QFETCH(QByteArray, file);
    RVCatalogueCheck check;
    check.disable(RVCatalogueRule::find(u"products-missing"));
    check.disable(RVCatalogueRule::find(u"element-ignored"));
    QCOMPARE(CheckedCatalogue(file, check).rules(), QStringList());
}

// Other names that print houses write break no rule.
void tst_RVNameCheck::cleanCatalogues()
{
    for (quint32 seed = 1; seed <= 40; ++seed) {
        const CheckedCatalogue catalogue(CleanCatalogue(seed).catalogue(100));
        QCOMPARE(catalogue.rules().join(u'\n'), QString());
    }
}

void tst_RVNameCheck::oneMistake_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("findings");

    QTest::newRow("misspelt article id is not missing")
            << changed(" article_id='1'", " articel_id='1'") << QStringList { u"articel_id='1': attribute-misspelt"_s };
    QTest::newRow("misspelt spine is not missing")
            << changed("<spine ", "<spin ") << QStringList { u"<spin>: element-misspelt"_s };
    QTest::newRow("misspelt composition is not missing")
            << changed("<composition ", "<compositon ").replace("</composition>", "</compositon>")
            << QStringList { u"<compositon>: element-misspelt"_s };
    QTest::newRow("misspelt option and missing spine")
            << changed("<form key='alcolor' value='black'", "<from key='alcolor' value='black'")
                       .replace("<composition ", "<!-- ")
                       .replace("</composition>", "-->")
            << QStringList { u"<product>: spine-missing"_s, u"<from>: element-misspelt"_s };
    QTest::newRow("prefixed spine is not missing")
            << changed("<spine ", "<x:spine xmlns:x='u' ") << QStringList { u"<x:spine>: element-prefixed"_s };
    QTest::newRow("misplaced spine is not missing")
            << changed("<composition units='cm'>", "").replace("</composition>", "")
            << QStringList { u"<spine>: element-misplaced"_s };
    QTest::newRow("misspelt default is not missing")
            << changed("<form key='alcolor' value='black'", "<from key='alcolor' value='black'")
            << QStringList { u"<from>: element-misspelt"_s };
    QTest::newRow("misspelt height and missing page")
            << barcode("width='38' heigth='10'")
            << QStringList { u"<barcode>: barcode-page-missing"_s, u"heigth='10': attribute-misspelt"_s };
    QTest::newRow("misspelt key and missing key")
            << forms("<form kye='a' value='b'/><form value='c'/>")
            << QStringList { u"kye='a': attribute-misspelt"_s, u"<form>: option-incomplete"_s };
    QTest::newRow("the unit may be meant for both") << changed("<barcodes units='mm'>", "<barcodes>")
                                                               .replace("<spine ", "<spine units='mm' ")
                                                               .replace("290.5", "29050")
                                                    << QStringList { u"units='mm': attribute-misplaced"_s };
    QTest::newRow("two attributes") << changed("page_step='4' pieces='1'", "pagestep='4' peices='1'")
                                    << QStringList { u"pagestep='4': attribute-misspelt"_s,
                                                     u"peices='1': attribute-misspelt"_s };
}

// An attribute with a wrong name is not reported as missing as well.
void tst_RVNameCheck::oneMistake()
{
    QFETCH(QByteArray, file);
    QVERIFY(!file.isEmpty());
    QTEST(CheckedCatalogue(file).rules(), "findings");
}

// One misspelt name in a clean catalogue gives exactly one finding.
void tst_RVNameCheck::everyAttributeOfTheCleanCatalogue()
{
    static const QRegularExpression attribute(u" ([a-zA-Z_]+)='[^']*'"_s);
    const QString clean = QString::fromLatin1(CLEAN_CATALOGUE);
    int count = 0;
    for (const QRegularExpressionMatch &match : attribute.globalMatch(clean)) {
        const QString name = match.captured(1);
        QString swapped = name;
        std::swap(swapped[1], swapped[2]);
        for (const QString &misspelt :
             { name.toUpper(), name + u'x', swapped, QString(name).replace(u'e', u'\u0435') }) {
            if (misspelt == name)
                continue;
            QString file = clean;
            file.replace(match.capturedStart(1), name.size(), misspelt);
            const QString place = misspelt + match.captured().mid(name.size() + 1);
            const CheckedCatalogue catalogue(file.toUtf8());
            QCOMPARE(catalogue.rules(), QStringList { place + u": attribute-misspelt"_s });
            QCOMPARE(catalogue.mended(), clean);
            ++count;
        }
    }
    QCOMPARE(count, 194);
}

// The same for elements, with everything in them.
void tst_RVNameCheck::everyElementOfTheCleanCatalogue()
{
    static const QRegularExpression start(u"<(product|barcodes|barcode|composition|spine|forms|form)\\b"_s);
    const QString clean = QString::fromLatin1(CLEAN_CATALOGUE);
    int count = 0;
    for (const QRegularExpressionMatch &match : start.globalMatch(clean)) {
        const QString name = match.captured(1);
        for (const QString &misspelt : { name.toUpper(), name + u'x', QString(name).replace(u'o', u'\u043e') }) {
            if (misspelt == name)
                continue;
            QString file = clean;
            const qsizetype tagEnd = file.indexOf(u'>', match.capturedEnd());
            if (file.at(tagEnd - 1) != u'/')
                file.replace(file.indexOf(u"</%1>"_s.arg(name), tagEnd) + 2, name.size(), misspelt);
            file.replace(match.capturedStart(1), name.size(), misspelt);
            QCOMPARE(CheckedCatalogue(file.toUtf8()).rules(),
                     QStringList { u"<%1>: element-misspelt"_s.arg(misspelt) });
            ++count;
        }
    }
    QCOMPARE(count, 35);
}

void tst_RVNameCheck::texts_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("text");

    QTest::newRow("attribute") << product("max_page='8'")
                               << u"the attribute \"max_page\" is not read; did you mean \"max_pages\"?"_s;
    QTest::newRow("attribute that may be one of two")
            << barcode("width='38' height='10' pageNr='2' position='1'")
            << u"the attribute \"position\" is not read; did you mean \"position_x\" or \"position_y\"?"_s;
    QTest::newRow("attribute in another letter case, near another one")
            << barcode("width='38' height='10' pageNr='2' Position_Y='20'")
            << u"the attribute \"Position_Y\" is not read; did you mean \"position_y\"?"_s;
    QTest::newRow("attribute with other letters")
            << product("m\xd0\xb0x_pag\xd0\xb5s='8'")
            << u"the attribute \"m\u0430x_pag\u0435s\" (with U+0430, U+0435) is not read; did you mean \"max_pages\"?"_s;
    QTest::newRow("attribute with the same other letter twice")
            << product("m\xd0\xb0x_p\xd0\xb0ges='8'")
            << u"the attribute \"m\u0430x_p\u0430ges\" (with U+0430) is not read; did you mean \"max_pages\"?"_s;
    QTest::newRow("attribute with an invisible letter")
            << product("pages\xe2\x80\x8d='8'")
            << u"the attribute \"pages \" (with U+200D) is not read; did you mean \"pages\"?"_s;
    QTest::newRow("attribute of the element around")
            << spine("base_width='8' units='mm'")
            << u"the attribute \"units\" is not read in spine; it belongs to composition"_s;
    QTest::newRow("attribute of other elements")
            << product("", "<composition><spine price_class='0'/></composition>")
            << u"the attribute \"price_class\" is not read in spine; it belongs to product or form"_s;
    QTest::newRow("element") << forms("<from key='a' value='b'/>")
                             << u"the element \"from\" is not read; did you mean \"form\"?"_s;
    QTest::newRow("element at a wrong place")
            << product("", "<form key='a' value='b'/>")
            << u"the element \"form\" is not read in product; it belongs into forms"_s;
    QTest::newRow("product at a wrong place")
            << forms("<product/>") << u"the element \"product\" is not read in forms"_s;
    QTest::newRow("element outside of products")
            << QByteArray("<products><product type='A' article_id='1'/><forms/></products>")
            << u"the element \"forms\" is not read outside of a product; move it into one"_s;
    QTest::newRow("element with a prefix")
            << forms("<x:form xmlns:x='u' key='a' value='b'/>")
            << u"the element \"x:form\" is not read because of its prefix; without it, it is \"form\""_s;
    QTest::newRow("product") << QByteArray("<products><prodcut/></products>")
                             << u"the element \"prodcut\" is not read; did you mean \"product\"?"_s;
}

void tst_RVNameCheck::texts()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, text);
    QCOMPARE(CheckedCatalogue(file).texts(), QStringList { text });
}

void tst_RVNameCheck::fixes_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("mended");

    const auto same = [](const char *situation, const QByteArray &file) { QTest::newRow(situation) << file << file; };
    QTest::newRow("letter case") << product("\n  Cover_Type = \"hardcover\"")
                                 << product("\n  cover_type = \"hardcover\"");
    QTest::newRow("one change") << product("max_page='8'") << product("max_pages='8'");
    QTest::newRow("other letter behind umlauts") << product("name='ä\xf0\x9f\x93\x95ö' m\xd0\xb0x_pages='8'")
                                                 << product("name='ä\xf0\x9f\x93\x95ö' max_pages='8'");
    QTest::newRow("missing position_y beside position_x")
            << barcode("width='38' height='10' pageNr='2' position_x='1' position='20'")
            << barcode("width='38' height='10' pageNr='2' position_x='1' position_y='20'");
    same("two changes", product("shiping_gruop='2'"));
    same("the right one is there", product("max_pages='1' max_page='8'"));
    same("one of two", barcode("width='38' height='10' pageNr='2' position='1'"));
    same("misplaced", spine("base_width='8' units='mm'"));
    QTest::newRow("two misspelt names of one attribute")
            << product("max_page='8' Max_Pages='9'") << product("max_pages='8' Max_Pages='9'");
}

void tst_RVNameCheck::fixes()
{
    QFETCH(QByteArray, file);
    QFETCH(QByteArray, mended);
    const CheckedCatalogue catalogue(file);
    QVERIFY(!catalogue.findings().isEmpty());
    QCOMPARE(catalogue.mended(), QString::fromUtf8(mended));
}

// Such an attribute may stand nowhere in the product.
void tst_RVNameCheck::attributesOfTheDocumentType()
{
    const CheckedCatalogue catalogue(
            "<!DOCTYPE p [<!ATTLIST product max_page CDATA '8'>]><p><product type='A' article_id='1'/></p>");
    QCOMPARE(catalogue.rules(), QStringList { u"<product>: attribute-misspelt"_s });
    QVERIFY(catalogue.findings().first().fix().isEmpty());
}

void tst_RVNameCheck::foreignNames()
{
    const QByteArray file = "<products xmlns:x='u'><prodcut/><x:product/><product type='A' article_id='1' page='1' "
                            "units='mm' Page='1'><form/><forms><from/><x:form/></forms></product></products>";
    QCOMPARE(CheckedCatalogue(file).findings().size(), 8);
    RVCatalogueCheck check;
    check.addForeignNames({ u"page"_s, u"units"_s, u"from"_s, u"form"_s, u"x:form"_s, u"prodcut"_s, u"x:product"_s });
    QCOMPARE(CheckedCatalogue(file, check).rules(), QStringList { u"Page='1': attribute-misspelt"_s });
}

// The other finding appears if the one about the name is disabled, because one of them must.
void tst_RVNameCheck::switchedOff()
{
    const QByteArray file = product("").replace("article_id", "article_ib");
    const RVCatalogueRule misspelt = RVCatalogueRule::find(u"attribute-misspelt");
    QCOMPARE(CheckedCatalogue(file).rules(), QStringList { u"article_ib='1': attribute-misspelt"_s });
    RVCatalogueCheck check;
    check.setSeverity(misspelt, RVCatalogueSeverity::Note);
    QCOMPARE(CheckedCatalogue(file, check).rules(),
             (QStringList { u"<product>: article-id-missing"_s, u"article_ib='1': attribute-misspelt"_s }));
    check.disable(misspelt);
    QCOMPARE(CheckedCatalogue(file, check).rules(), QStringList { u"<product>: article-id-missing"_s });

    RVCatalogueCheck other;
    other.disable(RVCatalogueRule::find(u"element-misspelt"));
    const CheckedCatalogue withoutProduct("<products><prodcut/></products>", other);
    QCOMPARE(withoutProduct.findings().size(), 1);
    QCOMPARE(withoutProduct.findings().first().rule().name(), "products-missing"_L1);

    RVCatalogueCheck strict;
    strict.setSeverity(RVCatalogueRule::find(u"element-misspelt"), RVCatalogueSeverity::Error);
    const CheckedCatalogue withError("<products><prodcut/></products>", strict);
    QCOMPARE(withError.findings().size(), 1);
    QCOMPARE(withError.findings().first().severity(), RVCatalogueSeverity::Error);

    // Only a finding that is more than a note tells where the products are.
    RVCatalogueCheck noted;
    noted.setSeverity(RVCatalogueRule::find(u"element-misspelt"), RVCatalogueSeverity::Note);
    QCOMPARE(CheckedCatalogue("<products><prodcut/></products>", noted).rules(),
             (QStringList { u": products-missing"_s, u"<prodcut>: element-misspelt"_s }));
    QCOMPARE(CheckedCatalogue("<products><prodcut/><x:product xmlns:x='u'/></products>", noted).rules(),
             (QStringList { u"<prodcut>: element-misspelt"_s, u"<x:product>: element-prefixed"_s }));
}

// Elements outside of products give findings about the file, in its order, with their type.
void tst_RVNameCheck::aboutTheFile()
{
    const QByteArray file =
            "<products>\n<forms type='D'/>\n<f><prodcut y:type='D' type='B'><a/></prodcut></f>\n"
            "<product type='A' article_id='1'/>\n<x:product xmlns:x='u' x:type='E' type='C'/>\n</products>";
    const CheckedCatalogue catalogue(file);
    QCOMPARE(catalogue.rules(),
             (QStringList { u"<forms>: element-misplaced"_s, u"<prodcut>: element-misspelt"_s,
                            u"<x:product>: element-prefixed"_s }));
    QStringList types;
    for (const RVCatalogueFinding &finding : catalogue.findings()) {
        QCOMPARE(finding.product(), qint64(-1));
        QCOMPARE(finding.severity(), RVCatalogueSeverity::Warning);
        types += finding.productType();
    }
    QCOMPARE(types, (QStringList { u"D"_s, u"B"_s, u"C"_s }));
    const RVFileRange range = catalogue.findings().at(1).range();
    QVERIFY((range.begin == RVFilePosition { 3, 4 }));
    QVERIFY((range.end == RVFilePosition { 3, 33 }));
}

void tst_RVNameCheck::mostOfAFile()
{
    const QByteArray product = "<product type='A' article_id='1'/>";
    const QByteArray many = "<products>" + product + QByteArray("<prodcut/>").repeated(5000) + "</products>";
    QCOMPARE(CheckedCatalogue(many).findings().size(), 1000);
    const QByteArray groups = QByteArray("<g><form/></g>").repeated(1000);
    QCOMPARE(CheckedCatalogue("<products>" + product + groups + "<form/></products>").findings().size(), 1);
    const QByteArray parts = "<products>" + product + QByteArray("<form/>").repeated(5000) + "</products>";
    QCOMPARE(CheckedCatalogue(parts).findings().size(), 1000);
}

void tst_RVNameCheck::mendedExamples_data()
{
    QTest::addColumn<QString>("rule");

    for (const char *rule :
         { "element-misspelt", "element-misplaced", "element-prefixed", "attribute-misspelt", "attribute-misplaced",
           "max-pages-missing", "page-counts-excessive", "spine-base-missing", "spine-packages-missing",
           "spine-too-wide", "option-separator", "option-blank", "option-letter-case", "option-key-names",
           "barcode-size-missing", "barcode-page-missing", "barcode-off-usual-page" })
        QTest::newRow(rule) << QString::fromLatin1(rule);
}

void tst_RVNameCheck::mendedExamples()
{
    QFETCH(QString, rule);
    const RVCatalogueRule broken = RVCatalogueRule::find(rule);
    QCOMPARE(broken.severity(), RVCatalogueSeverity::Warning);
    QVERIFY(broken.mendedExample().startsWith("<products>\n"));
    QCOMPARE(CheckedCatalogue(broken.mendedExample()).rules(), QStringList());
}

QTEST_MAIN(tst_RVNameCheck)
#include "tst_RVNameCheck.moc"
