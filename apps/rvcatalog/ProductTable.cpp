#include "ProductTable.h"

#include "PrintableText.h"
#include "ProductOption.h"
#include "ProductTexts.h"
#include "WrappedText.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace {

// The columns are wide enough for usual codes and counts, because the table is written before its last row is known.
constexpr int COLUMN_WIDTHS[] = { 9, 17, 7, 12, 8, 0 };
constexpr int INDENT = COLUMN_WIDTHS[0];

/// The place of the name, which stands behind all other columns.
constexpr int nameColumn()
{
    int result = 0;
    for (const int width : COLUMN_WIDTHS)
        result += width;
    return result;
}

/// Ends every piece except the last with a sign that separates them: "class book;", "cover HARDCOVER".
QStringList separated(QStringList pieces, QChar sign)
{
    for (qsizetype i = 0; i + 1 < pieces.size(); ++i)
        pieces[i] += sign;
    return pieces;
}

QStringList attributePieces(const RVCatalogueProduct &product)
{
    QStringList pieces;
    for (const LabelledText &attribute : attributeTexts(product))
        pieces += attribute.label + u' ' + attribute.text;
    if (const RVShippingGroupId group = product.shippingGroup(); group.isValid())
        pieces += "shipping group "_L1 + group.toString();
    if (const RVArticleId id = product.articleId(); id.isValid())
        pieces += "article "_L1 + QString::number(id.id());
    if (const RVPriceClass priceClass = product.priceClass(); priceClass.isValid())
        pieces += "price class "_L1 + priceClass.toString();
    if (const RVPriceClass priceClass = product.pagePriceClass(); priceClass.isValid())
        pieces += "page price class "_L1 + priceClass.toString();
    return separated(pieces, u';');
}

QString valueText(const ProductOption &option)
{
    QString result = option.option.value() + (option.isDefault ? "*"_L1 : ""_L1);
    if (option.option.isNotAccountable())
        result += " (not charged)"_L1;
    else if (option.priceClass.isValid())
        result += " ("_L1 + option.priceClass.toString() + u')';
    return result;
}

/// The options of a product, one list for each key: "alcolor:", "black* (LEZ1),", "red (LEZ2)".
QList<QStringList> optionPieces(const RVCatalogueProduct &product)
{
    QMap<QString, QStringList> valuesByKey;
    for (const ProductOption &option : ProductOption::of(product))
        valuesByKey[option.option.key()] += valueText(option);
    QList<QStringList> result;
    for (auto it = valuesByKey.constBegin(); it != valuesByKey.constEnd(); ++it)
        result += QStringList(it.key() + u':') + separated(it.value(), u',');
    return result;
}

}

void ProductTable::writeHeading()
{
    writeRow({ u"TYPE"_s, u"PAGES"_s, u"COUNTS"_s, u"SPINE mm"_s, u"FONT pt"_s, u"NAME"_s });
    writeDetail({ u"ATTRIBUTES, OPTIONS (* is the default)"_s });
}

void ProductTable::write(const ProductValues &values)
{
    const RVCatalogueProduct &product = values.product;
    const QString name = product.name();
    const bool hasRoom = name.size() <= TERMINAL_WIDTH - nameColumn();
    writeRow({ values.type.orderTxtName(), pageCountsText(values.pageCounts),
               QString::number(values.pageCounts.numberOfPackages()), spineText(values), fontText(values),
               hasRoom ? name : QString() });
    if (!hasRoom)
        writeDetail(name.split(u' '));
    writeDetail(attributePieces(product));
    for (const RVBarcodeDefinition &barcode : product.barcodes())
        writeDetail({ "barcode "_L1 + barcodeText(barcode) });
    for (const QStringList &pieces : optionPieces(product))
        writeDetail(pieces);
}

void ProductTable::writeRow(const QStringList &columns)
{
    QString row;
    qsizetype end = 0;
    for (qsizetype i = 0; i < columns.size(); ++i) {
        row += columns.at(i) + u' ';
        end += COLUMN_WIDTHS[i];
        row = row.leftJustified(end);
    }
    *myOut << printableText(row.trimmed()) << '\n';
}

void ProductTable::writeDetail(const QStringList &pieces)
{
    if (pieces.isEmpty())
        return;
    for (const QString &line : wrapped(pieces, TERMINAL_WIDTH - INDENT))
        *myOut << QString(INDENT, u' ') << printableText(line) << '\n';
}
