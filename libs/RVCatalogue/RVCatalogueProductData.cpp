#include "RVCatalogueProductData_p.h"

#include "RVXmlScanner_p.h"

#include <algorithm>

namespace {

/// Iterates over the attributes of a start tag that is known to be well-formed.
class TagWalker
{
public:
    explicit TagWalker(const RVXmlTag &tag) : myTag(tag.text), myAt(tag.name.end()) { }

    /// The place of the next attribute in the tag; its name is empty if there is none.
    RVCatalogueRows::Attribute next()
    {
        const char *name = std::find_if_not(myAt, myTag.end(), isBlank);
        const char *equals = find(name, '=');
        const char *quote = std::find_if(equals, myTag.end(), isQuote);
        const char *end = quote == myTag.end() ? quote : find(quote + 1, *quote);
        if (end == myTag.end())
            return {};
        myAt = end + 1;
        return { piece(name, std::find_if(name, equals, isBlank)), piece(quote + 1, end), place(myAt) };
    }

private:
    static bool isBlank(char letter) { return letter == ' ' || letter == '\t' || letter == '\n' || letter == '\r'; }
    static bool isQuote(char letter) { return letter == '"' || letter == '\''; }
    const char *find(const char *from, char letter) const { return std::find(from, myTag.end(), letter); }

    quint32 place(const char *letter) const { return quint32(letter - myTag.begin()); }
    RVCatalogueRows::Piece piece(const char *begin, const char *end) const
    {
        return { place(begin), quint32(end - begin) };
    }

    QByteArrayView myTag;
    const char *myAt;
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
        attributes.push_back({ append(tag.attributeName(i)), append(tag.attributeValue(i)) });
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
