#ifndef CATALOGUEFILE_H
#define CATALOGUEFILE_H

#include <QBuffer>
#include <QByteArray>

/// A file in memory, open for reading.
class CatalogueFile : public QBuffer
{
public:
    explicit CatalogueFile(const QByteArray &content)
    {
        setData(content);
        open(QIODevice::ReadOnly);
    }
};

/// The same, as a slow device that hands out one byte at a time.
class OneByteFile : public CatalogueFile
{
public:
    using CatalogueFile::CatalogueFile;

protected:
    qint64 readData(char *data, qint64) override { return CatalogueFile::readData(data, 1); }
};

#endif
