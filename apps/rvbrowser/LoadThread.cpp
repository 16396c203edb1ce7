#include "LoadThread.h"

#include "ObservedFile.h"

#include <CatalogueChecker.h>

#include <QFileInfo>

using namespace Qt::StringLiterals;

void LoadThread::run()
{
    auto catalogue = std::make_shared<LoadedCatalogue>(myFileName);
    if (readProducts(catalogue.get()) && readFindings(catalogue.get()))
        myCatalogue = catalogue;
}

bool LoadThread::readProducts(LoadedCatalogue *catalogue)
{
    ObservedFile file(myFileName, [this](int percent) { return report(percent / 2); });
    if (!open(&file))
        return false;
    CatalogueReader reader(&file, u"product"_s);
    for (QDomElement element = reader.next(); !element.isNull(); element = reader.next()) {
        if (isInterruptionRequested())
            return false;
        catalogue->append(element, reader.position());
    }
    if (isInterruptionRequested())
        return false;
    if (reader.hasError())
        myError = LoadError { myFileName, reader.errorPosition(), reader.errorString() };
    else if (catalogue->size() == 0)
        myError = LoadError { myFileName, std::nullopt, tr("there is no product in this file") };
    return !myError;
}

bool LoadThread::readFindings(LoadedCatalogue *catalogue)
{
    ObservedFile file(myFileName, [this](int percent) { return report(50 + percent / 2); });
    if (!open(&file))
        return false;
    QList<CatalogueFinding> findings;
    const CatalogueCheckResult result = CatalogueChecker().check(
            &file, [&findings](const CatalogueFinding &finding) { findings += finding; });
    if (isInterruptionRequested())
        return false;
    if (!result.error.isEmpty()) // it has changed since its products were read
        myError = LoadError { myFileName, result.errorPosition, result.error };
    catalogue->setFindings(findings);
    return !myError;
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

bool LoadThread::open(ObservedFile *file)
{
    // A pipe would wait for whoever writes into it, and can be read but once.
    const QFileInfo info(myFileName);
    const bool isReadable = !info.exists() || info.isFile();
    if (isReadable && file->open(QIODevice::ReadOnly))
        return true;
    const QString reason = isReadable ? file->errorString() : tr("it is no regular file");
    myError = LoadError { myFileName, std::nullopt, tr("cannot open the file: %1").arg(reason) };
    return false;
}
