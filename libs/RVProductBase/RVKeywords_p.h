#ifndef RVKEYWORDS_P_H
#define RVKEYWORDS_P_H

#include "RVEnumToStringTable.h"

#include <QDebug>
#include <QLatin1StringView>

#include <cstddef>

/// One row of a keyword table. The first row of a value encodes it, the others are aliases.
template<typename E>
struct RVKeyword
{
    QLatin1StringView keyword;
    E value;
};

/// Inserts the rows in their order.
template<typename E, std::size_t N>
void rvInsertKeywords(RVEnumToStringTable<E> *table, const RVKeyword<E> (&rows)[N])
{
    for (const RVKeyword<E> &row : rows)
        table->insert(row.keyword.toString(), row.value);
}

/// Writes "RVOrientation(portrait, square)".
template<typename Attribute>
QDebug rvDebugAttribute(QDebug debug, const char *className, const Attribute &attribute)
{
    const QDebugStateSaver saver(debug);
    debug.nospace().noquote() << className << '(' << attribute.encodeCSV() << ')';
    return debug;
}

#endif
