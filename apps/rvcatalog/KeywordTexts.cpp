#include "KeywordTexts.h"

#include "JsonValues.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString hexadecimal(qint64 value)
{
    return "0x"_L1 + QString::number(value, 16).toUpper();
}

/// Writes rows in columns that are as wide as their widest text.
void writeTable(QTextStream &out, const QList<QStringList> &rows)
{
    QList<qsizetype> widths(rows.first().size());
    for (const QStringList &row : rows) {
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = qMax(widths.at(i), row.at(i).size());
    }
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i)
            line += row.at(i).leftJustified(widths.at(i) + 2);
        while (line.endsWith(u' '))
            line.chop(1);
        out << line << '\n';
    }
}

void writeKeywords(QTextStream &out, const RVCatalogueAttribute &attribute)
{
    QList<QStringList> rows = { { u"VALUE"_s, u"KEYWORD"_s, u"ALIASES"_s, u"NAME"_s } };
    for (const RVCatalogueAttributeValue &value : attribute.values())
        rows += { hexadecimal(value.value), value.keyword, value.aliases.join(", "_L1), value.displayName };
    out << attribute.name() << '\n';
    writeTable(out, rows);
}

void writeDecoding(QTextStream &out, const RVCatalogueAttributeDecoding &decoding)
{
    out << "Value     " << hexadecimal(decoding.value) << '\n';
    if (!decoding.keyword.isEmpty())
        out << "Keyword   " << decoding.keyword << '\n';
    if (!decoding.keywords.isEmpty())
        out << "Bits      " << decoding.keywords.join(", "_L1) << '\n';
    if (!decoding.displayName.isEmpty())
        out << "Name      " << decoding.displayName << '\n';
}

void writeValues(JsonWriter &json, const RVCatalogueAttribute &attribute)
{
    json.beginArray();
    for (const RVCatalogueAttributeValue &value : attribute.values()) {
        json.beginObject();
        json.key("aliases"_L1);
        writeTexts(json, value.aliases);
        json.key("keyword"_L1);
        json.value(value.keyword);
        json.key("value"_L1);
        json.value(value.value);
        json.endObject();
    }
    json.endArray();
}

void writeAttribute(JsonWriter &json, const RVCatalogueAttribute &attribute)
{
    json.beginObject();
    json.key("attribute"_L1);
    json.value(attribute.name());
    json.key("of_products"_L1);
    json.value(RVCatalogueAttribute::ofProducts().contains(attribute));
    json.key("values"_L1);
    writeValues(json, attribute);
    json.endObject();
}

void writeDecoding(JsonWriter &json, const RVCatalogueAttribute &attribute, const KeywordDecoding &decoding)
{
    json.beginObject();
    json.key("attribute"_L1);
    json.value(attribute.name());
    json.key("keyword"_L1);
    writeText(json, decoding.meaning.keyword);
    json.key("keywords"_L1);
    writeTexts(json, decoding.meaning.keywords);
    json.key("text"_L1);
    json.value(decoding.text);
    json.key("unknown"_L1);
    writeTexts(json, decoding.meaning.unknownPieces);
    json.key("value"_L1);
    json.value(decoding.meaning.value);
    json.endObject();
}

/// An array with what @p write makes of each element, one on each line.
template<typename Element, typename Write>
std::string linesJson(const QList<Element> &elements, Write write)
{
    JsonWriter json;
    QList<std::string> lines;
    for (const Element &element : elements) {
        write(json, element);
        lines += json.take();
    }
    json.lines(lines);
    return json.take() + '\n';
}

}

void writeKeywords(const QList<RVCatalogueAttribute> &attributes, const Console &console)
{
    QTextStream out(console.output);
    for (const RVCatalogueAttribute &attribute : attributes) {
        if (attribute != attributes.constFirst())
            out << '\n';
        writeKeywords(out, attribute);
    }
}

std::string keywordsJson(const QList<RVCatalogueAttribute> &attributes)
{
    return linesJson(attributes, writeAttribute);
}

void writeDecodings(const QList<KeywordDecoding> &decodings, const Console &console)
{
    QTextStream out(console.output);
    bool isFirst = true;
    for (const KeywordDecoding &decoding : decodings) {
        if (!isFirst)
            out << '\n';
        writeDecoding(out, decoding.meaning);
        isFirst = false;
    }
}

std::string decodingsJson(const RVCatalogueAttribute &attribute, const QList<KeywordDecoding> &decodings)
{
    return linesJson(decodings, [&attribute](JsonWriter &json, const KeywordDecoding &decoding) {
        writeDecoding(json, attribute, decoding);
    });
}
