#include "TypedProduct.h"

#include <QColor>
#include <QHash>

#include <cinttypes>
#include <cstdio>

void ProductChecksum::add(const TypedProduct &values)
{
    ++myProducts;
    for (const QString &text : { values.type.toString(), values.name, values.priceClass.toString(),
                                 values.pagePriceClass.toString(), values.optionPriceClass.toString() })
        add(text);
    for (const qint64 value :
         { qint64(values.articleId.id()), qint64(values.articleClass.value()), qint64(values.coverType.value()),
           qint64(values.pageBinding.value()), qint64(values.paperType.value()), qint64(values.fotoPaperType.value()),
           qint64(values.orientation.value()), qint64(values.spaceMagnitude.value()), qint64(values.shippingGroup.id()),
           qint64(values.pageCounts.minPages()), qint64(values.pageCounts.maxPages()),
           qint64(values.pageCounts.pageIncrement()), qint64(values.hasSpine), values.number, values.line })
        add(quint64(value));
    add(values.spine.spineWidth(unsigned(values.pageCounts.maxPages())).value());
    for (const RVConfiguredArticleVariant &option : values.options)
        add(option);
    for (const RVBarcodeDefinition &barcode : values.barcodes)
        add(barcode);
    for (const QString &family : values.families)
        add(family);
}

void ProductChecksum::print() const
{
    std::printf("%d products %016" PRIx64 "\n", myProducts, std::uint64_t(myValue));
}

void ProductChecksum::add(quint64 value)
{
    myValue = (myValue ^ value) * 0x100000001b3;
}

void ProductChecksum::add(double value)
{
    add(quint64(qHash(value, 0)));
}

void ProductChecksum::add(const QString &text)
{
    add(quint64(qHash(text, 0)));
}

void ProductChecksum::add(const RVConfiguredArticleVariant &option)
{
    for (const QString &text : { option.key(), option.keyName(), option.value(), option.visibleName(),
                                 option.editorName(), option.preview() })
        add(text);
    add(quint64(option.color().rgba()));
    add(quint64(option.isDefault()) << 1 | quint64(option.isNotAccountable()));
}

void ProductChecksum::add(const RVBarcodeDefinition &barcode)
{
    for (const int number :
         { barcode.rect().x(), barcode.rect().y(), barcode.rect().width(), barcode.rect().height(), barcode.pageNr() })
        add(quint64(number));
    add(barcode.imageName());
}
