#ifndef CATALOGUEWATCHER_H
#define CATALOGUEWATCHER_H

#include "CatalogueStamp.h"

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

/// Tells when a catalogue or its configuration changes, also where an editor puts a new file in the place of the old
/// one. Watches the folder of the catalogue as well for that; several changes in a row are told of once. A
/// configuration that is new in a folder above is not noticed.
class CatalogueWatcher : public QObject
{
    Q_OBJECT

public:
    explicit CatalogueWatcher(QObject *parent = nullptr);

    /// Watches this file instead of the one before. @p known is its state when it was read.
    void watch(const QString &fileName, const CatalogueStamp &known);

    QString fileName() const { return myFileName; } ///< Its absolute path; empty before one is watched.

Q_SIGNALS:
    void changed();
    void vanished(); ///< The file is gone; changed() follows where it comes back.

private:
    void check();
    void watchFile(const QString &fileName);

    QString myFileName;
    CatalogueStamp myKnown;
    bool myIsGone = false;
    QFileSystemWatcher myWatcher;
    QTimer myTimer;
};

#endif
