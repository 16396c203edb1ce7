#ifndef PRODUCTTEXTS_H
#define PRODUCTTEXTS_H

#include "ProductValues.h"

#include <QString>
#include <QStringList>

/// A label and its text, such as "cover" and "HARDCOVER".
struct LabelledText
{
    QString label;
    QString text;
};

QString millimetresText(const RVDistance &distance); ///< "9.0"
QString pageCountsText(const RVPageCountOrganization &counts); ///< "26-154 by 4"
/// The width in mm at the lowest and the highest page count, "9.0-25.0"; "-" without a spine.
QString spineText(const ProductValues &values);
QString fontText(const ProductValues &values); ///< The same of the largest font size in pt.
/// "38.0 x 10.0 mm at 12.0, 280.5 on page 2"
QString barcodeText(const RVBarcodeDefinition &barcode);
/// The attributes of the product, in the order of RV_CATALOGUE_ATTRIBUTES.
QList<LabelledText> attributeTexts(const RVCatalogueProduct &product);

#endif
