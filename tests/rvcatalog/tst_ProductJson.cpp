#include "RVCatalogue/RandomCatalogue.h"

#include <ProductJson.h>
#include <ProductValues.h>

#include <RVCatalogueAttributes.h>
#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

QJsonObject spineJson(const RVCatalogueProduct &product, int pageCount)
{
    const unsigned pages = unsigned(qMax(0, pageCount));
    return {
        { u"page_count"_s, pageCount },
        { u"packages"_s, product.pageCounts().countPackages(pageCount) },
        { u"blocks"_s, product.spine().additionalPagePackageBlocks(pages) },
        { u"width_mm"_s, product.spine().spineWidth(pages).value(DISTANCE_UNIT_MILLIMETRE) },
        { u"font_family"_s, SpineFont::family() },
        { u"max_font_size"_s, SpineFont::largestSize(product.spine(), pageCount) },
    };
}

template<typename T>
QJsonValue attributeJson(const T &attribute)
{
    if (attribute.isNull())
        return QJsonValue();
    return QJsonObject { { u"keywords"_s, QJsonArray::fromStringList(attribute.encodeBits()) },
                         { u"value"_s, qint64(attribute.value()) } };
}

QJsonValue textJson(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QString colorName(const QColor &color)
{
    return color.isValid() ? color.name() : QString();
}

QJsonArray optionsJson(const RVCatalogueProduct &product)
{
    const RVArticleVariants defaults = product.options().defaultVariants();
    QJsonArray result;
    RVCatalogueElement form = product.element().firstChildElement("forms"_L1).firstChildElement("form"_L1);
    for (; !form.isNull(); form = form.nextSiblingElement("form"_L1)) {
        const QString key = form.attribute("key"_L1);
        const QString value = form.attribute("value"_L1);
        if (key.isEmpty() || value.isEmpty())
            continue;
        const RVConfiguredArticleVariant option = product.options().at(result.size());
        result += QJsonObject {
            { u"key"_s, key },
            { u"key_name"_s, textJson(form.attribute("key_name"_L1)) },
            { u"value"_s, value },
            { u"value_name"_s, textJson(form.attribute("value_name"_L1)) },
            { u"editor_name"_s, textJson(form.attribute("editor_name"_L1)) },
            { u"form_name"_s, textJson(form.attribute("name"_L1)) },
            { u"price_class"_s, textJson(form.attribute("price_class"_L1)) },
            { u"preview"_s, textJson(option.preview()) },
            { u"color"_s, textJson(colorName(option.color())) },
            { u"default"_s, defaults.value(key) == value },
            { u"accountable"_s, !option.isNotAccountable() },
        };
    }
    return result;
}

QJsonArray barcodesJson(const RVBarcodeDefinitionList &barcodes)
{
    const auto inMillimetres = [](int tenths) { return RVDistance(tenths).value(DISTANCE_UNIT_MILLIMETRE); };
    QJsonArray result;
    for (const RVBarcodeDefinition &barcode : barcodes) {
        result += QJsonObject {
            { u"page"_s, barcode.pageNr() },
            { u"left_mm"_s, inMillimetres(barcode.rect().left()) },
            { u"top_mm"_s, inMillimetres(barcode.rect().top()) },
            { u"width_mm"_s, inMillimetres(barcode.rect().width()) },
            { u"height_mm"_s, inMillimetres(barcode.rect().height()) },
            { u"image"_s, barcode.imageName() },
        };
    }
    return result;
}

QJsonObject pagesJson(const RVPageCountOrganization &counts)
{
    return {
        { u"lowest"_s, counts.minPages() },    { u"highest"_s, counts.maxPages() },
        { u"step"_s, counts.pageIncrement() }, { u"count"_s, counts.numberOfPackages() },
        { u"valid"_s, counts.isValid() },
    };
}

QJsonValue spinesJson(const RVCatalogueProduct &product)
{
    if (!product.hasSpine())
        return QJsonValue();
    return QJsonArray { spineJson(product, product.pageCounts().minPages()),
                        spineJson(product, product.pageCounts().maxPages()) };
}

template<typename Id>
QJsonValue idJson(const Id &id)
{
    return id.isValid() ? QJsonValue(id.id()) : QJsonValue();
}

/// Every value of a product, written with Qt's JSON classes.
QJsonObject toJson(const RVCatalogueProduct &product)
{
    QJsonObject result = {
        { u"type"_s, textJson(product.type().toString()) },
        { u"name"_s, textJson(product.name()) },
        { u"article_id"_s, idJson(product.articleId()) },
        { u"shipping_group"_s, idJson(product.shippingGroup()) },
        { u"price_class"_s, textJson(product.element().attribute("price_class"_L1)) },
        { u"page_price_class"_s, textJson(product.element().attribute("page_price_class"_L1)) },
        { u"families"_s, QJsonArray::fromStringList(product.families()) },
        { u"photo_box"_s, product.isPhotoBox() },
        { u"place"_s,
          QJsonObject { { u"file"_s, u"c \"ä\".xml"_s },
                        { u"line"_s, product.range().begin.line },
                        { u"column"_s, product.range().begin.column } } },
        { u"barcodes"_s, barcodesJson(product.barcodes()) },
        { u"pages"_s, pagesJson(product.pageCounts()) },
        { u"spine"_s, spinesJson(product) },
        { u"options"_s, optionsJson(product) },
    };
    const auto insert = [&](const auto &row) {
        if (row.isOfProducts)
            result.insert(row.name, attributeJson((product.*row.value)()));
    };
    std::apply([insert](const auto &...rows) { (insert(rows), ...); }, RV_CATALOGUE_ATTRIBUTES);
    return result;
}

}

class tst_ProductJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asQtWritesIt();
    void moreThanIsKept();
};

void tst_ProductJson::asQtWritesIt()
{
    RandomCatalogue random(4);
    QString text = u"<products>"_s;
    constexpr int count = 3000;
    for (int i = 0; i < count; ++i)
        text += random.product() + u'\n';
    QByteArray file = (text + u"</products>"_s).toUtf8();
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));

    RVCatalogueReader reader(&buffer);
    ProductJson json(u"c \"ä\".xml"_s);
    int written = 0;
    for (const RVCatalogueProduct &product : reader) {
        QCOMPARE(QByteArray::fromStdString(json.object(ProductValues(product))),
                 QJsonDocument(toJson(product)).toJson(QJsonDocument::Compact));
        ++written;
    }
    QCOMPARE(reader.errorString(), QString());
    QCOMPARE(written, count);
}

// Every product has a spine with a new width, also without its sides.
void tst_ProductJson::moreThanIsKept()
{
    QByteArray file = "<products>";
    constexpr int count = 10000;
    for (int i = 1; i <= count; ++i)
        file += "<product><composition><spine base_width='" + QByteArray::number(i / 100.0)
                + "'/></composition></product>";
    file += "</products>";
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));

    ProductJson json(u"c \"ä\".xml"_s);
    RVCatalogueReader reader(&buffer);
    int written = 0;
    for (const RVCatalogueProduct &product : reader) {
        const QByteArray line = QByteArray::fromStdString(json.object(ProductValues(product)));
        if (++written % 1000 == 0)
            QCOMPARE(line, QJsonDocument(toJson(product)).toJson(QJsonDocument::Compact));
    }
    QCOMPARE(written, count);
}

QTEST_MAIN(tst_ProductJson)
#include "tst_ProductJson.moc"
