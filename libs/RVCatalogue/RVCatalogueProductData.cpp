#include "RVCatalogueProductData_p.h"

#include "RVXmlScanner_p.h"

#include <cstring>

namespace {

/// Iterates over the attributes of a start tag that is known to be well-formed.
class TagWalker
{
public:
    explicit TagWalker(const RVXmlTag &tag) : myTag(tag.text), myAt(1 + tag.name.size()) { }

    /// The place of the next attribute in the tag; its name is empty if there is none.
    RVCatalogueRows::Attribute next()
    {
        skipBlanks();
        const qsizetype name = myAt;
        const qsizetype equals = isAtEnd() ? -1 : indexOf('=', name);
        if (equals < 0)
            return {};
        qsizetype nameEnd = equals;
        while (isBlank(myTag[nameEnd - 1]))
            --nameEnd;
        myAt = equals + 1;
        skipBlanks();
        const qsizetype value = myAt + 1;
        const qsizetype valueEnd = isAtEnd() ? -1 : indexOf(myTag[myAt], value);
        if (valueEnd < 0)
            return {};
        myAt = valueEnd + 1;
        return { piece(name, nameEnd), piece(value, valueEnd), quint32(myAt) };
    }

private:
    static bool isBlank(char letter) { return letter == ' ' || letter == '\t' || letter == '\n' || letter == '\r'; }
    static RVCatalogueRows::Piece piece(qsizetype begin, qsizetype end)
    {
        return { quint32(begin), quint32(end - begin) };
    }

    bool isAtEnd() const { return myAt >= myTag.size() || myTag[myAt] == '>' || myTag[myAt] == '/'; }
    void skipBlanks()
    {
        while (myAt < myTag.size() && isBlank(myTag[myAt]))
            ++myAt;
    }
    qsizetype indexOf(char letter, qsizetype from) const
    {
        const void *found = std::memchr(myTag.data() + from, letter, std::size_t(myTag.size() - from));
        return found ? static_cast<const char *>(found) - myTag.data() : -1;
    }

    QByteArrayView myTag;
    qsizetype myAt;
};

/// True if the attribute of the tag is the one that the parser has at the index. Name space declarations are attributes
/// in the tag, but not for the parser.
bool isParsed(QByteArrayView name, const RVXmlTag &tag, int index)
{
    return index < tag.givenAttributes && (!name.startsWith("xmlns") || name == tag.attributeName(index));
}

}

void RVCatalogueRows::append(const RVXmlTag &tag)
{
    const auto index = quint32(elements.size());
    const auto firstAttribute = quint32(attributes.size());
    const Piece piece = append(tag.text);
    appendGiven(tag, piece.begin);
    for (int i = tag.givenAttributes; i < tag.allAttributes; ++i)
        attributes.push_back({ append(tag.attributeName(i)), append(tag.attributeValue(i)), 0 });
    elements.push_back(
            { piece, quint32(tag.name.size()), firstAttribute, quint32(attributes.size()), index + 1, tag.position });
}

// XML reads references, tabs and line ends in a value as other letters. Such a value is stored behind the tags.
void RVCatalogueRows::appendGiven(const RVXmlTag &tag, quint32 begin)
{
    TagWalker walker(tag);
    int parsed = 0;
    for (Attribute attribute = walker.next(); attribute.name.size > 0; attribute = walker.next()) {
        const QByteArrayView name = tag.text.sliced(attribute.name.begin, attribute.name.size);
        const QByteArrayView given = tag.text.sliced(attribute.value.begin, attribute.value.size);
        attribute.name.begin += begin;
        attribute.value.begin += begin;
        attribute.end += begin;
        const QByteArrayView value = isParsed(name, tag, parsed) ? tag.attributeValue(parsed++) : given;
        if (value != given)
            attribute.value = append(value);
        attributes.push_back(attribute);
    }
}

RVCatalogueRows::Piece RVCatalogueRows::append(QByteArrayView bytes)
{
    const Piece result { quint32(text.size()), quint32(bytes.size()) };
    text.append(bytes);
    return result;
}
