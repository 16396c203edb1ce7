#ifndef PRODUCTSHEET_H
#define PRODUCTSHEET_H

#include "ProductValues.h"

#include <QTextStream>

/// Writes everything that the catalogue says about a product, one line for each subject.
class ProductSheet
{
public:
    /// @p fileName is that of the catalogue, for the place of a product.
    ProductSheet(QTextStream *out, const QString &fileName) : myOut(out), myFileName(fileName) { }

    /// Sheets are separated by an empty line.
    void write(const ProductValues &values);

private:
    void writeLine(const QString &label, const QString &text);
    void writeOrigin(const RVCatalogueProduct &product);
    void writePrices(const RVCatalogueProduct &product);
    void writePages(const ProductValues &values);
    void writeOptions(const RVCatalogueProduct &product);

    QTextStream *myOut;
    QString myFileName;
    bool myIsFirst = true;
};

#endif
