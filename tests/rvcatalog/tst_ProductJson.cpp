#include "RVCatalogue/RandomCatalogue.h"

#include <ProductJson.h>
#include <ProductValues.h>

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QJsonObject spineJson(const RVCatalogueProduct &product, int pageCount)
{
    const unsigned pages = unsigned(qMax(0, pageCount));
    return {
        { u"pages"_s, pageCount },
        { u"width_mm"_s, product.spine().spineWidth(pages).value(DISTANCE_UNIT_MILLIMETRE) },
        { u"max_font_size"_s, product.spine().spineMaxFontHeigth(pages, QString()) },
    };
}

template<typename T>
QJsonValue attributeJson(const T &attribute, const QString &name = QString())
{
    if (attribute.isNull())
        return QJsonValue();
    QJsonObject result { { u"keywords"_s, QJsonArray::fromStringList(attribute.encodeBits()) } };
    if (!name.isEmpty())
        result.insert(u"name"_s, name);
    return result;
}

QJsonArray optionsJson(const RVConfiguredArticleVariantList &options)
{
    const RVArticleVariants defaults = options.defaultVariants();
    QJsonArray result;
    for (const RVConfiguredArticleVariant &option : options) {
        result += QJsonObject {
            { u"key"_s, option.key() },
            { u"key_name"_s, option.keyName() },
            { u"value"_s, option.value() },
            { u"value_name"_s, option.visibleName() },
            { u"default"_s, defaults.value(option.key()) == option.value() },
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

/// Every value of a product, by Qt's JSON classes.
QJsonObject toJson(const RVCatalogueProduct &product)
{
    return {
        { u"type"_s, product.type().toString() },
        { u"name"_s, product.name() },
        { u"article_id"_s, idJson(product.articleId()) },
        { u"article_class"_s, attributeJson(product.articleClass(), product.articleClass().toHumanReadable()) },
        { u"cover_type"_s, attributeJson(product.coverType(), product.coverType().humanReadableName()) },
        { u"page_binding"_s, attributeJson(product.pageBinding(), product.pageBinding().humanReadableName()) },
        { u"paper_type"_s, attributeJson(product.paperType(), product.paperType().humanReadableName()) },
        { u"foto_paper_type"_s, attributeJson(product.fotoPaperType(), product.fotoPaperType().humanReadableName()) },
        { u"orientation"_s, attributeJson(product.orientation()) },
        { u"space_magnitude"_s, attributeJson(product.spaceMagnitude(), product.spaceMagnitude().humanReadableName()) },
        { u"shipping_group"_s, idJson(product.shippingGroup()) },
        { u"barcodes"_s, barcodesJson(product.barcodes()) },
        { u"pages"_s, pagesJson(product.pageCounts()) },
        { u"spine"_s, spinesJson(product) },
        { u"options"_s, optionsJson(product.options()) },
    };
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
    ProductJson json;
    int written = 0;
    for (const RVCatalogueProduct &product : reader) {
        json.write(ProductValues(product));
        QCOMPARE(QByteArray::fromStdString(json.take()), QJsonDocument(toJson(product)).toJson(QJsonDocument::Compact));
        ++written;
    }
    QCOMPARE(reader.errorString(), QString());
    QCOMPARE(written, count);
}

// Every product has a spine of another width, and one without sides that no product before it had.
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

    ProductJson json;
    RVCatalogueReader reader(&buffer);
    int written = 0;
    for (const RVCatalogueProduct &product : reader) {
        json.write(ProductValues(product));
        const QByteArray line = QByteArray::fromStdString(json.take());
        if (++written % 1000 == 0)
            QCOMPARE(line, QJsonDocument(toJson(product)).toJson(QJsonDocument::Compact));
    }
    QCOMPARE(written, count);
}

QTEST_MAIN(tst_ProductJson)
#include "tst_ProductJson.moc"
