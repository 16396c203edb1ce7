#ifndef RVUTF8_P_H
#define RVUTF8_P_H

#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

/// The text of a value. QString::fromUtf8() takes U+FEFF at the begin for a byte order mark and drops it, but in a
/// value it is an invisible letter that the application reads, as it comes with a text from another file.
inline QString rvFromUtf8(QByteArrayView utf8)
{
    if (!utf8.startsWith(QByteArrayView("\xEF\xBB\xBF")))
        return QString::fromUtf8(utf8);
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(utf8);
}

#endif
