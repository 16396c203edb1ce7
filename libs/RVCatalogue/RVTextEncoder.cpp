#include "RVTextEncoder_p.h"

#include <QList>

#include <iconv.h>

#include <array>

namespace {

QByteArray referenceTo(char32_t letter)
{
    return "&#x" + QByteArray::number(uint(letter), 16).toUpper() + ';';
}

}

RVTextEncoder::RVTextEncoder(const QByteArray &encoding)
    : myHandle(encoding.isEmpty() ? nullptr : ::iconv_open(encoding.constData(), "UTF-8"))
{ }

RVTextEncoder::~RVTextEncoder()
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the error is defined like this
    if (myHandle && myHandle != iconv_t(-1))
        ::iconv_close(myHandle);
}

RVEncodedText RVTextEncoder::encode(const QString &text) const
{
    if (!myHandle)
        return { { text.toUtf8(), text.toUtf8() } };
    RVEncodedText result;
    for (const char32_t letter : text.toUcs4()) {
        const QByteArray utf8 = QString::fromUcs4(&letter, 1).toUtf8();
        if (append(&result.bytes, utf8)) {
            result.text += utf8;
            continue;
        }
        const QByteArray reference = referenceTo(letter);
        append(&result.bytes, reference);
        result.text += reference;
        result.reference = result.reference ? result.reference : letter;
    }
    append(&result.bytes, QByteArrayView());
    return result;
}

/// False if the encoding does not have the letter. A null letter ends the text: the bytes switch back to the first
/// alphabet.
bool RVTextEncoder::append(QByteArray *bytes, QByteArrayView letter) const
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the error is defined like this
    if (myHandle == iconv_t(-1))
        return false;
    std::array<char, std::size_t(RV_LONGEST_LETTER * RV_LONGEST_LETTER)> buffer {};
    char *from = const_cast<char *>(letter.data()); // NOLINT(cppcoreguidelines-pro-type-const-cast): iconv reads
    auto left = std::size_t(letter.size());
    char *to = buffer.data();
    auto room = buffer.size();
    // A result above 0 means letters that would be read back as others.
    if (::iconv(myHandle, letter.isNull() ? nullptr : &from, &left, &to, &room) != 0)
        return false;
    bytes->append(buffer.data(), to - buffer.data());
    return true;
}
