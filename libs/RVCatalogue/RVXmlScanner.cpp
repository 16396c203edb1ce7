#include "RVXmlScanner_p.h"

#include "RVFilePosition_p.h"

#include <QIODevice>
#include <QStringDecoder>
#include <QUtf8StringView>

#include <libxml/parser.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int DEEPEST_LEVEL = 256;
constexpr qint64 LARGEST_PIECE = 1048576; // 1 MiB
/// The largest tag. The parser compares each attribute of a tag with all others, so the limit keeps that fast.
constexpr qint64 LARGEST_TAG = 65536; // 64 KiB
/// The number of bytes that the parser gets at once. It handles a tag when the tag is complete.
constexpr qsizetype BITE = 16384; // 16 KiB

/// The options of the parser: the text is in UTF-8, even if its first line says otherwise, and references are resolved.
constexpr int OPTIONS = XML_PARSE_NONET | XML_PARSE_IGNORE_ENC | XML_PARSE_NOENT;

/// The errors of the parser as clear messages; %1 is the name from the parser.
struct ErrorText
{
    int code;
    const char *text;
};

// clang-format off
constexpr ErrorText ERROR_TEXTS[] = {
    { XML_ERR_ATTRIBUTE_REDEFINED, QT_TRANSLATE_NOOP("RVCatalogueReader", "the attribute \"%1\" is there twice") },
    { XML_ERR_ATTRIBUTE_NOT_STARTED, QT_TRANSLATE_NOOP("RVCatalogueReader", "the value of an attribute stands in quotes") },
    { XML_ERR_ATTRIBUTE_WITHOUT_VALUE, QT_TRANSLATE_NOOP("RVCatalogueReader", "the attribute \"%1\" has no value") },
    { XML_ERR_LT_IN_ATTRIBUTE, QT_TRANSLATE_NOOP("RVCatalogueReader", "\"<\" is written \"&lt;\" in a value") },
    { XML_ERR_NAME_REQUIRED, QT_TRANSLATE_NOOP("RVCatalogueReader", "\"&\" does not begin an entity here; the letter itself is written \"&amp;\"") },
    { XML_ERR_ENTITYREF_SEMICOL_MISSING, QT_TRANSLATE_NOOP("RVCatalogueReader", "\"&\" does not begin an entity here; the letter itself is written \"&amp;\"") },
    { XML_ERR_INVALID_CHAR, QT_TRANSLATE_NOOP("RVCatalogueReader", "this reference names no character that XML allows") },
    { XML_ERR_INVALID_CHARREF, QT_TRANSLATE_NOOP("RVCatalogueReader", "this reference names no character that XML allows") },
    { XML_ERR_INVALID_DEC_CHARREF, QT_TRANSLATE_NOOP("RVCatalogueReader", "this reference names no character that XML allows") },
    { XML_ERR_INVALID_HEX_CHARREF, QT_TRANSLATE_NOOP("RVCatalogueReader", "this reference names no character that XML allows") },
    { XML_ERR_SPACE_REQUIRED, QT_TRANSLATE_NOOP("RVCatalogueReader", "a blank is missing here") },
    { XML_ERR_GT_REQUIRED, QT_TRANSLATE_NOOP("RVCatalogueReader", "\">\" is missing here") },
    { XML_ERR_DOCUMENT_END, QT_TRANSLATE_NOOP("RVCatalogueReader", "nothing but comments may follow the end of the root element") },
    { XML_ERR_DOCUMENT_EMPTY, QT_TRANSLATE_NOOP("RVCatalogueReader", "nothing but comments may stand in front of the root element") },
    { XML_ERR_HYPHEN_IN_COMMENT, QT_TRANSLATE_NOOP("RVCatalogueReader", "\"--\" cannot stand in a comment") },
    { XML_ERR_MISPLACED_CDATA_END, QT_TRANSLATE_NOOP("RVCatalogueReader", "\"]]>\" is written \"]]&gt;\" in a text") },
    { XML_ERR_RESERVED_XML_NAME, QT_TRANSLATE_NOOP("RVCatalogueReader", "the declaration \"<?xml\" must be the first of the file") },
};
// clang-format on

#if LIBXML_VERSION >= 21200
using ParserError = const xmlError *;
#else
using ParserError = xmlError *;
#endif

/// The letter at the begin of a text in UTF-8; nothing if there is none.
std::optional<char32_t> letterIn(QByteArrayView text)
{
    constexpr qsizetype longestLetter = 4;
    for (qsizetype size = 1; size <= qMin(text.size(), longestLetter); ++size) {
        if (!QUtf8StringView(text.data(), size).isValidUtf8())
            continue;
        // A byte order mark counts as a letter here.
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        return QString(decoder(text.first(size))).toUcs4().value(0);
    }
    return std::nullopt;
}

/// True for a letter that XML forbids.
bool isForbidden(std::optional<char32_t> letter)
{
    const bool isControl = letter && *letter < 0x20 && (*letter == 0 || !std::strchr("\t\r\n", int(*letter)));
    return isControl || letter == char32_t(0xfffe) || letter == char32_t(0xffff);
}

/// A name as a message can show it.
QString shown(QByteArrayView name)
{
    constexpr qsizetype longest = 60;
    return name.size() <= longest ? QString::fromUtf8(name) : QString::fromUtf8(name.first(longest)) + u'…';
}

QString codePoint(char32_t letter)
{
    return "U+"_L1 + QString::number(uint(letter), 16).toUpper().rightJustified(4, u'0');
}

bool isBlank(char letter)
{
    return QByteArrayView(" \t\r\n").contains(letter);
}

/// The name of a tag.
QByteArrayView nameOf(QByteArrayView tag)
{
    const char *begin = tag.begin() + 1;
    return { begin, std::find_if(begin, tag.end(), [](char letter) {
                 return isBlank(letter) || letter == '/' || letter == '>';
             }) };
}

/// The place of the last such letter; 0 if there is none.
qsizetype lastPlace(char letter, QByteArrayView text)
{
    const void *found = ::memrchr(text.data(), letter, std::size_t(text.size()));
    return found ? static_cast<const char *>(found) - text.data() : 0;
}

/// The place of the last "<"; 0 if there is none.
qsizetype lastTag(QByteArrayView text)
{
    return lastPlace('<', text);
}

/// The place of the last "<!--", of which there is one; no comment has another one in it, as "--" is not allowed there.
/// Commented-out elements have many "<" and "-", but hardly any exclamation marks.
qsizetype lastComment(QByteArrayView text)
{
    qsizetype mark = lastPlace('!', text);
    while (mark > 1 && (text[mark - 1] != '<' || !text.sliced(mark + 1).startsWith("--")))
        mark = lastPlace('!', text.first(mark));
    return qMax(qsizetype(0), mark - 1);
}

}

QByteArray RVXmlTag::attributeName(int index) const
{
    const unsigned char *const *attribute = attributes + qptrdiff(index) * 5;
    const QByteArray localName = QByteArrayView(attribute[0]).toByteArray();
    return attribute[1] ? QByteArrayView(attribute[1]).toByteArray() + ':' + localName : localName;
}

QByteArrayView RVXmlTag::attributeValue(int index) const
{
    const unsigned char *const *attribute = attributes + qptrdiff(index) * 5;
    return { attribute[3], attribute[4] };
}

RVXmlHandler::~RVXmlHandler() = default;

void RVXmlHandler::comment(const RVXmlComment &) { }

/// The functions that the parser calls.
struct RVXmlScanner::Events
{
    static RVXmlScanner *scanner(void *data) { return static_cast<RVXmlScanner *>(data); }
    static void start(void *data, const xmlChar *, const xmlChar *, const xmlChar *, int, const xmlChar **,
                      int attributes, int defaultAttributes, const xmlChar **values)
    {
        scanner(data)->startElement(values, attributes - defaultAttributes, attributes);
    }
    static void end(void *data, const xmlChar *, const xmlChar *, const xmlChar *) { scanner(data)->endElement(); }
    static void comment(void *data, const xmlChar *) { scanner(data)->comment(); }
    static void instruction(void *data, const xmlChar *, const xmlChar *) { scanner(data)->passOver(); }
    static void declare(void *data, const xmlChar *, int, const xmlChar *, const xmlChar *, xmlChar *)
    {
        scanner(data)->refuseEntity();
    }
    static void declareUnparsed(void *data, const xmlChar *, const xmlChar *, const xmlChar *, const xmlChar *)
    {
        scanner(data)->refuseEntity();
    }
    static void error(void *data, ParserError error) { scanner(data)->judge(*error); }

    static xmlSAXHandler table()
    {
        xmlSAXHandler result {};
        result.initialized = XML_SAX2_MAGIC;
        result.startElementNs = start;
        result.endElementNs = end;
        result.comment = comment;
        result.processingInstruction = instruction;
        result.entityDecl = declare;
        result.unparsedEntityDecl = declareUnparsed;
        result.serror = error;
        return result;
    }
};

void RVXmlScanner::FreeParser::operator()(_xmlParserCtxt *parser) const
{
    xmlFreeDoc(parser->myDoc); // the parser creates one for a document type
    xmlFreeParserCtxt(parser);
}

RVXmlScanner::RVXmlScanner(QIODevice *device, RVXmlHandler *handler) : mySource(device), myHandler(handler)
{
    xmlInitParser();
    xmlSAXHandler events = Events::table();
    myParser.reset(xmlCreatePushParserCtxt(&events, this, nullptr, 0, nullptr));
    xmlCtxtUseOptions(myParser.get(), OPTIONS);
}

RVXmlScanner::~RVXmlScanner() = default;

QString RVXmlScanner::openError(const QIODevice &file)
{
    return tr("cannot open the file: %1").arg(file.errorString());
}

bool RVXmlScanner::scan()
{
    if (myIsAtEnd)
        return false;
    const QByteArray text = mySource.read();
    if (text.isEmpty()) {
        end();
    } else {
        myWindow.remove(0, myEvent);
        myWindowBegin += std::exchange(myEvent, 0);
        myWindow += text;
        for (QByteArrayView rest = text; !rest.isEmpty() && myError.isEmpty();
             rest = rest.sliced(qMin(BITE, rest.size())))
            bite(rest.first(qMin(BITE, rest.size())));
    }
    return !myIsAtEnd;
}

/// An empty text is the end.
void RVXmlScanner::parse(QByteArrayView text)
{
    xmlParseChunk(myParser.get(), text.data(), int(text.size()), text.isEmpty());
}

void RVXmlScanner::bite(QByteArrayView text)
{
    if (!myHasMarkup && !isXml(text))
        return;
    parse(text);
    myFed += text.size();
    if (!myError.isEmpty())
        return;
    checkPiece(myFed);
    if (myFed - parsed() >= LARGEST_TAG && textFrom(parsed()).startsWith('<')
        && !std::strchr("!?", textFrom(parsed())[1]))
        failAt(tr("a tag is larger than 64 KiB"), parsed());
}

// Only blanks may stand in front of the first "<". The parser's message about other letters would be unclear.
bool RVXmlScanner::isXml(QByteArrayView text)
{
    const auto *visible = std::find_if_not(text.begin(), text.end(), isBlank);
    myHasMarkup = visible != text.end();
    if (myHasMarkup && *visible != '<')
        failAt(tr("this is no XML"), myFed + (visible - text.begin()));
    return myError.isEmpty();
}

void RVXmlScanner::end()
{
    if (mySource.bytesRead() == 0 && mySource.fault().isEmpty())
        return fail(tr("the file is empty"), RVFilePosition());
    if (!mySource.fault().isEmpty())
        return failAt(mySource.fault(), myFed);
    myIsEnding = true;
    parse({});
    myIsAtEnd = true;
}

void RVXmlScanner::startElement(const unsigned char *const *attributes, int givenAttributes, int allAttributes)
{
    if (!myError.isEmpty())
        return;
    // Only the first letter of a tag is "<".
    const qint64 end = parsed();
    moveTo(myWindowBegin + lastTag(textBefore(end)));
    const QByteArrayView text = QByteArrayView(myWindow).sliced(myEvent);
    const qsizetype size = end - myWindowBegin - myEvent;
    const QByteArrayView tag = text.first(qMin(text.size(), size + (text.sliced(size).startsWith('/') ? 2 : 1)));
    if (!myHandler->isInPiece())
        beginPiece(myWindowBegin + myEvent);
    myHasElements = true;
    myOpenElements.push_back({ myOpenNames.size(), myPosition.line });
    myOpenNames.append(nameOf(tag));
    if (myOpenElements.size() > DEEPEST_LEVEL)
        return fail(tr("elements are nested deeper than %1 levels").arg(DEEPEST_LEVEL), myPosition);
    myHandler->startElement({ tag, nameOf(tag), attributes, givenAttributes, allAttributes, myPosition });
    passOver();
}

void RVXmlScanner::endElement()
{
    if (!myError.isEmpty() || myOpenElements.empty())
        return;
    myOpenNames.truncate(myOpenElements.back().nameBegin);
    myOpenElements.pop_back();
    checkPiece(parsed());
    if (!myError.isEmpty())
        return;
    myHandler->endElement();
    passOver();
}

void RVXmlScanner::comment()
{
    constexpr qsizetype begin = 4; // "<!--"
    constexpr qsizetype end = 3; // "-->"
    passOver();
    if (!myError.isEmpty())
        return;
    const qint64 behind = parsed();
    moveTo(myWindowBegin + lastComment(textBefore(behind)));
    const QByteArrayView comment = QByteArrayView(myWindow).sliced(myEvent, behind - myWindowBegin - myEvent);
    myHandler->comment({ comment.sliced(begin).chopped(end), { myPosition, position(behind) } });
}

// An element that is no product has ended.
void RVXmlScanner::passOver()
{
    if (!myError.isEmpty())
        return;
    checkPiece(parsed());
    if (!myHandler->isInPiece())
        beginPiece(parsed());
}

void RVXmlScanner::refuseEntity()
{
    const qsizetype begin = textBefore(parsed()).lastIndexOf("<!ENTITY");
    failAt(tr("entity declarations are not supported"), myWindowBegin + begin);
}

void RVXmlScanner::refuseUnknownEntity(const QString &name, QByteArrayView before)
{
    const qsizetype reference = before.lastIndexOf('&');
    const qsizetype parameter = before.lastIndexOf('%');
    if (parameter > reference)
        return failAt(tr("parameter entities are not supported"), myWindowBegin + parameter);
    failAt(tr("the entity \"%1\" is not declared; write the letter itself").arg(name), myWindowBegin + reference);
}

/// The number of bytes that the parser has processed.
qint64 RVXmlScanner::parsed() const
{
    return xmlByteConsumed(myParser.get());
}

QByteArrayView RVXmlScanner::textBefore(qint64 index) const
{
    return QByteArrayView(myWindow).first(index - myWindowBegin);
}

QByteArrayView RVXmlScanner::textFrom(qint64 index) const
{
    return QByteArrayView(myWindow).sliced(index - myWindowBegin);
}

RVFilePosition RVXmlScanner::position(qint64 index) const
{
    const qsizetype place = index - myWindowBegin;
    const char next = place < myWindow.size() ? myWindow.at(place) : '\0';
    return rvAdvanced(myPosition, QByteArrayView(myWindow).sliced(myEvent, place - myEvent), next);
}

void RVXmlScanner::moveTo(qint64 index)
{
    myPosition = position(index);
    myEvent = index - myWindowBegin;
}

void RVXmlScanner::beginPiece(qint64 index)
{
    myPieceBegin = index;
    myPiecePosition = myPosition;
}

void RVXmlScanner::checkPiece(qint64 end)
{
    if (end - myPieceBegin > LARGEST_PIECE && myError.isEmpty())
        fail(tr("an element, text, comment or declaration is larger than 1 MiB"), myPiecePosition);
}

void RVXmlScanner::fail(const QString &error, const RVFilePosition &position)
{
    if (!myError.isEmpty())
        return;
    myError = error;
    myErrorPosition = position;
    myIsAtEnd = true;
    xmlStopParser(myParser.get());
}

void RVXmlScanner::failAt(const QString &error, qint64 index)
{
    fail(error, position(qBound(myWindowBegin + myEvent, index, myWindowBegin + myWindow.size())));
}

// An error at the end of the file means that the file is cut off, even if the parser calls it something else.
void RVXmlScanner::failEarly()
{
    if (myOpenElements.empty())
        return failAt(tr("the file ends too early"), myFed);
    const OpenElement &open = myOpenElements.back();
    failAt(tr("the file ends too early: <%1>, which was opened in line %2, is not closed")
                   .arg(shown(innermostName()), QString::number(open.line)),
           myFed);
}

void RVXmlScanner::judge(const _xmlError &error)
{
    const bool isUnknownEntity = error.code == XML_ERR_UNDECLARED_ENTITY || error.code == XML_WAR_UNDECLARED_ENTITY;
    if (!myError.isEmpty() || (error.level != XML_ERR_FATAL && !isUnknownEntity))
        return;
    const qint64 index = qBound(myWindowBegin + myEvent, parsed(), myWindowBegin + myWindow.size());
    const QByteArrayView before = textBefore(index);
    if (isUnknownEntity)
        return refuseUnknownEntity(shown(QByteArrayView(error.str1)), before);
    if (error.code == XML_ERR_TAG_NAME_MISMATCH && !myOpenElements.empty() && !before.isEmpty())
        return failAt(wrongEnd(before), myWindowBegin + lastTag(before));
    const bool isUnfinished = !myOpenElements.empty() || !myHasElements || error.code == XML_ERR_COMMENT_NOT_FINISHED
            || error.code == XML_ERR_PI_NOT_FINISHED;
    if (myIsEnding && isUnfinished && !isForbidden(letterIn(textFrom(index))))
        return failEarly();
    failAt(wrongLetter(textFrom(index)).value_or(parserError(error, before)), index);
}

QByteArrayView RVXmlScanner::innermostName() const
{
    return QByteArrayView(myOpenNames).sliced(myOpenElements.back().nameBegin);
}

/// The parser stands behind the name of the wrong tag.
QString RVXmlScanner::wrongEnd(QByteArrayView text) const
{
    const OpenElement &open = myOpenElements.back();
    const QByteArrayView tag = text.sliced(qMin(lastTag(text) + 1, text.size() - 1));
    return tr("</%1> closes <%2>, which was opened in line %3")
            .arg(shown(nameOf(tag)), shown(innermostName()), QString::number(open.line));
}

/// The message about a letter that XML forbids; empty for any other letter.
std::optional<QString> RVXmlScanner::wrongLetter(QByteArrayView text) const
{
    const std::optional<char32_t> letter = letterIn(text);
    if (!letter)
        return text.isEmpty() ? std::nullopt : std::optional(mySource.wrongEncodingText());
    if (!isForbidden(letter))
        return std::nullopt;
    return tr("the character %1 is not allowed in XML").arg(codePoint(*letter));
}

QString RVXmlScanner::parserError(const _xmlError &error, QByteArrayView before) const
{
    const auto *known = std::find_if(std::begin(ERROR_TEXTS), std::end(ERROR_TEXTS),
                                     [&error](const ErrorText &each) { return each.code == error.code; });
    if (known == std::end(ERROR_TEXTS))
        return QString::fromUtf8(error.message).simplified();
    if (error.code == XML_ERR_NAME_REQUIRED && before.endsWith('<'))
        return tr(R"("<" does not begin a tag here; the letter itself is written "&lt;")");
    const QString text = tr(known->text);
    return text.contains("%1"_L1) ? text.arg(shown(QByteArrayView(error.str1))) : text;
}
