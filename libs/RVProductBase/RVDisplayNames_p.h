#ifndef RVDISPLAYNAMES_P_H
#define RVDISPLAYNAMES_P_H

#include "RVDisplayNames.h"

#include <cstddef>
#include <utility>

/// One row of a table of display texts. The text is German, and is the source text of its translations.
template<typename E>
struct RVDisplayText
{
    E value;
    const char *text;
};

template<typename T, typename E, std::size_t N>
QMap<T, QString> rvTranslated(const char *context, const RVDisplayText<E> (&rows)[N])
{
    QMap<T, QString> result;
    for (const RVDisplayText<E> &row : rows)
        result.insert(row.value, QCoreApplication::translate(context, row.text));
    return result;
}

/// The names on the heap. They are never deleted, so they outlive every object with static storage.
template<typename T>
const RVDisplayNames<T> *rvForever(RVDisplayNames<T> names)
{
    return new RVDisplayNames<T>(std::move(names));
}

#endif
