#ifndef SHOWREPORT_H
#define SHOWREPORT_H

#include "CatalogueFile.h"
#include "ProductFilter.h"
#include "ProductValues.h"

/// Reports the findings of the shown products of a catalogue, and the wanted products that it does not have.
class ShowReport
{
public:
    ShowReport(const CatalogueFile &file, const ProductFilter &filter);

    /// The findings about a product. Any thread may ask.
    static QList<Problem> problems(const ProductValues &values);

    /// Counts products of the catalogue, shown or not.
    void addTypes(const QList<RVProductType> &types);
    /// Takes some shown products and their findings.
    void addShown(qint64 count, const QList<Problem> &problems);
    /// Reports the missing products at the end of the catalogue, and returns the exit code.
    int end() const;

private:
    QList<Problem> problemsOfAll() const;

    const CatalogueFile &myFile;
    QList<WantedType> myWantedTypes;
    bool myIsEmpty = true; // as long as the catalogue has no products
    qint64 myShownCount = 0;
    bool myHasProblems = false;
};

#endif
