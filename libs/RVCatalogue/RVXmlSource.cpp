#include "RVXmlSource_p.h"

#include "RVIconv_p.h"

#include <QIODevice>
#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 READ_SIZE = 65536; // 64 KiB
/// The limit of a declaration, which is always shorter.
constexpr qint64 LONGEST_DECLARATION = 1024;

/// An encoding that the first bytes identify: by a byte order mark, or by the letter "<".
struct Beginning
{
    QByteArrayView bytes;
    const char *encoding;
    bool isMark;
};

// The longer marks come first, because the mark of UTF-32 begins with that of UTF-16.
const Beginning BEGINNINGS[] = {
    { QByteArrayView("\x00\x00\xfe\xff", 4), "UTF-32BE", true },
    { QByteArrayView("\xff\xfe\x00\x00", 4), "UTF-32LE", true },
    { QByteArrayView("\x00\x00\x00<", 4), "UTF-32BE", false },
    { QByteArrayView("<\x00\x00\x00", 4), "UTF-32LE", false },
    { QByteArrayView("\xef\xbb\xbf", 3), "UTF-8", true },
    { QByteArrayView("\xfe\xff", 2), "UTF-16BE", true },
    { QByteArrayView("\xff\xfe", 2), "UTF-16LE", true },
    { QByteArrayView("\x00<", 2), "UTF-16BE", false },
    { QByteArrayView("<\x00", 2), "UTF-16LE", false },
};

/// True if a declaration would have ended, in any encoding, so that a pipe need not deliver more.
bool hasWholeDeclaration(QByteArrayView bytes)
{
    constexpr qsizetype restOfLetter = 3; // a letter has up to four bytes
    const qsizetype end = bytes.indexOf('>') + 1;
    return end > 0 && end + restOfLetter <= bytes.size();
}

/// The name in the declaration; empty if the text has no declaration, or one without an encoding.
QByteArray declaredEncoding(QByteArrayView text)
{
    static const QRegularExpression encoding(uR"(^<\?xml\s[^>]*?encoding\s*=\s*(["'])([^>]*?)\1[^>]*\?>)"_s);
    return encoding.match(QString::fromLatin1(text)).captured(2).toLatin1();
}

/// True if iconv may get the name. In others "//" begins options, and a null character ends the name.
bool isName(const QByteArray &encoding)
{
    constexpr QByteArrayView signs = "._-:";
    return std::all_of(encoding.begin(), encoding.end(), [signs](char letter) {
        return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9')
                || signs.contains(letter);
    });
}

bool isUtf8(const QByteArray &encoding)
{
    return encoding.compare("UTF-8", Qt::CaseInsensitive) == 0 || encoding.compare("UTF8", Qt::CaseInsensitive) == 0;
}

/// The name without the byte order, which the first bytes show.
QByteArray familyOf(const QByteArray &found)
{
    return isUtf8(found) ? found : found.chopped(2);
}

/// True if a text in the first encoding may declare the other name.
bool isSameFamily(const QByteArray &found, const QByteArray &declared)
{
    if (isUtf8(found))
        return isUtf8(declared);
    const QByteArray upper = declared.toUpper();
    return upper == found || upper == familyOf(found)
            || upper == (found.startsWith("UTF-16") ? "ISO-10646-UCS-2" : "ISO-10646-UCS-4");
}

}

class RVXmlSource::Converter
{
public:
    explicit Converter(const QByteArray &encoding) : myIconv("UTF-8", encoding) { }

    bool isKnown() const { return myIconv.isKnown(); }

    /// Appends the converted bytes to @p text and leaves the others in @p bytes. False if the bytes are wrong.
    bool convert(QByteArray *bytes, QByteArray *text) const
    {
        const char *from = bytes->constData();
        auto left = std::size_t(bytes->size());
        bool isRight = true;
        while (left > 0 && isRight) {
            QByteArray piece(READ_SIZE, Qt::Uninitialized);
            char *to = piece.data();
            auto room = std::size_t(piece.size());
            const bool isDone = myIconv.convert(&from, &left, &to, &room) != std::size_t(-1);
            text->append(piece.constData(), piece.size() - qsizetype(room));
            if (!isDone && errno == EINVAL)
                break;
            isRight = isDone || errno == E2BIG;
        }
        *bytes = bytes->last(qsizetype(left));
        return isRight;
    }

    /// Resets the current alphabet, and a letter that waits for the next one.
    void reset() const { myIconv.reset(); }

private:
    RVIconv myIconv;
};

RVXmlSource::RVXmlSource(QIODevice *device) : myDevice(device) { }

RVXmlSource::~RVXmlSource() = default;

QByteArray RVXmlSource::read()
{
    // A piece may be only a part of a letter.
    while (myFault.isEmpty()) {
        const QByteArray bytes = myHasBegun ? readDevice(READ_SIZE) : readBegin();
        QByteArray text = myConverter ? converted(myRest + bytes) : bytes;
        if (!text.isEmpty() || bytes.isEmpty())
            return text;
    }
    return QByteArray();
}

QString RVXmlSource::wrongEncodingText() const
{
    switch (myOrigin) {
    case Origin::Default:
        return tr("this is not encoded in UTF-8, as files are that do not say otherwise in their first line");
    case Origin::Declaration:
        return tr("this is not encoded in %1, which the first line of the file declares")
                .arg(QString::fromLatin1(myEncoding));
    case Origin::FirstBytes:
        break;
    }
    return tr("this is not encoded in %1, in which the file begins").arg(QString::fromLatin1(familyOf(myEncoding)));
}

QByteArray RVXmlSource::readDevice(qint64 size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    const qint64 read = myDevice->read(bytes.data(), size);
    // A device at its end may also report this.
    if (read < 0 && !myDevice->atEnd())
        myFault = tr("cannot read on: %1").arg(myDevice->errorString());
    bytes.truncate(qMax(read, qint64(0)));
    myBytesRead += bytes.size();
    return bytes;
}

QByteArray RVXmlSource::readBegin()
{
    myHasBegun = true;
    QByteArray bytes = readDevice(READ_SIZE);
    bool isAtEnd = bytes.isEmpty();
    while (!isAtEnd && bytes.size() < LONGEST_DECLARATION && !hasWholeDeclaration(bytes)) {
        const QByteArray piece = readDevice(READ_SIZE);
        bytes += piece;
        isAtEnd = piece.isEmpty();
    }
    const QString deviceFault = std::exchange(myFault, QString());
    decideOnEncoding(&bytes);
    if (!myFault.isEmpty())
        return QByteArray();
    myFault = deviceFault; // after the bytes that were read
    return bytes;
}

void RVXmlSource::decideOnEncoding(QByteArray *bytes)
{
    const auto *found = std::find_if(std::begin(BEGINNINGS), std::end(BEGINNINGS),
                                     [&](const Beginning &each) { return bytes->startsWith(each.bytes); });
    if (found == std::end(BEGINNINGS))
        return beginAsDeclared(*bytes);
    if (found->isMark)
        myMarkSize = found->bytes.size();
    bytes->remove(0, myMarkSize);
    beginAs(found->encoding, *bytes);
}

// The declaration has only letters of ASCII, so it can be read before its encoding is known.
void RVXmlSource::beginAsDeclared(const QByteArray &bytes)
{
    const QByteArray declared = declaredEncoding(bytes.first(qMin(bytes.size(), LONGEST_DECLARATION)));
    myOrigin = declared.isEmpty() ? Origin::Default : Origin::Declaration;
    myEncoding = declared.isEmpty() ? QByteArray("UTF-8") : declared;
    if (isUtf8(myEncoding))
        return;
    myConverter = std::make_unique<Converter>(isName(myEncoding) ? myEncoding : QByteArray("no name"));
    if (!myConverter->isKnown())
        myFault = tr("the encoding \"%1\", which the first line of the file declares, is not known; UTF-8 always is")
                          .arg(QString::fromUtf8(myEncoding));
    else if (!decoded(bytes).startsWith("<?xml"))
        myFault = tr("the first line of the file declares %1, but is not encoded in it")
                          .arg(QString::fromLatin1(myEncoding));
}

// The declaration may name this encoding too, but no other.
void RVXmlSource::beginAs(const QByteArray &encoding, const QByteArray &bytes)
{
    myEncoding = encoding;
    if (!isUtf8(encoding))
        myConverter = std::make_unique<Converter>(encoding);
    const QByteArray declared = declaredEncoding(decoded(bytes));
    myOrigin = Origin::FirstBytes;
    if (!declared.isEmpty() && !isSameFamily(encoding, declared))
        myFault = tr("the file begins like one in %1, but its first line declares %2; save it in %2, or declare %1")
                          .arg(QString::fromLatin1(familyOf(encoding)), QString::fromUtf8(declared));
}

/// The begin of the file.
QByteArray RVXmlSource::decoded(const QByteArray &bytes) const
{
    QByteArray begin = bytes.first(qMin(bytes.size(), LONGEST_DECLARATION));
    if (!myConverter)
        return begin;
    QByteArray text;
    myConverter->convert(&begin, &text);
    myConverter->reset();
    return text;
}

QByteArray RVXmlSource::converted(const QByteArray &bytes)
{
    QByteArray text;
    const bool isAtEnd = bytes.size() == myRest.size();
    myRest = bytes;
    const bool isRight = myConverter->convert(&myRest, &text);
    if (!isRight || (isAtEnd && !myRest.isEmpty()))
        myFault = wrongEncodingText();
    return text;
}
