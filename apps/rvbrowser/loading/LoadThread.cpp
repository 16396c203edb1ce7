#include "LoadThread.h"

#include "ObservedFile.h"

#include <RVCatalogueReader.h>

void LoadThread::run()
{
    const FileStamp stamp = FileStamp::of(myFileName);
    ObservedFile file(myFileName, [this](int percent) { return report(percent); });
    file.setCopy(myCopy.get());
    if (!open(&file, myFileName))
        return;
    RVCatalogueReader reader(&file);
    const RVCheckConfiguration configuration = RVCheckConfiguration::find(myFileName);
    const auto catalogue = std::make_shared<LoadedCatalogue>(myFileName);
    catalogue->setStamp(stamp);
    catalogue->setConfiguration(configuration);
    reader.setCheck(catalogue->check());
    catalogue->read(&reader);
    if (myCopy)
        myCopy->finish();
    if (isInterruptionRequested())
        return;
    if (reader.hasError())
        fail({ myFileName, reader.errorPosition(), reader.errorString() });
    else if (catalogue->size() == 0)
        fail({ myFileName, std::nullopt, tr("there is no product in this file") });
    else
        myCatalogue = catalogue;
}
