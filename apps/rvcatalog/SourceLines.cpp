#include "SourceLines.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 READ_SIZE = qint64(64) * 1024;
constexpr qsizetype LONGEST_LINE = 1000000; // letters

QStringDecoder decoderFor(const QByteArray &begin)
{
    if (const auto known = QStringConverter::encodingForData(begin, u'<'))
        return QStringDecoder(*known);
    static const QRegularExpression declaration(u"^<\\?xml\\s[^>]*\\bencoding\\s*=\\s*[\"']([^\"'>]+)"_s);
    const QRegularExpressionMatch match = declaration.match(QString::fromLatin1(begin));
    return match.hasMatch() ? QStringDecoder(match.captured(1).toLatin1().constData())
                            : QStringDecoder(QStringConverter::Utf8);
}

}

SourceLines::SourceLines(const QString &fileName) : myFile(fileName)
{
    if (QFileInfo(fileName).isFile())
        myFile.open(QIODevice::ReadOnly);
}

QString SourceLines::line(qint64 number)
{
    if ((myNumber == 0 || number < myNumber) && !begin())
        return QString();
    while (myNumber < number) {
        if (!readLine())
            return QString();
    }
    return myLine;
}

bool SourceLines::begin()
{
    constexpr qint64 longestDeclaration = 1024;
    myNumber = 0;
    myBegin = 0;
    myText.clear();
    if (!myFile.isOpen() || !myFile.seek(0))
        return false;
    myDecoder = decoderFor(myFile.peek(longestDeclaration));
    return myDecoder.isValid();
}

bool SourceLines::readLine()
{
    const std::optional<qsizetype> length = findLength();
    if (!length || myBegin == myText.size())
        return false;
    myLine = myText.mid(myBegin, *length);
    const qsizetype end = myBegin + *length;
    const bool hasTwoLetters = QStringView(myText).sliced(end).startsWith("\r\n"_L1);
    myBegin = qMin(end + (hasTwoLetters ? 2 : 1), myText.size());
    ++myNumber;
    return true;
}

/// The length of the current line; nothing if the line is too long.
std::optional<qsizetype> SourceLines::findLength()
{
    qsizetype length = 0;
    while (true) {
        const QStringView text = QStringView(myText).sliced(myBegin);
        while (length < text.size() && text[length] != u'\n' && text[length] != u'\r')
            ++length;
        // A line feed that follows a carriage return belongs to it.
        if (length + 1 < text.size() || (length < text.size() && text[length] == u'\n'))
            return length;
        if (length > LONGEST_LINE)
            return std::nullopt;
        if (!readPiece())
            return length;
    }
}

/// Reads on, and drops the lines before. False at the end of the file.
bool SourceLines::readPiece()
{
    myText.remove(0, myBegin);
    myBegin = 0;
    const QByteArray bytes = myFile.read(READ_SIZE);
    const QString piece = myDecoder(bytes);
    myText += piece;
    return !bytes.isEmpty();
}
