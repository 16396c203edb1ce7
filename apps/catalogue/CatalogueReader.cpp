#include "CatalogueReader.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int DEEPEST_LEVEL = 256;
/// The parser takes it for the end of the file when a read gives it no whole character, which is four bytes at most.
constexpr qint64 SMALLEST_READ = 4;
constexpr QByteArrayView ENTITY_DECLARATION("<!ENTITY");

}

BoundedInput::BoundedInput(QIODevice *source) : mySource(source)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 BoundedInput::readData(char *data, qint64 maxSize)
{
    if (!myRefusal.isEmpty())
        return 0;
    if (myPieceSize >= LIMIT) {
        myRefusal = CatalogueReader::tr("an element, text, comment or declaration is larger than 1 MiB");
        return 0;
    }
    qint64 size = readSource(data, qMin(maxSize, LIMIT - myPieceSize));
    if (size < 0) {
        // A device that has come to its end may say so in this way too.
        if (!mySource->atEnd())
            myRefusal = CatalogueReader::tr("cannot read on: %1").arg(mySource->errorString());
        return 0;
    }
    if (myInProlog)
        size = sizeBeforeEntity(data, size);
    myUtf8Check.read({ data, size });
    myPieceSize += size;
    myTotalSize += size;
    return size;
}

qint64 BoundedInput::readSource(char *data, qint64 maxSize)
{
    const auto nextSize = [&](qint64 size) { return myInProlog ? 1 : maxSize - size; };
    qint64 size = mySource->read(data, nextSize(0));
    while (size > 0 && size < maxSize && !isEnough(data, size)) {
        const qint64 more = mySource->read(data + size, nextSize(size));
        if (more <= 0)
            break;
        size += more;
    }
    return size;
}

// Any tag of the prolog may be the root's. Then the prolog is over, and what follows may well name entities.
bool BoundedInput::isEnough(const char *data, qint64 size) const
{
    if (size < SMALLEST_READ)
        return false;
    if (!myInProlog)
        return true;
    if (!QByteArrayView(data, size).contains('>'))
        return false;
    char next = 0;
    const bool isHalfRead = data[size - 1] == '>' && mySource->peek(&next, 1) == 1 && next == '\0'; // in UTF-16
    return !isHalfRead;
}

qint64 BoundedInput::sizeBeforeEntity(const char *data, qint64 size)
{
    for (qint64 i = 0; i < size; ++i) {
        if (data[i] == '\0')
            continue;
        count(uchar(data[i]));
        myProlog += data[i];
        if (myProlog.endsWith(ENTITY_DECLARATION)) {
            myRefusal = CatalogueReader::tr("entity declarations are not supported");
            return i + 1;
        }
    }
    myProlog = myProlog.right(ENTITY_DECLARATION.size());
    return size;
}

// In UTF-8; of other encodings the letters of ASCII are counted right.
void BoundedInput::count(uchar byte)
{
    const bool isByteOrderMark = myPosition.line == 1 && myPosition.column == 1 && (byte == 0xef || byte >= 0xfe);
    const bool isContinuation = byte >= 0x80 && byte < 0xc0;
    if (byte == '<')
        myTagPosition = myPosition;
    if (byte == '\n')
        myPosition = { myPosition.line + 1, 1 };
    else if (!isByteOrderMark && !isContinuation)
        ++myPosition.column;
}

CatalogueReader::CatalogueReader(QIODevice *device, const QString &elementName)
    : myInput(device),
      myXml(&myInput),
      myElementName(elementName)
{
    myXml.setNamespaceProcessing(false);
}

QDomElement CatalogueReader::next()
{
    if (!findElement())
        return QDomElement();
    myDocument = QDomDocument();
    return readContent(appendElement(QDomNode()));
}

bool CatalogueReader::read(CatalogueBatch *batch, qsizetype textSize)
{
    const int sizeBefore = batch->size();
    while (batch->textSize() < textSize && findElement()) {
        batch->startElement(myXml.qualifiedName(), myXml.attributes(), myPosition);
        if (!readContent(batch))
            batch->dropUnfinished();
    }
    return batch->size() > sizeBefore;
}

QDomElement CatalogueReader::rootStart()
{
    while (!myXml.atEnd()) {
        if (readToken() == QXmlStreamReader::StartElement) {
            myPosition = currentPosition();
            return appendElement(QDomNode());
        }
        myInput.startPiece();
    }
    return QDomElement();
}

bool CatalogueReader::finish()
{
    while (!myXml.atEnd()) {
        readToken();
        myInput.startPiece();
    }
    return !hasError();
}

QString CatalogueReader::errorString() const
{
    if (!myInput.refusal().isEmpty())
        return myInput.refusal();
    if (myInput.totalSize() == 0)
        return tr("the file is empty");
    if (encodingFault())
        return tr("this is not encoded in UTF-8, as files are that do not say otherwise in their first line");
    if (myXml.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        return tr("the file ends too early");
    return myXml.errorString().simplified();
}

FilePosition CatalogueReader::errorPosition() const
{
    return encodingFault().value_or(currentPosition());
}

// The parser decodes far ahead of what it parses, and stops there: in the tag before, or as if the file ended.
std::optional<FilePosition> CatalogueReader::encodingFault() const
{
    return myIsUtf8 && myInput.refusal().isEmpty() ? myInput.utf8Fault() : std::nullopt;
}

bool CatalogueReader::findElement()
{
    while (!myXml.atEnd()) {
        const bool isBeforeRoot = myDepth == 0;
        const FilePosition start = nextPosition();
        if (readToken() == QXmlStreamReader::StartElement && myXml.qualifiedName() == myElementName) {
            // White space between the prolog and the root is no token, so the root does not follow the one before it.
            myPosition = isBeforeRoot ? myInput.rootPosition() : start;
            return true;
        }
        myInput.startPiece();
    }
    return false;
}

// The parser counts the characters that it has seen of the line; the last one is the faulty one.
FilePosition CatalogueReader::currentPosition() const
{
    return { myXml.lineNumber(), qMax(qint64(1), myXml.columnNumber()) };
}

// A text ends where the parser sees the "<" behind it; everything else, a CDATA section too, ends before.
FilePosition CatalogueReader::nextPosition() const
{
    const bool hasSeenNext = myXml.isCharacters() && !myXml.isCDATA();
    return { myXml.lineNumber(), myXml.columnNumber() + (hasSeenNext ? 0 : 1) };
}

QXmlStreamReader::TokenType CatalogueReader::readToken()
{
    const auto token = myXml.readNext();
    switch (token) {
    case QXmlStreamReader::StartDocument:
        myIsUtf8 = myXml.documentEncoding().isEmpty()
                || myXml.documentEncoding().compare("UTF-8"_L1, Qt::CaseInsensitive) == 0;
        break;
    case QXmlStreamReader::StartElement:
        myInput.leaveProlog();
        if (++myDepth > DEEPEST_LEVEL)
            myXml.raiseError(tr("elements are nested deeper than %1 levels").arg(DEEPEST_LEVEL));
        break;
    case QXmlStreamReader::EndElement:
        --myDepth;
        break;
    case QXmlStreamReader::EntityReference:
        myXml.raiseError(tr("the entity \"%1\" is not declared").arg(myXml.name()));
        break;
    default:
        break;
    }
    return myXml.hasError() ? QXmlStreamReader::Invalid : token;
}

// Appends the element that starts; to the document itself where there is no parent yet.
QDomElement CatalogueReader::appendElement(QDomNode parent)
{
    QDomElement element = myDocument.createElement(myXml.qualifiedName().toString());
    const auto attributes = myXml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        element.setAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    (parent.isNull() ? myDocument : parent).appendChild(element);
    return element;
}

// Builds the content of an element whose start was read, up to and with its end.
QDomElement CatalogueReader::readContent(const QDomElement &element)
{
    QDomNode current = element;
    while (!myXml.hasError()) {
        switch (readToken()) {
        case QXmlStreamReader::StartElement:
            current = appendElement(current);
            break;
        case QXmlStreamReader::EndElement:
            if (current == element) {
                myInput.startPiece();
                return element;
            }
            current = current.parentNode();
            break;
        case QXmlStreamReader::Characters:
            current.appendChild(myDocument.createTextNode(myXml.text().toString()));
            break;
        default:
            break;
        }
    }
    return QDomElement();
}

// The same into a batch; false after an error.
bool CatalogueReader::readContent(CatalogueBatch *batch)
{
    int openElements = 1;
    while (openElements > 0) {
        const FilePosition start = nextPosition();
        switch (readToken()) {
        case QXmlStreamReader::StartElement:
            ++openElements;
            batch->startElement(myXml.qualifiedName(), myXml.attributes(), start);
            break;
        case QXmlStreamReader::EndElement:
            --openElements;
            batch->endElement();
            break;
        case QXmlStreamReader::Invalid:
            return false;
        default:
            break;
        }
    }
    myInput.startPiece();
    return true;
}
