#ifndef CATALOGUELOADER_H
#define CATALOGUELOADER_H

#include "LoadError.h"
#include "LoadedCatalogue.h"

#include <QObject>

class LoadThread;

/// Loads catalogues in a thread of its own, one at a time.
class CatalogueLoader : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    /// Gives up what is being loaded.
    ~CatalogueLoader() override;

    /// Begins to load; gives up without a signal what is being loaded.
    void start(const QString &fileName);
    /// Gives up what is being loaded, if anything; cancelled() follows.
    void cancel();
    bool isLoading() const { return myThread; }

Q_SIGNALS:
    /// From 0 to 100.
    void progressed(int percent);
    void loaded(const CataloguePointer &catalogue);
    /// The file cannot be read, or not to its end.
    void failed(const LoadError &error);
    void cancelled();

private:
    void finish(LoadThread *thread);

    LoadThread *myThread = nullptr;
};

#endif
