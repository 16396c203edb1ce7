#ifndef CATALOGUELOADER_H
#define CATALOGUELOADER_H

#include "FileCopy.h"
#include "LoadedCatalogue.h"
#include "ReadLoader.h"

/// Loads catalogues in a thread of its own, one at a time.
class CatalogueLoader : public ReadLoader
{
    Q_OBJECT

public:
    using ReadLoader::ReadLoader;

    /// Begins to load; gives up without a signal what is being loaded. The bytes of the file are copied into @p copy,
    /// unless that is null.
    void start(const QString &fileName, const std::shared_ptr<FileCopy> &copy = nullptr);

Q_SIGNALS:
    void loaded(const CataloguePointer &catalogue);

protected:
    bool take(ReadThread *thread) override;
};

#endif
