#ifndef RVTEXTENCODER_P_H
#define RVTEXTENCODER_P_H

#include "RVTextBytes_p.h"

#include <QString>

#include <memory>
#include <optional>

class RVIconv;

/// A text in the encoding of a file.
struct RVEncodedText : RVTextPiece
{
    /// The first letter that the encoding lacks, for which a reference is written, if there is one.
    std::optional<char32_t> reference;
};

/// Writes texts of XML in the encoding of a file: a letter that the encoding lacks becomes a reference such as
/// "&#x20AC;".
class RVTextEncoder
{
    Q_DISABLE_COPY_MOVE(RVTextEncoder)

public:
    /// @p encoding is a name that iconv knows, or empty for UTF-8.
    explicit RVTextEncoder(const QByteArray &encoding);
    ~RVTextEncoder();

    RVEncodedText encode(const QString &text) const;

private:
    bool append(QByteArray *bytes, QByteArrayView utf8) const;

    std::unique_ptr<RVIconv> myIconv; // null for UTF-8
};

#endif
