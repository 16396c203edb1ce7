#include "CatalogueSession.h"

#include <utility>

CatalogueSession::CatalogueSession(QObject *parent) : QObject(parent)
{
    connect(&myLoader, &CatalogueLoader::progressed, this, &CatalogueSession::progressed);
    connect(&myLoader, &CatalogueLoader::loaded, this, &CatalogueSession::take);
    connect(&myLoader, &CatalogueLoader::failed, this, &CatalogueSession::fail);
    connect(&myLoader, &CatalogueLoader::cancelled, this, &CatalogueSession::giveUp);
    connect(&myWatcher, &CatalogueWatcher::changed, this, &CatalogueSession::noticeChange);
    connect(&myWatcher, &CatalogueWatcher::vanished, this, [this] { Q_EMIT vanished(myWatcher.fileName()); });
}

void CatalogueSession::open(const QString &fileName)
{
    myFileName = fileName;
    myStamp = CatalogueStamp::of(fileName);
    myLoader.start(fileName);
    Q_EMIT started(fileName);
}

void CatalogueSession::reload()
{
    const QString fileName = catalogue() && !isLoading() ? catalogue()->fileName() : myFileName;
    if (!fileName.isEmpty())
        open(fileName);
}

void CatalogueSession::take(const CataloguePointer &catalogue)
{
    myServices.setCatalogue(catalogue);
    myHasMissedChange = false;
    Q_EMIT ended();
    Q_EMIT catalogueChanged();
    myWatcher.watch(catalogue->fileName(), myStamp);
}

void CatalogueSession::fail(const LoadError &error)
{
    Q_EMIT ended();
    Q_EMIT failed(error);
    // While nothing else is open, this is the file that somebody is mending.
    if (!catalogue())
        myWatcher.watch(myFileName, myStamp);
    catchUp();
}

void CatalogueSession::giveUp()
{
    Q_EMIT ended();
    catchUp();
}

// What somebody is opening comes before what changes by itself.
void CatalogueSession::noticeChange()
{
    if (isLoading() && catalogue() && myFileName != catalogue()->fileName())
        myHasMissedChange = true;
    else
        reload();
}

void CatalogueSession::catchUp()
{
    if (std::exchange(myHasMissedChange, false))
        reload();
}
