#include "RVTextEncoder_p.h"

#include "RVIconv_p.h"

#include <QList>

#include <array>

namespace {

/// The number of letters in "&#x10FFFF;".
constexpr std::size_t LONGEST_REFERENCE = 10;

QByteArray referenceTo(char32_t letter)
{
    return "&#x" + QByteArray::number(uint(letter), 16).toUpper() + ';';
}

}

RVTextEncoder::RVTextEncoder(const QByteArray &encoding)
    : myIconv(encoding.isEmpty() ? nullptr : std::make_unique<RVIconv>(encoding, "UTF-8"))
{ }

RVTextEncoder::~RVTextEncoder() = default;

RVEncodedText RVTextEncoder::encode(const QString &text) const
{
    if (!myIconv)
        return { { text.toUtf8(), text.toUtf8() }, std::nullopt };
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
        result.reference = result.reference.value_or(letter);
    }
    append(&result.bytes, QByteArrayView());
    return result;
}

/// Appends a letter or a reference in UTF-8. False if the encoding does not have it, or has only another letter for it.
/// A null @p utf8 ends the text: the bytes switch back to the first alphabet.
bool RVTextEncoder::append(QByteArray *bytes, QByteArrayView utf8) const
{
    if (!myIconv->isKnown())
        return false;
    std::array<char, LONGEST_REFERENCE * RVIconv::LONGEST_LETTER> buffer {};
    const char *from = utf8.data();
    auto left = std::size_t(utf8.size());
    char *to = buffer.data();
    auto room = buffer.size();
    if ((utf8.isNull() ? myIconv->end(&to, &room) : myIconv->convert(&from, &left, &to, &room)) != 0)
        return false;
    bytes->append(buffer.data(), to - buffer.data());
    return true;
}
