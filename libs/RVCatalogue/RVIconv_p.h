#ifndef RVICONV_P_H
#define RVICONV_P_H

#include <QByteArray>

#include <iconv.h>

#include <cstddef>

/// A conversion of texts by iconv. It remembers the alphabet of the text and an incomplete letter, so each text needs
/// its own.
class RVIconv
{
    Q_DISABLE_COPY_MOVE(RVIconv)

public:
    /// The most bytes of a letter in any encoding, including the switch to its alphabet.
    static constexpr std::size_t LONGEST_LETTER = 16;

    RVIconv(const QByteArray &to, const QByteArray &from) : myHandle(::iconv_open(to.constData(), from.constData())) { }
    ~RVIconv()
    {
        if (isKnown())
            ::iconv_close(myHandle);
    }

    /// False if iconv does not know one of the encodings; then there is nothing to convert with.
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the error is defined like this
    bool isKnown() const { return myHandle != iconv_t(-1); }

    /// Converts bytes and moves the four values on. Returns the number of letters that would be read back as others,
    /// or std::size_t(-1) with the reason in errno.
    std::size_t convert(const char **from, std::size_t *left, char **to, std::size_t *room) const
    {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): iconv reads
        return ::iconv(myHandle, const_cast<char **>(from), left, to, room);
    }
    /// Writes the end of the text: a letter that waits for the next one, and the switch back to the first alphabet.
    /// Returns what convert() returns.
    std::size_t end(char **to, std::size_t *room) const { return ::iconv(myHandle, nullptr, nullptr, to, room); }
    /// Begins with another text.
    void reset() const { ::iconv(myHandle, nullptr, nullptr, nullptr, nullptr); }

private:
    iconv_t myHandle;
};

#endif
