#include "FileStamp.h"

#include <QFileInfo>

FileStamp FileStamp::of(const QString &fileName)
{
    const QFileInfo info(fileName);
    return { info.exists(), info.size(), info.lastModified(), info.metadataChangeTime() };
}
