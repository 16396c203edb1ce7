#ifndef CATALOGUEBUFFER_H
#define CATALOGUEBUFFER_H

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QByteArray>
#include <QList>

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

inline QList<RVCatalogueProduct> productsOf(const QByteArray &content)
{
    CatalogueBuffer file(content);
    return RVCatalogueReader(&file).readAll();
}

inline RVCatalogueProduct firstProduct(const QByteArray &content)
{
    CatalogueBuffer file(content);
    return RVCatalogueReader(&file).next();
}

#endif
