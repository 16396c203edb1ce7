#include "JsonWriter.h"

#include <QByteArray>
#include <QLocale>
#include <QtNumeric>

#include <cmath>
#include <utility>

namespace {

constexpr char HEX_DIGITS[] = "0123456789abcdef";
constexpr int LONGEST_ESCAPE = 6; // of one UTF-16 code unit, such as \u001f

char *writeEscape(char *out, char16_t unit)
{
    *out++ = '\\';
    switch (unit) {
    case u'"':
    case u'\\':
        *out++ = char(unit);
        return out;
    case u'\b':
        *out++ = 'b';
        return out;
    case u'\f':
        *out++ = 'f';
        return out;
    case u'\n':
        *out++ = 'n';
        return out;
    case u'\r':
        *out++ = 'r';
        return out;
    case u'\t':
        *out++ = 't';
        return out;
    default:
        *out++ = 'u';
        for (int shift = 12; shift >= 0; shift -= 4)
            *out++ = HEX_DIGITS[(unit >> shift) & 0xf];
        return out;
    }
}

char *writeUtf8(char *out, char32_t character)
{
    const auto continuation = [character](int shift) { return char(0x80 | ((character >> shift) & 0x3f)); };
    if (character < 0x800) {
        *out++ = char(0xc0 | (character >> 6));
    } else if (character < 0x10000) {
        *out++ = char(0xe0 | (character >> 12));
        *out++ = continuation(6);
    } else {
        *out++ = char(0xf0 | (character >> 18));
        *out++ = continuation(12);
        *out++ = continuation(6);
    }
    *out++ = continuation(0);
    return out;
}

bool isPlain(char16_t unit)
{
    return unit >= 0x20 && unit < 0x80 && unit != u'"' && unit != u'\\';
}

bool isPair(QStringView text)
{
    return text.size() >= 2 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
}

/// Half a surrogate pair has no UTF-8, so it is escaped like a control character.
bool needsEscape(char16_t unit)
{
    return unit < 0x80 || QChar::isSurrogate(unit);
}

}

void JsonWriter::beginObject()
{
    separate();
    myJson += '{';
    myNeedsComma = false;
}

void JsonWriter::endObject()
{
    myJson += '}';
    myNeedsComma = true;
}

void JsonWriter::beginArray()
{
    separate();
    myJson += '[';
    myNeedsComma = false;
}

void JsonWriter::endArray()
{
    myJson += ']';
    myNeedsComma = true;
}

void JsonWriter::key(QLatin1StringView key)
{
    separate();
    myJson += '"';
    myJson.append(key.data(), std::size_t(key.size()));
    myJson += "\":";
    myNeedsComma = false;
}

void JsonWriter::null()
{
    separate();
    myJson += "null";
}

void JsonWriter::value(bool boolean)
{
    separate();
    myJson += boolean ? "true" : "false";
}

void JsonWriter::value(qint64 number)
{
    separate();
    myJson += std::to_string(number);
}

void JsonWriter::value(double number)
{
    constexpr double largestExact = 9007199254740992.0; // up to here a double holds every whole number
    if (!qIsFinite(number))
        return null();
    if (std::fabs(number) <= largestExact && number == std::trunc(number))
        return value(qint64(number));
    separate();
    myJson += QByteArray::number(number, 'g', QLocale::FloatingPointShortest).constData();
}

void JsonWriter::value(QStringView text)
{
    separate();
    const std::size_t before = myJson.size();
    myJson.resize(before + std::size_t(text.size()) * LONGEST_ESCAPE + 2);
    char *out = myJson.data() + before;
    *out++ = '"';
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (isPlain(unit)) {
            *out++ = char(unit);
        } else if (isPair(text.mid(i, 2))) {
            ++i;
            out = writeUtf8(out, QChar::surrogateToUcs4(unit, text[i].unicode()));
        } else {
            out = needsEscape(unit) ? writeEscape(out, unit) : writeUtf8(out, unit);
        }
    }
    *out++ = '"';
    myJson.resize(std::size_t(out - myJson.data()));
}

void JsonWriter::value(QLatin1StringView text)
{
    value(QString(text));
}

void JsonWriter::json(std::string_view value)
{
    separate();
    myJson += value;
}

void JsonWriter::separator(std::string_view text)
{
    myNeedsComma = false;
    myJson += text;
}

std::string JsonWriter::take()
{
    myNeedsComma = false;
    return std::exchange(myJson, std::string());
}

void JsonWriter::separate()
{
    if (myNeedsComma)
        myJson += ',';
    myNeedsComma = true;
}
