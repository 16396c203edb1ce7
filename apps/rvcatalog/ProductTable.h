#ifndef PRODUCTTABLE_H
#define PRODUCTTABLE_H

#include "ProductValues.h"

#include <QTextStream>

/// Writes products as a table for a terminal: page counts, spine and name in columns, the rest in lines below.
class ProductTable
{
public:
    explicit ProductTable(QTextStream *out) : myOut(out) { }

    void writeHeading();
    void write(const ProductValues &values);

private:
    void writeRow(const QStringList &columns);
    /// Lines are broken between pieces.
    void writeDetail(const QStringList &pieces);

    QTextStream *myOut;
};

#endif
