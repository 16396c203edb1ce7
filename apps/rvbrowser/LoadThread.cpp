#include "LoadThread.h"

#include "ObservedFile.h"

#include <CatalogueChecker.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// What the reader says of files that are not what they should be; all else comes from Qt.
[[maybe_unused]] constexpr const char *READER_TEXTS[] = {
    QT_TRANSLATE_NOOP("CatalogueReader", "the file is empty"),
    QT_TRANSLATE_NOOP("CatalogueReader", "the file ends too early"),
    QT_TRANSLATE_NOOP("CatalogueReader", "entity declarations are not supported"),
    QT_TRANSLATE_NOOP("CatalogueReader", "an element, text, comment or declaration is larger than 1 MiB"),
};

QString translated(const QString &readerText)
{
    return QCoreApplication::translate("CatalogueReader", readerText.toUtf8().constData());
}

}

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
        myError = LoadError { myFileName, reader.errorPosition(), translated(reader.errorString()) };
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
        myError = LoadError { myFileName, result.errorPosition, translated(result.error) };
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
    if (file->open(QIODevice::ReadOnly))
        return true;
    myError = LoadError { myFileName, std::nullopt, tr("cannot open the file: %1").arg(file->errorString()) };
    return false;
}
