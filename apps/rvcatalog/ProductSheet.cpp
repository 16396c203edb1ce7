#include "ProductSheet.h"

#include "PrintableText.h"
#include "ProductOption.h"
#include "ProductTexts.h"
#include "WrappedText.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LABEL_WIDTH = 18;

QString capitalised(const QString &text)
{
    return text.left(1).toUpper() + text.mid(1);
}

/// The remarks about a value of an option, each piece once.
QString valueRemarks(const ProductOption &option)
{
    QStringList pieces;
    const auto add = [&pieces](QLatin1StringView label, const QString &text) {
        if (!text.isEmpty())
            pieces += label.isEmpty() ? text : label + u' ' + text;
    };
    const RVConfiguredArticleVariant &variant = option.option;
    add(""_L1, variant.visibleName());
    add("editor"_L1, variant.editorName() == variant.visibleName() ? QString() : variant.editorName());
    add("form"_L1, option.formName);
    add("preview"_L1, variant.preview());
    add("colour"_L1, option.colorText());
    add("price class"_L1, option.priceClass.toString());
    add(""_L1, variant.isNotAccountable() ? u"not charged"_s : QString());
    return pieces.join("; "_L1);
}

}

void ProductSheet::write(const ProductValues &values)
{
    const RVCatalogueProduct &product = values.product;
    if (!myIsFirst)
        *myOut << '\n';
    myIsFirst = false;
    *myOut << printableText(values.type.orderTxtName() + "  "_L1 + product.name()).trimmed() << '\n';
    writeOrigin(product);
    for (const LabelledText &attribute : attributeTexts(product))
        writeLine(capitalised(attribute.label), attribute.text);
    writePrices(product);
    writePages(values);
    for (const RVBarcodeDefinition &barcode : product.barcodes())
        writeLine(u"Barcode"_s, barcodeText(barcode) + "; image "_L1 + barcode.imageName());
    writeOptions(product);
}

void ProductSheet::writeLine(const QString &label, const QString &text)
{
    QString left = label;
    for (const QString &line : wrapped(text, TERMINAL_WIDTH - LABEL_WIDTH)) {
        // A longer label gets more room, and is still followed by blanks.
        *myOut << printableText("  "_L1 + left + "  "_L1).leftJustified(LABEL_WIDTH) << printableText(line) << '\n';
        left.clear();
    }
}

void ProductSheet::writeOrigin(const RVCatalogueProduct &product)
{
    const RVFilePosition place = product.range().begin;
    writeLine(u"Place"_s, u"%1:%2:%3"_s.arg(myFileName).arg(place.line).arg(place.column));
    if (const QStringList families = product.families(); !families.isEmpty())
        writeLine(u"Families"_s, families.join(" > "_L1));
    if (const RVArticleId id = product.articleId(); id.isValid())
        writeLine(u"Article"_s, QString::number(id.id()));
    if (const RVShippingGroupId group = product.shippingGroup(); group.isValid())
        writeLine(u"Shipping group"_s, group.toString());
}

void ProductSheet::writePrices(const RVCatalogueProduct &product)
{
    if (const RVPriceClass priceClass = product.priceClass(); priceClass.isValid())
        writeLine(u"Price class"_s, priceClass.toString());
    if (const RVPriceClass priceClass = product.pagePriceClass(); priceClass.isValid())
        writeLine(u"  of a package"_s, priceClass.toString());
}

void ProductSheet::writePages(const ProductValues &values)
{
    const int count = values.pageCounts.numberOfPackages();
    const QString box = values.product.isPhotoBox() ? u", in a photo box"_s : QString();
    writeLine(u"Pages"_s,
              pageCountsText(values.pageCounts) + u" (%1 %2)"_s.arg(count).arg(count == 1 ? "count"_L1 : "counts"_L1)
                      + box);
    if (values.hasSpine)
        writeLine(u"Spine"_s, spineText(values) + " mm, font "_L1 + fontText(values) + " pt "_L1 + SpineFont::family());
}

void ProductSheet::writeOptions(const RVCatalogueProduct &product)
{
    QString key;
    for (const ProductOption &option : ProductOption::of(product)) {
        if (option.option.key() != key)
            writeLine(u"Option"_s,
                      option.option.key()
                              + (option.option.keyName().isEmpty() ? QString()
                                                                   : " ("_L1 + option.option.keyName() + u')'));
        key = option.option.key();
        writeLine("  "_L1 + option.option.value() + (option.isDefault ? "*"_L1 : ""_L1), valueRemarks(option));
    }
}
