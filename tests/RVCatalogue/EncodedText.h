#ifndef ENCODEDTEXT_H
#define ENCODEDTEXT_H

#include <RVFilePosition.h>

#include <QByteArray>
#include <QString>

#include <iconv.h>

#include <cstddef>
#include <map>
#include <optional>

/// The text in an encoding of iconv; nothing if the system does not have it.
inline std::optional<QByteArray> encoded(const QString &text, const QByteArray &encoding)
{
    const iconv_t handle = ::iconv_open(encoding.constData(), "UTF-8");
    if (handle == iconv_t(-1))
        return std::nullopt;
    QByteArray utf8 = text.toUtf8();
    QByteArray result(utf8.size() * 8 + 16, '\0');
    char *from = utf8.data();
    auto left = std::size_t(utf8.size());
    char *to = result.data();
    auto room = std::size_t(result.size());
    const bool isWritten = ::iconv(handle, &from, &left, &to, &room) == 0;
    ::iconv(handle, nullptr, nullptr, &to, &room);
    ::iconv_close(handle);
    result.truncate(result.size() - qsizetype(room));
    return isWritten ? result : QByteArray("(not all letters are in it)");
}

/// The place behind a letter of a text, counted in the simplest way.
inline RVFilePosition placeBehind(const RVFilePosition &place, const QString &text, qsizetype index)
{
    const QChar letter = text.at(index);
    const bool isInLineEnd = letter == u'\r' && index + 1 < text.size() && text.at(index + 1) == u'\n';
    const bool isLineEnd = (letter == u'\n' || letter == u'\r') && !isInLineEnd;
    return isLineEnd ? RVFilePosition { place.line + 1, 1 } : RVFilePosition { place.line, place.column + 1 };
}

inline RVFilePosition placeOf(const QString &text, qsizetype index)
{
    RVFilePosition result;
    for (qsizetype i = 0; i < index; ++i)
        result = placeBehind(result, text, i);
    return result;
}

/// The letter at each place.
inline std::map<RVFilePosition, qsizetype> placesIn(const QString &text)
{
    std::map<RVFilePosition, qsizetype> result;
    RVFilePosition place;
    for (qsizetype i = 0; i < text.size(); ++i) {
        result[place] = i;
        place = placeBehind(place, text, i);
    }
    result[place] = text.size();
    return result;
}

#endif
