#ifndef INPUT_H
#define INPUT_H

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <cstdint>
#include <limits>

/// Splits the bytes of the fuzzer: text in UTF-8 with one piece on each line, so that seeds can be read and written by
/// hand.
class Input
{
public:
    Input(const uint8_t *data, std::size_t size)
        : myBytes(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)))
    { }

    bool atEnd() const { return myPosition >= myBytes.size(); }

    /// The remaining bytes.
    QByteArray rest()
    {
        const QByteArray result = myBytes.mid(myPosition);
        myPosition = myBytes.size();
        return result;
    }

    /// The next line; a null text at the end.
    QString text()
    {
        if (atEnd())
            return QString();
        return QString::fromUtf8(line());
    }

    /// The next line as a number, within the limits of 64 bits; 0 if it is none.
    qint64 number() { return line().trimmed().toLongLong(); }
    /// The next line as a number, within the limits of an int; 0 if it is none.
    int integer()
    {
        constexpr qint64 lowest = std::numeric_limits<int>::min();
        constexpr qint64 highest = std::numeric_limits<int>::max();
        return int(qBound(lowest, number(), highest));
    }
    /// The next line as a real number, "nan" and "inf" included; 0 if it is none.
    qreal real() { return line().trimmed().toDouble(); }

private:
    QByteArray line()
    {
        const qsizetype found = myBytes.indexOf('\n', myPosition);
        const qsizetype end = found < 0 ? myBytes.size() : found;
        const QByteArray result = myBytes.mid(myPosition, end - myPosition);
        myPosition = end + 1;
        return result;
    }

    QByteArray myBytes;
    qsizetype myPosition = 0;
};

#endif
