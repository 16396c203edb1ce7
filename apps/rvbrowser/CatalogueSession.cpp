#include "CatalogueSession.h"

CatalogueSession::CatalogueSession(QObject *parent) : QObject(parent)
{
    connect(&myLoader, &CatalogueLoader::progressed, this, &CatalogueSession::progressed);
    connect(&myLoader, &CatalogueLoader::loaded, this, &CatalogueSession::take);
    connect(&myLoader, &CatalogueLoader::failed, this, &CatalogueSession::fail);
    connect(&myLoader, &CatalogueLoader::cancelled, this, &CatalogueSession::ended);
    connect(&myWatcher, &CatalogueWatcher::changed, this, &CatalogueSession::reload);
}

void CatalogueSession::open(const QString &fileName)
{
    myFileName = fileName;
    myStamp = FileStamp::of(fileName);
    myLoader.start(fileName);
    Q_EMIT started(fileName);
}

void CatalogueSession::reload()
{
    const QString fileName = catalogue() ? catalogue()->fileName() : myFileName;
    if (!fileName.isEmpty())
        open(fileName);
}

void CatalogueSession::take(const CataloguePointer &catalogue)
{
    myServices.setCatalogue(catalogue);
    Q_EMIT ended();
    Q_EMIT catalogueChanged();
    myWatcher.watch(catalogue->fileName(), myStamp);
}

void CatalogueSession::fail(const LoadError &error)
{
    Q_EMIT ended();
    Q_EMIT failed(error);
}
