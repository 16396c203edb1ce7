// Reading a catalogue product by product without using the values, compared with a bare pass of its parser.
#include "Catalogue.h"
#include "Comparison.h"

#include <RVCatalogueReader.h>

#include <QBuffer>
#include <QList>

#include <libxml/parser.h>

#include <cstring>
#include <memory>

namespace {

constexpr int PRODUCTS = 1000;
constexpr int FORMS = 6;

int readProducts(QByteArray catalogue)
{
    QBuffer buffer(&catalogue);
    buffer.open(QIODevice::ReadOnly);
    RVCatalogueReader reader(&buffer);
    int products = 0;
    while (!reader.next().isNull())
        ++products;
    return products;
}

void start(void *data, const xmlChar *name, const xmlChar *, const xmlChar *, int, const xmlChar **, int, int,
           const xmlChar **)
{
    if (std::strcmp(reinterpret_cast<const char *>(name), "product") == 0)
        ++*static_cast<int *>(data);
}

/// Passes 16 KiB at a time, as the reader does.
int parse(const QByteArray &catalogue)
{
    constexpr qsizetype bite = qsizetype(16) * 1024;
    int products = 0;
    xmlSAXHandler events {};
    events.initialized = XML_SAX2_MAGIC;
    events.startElementNs = start;
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> parser(
            xmlCreatePushParserCtxt(&events, &products, nullptr, 0, nullptr), xmlFreeParserCtxt);
    for (qsizetype begin = 0; begin < catalogue.size(); begin += bite)
        xmlParseChunk(parser.get(), catalogue.constData() + begin, int(qMin(bite, catalogue.size() - begin)), 0);
    xmlParseChunk(parser.get(), nullptr, 0, 1);
    return products;
}

}

void addBenchmarks()
{
    Comparison("reader", QList<QByteArray> { catalogueXml(PRODUCTS, FORMS) }, readProducts).against("libxml2", parse);
}
