#ifndef RVTEXTBYTES_P_H
#define RVTEXTBYTES_P_H

#include <QByteArray>

#include <memory>

class QIODevice;

/// Some letters of a file: their bytes, and the same in UTF-8.
struct RVTextPiece
{
    QByteArray bytes;
    QByteArray text;

    bool isEmpty() const { return bytes.isEmpty() && text.isEmpty(); }
    RVTextPiece &operator+=(const RVTextPiece &other)
    {
        bytes += other.bytes;
        text += other.text;
        return *this;
    }
};

/**
 * The bytes of a text file, read by the size that they have in UTF-8. So a place in the text is found in the file in
 * every encoding: iconv stops before the text becomes larger.
 *
 * Some encodings write one letter as two that follow one another. iconv reads the second before it returns the first,
 * so near the end of a piece the letters are converted one by one.
 */
class RVTextBytes
{
    Q_DISABLE_COPY_MOVE(RVTextBytes)

public:
    /// @p device outlives the object and is positioned behind the byte order mark. @p encoding is a name that iconv
    /// knows, or empty for UTF-8.
    RVTextBytes(QIODevice *device, const QByteArray &encoding);
    ~RVTextBytes();

    /// The next letters, with at most @p size bytes of text, which is above 0. An empty piece at the end of the file,
    /// and if the bytes are no letters or cannot be read.
    RVTextPiece take(qint64 size);

private:
    class Converter;

    RVTextPiece takeExactly(qint64 size);
    RVTextPiece takeLetter();
    RVTextPiece convert(qsizetype size, qint64 room);
    qsizetype available() const { return myBytes.size() - myPlace; }
    bool fill();

    QIODevice *myDevice;
    std::unique_ptr<Converter> myConverter; // none for UTF-8
    std::unique_ptr<Converter> myProbe; // for single letters
    QByteArray myBytes; // the bytes that were read
    qsizetype myPlace = 0; // of the first byte that was not converted
    RVTextPiece myAhead; // converted letters that belong behind the last piece
};

#endif
