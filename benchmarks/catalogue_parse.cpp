// usage: catalogue_parse qt|libxml2|expat CATALOGUE
// One bare pass of a parser over a file: it counts elements and attributes and prints both numbers.
#include <QByteArray>
#include <QFile>
#include <QXmlStreamReader>

#include <expat.h>
#include <libxml/parser.h>

#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr qint64 BITE = qint64(64) * 1024;

struct Counts
{
    long long elements = 0;
    long long attributes = 0;
};

bool parseWithQt(QFile *file, Counts *counts)
{
    QXmlStreamReader reader(file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        ++counts->elements;
        counts->attributes += reader.attributes().size();
    }
    return !reader.hasError();
}

void startForLibxml2(void *data, const xmlChar *, const xmlChar *, const xmlChar *, int, const xmlChar **,
                     int attributes, int, const xmlChar **)
{
    auto *counts = static_cast<Counts *>(data);
    ++counts->elements;
    counts->attributes += attributes;
}

bool parseWithLibxml2(QFile *file, Counts *counts)
{
    xmlSAXHandler events {};
    events.initialized = XML_SAX2_MAGIC;
    events.startElementNs = startForLibxml2;
    const std::unique_ptr<xmlParserCtxt, void (*)(xmlParserCtxt *)> parser(
            xmlCreatePushParserCtxt(&events, counts, nullptr, 0, nullptr), xmlFreeParserCtxt);
    QByteArray bite(BITE, Qt::Uninitialized);
    for (qint64 size = file->read(bite.data(), BITE); size > 0; size = file->read(bite.data(), BITE)) {
        if (xmlParseChunk(parser.get(), bite.constData(), int(size), 0) != 0)
            return false;
    }
    return xmlParseChunk(parser.get(), nullptr, 0, 1) == 0;
}

void startForExpat(void *data, const XML_Char *, const XML_Char **attributes)
{
    auto *counts = static_cast<Counts *>(data);
    ++counts->elements;
    for (; *attributes; attributes += 2)
        ++counts->attributes;
}

bool parseWithExpat(QFile *file, Counts *counts)
{
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr), XML_ParserFree);
    XML_SetUserData(parser.get(), counts);
    XML_SetStartElementHandler(parser.get(), startForExpat);
    QByteArray bite(BITE, Qt::Uninitialized);
    for (qint64 size = file->read(bite.data(), BITE); size > 0; size = file->read(bite.data(), BITE)) {
        if (XML_Parse(parser.get(), bite.constData(), int(size), XML_FALSE) != XML_STATUS_OK)
            return false;
    }
    return XML_Parse(parser.get(), nullptr, 0, XML_TRUE) == XML_STATUS_OK;
}

constexpr struct
{
    const char *name;
    bool (*parse)(QFile *, Counts *);
} PARSERS[] = {
    { "qt", parseWithQt },
    { "libxml2", parseWithLibxml2 },
    { "expat", parseWithExpat },
};

}

int main(int argc, char *argv[])
{
    if (argc != 3)
        return 2;
    QFile file(QFile::decodeName(argv[2]));
    Counts counts;
    for (const auto &parser : PARSERS) {
        if (std::strcmp(parser.name, argv[1]) != 0)
            continue;
        if (!file.open(QIODevice::ReadOnly) || !parser.parse(&file, &counts))
            return 2;
    }
    std::printf("%lld elements, %lld attributes\n", counts.elements, counts.attributes);
    return counts.elements > 0 ? 0 : 2;
}
