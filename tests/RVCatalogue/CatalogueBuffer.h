#ifndef CATALOGUEBUFFER_H
#define CATALOGUEBUFFER_H

#include <QBuffer>
#include <QByteArray>

/// A file in memory, open for reading.
class CatalogueBuffer : public QBuffer
{
public:
    explicit CatalogueBuffer(const QByteArray &content)
    {
        setData(content);
        open(QIODevice::ReadOnly);
    }
};

/// The same, as a slow device that returns one byte at a time.
class OneByteFile : public CatalogueBuffer
{
public:
    using CatalogueBuffer::CatalogueBuffer;

protected:
    qint64 readData(char *data, qint64) override { return CatalogueBuffer::readData(data, 1); }
};

#endif
