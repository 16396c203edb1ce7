#include "RVDirectoryConfig.h"

#include <QDir>
#include <QFile>

template class RVSingleton<RVDirectoryConfig>;

QString RVDirectoryConfig::resource(const QString &relativePath, bool) const
{
    if (relativePath.isEmpty()) // otherwise the result would be the first directory itself
        return relativePath;
    const QReadLocker locker(&myLock);
    for (const QString &directory : mySearchDirectories) {
        QString path = QDir(directory).filePath(relativePath);
        if (QFile::exists(path))
            return path;
    }
    return relativePath;
}

void RVDirectoryConfig::addSearchDirectory(const QString &path)
{
    const QWriteLocker locker(&myLock);
    mySearchDirectories += path;
}
