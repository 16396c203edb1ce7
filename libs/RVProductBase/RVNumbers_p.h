#ifndef RVNUMBERS_P_H
#define RVNUMBERS_P_H

#include <QDataStream>
#include <QJsonValue>
#include <QString>

#include <limits>
#include <optional>

/// A whole number in decimal. QString::toInt() would stop at a null character and ignore the text behind it.
inline std::optional<int> rvToInt(const QString &text)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && !text.contains(QChar::Null) ? std::optional(number) : std::nullopt;
}

/// A whole number of JSON. A value that was set and not parsed may be infinite or NaN, for which QJsonValue::toInt()
/// has no defined result.
inline std::optional<int> rvToInt(const QJsonValue &value)
{
    using Limits = std::numeric_limits<int>;
    const double number = value.toDouble(Limits::max() + 1.0);
    const bool isInRange = number >= Limits::min() && number <= Limits::max(); // and not NaN
    if (!isInRange || number != int(number))
        return std::nullopt;
    return int(number);
}

/// A number that was written to the stream as a text; the fallback and a status of corrupt data for another text.
inline int rvReadNumber(QDataStream &stream, int fallback)
{
    QString text;
    stream >> text;
    const std::optional<int> number = rvToInt(text);
    if (!number)
        stream.setStatus(QDataStream::ReadCorruptData);
    return number.value_or(fallback);
}

#endif
