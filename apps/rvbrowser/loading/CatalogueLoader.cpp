#include "CatalogueLoader.h"

#include "LoadThread.h"

void CatalogueLoader::start(const QString &fileName, const std::shared_ptr<FileCopy> &copy)
{
    run(new LoadThread(fileName, copy, this));
}

bool CatalogueLoader::take(ReadThread *thread)
{
    const CataloguePointer catalogue = qobject_cast<LoadThread *>(thread)->catalogue();
    if (catalogue)
        Q_EMIT loaded(catalogue);
    return catalogue != nullptr;
}
