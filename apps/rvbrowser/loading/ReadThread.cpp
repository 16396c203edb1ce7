#include "ReadThread.h"

#include "ObservedFile.h"

#include <QFileInfo>

bool ReadThread::open(ObservedFile *file, const QString &shownName)
{
    // A pipe would wait for the program that writes into it, and can be read only once.
    const QFileInfo info(file->fileName());
    const bool isReadable = !info.exists() || info.isFile();
    if (isReadable && file->open(QIODevice::ReadOnly))
        return true;
    const QString reason = isReadable ? file->errorString() : tr("it is no regular file");
    fail({ shownName, std::nullopt, tr("cannot open the file: %1").arg(reason) });
    return false;
}

bool ReadThread::report(int percent)
{
    if (percent != myPercent) {
        myPercent = percent;
        Q_EMIT progressed(percent);
    }
    return !isInterruptionRequested();
}
