#include "ElementText.h"
#include "RandomCatalogue.h"

#include <BatchPipeline.h>
#include <CatalogueOption.h>
#include <CatalogueProduct.h>

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray randomProducts(quint32 seed, int count)
{
    RandomCatalogue random(seed);
    QString text = u"<products>"_s;
    for (int i = 0; i < count; ++i)
        text += random.product() + u'\n';
    return (text + u"</products>"_s).toUtf8();
}

/// Calls a function with every product, read in both ways.
template<typename Function>
void forEachProduct(QByteArray file, Function function)
{
    QBuffer batches(&file);
    QBuffer documents(&file);
    QVERIFY(batches.open(QIODevice::ReadOnly));
    QVERIFY(documents.open(QIODevice::ReadOnly));
    CatalogueReader batchReader(&batches, u"product"_s);
    CatalogueReader documentReader(&documents, u"product"_s);
    for (;;) {
        CatalogueBatch batch;
        if (!batchReader.read(&batch, 1000))
            break;
        for (int i = 0; i < batch.size(); ++i) {
            const QDomElement document = documentReader.next();
            QCOMPARE(batch.at(i).position().line, documentReader.position().line);
            QCOMPARE(batch.at(i).position().column, documentReader.position().column);
            function(batch.at(i), document);
            if (QTest::currentTestFailed())
                return;
        }
    }
    QVERIFY(documentReader.next().isNull());
    QVERIFY(!batchReader.hasError());
}

}

class tst_CatalogueBatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elements();
    void noElement();
    void positions();
    void unfinishedProduct();
    void batchSize();
    void sameElementsAsDocuments();
    void sameProductsAsDocuments();
    void sameOptionsAsDocuments();
    void pipelineKeepsOrder();
    void pipelineStops();
};

void tst_CatalogueBatch::elements()
{
    QByteArray file = "<p><product a='1' b=''><c n='1'/><d><c n='2'/></d><c n='3'>text</c></product><product/></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    CatalogueBatch batch(7);
    QVERIFY(batch.isEmpty());
    QVERIFY(reader.read(&batch, 1000));
    QVERIFY(reader.atEnd());
    QCOMPARE(batch.firstProduct(), qint64(7));
    QCOMPARE(batch.size(), 2);

    const CatalogueElement product = batch.at(0);
    QCOMPARE(product.tagName(), u"product");
    QCOMPARE(product.attribute("a"_L1), u"1");
    QVERIFY(product.hasAttribute("b"_L1));
    QVERIFY(product.attribute("b"_L1).isEmpty());
    QVERIFY(!product.hasAttribute("A"_L1));
    QVERIFY(product.nextSiblingElement().isNull());
    const CatalogueElement first = product.firstChildElement("c"_L1);
    QCOMPARE(first.text("n"_L1), u"1"_s);
    QVERIFY(first.firstChildElement().isNull());
    QCOMPARE(first.nextSiblingElement().tagName(), u"d");
    QCOMPARE(first.nextSiblingElement().firstChildElement().text("n"_L1), u"2"_s);
    QVERIFY(first.nextSiblingElement().firstChildElement().nextSiblingElement().isNull());
    QCOMPARE(first.nextSiblingElement("c"_L1).text("n"_L1), u"3"_s);
    QVERIFY(product.firstChildElement("e"_L1).isNull());
    QVERIFY(batch.at(1).firstChildElement().isNull());
    QVERIFY(batch.at(1).nextSiblingElement().isNull());
}

void tst_CatalogueBatch::noElement()
{
    const CatalogueElement none;
    QDomDocument document;
    QVERIFY(none.isNull());
    QVERIFY(none.tagName().isEmpty());
    QVERIFY(none.attribute("a"_L1).isNull());
    QVERIFY(none.firstChildElement().isNull());
    QVERIFY(none.nextSiblingElement().isNull());
    QVERIFY(none.deepCopy(&document).isNull());
}

void tst_CatalogueBatch::positions()
{
    QByteArray file = "<p>\n <product>\r\n  <forms>x<form/><form\n a='1\n2'/><!-- \n --><form/>\n"
                      "<![CDATA[y]]><form a='&lt;&#228;\xc3\xa4'/><form/>"
                      "</forms></product></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    CatalogueBatch batch;
    QVERIFY(reader.read(&batch, 1000));
    const CatalogueElement forms = batch.at(0).firstChildElement();
    QList<std::pair<qint64, qint64>> positions = { { forms.position().line, forms.position().column } };
    for (CatalogueElement form = forms.firstChildElement(); !form.isNull(); form = form.nextSiblingElement())
        positions.append({ form.position().line, form.position().column });
    QCOMPARE(positions,
             (QList<std::pair<qint64, qint64>> { { 3, 3 }, { 3, 11 }, { 3, 18 }, { 6, 5 }, { 7, 14 }, { 7, 37 } }));
}

void tst_CatalogueBatch::unfinishedProduct()
{
    QByteArray file = "<p><product a='1'><c/></product><product a='2'><c><d></p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    CatalogueBatch batch;
    QVERIFY(reader.read(&batch, 1000));
    QVERIFY(reader.hasError());
    QCOMPARE(batch.size(), 1);
    QCOMPARE(batch.textSize(), qsizetype(QByteArray("producta1c").size()));
    QCOMPARE(describe(batch.at(0)), u"<product a=1<c >>"_s);
    QVERIFY(!reader.read(&batch, 1000));
}

void tst_CatalogueBatch::batchSize()
{
    QByteArray file = "<p>" + QByteArray("<product/>").repeated(10) + "</p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    QList<int> sizes;
    for (CatalogueBatch batch; reader.read(&batch, 28); batch = CatalogueBatch())
        sizes += batch.size();
    QCOMPARE(sizes, (QList<int> { 4, 4, 2 }));
}

void tst_CatalogueBatch::sameElementsAsDocuments()
{
    forEachProduct(randomProducts(1, 3000), [](const CatalogueElement &element, const QDomElement &document) {
        QCOMPARE(describe(element), describe(document));
    });
}

void tst_CatalogueBatch::sameProductsAsDocuments()
{
    forEachProduct(randomProducts(2, 10000), [](const CatalogueElement &element, const QDomElement &document) {
        const CatalogueProduct ours = CatalogueProduct::withoutOptions(element);
        const CatalogueProduct product(document);
        QCOMPARE(ours.name, product.name);
        QCOMPARE(ours.type.toString(), product.type.toString());
        QCOMPARE(ours.articleId.id(), product.articleId.id());
        QVERIFY(ours.articleClass == product.articleClass);
        QVERIFY(ours.coverType == product.coverType);
        QVERIFY(ours.pageBinding == product.pageBinding);
        QVERIFY(ours.paperType == product.paperType);
        QVERIFY(ours.fotoPaperType == product.fotoPaperType);
        QVERIFY(ours.orientation == product.orientation);
        QVERIFY(ours.spaceMagnitude == product.spaceMagnitude);
        QCOMPARE(ours.shippingGroup.id(), product.shippingGroup.id());
        QCOMPARE(ours.barcodes, product.barcodes);
        QCOMPARE(ours.pageCounts.dump(), product.pageCounts.dump());
        QVERIFY(ours.spine == product.spine);
        QCOMPARE(ours.priceClass.toString(), product.priceClass.toString());
        QCOMPARE(ours.pagePriceClass.toString(), product.pagePriceClass.toString());
        QVERIFY(ours.options.isEmpty());
    });
}

void tst_CatalogueBatch::sameOptionsAsDocuments()
{
    forEachProduct(randomProducts(3, 10000), [](const CatalogueElement &element, const QDomElement &document) {
        const RVConfiguredArticleVariantList expected(document);
        const RVArticleVariants defaults = expected.defaultVariants();
        const CatalogueOptions options(element);
        QCOMPARE(std::distance(options.begin(), options.end()), expected.size());
        qsizetype i = 0;
        for (const CatalogueOption &option : options) {
            const RVConfiguredArticleVariant &other = expected.at(i++);
            QCOMPARE(option.key.toString(), other.key());
            QCOMPARE(option.keyName.toString(), other.keyName());
            QCOMPARE(option.value.toString(), other.value());
            QCOMPARE(option.valueName.toString(), other.visibleName());
            QCOMPARE(option.isPreselected, other.isDefault());
            QCOMPARE(option.isNotAccountable, other.isNotAccountable());
            QCOMPARE(options.isDefault(option), defaults.value(other.key()) == other.value());
        }
    });
}

void tst_CatalogueBatch::pipelineKeepsOrder()
{
    constexpr int count = 20000;
    QByteArray file = "<p>";
    for (int i = 0; i < count; ++i)
        file += "<product number='" + QByteArray::number(i) + "' text='" + QByteArray(i % 40, 'x') + "'/>";
    file += "</p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    QList<int> numbers;
    int batches = 0;
    forEachBatch(
            reader,
            [](const CatalogueBatch &batch) {
                QList<int> result;
                for (int i = 0; i < batch.size(); ++i)
                    result += batch.at(i).text("number"_L1).toInt() - int(batch.firstProduct());
                return result;
            },
            [&](const QList<int> &result) {
                const int before = int(numbers.size());
                for (const int number : result)
                    numbers += number + before;
                ++batches;
                return true;
            });
    QVERIFY(batches > 5);
    QCOMPARE(numbers.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(numbers.at(i), i);
}

void tst_CatalogueBatch::pipelineStops()
{
    QByteArray file = "<p>" + QByteArray("<product text='0123456789'/>").repeated(100000) + "</p>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CatalogueReader reader(&buffer, u"product"_s);
    int taken = 0;
    forEachBatch(reader, [](const CatalogueBatch &batch) { return batch.size(); }, [&](int) { return ++taken < 3; });
    QCOMPARE(taken, 3);
    QVERIFY(!reader.atEnd());
}

QTEST_MAIN(tst_CatalogueBatch)
#include "tst_CatalogueBatch.moc"
