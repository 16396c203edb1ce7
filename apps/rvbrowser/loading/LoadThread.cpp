#include "LoadThread.h"

#include "ObservedFile.h"

#include <RVCatalogueReader.h>

#include <QFileInfo>

void LoadThread::run()
{
    const FileStamp stamp = FileStamp::of(myFileName);
    ObservedFile file(myFileName, [this](int percent) { return report(percent); });
    if (!open(&file))
        return;
    RVCatalogueReader reader(&file);
    const RVCheckConfiguration configuration = RVCheckConfiguration::find(myFileName);
    const auto catalogue = std::make_shared<LoadedCatalogue>(myFileName);
    catalogue->setStamp(stamp);
    catalogue->setConfiguration(configuration);
    reader.setCheck(catalogue->check());
    catalogue->read(&reader);
    if (isInterruptionRequested())
        return;
    if (reader.hasError())
        myError = LoadError { myFileName, reader.errorPosition(), reader.errorString() };
    else if (catalogue->size() == 0)
        myError = LoadError { myFileName, std::nullopt, tr("there is no product in this file") };
    else
        myCatalogue = catalogue;
}

bool LoadThread::open(ObservedFile *file)
{
    // A pipe would wait for whoever writes into it, and can be read only once.
    const QFileInfo info(myFileName);
    const bool isReadable = !info.exists() || info.isFile();
    if (isReadable && file->open(QIODevice::ReadOnly))
        return true;
    const QString reason = isReadable ? file->errorString() : tr("it is no regular file");
    myError = LoadError { myFileName, std::nullopt, tr("cannot open the file: %1").arg(reason) };
    return false;
}

// False when the thread is to end.
bool LoadThread::report(int percent)
{
    if (percent != myPercent) {
        myPercent = percent;
        Q_EMIT progressed(percent);
    }
    return !isInterruptionRequested();
}
