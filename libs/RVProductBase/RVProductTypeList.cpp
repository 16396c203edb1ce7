#include "RVProductTypeList.h"

#include "RVKomma_p.h"

#include <QDebug>
#include <QMessageLogger>

#include <algorithm>
#include <functional>

RVProductTypeList::RVProductTypeList(const QList<RVProductType> &types) : QList(types) { }

RVProductTypeList::RVProductTypeList(const QList<QString> &codes)
{
    for (const QString &code : codes) {
        const RVProductType type(code);
        if (type.isValid())
            append(type);
    }
}

RVProductTypeList RVProductTypeList::buildFromCSV(const QString &csv)
{
    return RVProductTypeList(csv.split(KOMMA, Qt::SkipEmptyParts));
}

bool RVProductTypeList::containsAgenda() const
{
    return std::any_of(begin(), end(), std::mem_fn(&RVProductType::isAgenda));
}

bool RVProductTypeList::containsCalendar() const
{
    return std::any_of(begin(), end(), std::mem_fn(&RVProductType::isCalendar));
}

bool RVProductTypeList::containsNotOnlyCalendars() const
{
    return !std::all_of(begin(), end(), std::mem_fn(&RVProductType::isCalendar));
}

void RVProductTypeList::addWithoutDoubles(const RVProductType &type)
{
    if (type.isUnknown()) {
        // Log filters of the application recognise this message by its context.
        QMessageLogger("libs/RVProductBase/RVProductTypeList", 97,
                       "void RVProductTypeList::addWithoutDoubles(const RVProductType&)")
                        .warning()
                << "there is no" << type.orderTxtName();
        return;
    }
    if (!contains(type))
        append(type);
}

void RVProductTypeList::addWithoutDoubles(const RVProductTypeList &types)
{
    for (const RVProductType &type : types)
        addWithoutDoubles(type);
}

QStringList RVProductTypeList::toStringList() const
{
    QStringList result;
    for (const RVProductType &type : *this)
        result += type.toString();
    return result;
}

QDebug operator<<(QDebug debug, const RVProductTypeList &types)
{
    return debug << types.toStringList();
}
