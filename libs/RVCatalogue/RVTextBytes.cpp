#include "RVTextBytes_p.h"

#include "RVIconv_p.h"

#include <QIODevice>

#include <utility>

namespace {

constexpr qint64 LONGEST_PIECE = 65536; // 64 KiB
/// The number of bytes of UTF-8 before the end of a piece in which letters are converted one by one: no letter, and no
/// two that are written as one, have more.
constexpr qint64 MARGIN = 16;

}

class RVTextBytes::Converter
{
public:
    explicit Converter(const QByteArray &encoding) : myIconv("UTF-8", encoding) { }

    bool isKnown() const { return myIconv.isKnown(); }

    /// Converts from the begin of @p bytes on until the text has this number of bytes.
    RVTextPiece convert(QByteArrayView bytes, qint64 room) const
    {
        QByteArray text(room, Qt::Uninitialized);
        const char *from = bytes.data();
        auto left = std::size_t(bytes.size());
        char *to = text.data();
        auto textLeft = std::size_t(room);
        myIconv.convert(&from, &left, &to, &textLeft);
        text.truncate(room - qsizetype(textLeft));
        return { bytes.first(bytes.size() - qsizetype(left)).toByteArray(), text };
    }

    /// The letter that iconv has kept so far.
    QByteArray end() const
    {
        QByteArray text(MARGIN, Qt::Uninitialized);
        char *to = text.data();
        auto textLeft = std::size_t(MARGIN);
        myIconv.end(&to, &textLeft);
        text.truncate(MARGIN - qsizetype(textLeft));
        return text;
    }

    /// True if a letter is converted only together with the next one.
    bool keeps(QByteArrayView letter) const
    {
        const RVTextPiece converted = convert(letter, MARGIN);
        end();
        return !converted.bytes.isEmpty() && converted.text.isEmpty();
    }

private:
    RVIconv myIconv;
};

RVTextBytes::RVTextBytes(QIODevice *device, const QByteArray &encoding) : myDevice(device)
{
    if (encoding.isEmpty())
        return;
    myConverter = std::make_unique<Converter>(encoding);
    myProbe = std::make_unique<Converter>(encoding);
}

RVTextBytes::~RVTextBytes() = default;

RVTextPiece RVTextBytes::take(qint64 size)
{
    if (!myConverter) {
        const QByteArray bytes = myDevice->read(qMin(size, LONGEST_PIECE));
        return { bytes, bytes };
    }
    if (!myConverter->isKnown())
        return RVTextPiece();
    if (size <= MARGIN)
        return takeExactly(size);
    if (!myAhead.isEmpty())
        return std::exchange(myAhead, RVTextPiece());
    const RVTextPiece piece = convert(available(), qMin(size - MARGIN, LONGEST_PIECE));
    return piece.isEmpty() ? takeLetter() : piece;
}

// A letter that is returned late belongs behind the piece, and so does one that was returned together with the last
// one.
RVTextPiece RVTextBytes::takeExactly(qint64 size)
{
    RVTextPiece taken;
    RVTextPiece last = std::exchange(myAhead, RVTextPiece());
    bool isAtEnd = false;
    while (!isAtEnd && taken.text.size() + last.text.size() < size) {
        taken += last;
        last = takeLetter();
        isAtEnd = last.isEmpty();
    }
    const qsizetype missing = size - taken.text.size();
    if (last.text.size() < missing || (last.text.size() == missing && !myProbe->keeps(last.bytes)))
        return taken += last;
    myAhead = { last.bytes, last.text.sliced(missing) };
    return taken += { QByteArray(), last.text.first(missing) };
}

// The smallest number of bytes that iconv accepts.
RVTextPiece RVTextBytes::takeLetter()
{
    for (qsizetype size = 1; size <= qsizetype(RVIconv::LONGEST_LETTER); ++size) {
        if (available() < size && !fill())
            return { QByteArray(), available() == 0 ? myConverter->end() : QByteArray() };
        const RVTextPiece letter = convert(size, MARGIN);
        if (!letter.isEmpty())
            return letter;
    }
    return RVTextPiece();
}

RVTextPiece RVTextBytes::convert(qsizetype size, qint64 room)
{
    RVTextPiece piece = myConverter->convert(QByteArrayView(myBytes).sliced(myPlace, size), room);
    myPlace += piece.bytes.size();
    return piece;
}

bool RVTextBytes::fill()
{
    const QByteArray bytes = myDevice->read(LONGEST_PIECE);
    myBytes = myBytes.sliced(std::exchange(myPlace, 0)) + bytes;
    return !bytes.isEmpty();
}
