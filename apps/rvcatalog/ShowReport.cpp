#include "ShowReport.h"

#include "Commands.h"

using namespace Qt::StringLiterals;

ShowReport::ShowReport(const CatalogueFile &file, const ProductFilter &filter)
    : myFile(file),
      myWantedTypes(filter.wantedTypes())
{ }

QList<Problem> ShowReport::problems(const ProductValues &values)
{
    QList<Problem> result;
    if (!values.type.isUnknown() && values.pageCounts.isValid())
        return result;
    const RVFilePosition position = values.product.range().begin;
    if (values.type.isUnknown())
        result += { position, u"the product has no type"_s };
    if (!values.pageCounts.isValid())
        result += { position, u"the product has no valid page counts (%1)"_s.arg(values.pageCounts.dump()) };
    return result;
}

void ShowReport::addTypes(const QList<RVProductType> &types)
{
    myIsEmpty = myIsEmpty && types.isEmpty();
    for (WantedType &wanted : myWantedTypes) {
        for (const RVProductType &type : types)
            wanted.offer(type);
    }
}

void ShowReport::addShown(qint64 count, const QList<Problem> &problems)
{
    myShownCount += count;
    myHasProblems = myHasProblems || !problems.isEmpty();
    for (const Problem &problem : problems)
        myFile.report(problem);
}

QList<Problem> ShowReport::problemsOfAll() const
{
    if (myIsEmpty)
        return { { RVFilePosition(), u"there is no product in this file"_s } };
    QList<Problem> result;
    for (const WantedType &wanted : myWantedTypes) {
        if (!wanted.problem().isEmpty())
            result += { RVFilePosition(), wanted.problem() };
    }
    if (result.isEmpty() && myShownCount == 0)
        result += { RVFilePosition(), u"no product meets the conditions"_s };
    return result;
}

int ShowReport::end() const
{
    const QList<Problem> found = problemsOfAll();
    for (const Problem &problem : found)
        myFile.report(problem);
    return myHasProblems || !found.isEmpty() ? EXIT_PROBLEMS : EXIT_FINE;
}
