#ifndef RVPRODUCTTYPELIST_H
#define RVPRODUCTTYPELIST_H

#include "RVProductBaseExport.h"
#include "RVProductType.h"

#include <QList>
#include <QStringList>

class QDebug;

/// A list of product types, in the order in which they were added.
/// @par Example
/// @snippet tst_examples_geometry.cpp RVProductTypeList
/// @ingroup geometry
class RVPRODUCTBASE_EXPORT RVProductTypeList : public QList<RVProductType>
{
public:
    RVProductTypeList() = default; ///< The empty list.
    /// Shares the data of @p types.
    RVProductTypeList(const QList<RVProductType> &types);
    /// From codes; empty ones are skipped, duplicates are kept.
    RVProductTypeList(const QList<QString> &codes);

    /// From codes separated by commas; empty ones are skipped, duplicates are kept. A blank belongs to its code: "DUN9,
    /// DUN3" has the type " DUN3".
    static RVProductTypeList buildFromCSV(const QString &csv);

    bool containsAgenda() const; ///< True when some element is an agenda.
    bool containsCalendar() const; ///< True when some element is a calendar or an agenda.
    /// True when some element is no calendar; false for an empty list.
    bool containsNotOnlyCalendars() const;

    /// Appends a type that is not in the list yet. An unknown type is refused with a warning in the message log.
    void addWithoutDoubles(const RVProductType &type);
    /// Adds each type of @p types. The cost grows with the product of the sizes.
    void addWithoutDoubles(const RVProductTypeList &types);

    QStringList toStringList() const; ///< The codes, in their order.
};

/// Prints the codes. @relates RVProductTypeList
RVPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const RVProductTypeList &types);

#endif
