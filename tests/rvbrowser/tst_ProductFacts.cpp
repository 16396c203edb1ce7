#include "ReadProduct.h"

#include <AttributeWords.h>
#include <ProductFacts.h>

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const char FULL_PRODUCT[] =
        "<product type='DUN9' article_id='17' article_class='book' cover_type='hard,softcover' page_binding='glue' "
        "paper_type='indigo-glossy' foto_paper_type='matt' orientation='portrait,square' space_magnitude='A4' "
        "shipping_group='3' price_class='PXB9' page_price_class='LEZ1'><barcodes units='mm'>"
        "<barcode position_x='12' position_y='290' width='38' height='10' pageNr='2'/></barcodes></product>";

}

/// Without a translation, so the library's names are German and the window's are English.
class tst_ProductFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void facts_data();
    void facts();
    void faults_data();
    void faults();
    void labels();
    void searchText_data();
    void searchText();
};

void tst_ProductFacts::facts_data()
{
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<QStringList>("texts");

    QTest::newRow("all") << QByteArray(FULL_PRODUCT)
                         << QStringList { u"Kind of article: RAVO FOTOBUCH (book)"_s,
                                          u"Article id: 17"_s,
                                          u"Cover: Hardcover (HARDCOVER), Softcover (SOFTCOVER)"_s,
                                          u"Binding: klassische Buchbindung (glue)"_s,
                                          u"Paper: Digitaldruck Hochglanz (indigo-glossy)"_s,
                                          u"Photo paper: Matt (2)"_s,
                                          u"Orientation: portrait, square"_s,
                                          u"Size class: A4 (600cm2)"_s,
                                          u"Shipping group: 3"_s,
                                          u"Price class: PXB9"_s,
                                          u"Price class of a package: LEZ1"_s,
                                          u"Barcodes: 38.0 × 10.0 mm on page 2"_s };
    QTest::newRow("none") << QByteArray("<product type='X'/>")
                          << QStringList { u"Kind of article: Without kind of article"_s };
    QTest::newRow("defaults of the kind of article")
            << QByteArray("<product article_class='foto'/>")
            << QStringList { u"Kind of article: Fotos & mehr (foto)"_s, u"Photo paper: Glänzend (1)"_s,
                             u"Shipping group: 1"_s };
    QTest::newRow("a name that is not its keyword")
            << QByteArray("<product orientation='landscape_slim' cover_type=''/>")
            << QStringList { u"Kind of article: Without kind of article"_s,
                             u"Orientation: slim landscape (landscape_slim)"_s };
}

void tst_ProductFacts::facts()
{
    QFETCH(QByteArray, product);
    const AttributeWords words;
    QStringList texts;
    for (const ProductFacts::Fact &fact : ProductFacts(readProduct(product), words).facts()) {
        if (!fact.text.isEmpty())
            texts += fact.label + ": "_L1 + fact.text;
    }
    QTEST(texts, "texts");
}

void tst_ProductFacts::faults_data()
{
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("word");

    QTest::newRow("unknown keyword") << QByteArray("<product cover_type='hardcovr'/>") << u"Cover"_s << u"hardcovr"_s
                                     << u"\"hardcover\""_s;
    QTest::newRow("unknown size class") << QByteArray("<product space_magnitude='A4x'/>") << u"Size class"_s << u"A4x"_s
                                        << u"A4"_s;
    QTest::newRow("one of two keywords") << QByteArray("<product orientation='portrait,squre'/>") << u"Orientation"_s
                                         << u"portrait,squre"_s << u"square"_s;
    QTest::newRow("article id") << QByteArray("<product article_id='10-01'/>") << u"Article id"_s << u"10-01"_s
                                << u"article id"_s;
    QTest::newRow("empty text") << QByteArray("<product cover_type=''/>") << u"Cover"_s << QString() << u"empty"_s;
    QTest::newRow("alias") << QByteArray("<product cover_type='hard'/>") << u"Cover"_s << u"Hardcover (HARDCOVER)"_s
                           << QString();
    QTest::newRow("missing") << QByteArray("<product/>") << u"Article id"_s << QString() << QString();
    QTest::newRow("fault of another attribute") << QByteArray("<product cover_type='hardcover' page_binding='x'/>")
                                                << u"Cover"_s << u"Hardcover (HARDCOVER)"_s << QString();
}

void tst_ProductFacts::faults()
{
    QFETCH(QByteArray, product);
    QFETCH(QString, label);
    QFETCH(QString, word);
    const AttributeWords words;
    const QList<ProductFacts::Fact> facts = ProductFacts(readProduct(product), words).facts();
    const auto fact = std::find_if(facts.begin(), facts.end(), [&](const auto &each) { return each.label == label; });
    QVERIFY(fact != facts.end());
    QTEST(fact->text, "text");
    QCOMPARE(fact->fault.isEmpty(), word.isEmpty());
    QVERIFY2(fact->fault.contains(word), qPrintable(fact->fault));
}

// The panel makes its lines for the first product.
void tst_ProductFacts::labels()
{
    const AttributeWords words;
    const auto labels = [&words](const QByteArray &product) {
        QStringList result;
        for (const ProductFacts::Fact &fact : ProductFacts(readProduct(product), words).facts())
            result += fact.label;
        return result;
    };
    QCOMPARE(labels("<product/>").size(), 12);
    QCOMPARE(labels("<product/>"), labels(FULL_PRODUCT));
}

void tst_ProductFacts::searchText_data()
{
    QTest::addColumn<QByteArray>("product");
    QTest::addColumn<QString>("text");

    QTest::newRow("all")
            << QByteArray(FULL_PRODUCT)
            << u"ravo fotobuch hardcover softcover hard hardcover soft softcover glue glued "
               "klassische buchbindung indigo-glossy digital_printing_glossy glossy "
               "digitaldruck hochglanz 2 matt matt portrait square quadratic 600cm2 a4 a4 book pxb9 lez1"_s;
    QTest::newRow("none") << QByteArray("<product type='X' name='Y'/>") << u"without kind of article"_s;
    QTest::newRow("defaults of the kind of article")
            << QByteArray("<product article_class='foto'/>") << u"fotos & mehr 1 glossy glänzend foto"_s;
}

void tst_ProductFacts::searchText()
{
    QFETCH(QByteArray, product);
    const AttributeWords words;
    QTEST(ProductFacts(readProduct(product), words).searchText().replace(u'\n', u' '), "text");
}

QTEST_MAIN(tst_ProductFacts)
#include "tst_ProductFacts.moc"
