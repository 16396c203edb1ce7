#ifndef RVDIRECTORYCONFIG_H
#define RVDIRECTORYCONFIG_H

#include "RVCoreExport.h"
#include "RVSingleton.h"

#include <QReadWriteLock>
#include <QStringList>

class RVDirectoryConfig;

extern template class RVCORE_EXPORT RVSingleton<RVDirectoryConfig>;

/// Finds the application's resource files. Any thread.
/// @par Example
/// @snippet tst_examples_platform.cpp RVDirectoryConfig
/// @ingroup platform
class RVCORE_EXPORT RVDirectoryConfig : public RVSingleton<RVDirectoryConfig>
{
public:
    /// The path of a resource under the first search directory that has it, otherwise the relative path unchanged. The
    /// second argument has no effect.
    QString resource(const QString &relativePath, bool) const;
    /// Adds a directory to the end of the search path.
    void addSearchDirectory(const QString &path);

private:
    mutable QReadWriteLock myLock;
    QStringList mySearchDirectories;
};

#endif
