#ifndef CATALOGUEWATCHER_H
#define CATALOGUEWATCHER_H

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QTimer>

/// Enough of a file to see that it was written to.
struct FileStamp
{
    static FileStamp of(const QString &fileName);

    bool exists = false;
    qint64 size = 0;
    QDateTime modified;

    friend bool operator==(const FileStamp &a, const FileStamp &b)
    {
        return a.exists == b.exists && a.size == b.size && a.modified == b.modified;
    }
    friend bool operator!=(const FileStamp &a, const FileStamp &b) { return !(a == b); }
};

/// Tells when a file changes, also where an editor puts a new file in the place of the old one. Watches the folder as
/// well for that; several changes in a row are told of once.
class CatalogueWatcher : public QObject
{
    Q_OBJECT

public:
    explicit CatalogueWatcher(QObject *parent = nullptr);

    /// Watches this file instead of the one before. @p known is its state when it was read.
    void watch(const QString &fileName, const FileStamp &known);

    QString fileName() const { return myFileName; } ///< Its absolute path; empty before one is watched.

Q_SIGNALS:
    void changed();
    void vanished(); ///< The file is gone; changed() follows where it comes back.

private:
    void check();

    QString myFileName;
    FileStamp myKnown;
    bool myIsGone = false;
    QFileSystemWatcher myWatcher;
    QTimer myTimer;
};

#endif
