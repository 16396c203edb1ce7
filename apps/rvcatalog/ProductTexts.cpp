#include "ProductTexts.h"

#include <RVCatalogueAttributes.h>

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

QString between(const QString &lowest, const QString &highest)
{
    return lowest == highest ? lowest : lowest + u'-' + highest;
}

template<typename T>
void addAttribute(QList<LabelledText> *texts, const RVCatalogueAttributeRow<T> &row, const RVCatalogueProduct &product)
{
    if (!row.isOfProducts)
        return;
    const T attribute = (product.*row.value)();
    if (attribute.isNull())
        return;
    const QString text = row.hasBareKeywords ? (attribute.*row.displayName)() : attribute.encodeCSV();
    *texts += { QLatin1StringView(row.shortLabel), text };
}

}

QString millimetresText(const RVDistance &distance)
{
    return QString::number(distance.value(DISTANCE_UNIT_MILLIMETRE), 'f', 1);
}

QString pageCountsText(const RVPageCountOrganization &counts)
{
    const QString range = between(QString::number(counts.minPages()), QString::number(counts.maxPages()));
    return counts.numberOfPackages() > 1 ? range + " by "_L1 + QString::number(counts.pageIncrement()) : range;
}

QString spineText(const ProductValues &values)
{
    if (!values.hasSpine)
        return u"-"_s;
    return between(millimetresText(values.spineWidth(values.pageCounts.minPages())),
                   millimetresText(values.spineWidth(values.pageCounts.maxPages())));
}

QString fontText(const ProductValues &values)
{
    if (!values.hasSpine)
        return u"-"_s;
    return between(QString::number(values.fontSize(values.pageCounts.minPages())),
                   QString::number(values.fontSize(values.pageCounts.maxPages())));
}

QString barcodeText(const RVBarcodeDefinition &barcode)
{
    const QRect rect = barcode.rect();
    return u"%1 x %2 mm at %3, %4 on page %5"_s.arg(
            millimetresText(RVDistance(rect.width())), millimetresText(RVDistance(rect.height())),
            millimetresText(RVDistance(rect.left())), millimetresText(RVDistance(rect.top())),
            QString::number(barcode.pageNr()));
}

QList<LabelledText> attributeTexts(const RVCatalogueProduct &product)
{
    QList<LabelledText> result;
    std::apply([&](const auto &...rows) { (addAttribute(&result, rows, product), ...); }, RV_CATALOGUE_ATTRIBUTES);
    return result;
}
