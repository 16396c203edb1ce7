#ifndef RVKEYWORDS_P_H
#define RVKEYWORDS_P_H

#include "RVEnumToStringTable.h"

#include <QDebug>
#include <QStringView>

#include <cstddef>

/// One row of a keyword table, a u"…" literal. The first row of a value encodes it, the others are aliases.
template<typename E>
struct RVKeyword
{
    QStringView keyword;
    E value;
};

/// Inserts the rows in their order. Like every QStringLiteral, the keywords stay in static memory.
template<typename E, std::size_t N>
void rvInsertKeywords(RVEnumToStringTable<E> *table, const RVKeyword<E> (&rows)[N])
{
    for (const RVKeyword<E> &row : rows)
        table->insert(QString::fromRawData(row.keyword.data(), row.keyword.size()), row.value);
}

/// Does the same, and assigns the defaults in any case.
template<typename E, std::size_t N>
void rvFillTable(RVEnumToStringTable<E> *table, const RVKeyword<E> (&rows)[N],
                 const QString &defaultKeyword = QString(), E defaultValue = E(0))
{
    rvInsertKeywords(table, rows);
    table->defaultKeyword = defaultKeyword;
    table->defaultValue = defaultValue;
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
