#include "CatalogueBuffer.h"
#include "RandomCatalogue.h"

#include <RVCatalogueAttributes.h>
#include <RVCatalogueReader.h>
#include <RVXMLParser.h>

#include <QDomDocument>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A product without attributes, and one with all kinds of elements.
const char SAMPLE[] = R"(<products><product/>
<product type='DUN9_30' name='Fotobuch Groß' article_id='1001' article_class='book' cover_type='hardcover'
  page_binding='glue' paper_type='fotopaper' orientation='portrait' space_magnitude='600cm2' shipping_group='2'
  price_class='PXB9' page_price_class='RODA6x9' pages='26' max_pages='154' page_step='4'>
  <barcodes units='mm'><barcode position_x='12' position_y='290.5' width='38' height='10' pageNr='2'/><barcode image=''/></barcodes>
  <composition units='cm'><spine packages_per_block='2' base_width='0.8' block_width='0.1' additional_width='0.05'/></composition>
  <forms><form key='alcolor' key_name='Farbe' value='red' value_name='Weinrot' editor_name='Rot' name='f'
    color='#8c1c2b' preview='pink' preselected='true' price_class='LEZ2'/><form key='a'/><form key='b' value='c'
    not_accountable='true'/></forms>
</product></products>)";

QByteArray randomProducts(quint32 seed, int count)
{
    RandomCatalogue random(seed);
    QString text = u"<products>"_s;
    for (int i = 0; i < count; ++i)
        text += random.product() + u'\n';
    return (text + u"</products>"_s).toUtf8();
}

/// The element with its attributes and with all elements in it, as one text to compare.
QString describe(const QDomElement &element)
{
    QStringList attributes;
    for (int i = 0; i < element.attributes().size(); ++i) {
        const QDomAttr attribute = element.attributes().item(i).toAttr();
        attributes += attribute.name() + u'=' + attribute.value();
    }
    attributes.sort();
    QString result = u'<' + element.tagName() + u' ' + attributes.join(u' ');
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        result += describe(child);
    return result + u'>';
}

QString describe(const RVCatalogueElement &element)
{
    QStringList attributes;
    for (const QString &name : element.attributeNames())
        attributes += name + u'=' + element.attribute(QLatin1StringView(name.toLatin1()));
    attributes.sort();
    QString result = u'<' + element.name() + u' ' + attributes.join(u' ');
    for (RVCatalogueElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        result += describe(child);
    return result + u'>';
}

/// Calls a function with every product and with the same element of a document.
template<typename Function>
void forEachProduct(const QByteArray &content, Function function)
{
    QDomDocument document;
    QVERIFY(document.setContent(content));
    QDomElement element = document.documentElement().firstChildElement(u"product"_s);
    const QList<RVCatalogueProduct> products = productsOf(content);
    for (const RVCatalogueProduct &product : products) {
        function(product, element);
        if (QTest::currentTestFailed())
            return;
        element = element.nextSiblingElement(u"product"_s);
    }
    QVERIFY(!products.isEmpty());
    QVERIFY(element.isNull());
}

RVPageCountOrganization pageCounts(const QDomElement &product)
{
    return RVXMLParser::boolAttribute(product, u"photo_box"_s, false)
            ? RVPageCountOrganization::createFromProductsXMLForPictureBox(product)
            : RVPageCountOrganization::createFromProductsXML(product);
}

RVBarcodeDefinitionList barcodes(const QDomElement &product)
{
    const QDomElement parent = product.firstChildElement(u"barcodes"_s);
    return RVBarcodeDefinitionList::createFromProductsXML(parent, parent.attribute(u"units"_s));
}

/// The attribute of a document's element; a missing one is null, except for the paper of photo prints.
template<typename T>
T keywords(const QDomElement &product, QLatin1StringView name)
{
    if (product.hasAttribute(name))
        return T(product.attribute(name));
    if constexpr (std::is_same_v<T, RVFotoPaperType>)
        return RVFotoPaperType::defaultFor(keywords<RVArticleClass>(product, "article_class"_L1));
    else
        return T();
}

void compareKeywords(const RVCatalogueProduct &product, const QDomElement &element)
{
    const auto compare = [&](const auto &row) {
        if (row.isOfProducts)
            QVERIFY2((product.*row.value)() == keywords<typename std::decay_t<decltype(row)>::Class>(element, row.name),
                     row.name.data());
    };
    std::apply([&](const auto &...rows) { (compare(rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
}

}

class tst_RVCatalogueProduct : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sample();
    void sampleLayout();
    void spineOfBlocks();
    void sampleOptions();
    void defaults();
    void nullProduct();
    void asTheReadersGive();
    void optionsAsTheReadersGive();
    void elementsAsADocumentHasThem();
    void isReadAgain();
    void toXml();
    void families();
    void pictureBox();
    void optionPriceClasses();
    void copiesShare();
};

void tst_RVCatalogueProduct::sample()
{
    const QList<RVCatalogueProduct> products = productsOf(SAMPLE);
    QCOMPARE(products.size(), qsizetype(2));
    const RVCatalogueProduct &product = products.at(1);
    QCOMPARE(product.number(), qint64(1));
    QCOMPARE(product.range().begin.line, qint64(2));
    QCOMPARE(product.type().toString(), u"DUN9"_s);
    QCOMPARE(product.name(), u"Fotobuch Groß"_s);
    QCOMPARE(product.articleId().id(), 1001);
    QCOMPARE(product.articleClass().value(), ARTICLE_CLASS_BOOK);
    QCOMPARE(product.coverType().value(), HARDCOVER);
    QCOMPARE(product.pageBinding().value(), GLUE);
    QCOMPARE(product.paperType().encodeCSV(), u"fotopaper"_s);
    QVERIFY(product.fotoPaperType().isNull());
    QCOMPARE(product.orientation().value(), ORIENTATION_PORTRAIT);
    QCOMPARE(product.spaceMagnitude().encodeCSV(), u"600cm2"_s);
    QCOMPARE(product.shippingGroup().id(), 2);
    QCOMPARE(product.priceClass().toString(), u"PXB9"_s);
    QCOMPARE(product.pagePriceClass().toString(), u"RODA6x9"_s);
    QVERIFY(product.findings().isEmpty());
}

void tst_RVCatalogueProduct::sampleLayout()
{
    const RVCatalogueProduct product = productsOf(SAMPLE).constLast();
    QCOMPARE(product.pageCounts().dump(), u"min: 26; max: 154; increment: 4"_s);
    QCOMPARE(product.spine().spineWidth(34).value(DISTANCE_UNIT_MILLIMETRE), 10.0);
    QVERIFY(product.hasSpine());
    QCOMPARE(product.barcodes().size(), qsizetype(1));
    QCOMPARE(product.barcodes().constFirst(),
             RVBarcodeDefinition(QRect(120, 2805, 380, 100), 2, u"dummy-barcode.png"_s));
}

void tst_RVCatalogueProduct::spineOfBlocks()
{
    const RVCatalogueProduct product =
            productsOf("<p><product pages='26' max_pages='154' page_step='4'><composition units='mm'>"
                       "<spine packages_per_block='1' block_width='1'/></composition></product></p>")
                    .constFirst();
    QVERIFY(product.hasSpine());
}

void tst_RVCatalogueProduct::sampleOptions()
{
    const RVConfiguredArticleVariantList options = productsOf(SAMPLE).constLast().options();
    QCOMPARE(options.size(), qsizetype(2));
    QCOMPARE(options.at(0).key(), u"alcolor"_s);
    QCOMPARE(options.at(0).keyName(), u"Farbe"_s);
    QCOMPARE(options.at(0).value(), u"red"_s);
    QCOMPARE(options.at(0).visibleName(), u"Weinrot"_s);
    QCOMPARE(options.at(0).editorName(), u"Rot"_s);
    QCOMPARE(options.at(0).preview(), u"pink"_s);
    QCOMPARE(options.at(0).color(), QColor(0x8c, 0x1c, 0x2b));
    QVERIFY(options.at(0).isDefault());
    QVERIFY(!options.at(0).isNotAccountable());
    QVERIFY(!options.at(1).isDefault());
    QVERIFY(options.at(1).isNotAccountable());
}

void tst_RVCatalogueProduct::defaults()
{
    const RVCatalogueProduct product = productsOf("<p><product/></p>").constFirst();
    QVERIFY(!product.isNull());
    QVERIFY(product.type().isUnknown());
    QVERIFY(product.name().isNull());
    QVERIFY(!product.articleId().isValid());
    QVERIFY(product.articleClass().isNull());
    QVERIFY(product.paperType().isNull());
    QVERIFY(product.spaceMagnitude().isNull());
    QVERIFY(!product.shippingGroup().isValid());
    QCOMPARE(product.pageCounts().dump(), u"min: 1; max: 1; increment: 0"_s);
    QVERIFY(!product.isPhotoBox());
    QVERIFY(!product.hasSpine());
    QVERIFY(product.barcodes().isEmpty());
    QVERIFY(product.options().isEmpty());
    QVERIFY(!product.priceClass().isValid());
    QVERIFY(product.families().isEmpty());
}

void tst_RVCatalogueProduct::nullProduct()
{
    const RVCatalogueProduct none;
    QVERIFY(none.isNull());
    QVERIFY(none.element().isNull());
    QVERIFY(none.type().isUnknown());
    QCOMPARE(none.pageCounts().dump(), u"min: 1; max: 1; increment: 0"_s);
    QVERIFY(none.barcodes().isEmpty());
    QVERIFY(none.options().isEmpty());
    QVERIFY(none.families().isEmpty());
    QVERIFY(none.findings().isEmpty());
    QCOMPARE(none.number(), qint64(-1));
    QVERIFY(none.range() == RVFileRange());
    QVERIFY(none.toXml().isEmpty());
}

void tst_RVCatalogueProduct::asTheReadersGive()
{
    forEachProduct(randomProducts(2, 10000), [](const RVCatalogueProduct &product, const QDomElement &element) {
        QCOMPARE(product.name(), element.attribute(u"name"_s));
        QCOMPARE(product.type().toString(), RVProductType(element.attribute(u"type"_s)).toString());
        QCOMPARE(product.articleId().id(), RVArticleId::fromArticleIdAttribute(element).id());
        compareKeywords(product, element);
        const RVShippingGroupId group(element, u"shipping_group"_s);
        QCOMPARE(product.shippingGroup().id(),
                 group.isValid() ? group.id() : RVShippingGroupId(product.articleClass().shippingGroup()).id());
        QCOMPARE(product.barcodes(), barcodes(element));
        QCOMPARE(product.pageCounts().dump(), pageCounts(element).dump());
        QCOMPARE(product.isPhotoBox(), RVXMLParser::boolAttribute(element, u"photo_box"_s, false));
        QCOMPARE(product.priceClass().toString(), element.attribute(u"price_class"_s));
        QCOMPARE(product.pagePriceClass().toString(), element.attribute(u"page_price_class"_s));
        QVERIFY(product.spine() == RVSpineConfig::createFromProductsXML(element));
    });
}

void tst_RVCatalogueProduct::optionsAsTheReadersGive()
{
    forEachProduct(randomProducts(3, 10000), [](const RVCatalogueProduct &product, const QDomElement &element) {
        const RVConfiguredArticleVariantList expected(element);
        const RVConfiguredArticleVariantList options = product.options();
        QCOMPARE(options.size(), expected.size());
        for (qsizetype i = 0; i < options.size(); ++i) {
            QCOMPARE(options.at(i), expected.at(i));
            QCOMPARE(options.at(i).keyName(), expected.at(i).keyName());
            QCOMPARE(options.at(i).visibleName(), expected.at(i).visibleName());
            QCOMPARE(options.at(i).editorName(), expected.at(i).editorName());
            QCOMPARE(options.at(i).preview(), expected.at(i).preview());
            QCOMPARE(options.at(i).color(), expected.at(i).color());
            QCOMPARE(options.at(i).isDefault(), expected.at(i).isDefault());
            QCOMPARE(options.at(i).isNotAccountable(), expected.at(i).isNotAccountable());
        }
    });
}

void tst_RVCatalogueProduct::elementsAsADocumentHasThem()
{
    forEachProduct(randomProducts(1, 3000), [](const RVCatalogueProduct &product, const QDomElement &element) {
        QCOMPARE(describe(product.element()), describe(element));
    });
}

void tst_RVCatalogueProduct::isReadAgain()
{
    const QList<RVCatalogueProduct> products = productsOf(randomProducts(4, 1000));
    for (const RVCatalogueProduct &product : products) {
        const QList<RVCatalogueProduct> again = productsOf(product.toXml());
        QCOMPARE(again.size(), qsizetype(1));
        QCOMPARE(describe(again.constFirst().element()), describe(product.element()));
        QCOMPARE(again.constFirst().toXml(), product.toXml());
    }
}

void tst_RVCatalogueProduct::toXml()
{
    const QList<RVCatalogueProduct> products = productsOf(
            "<p><product/><product a='1' ><b>text<c  d=\"&lt;\"/><!-- no --><c></c></b><b /></product>\n</p>");
    QCOMPARE(products.at(0).toXml(), QByteArray("<product/>"));
    QCOMPARE(products.at(1).toXml(), QByteArray("<product a='1' ><b><c  d=\"&lt;\"/><c></c></b><b /></product>"));

    const QList<RVCatalogueProduct> completed = productsOf(
            "<!DOCTYPE p [<!ATTLIST product name CDATA '&#34;n&#10;&lt;'><!ATTLIST form key CDATA 'k'>]>"
            "<p><product type='A'><form/><form key='l'></form></product></p>");
    QCOMPARE(completed.at(0).toXml(),
             QByteArray("<product type='A' name=\"&quot;n&#10;&lt;\"><form key=\"k\"/>"
                        "<form key='l'></form></product>"));
}

void tst_RVCatalogueProduct::families()
{
    const QList<RVCatalogueProduct> products = productsOf(
            "<products name='Alle'><product/><family name='B&#252;cher'><group><product name='inner'/>"
            "<x name='Klein'><product/></x></group><product/></family><product/></products>");
    QList<QStringList> families;
    for (const RVCatalogueProduct &product : products)
        families += product.families();
    QCOMPARE(families,
             (QList<QStringList> { { u"Alle"_s },
                                   { u"Alle"_s, u"Bücher"_s },
                                   { u"Alle"_s, u"Bücher"_s, u"Klein"_s },
                                   { u"Alle"_s, u"Bücher"_s },
                                   { u"Alle"_s } }));
}

void tst_RVCatalogueProduct::pictureBox()
{
    const QList<RVCatalogueProduct> products = productsOf(
            "<p><product photo_box='true' pages='10' pieces='3'/>"
            "<product photo_box='yes' pages='10' max_pages='20' page_step='5'/>"
            "<product photo_box='1' pages='2147483647'/><product photo_box='no' pages='10' pieces='3'/></p>");
    QStringList counts;
    QList<bool> areBoxes;
    for (const RVCatalogueProduct &product : products) {
        counts += product.pageCounts().dump();
        areBoxes += product.isPhotoBox();
    }
    QCOMPARE(areBoxes, (QList<bool> { true, true, true, false }));
    QCOMPARE(
            counts,
            (QStringList { u"min: 10; max: 39; increment: 1"_s, u"min: 10; max: 20; increment: 5"_s,
                           u"min: 2147483647; max: 2147483647; increment: 1"_s, u"min: 30; max: 30; increment: 0"_s }));
}

void tst_RVCatalogueProduct::optionPriceClasses()
{
    const RVCatalogueProduct product =
            productsOf("<p><product><forms><form key='a' value='ä' price_class='P1'/><form key='a' value='ä' "
                       "price_class='P2'/><form key='a' value='c'/><form value='d' price_class='P3'/></forms>"
                       "<forms><form key='e' value='f' price_class='P4'/></forms></product></p>")
                    .constFirst();
    QCOMPARE(product.optionPriceClass(u"a"_s, u"ä"_s).toString(), u"P1"_s);
    QVERIFY(!product.optionPriceClass(u"a"_s, u"c"_s).isValid());
    QVERIFY(!product.optionPriceClass(u"a"_s, u"x"_s).isValid());
    QVERIFY(!product.optionPriceClass(QString(), u"d"_s).isValid());
    QVERIFY(!product.optionPriceClass(u"e"_s, u"f"_s).isValid());
}

void tst_RVCatalogueProduct::copiesShare()
{
    RVCatalogueProduct product = productsOf("<p><product type='A'/></p>").constFirst();
    const RVCatalogueProduct copy = product;
    const RVCatalogueProduct moved = std::move(product);
    QCOMPARE(moved.type().toString(), u"A"_s);
    QCOMPARE(copy.element().utf8("type"_L1).data(), moved.element().utf8("type"_L1).data());
    product = RVCatalogueProduct();
    QVERIFY(product.isNull());
    QCOMPARE(copy.type().toString(), u"A"_s);
}

QTEST_GUILESS_MAIN(tst_RVCatalogueProduct)
#include "tst_RVCatalogueProduct.moc"
