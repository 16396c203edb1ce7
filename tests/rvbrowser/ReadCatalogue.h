#ifndef READCATALOGUE_H
#define READCATALOGUE_H

#include <LoadedCatalogue.h>
#include <RVCatalogueReader.h>

#include <QBuffer>

/// A catalogue with this content and its findings, as if it were read from a file of that name.
inline CataloguePointer readCatalogue(QByteArray content, const QString &fileName = QString())
{
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    reader.setCheck(RVCatalogueCheck());
    auto result = std::make_shared<LoadedCatalogue>(fileName);
    result->read(&reader);
    return result;
}

#endif
