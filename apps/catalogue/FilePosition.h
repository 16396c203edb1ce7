#ifndef FILEPOSITION_H
#define FILEPOSITION_H

#include <QtGlobal>

/// A place in a file; both count from 1. Columns are UTF-16 code units.
struct FilePosition
{
    qint64 line = 1;
    qint64 column = 1;

    friend constexpr bool operator<(const FilePosition &a, const FilePosition &b)
    {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    }
};

#endif
