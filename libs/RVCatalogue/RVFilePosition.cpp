#include "RVFilePosition_p.h"

#include <algorithm>
#include <cstring>

namespace {

/// The number of columns that a byte adds: a continuation byte adds none, and the first byte of a four-byte letter adds
/// two, since that letter is two code units of UTF-16.
int columns(char byte)
{
    const auto bits = uchar(byte);
    if ((bits & 0xc0) == 0x80)
        return 0;
    return bits >= 0xf0 ? 2 : 1;
}

/// The first end of a line, behind which the next one begins; null if there is none.
const char *lineEnd(const char *begin, const char *end, char next)
{
    if (begin == end)
        return nullptr;
    const auto *lineFeed = static_cast<const char *>(std::memchr(begin, '\n', std::size_t(end - begin)));
    const auto *searchEnd = lineFeed ? lineFeed : end;
    const auto *carriageReturn = static_cast<const char *>(std::memchr(begin, '\r', std::size_t(searchEnd - begin)));
    if (!carriageReturn || carriageReturn + 1 == lineFeed)
        return lineFeed;
    return carriageReturn + 1 == end && next == '\n' ? nullptr : carriageReturn;
}

}

RVFilePosition rvAdvanced(const RVFilePosition &position, QByteArrayView text, char next)
{
    RVFilePosition result = position;
    const char *begin = text.begin();
    while (const char *end = lineEnd(begin, text.end(), next)) {
        ++result.line;
        result.column = 1;
        begin = end + 1;
    }
    std::for_each(begin, text.end(), [&result](char byte) { result.column += columns(byte); });
    return result;
}

qsizetype rvAdvance(RVFilePosition *position, const RVFilePosition &target, QByteArrayView text, char next)
{
    const char *place = text.begin();
    while (position->line < target.line) {
        const char *end = lineEnd(place, text.end(), next);
        if (!end) {
            *position = rvAdvanced(*position, QByteArrayView(place, text.end()), next);
            return text.size();
        }
        *position = { position->line + 1, 1 };
        place = end + 1;
    }
    const char *const lastOfLine = lineEnd(place, text.end(), next);
    const char *const end = lastOfLine ? lastOfLine : text.end();
    while (place != end && position->column < target.column)
        position->column += columns(*place++);
    // These bytes are the rest of the last letter.
    while (place != end && columns(*place) == 0)
        ++place;
    return place - text.begin();
}
