#ifndef LOADTHREAD_H
#define LOADTHREAD_H

#include "FileCopy.h"
#include "LoadedCatalogue.h"
#include "ReadThread.h"

/// Reads one catalogue.
class LoadThread : public ReadThread
{
    Q_OBJECT

public:
    /// Copies what is read into @p copy, unless that is null.
    LoadThread(const QString &fileName, const std::shared_ptr<FileCopy> &copy, QObject *parent)
        : ReadThread(parent),
          myFileName(fileName),
          myCopy(copy)
    { }

    /// The catalogue; null if it could not be read or reading was given up. Known once the thread has finished.
    CataloguePointer catalogue() const { return myCatalogue; }

protected:
    void run() override;

private:
    QString myFileName;
    std::shared_ptr<FileCopy> myCopy;
    CataloguePointer myCatalogue;
};

#endif
