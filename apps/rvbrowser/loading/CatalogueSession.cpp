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
    load(fileName, std::make_shared<FileCopy>(fileName));
}

void CatalogueSession::reload()
{
    const QString fileName = catalogue() && !isLoading() ? catalogue()->fileName() : myFileName;
    if (fileName.isEmpty())
        return;
    // A file that is being opened again is to be copied as it is now.
    const bool isOpening = isLoading() && myCopy;
    if (!isOpening && myOriginal && myOriginal->source() == fileName)
        load(fileName, nullptr);
    else
        open(fileName);
}

void CatalogueSession::load(const QString &fileName, const std::shared_ptr<FileCopy> &copy)
{
    myFileName = fileName;
    myStamp = CatalogueStamp::of(fileName);
    myCopy = copy;
    myLoader.start(fileName, copy);
    Q_EMIT started(fileName);
}

void CatalogueSession::take(const CataloguePointer &catalogue)
{
    myServices.setCatalogue(catalogue);
    if (myCopy)
        myOriginal = std::exchange(myCopy, nullptr);
    myHasMissedChange = false;
    Q_EMIT ended();
    Q_EMIT catalogueChanged();
    myWatcher.watch(catalogue->fileName(), myStamp);
}

void CatalogueSession::fail(const LoadError &error)
{
    myCopy = nullptr;
    Q_EMIT ended();
    Q_EMIT failed(error);
    // While nothing else is open, the user is likely to mend this file.
    if (!catalogue())
        myWatcher.watch(myFileName, myStamp);
    catchUp();
}

void CatalogueSession::giveUp()
{
    myCopy = nullptr;
    Q_EMIT ended();
    catchUp();
}

// A file that the user opens comes before one that changes by itself.
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
