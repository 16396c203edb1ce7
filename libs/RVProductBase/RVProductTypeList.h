#ifndef RVPRODUCTTYPELIST_H
#define RVPRODUCTTYPELIST_H

#include "RVProductBaseExport.h"
#include "RVProductType.h"

#include <QList>
#include <QStringList>

class QDebug;

/// A list of product types, in the order in which they were added.
class RVPRODUCTBASE_EXPORT RVProductTypeList : public QList<RVProductType>
{
public:
    RVProductTypeList() = default;
    RVProductTypeList(const QList<RVProductType> &types);
    /// From codes; empty ones are skipped, doubles are kept.
    RVProductTypeList(const QList<QString> &codes);

    /// From codes separated by commas; empty ones are skipped, doubles are kept.
    static RVProductTypeList buildFromCSV(const QString &csv);

    bool containsAgenda() const;
    bool containsCalendar() const;
    /// True when some element is no calendar.
    bool containsNotOnlyCalendars() const;

    /// Appends a type that the list does not hold yet. An unknown type is refused with a warning in the message log.
    void addWithoutDoubles(const RVProductType &type);
    /// Adds each type of @p types. Cost grows with the product of the sizes.
    void addWithoutDoubles(const RVProductTypeList &types);

    QStringList toStringList() const;
};

RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVProductTypeList &types);

#endif
