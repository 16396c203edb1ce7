#ifndef FILESTAMP_H
#define FILESTAMP_H

#include <QDateTime>
#include <QString>

/// Enough of a file to see that it was written to.
struct FileStamp
{
    static FileStamp of(const QString &fileName);

    bool exists = false;
    qint64 size = 0;
    QDateTime modified;
    QDateTime changed; // also where the time of modification was set back

    friend bool operator==(const FileStamp &a, const FileStamp &b)
    {
        return a.exists == b.exists && a.size == b.size && a.modified == b.modified && a.changed == b.changed;
    }
    friend bool operator!=(const FileStamp &a, const FileStamp &b) { return !(a == b); }
};

#endif
