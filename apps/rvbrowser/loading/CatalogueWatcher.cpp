#include "CatalogueWatcher.h"

#include <QFileInfo>

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// Editors write a file in several steps.
constexpr auto QUIET_TIME = 200ms;

}

CatalogueWatcher::CatalogueWatcher(QObject *parent) : QObject(parent)
{
    myTimer.setSingleShot(true);
    myTimer.setInterval(QUIET_TIME);
    connect(&myTimer, &QTimer::timeout, this, &CatalogueWatcher::check);
    connect(&myWatcher, &QFileSystemWatcher::fileChanged, &myTimer, qOverload<>(&QTimer::start));
    connect(&myWatcher, &QFileSystemWatcher::directoryChanged, &myTimer, qOverload<>(&QTimer::start));
}

void CatalogueWatcher::watch(const QString &fileName, const CatalogueStamp &known)
{
    const QStringList paths = myWatcher.files() + myWatcher.directories();
    if (!paths.isEmpty())
        myWatcher.removePaths(paths);
    myFileName = QFileInfo(fileName).absoluteFilePath();
    myKnown = known;
    myIsGone = !known.catalogue.exists;
    myWatcher.addPath(QFileInfo(myFileName).path());
    check();
}

// A file that was replaced is no longer watched, and one that is gone for a moment comes back with a change of the
// folder.
void CatalogueWatcher::check()
{
    const CatalogueStamp now = CatalogueStamp::of(myFileName);
    if (!now.catalogue.exists) {
        if (!std::exchange(myIsGone, true))
            Q_EMIT vanished();
        return;
    }
    watchFile(myFileName);
    for (const QString &name : now.configurationNames)
        watchFile(name);
    if (!std::exchange(myIsGone, false) && now == myKnown)
        return;
    myKnown = now;
    Q_EMIT changed();
}

void CatalogueWatcher::watchFile(const QString &fileName)
{
    if (!myWatcher.files().contains(fileName))
        myWatcher.addPath(fileName);
}
