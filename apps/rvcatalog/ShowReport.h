#ifndef SHOWREPORT_H
#define SHOWREPORT_H

#include "CatalogueFile.h"
#include "ProductFilter.h"
#include "ProductValues.h"

/// Reports what is wrong with the products of a catalogue that are shown, and which of the wanted ones it does not
/// have.
class ShowReport
{
public:
    ShowReport(const CatalogueFile &file, const ProductFilter &filter);

    /// The findings about a product. Any thread may ask.
    static QList<Problem> problems(const ProductValues &values);

    /// Products of the catalogue, be they shown or not.
    void addTypes(const QList<RVProductType> &types);
    /// Some products that are shown, and what is wrong with them.
    void addShown(qint64 count, const QList<Problem> &problems);
    /// Reports what is known at the end of the catalogue; the exit code.
    int end() const;

private:
    QList<Problem> problemsOfAll() const;

    const CatalogueFile &myFile;
    QList<WantedType> myWantedTypes;
    bool myIsEmpty = true; // the catalogue
    qint64 myShownCount = 0;
    bool myHasProblems = false;
};

#endif
