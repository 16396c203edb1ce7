#ifndef FILECOPY_H
#define FILECOPY_H

#include <QDateTime>
#include <QString>
#include <QTemporaryFile>

/**
 * A private copy of a file in the folder for temporary files, which is removed with this object. One thread writes it;
 * once that is done, any thread may open it by its name.
 */
class FileCopy
{
public:
    /// Nothing is written before the first bytes come. @p source is the file that they come from.
    explicit FileCopy(const QString &source);

    /// Writes more bytes. If that fails, the copy is removed, and later bytes are dropped.
    void append(const char *bytes, qint64 size);
    /// Ends writing: other programs now find all bytes in the copy.
    void finish();

    QString source() const { return mySource; }
    QDateTime begun() const { return myBegun; } ///< The time when the copy was begun.
    /// The name of the copy, which other programs see from then on; empty where there is none. Only for one thread.
    QString fileName() const { return myError.isEmpty() ? myFile.fileName() : QString(); }
    /// The reason why there is no copy; empty where nothing went wrong.
    QString errorString() const { return myError; }

private:
    void fail();

    QString mySource;
    QDateTime myBegun = QDateTime::currentDateTime();
    QTemporaryFile myFile;
    QString myError;
};

#endif
