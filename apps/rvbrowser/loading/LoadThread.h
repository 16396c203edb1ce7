#ifndef LOADTHREAD_H
#define LOADTHREAD_H

#include "LoadError.h"
#include "LoadedCatalogue.h"

#include <QThread>

class ObservedFile;

/// Reads one catalogue. Ask for an interruption to give it up.
class LoadThread : public QThread
{
    Q_OBJECT

public:
    LoadThread(const QString &fileName, QObject *parent) : QThread(parent), myFileName(fileName) { }

    /// Once the thread has finished: null where the file could not be read, or was given up.
    CataloguePointer catalogue() const { return myCatalogue; }
    /// None where the file was read, or given up.
    std::optional<LoadError> error() const { return myError; }

Q_SIGNALS:
    void progressed(int percent);

protected:
    void run() override;

private:
    bool open(ObservedFile *file);
    bool report(int percent);

    QString myFileName;
    CataloguePointer myCatalogue;
    std::optional<LoadError> myError;
    int myPercent = -1;
};

#endif
