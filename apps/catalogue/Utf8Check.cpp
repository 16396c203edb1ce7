#include "Utf8Check.h"

#include <QUtf8StringView>

namespace {

/// How many bytes a letter has that begins like this; 0 for what begins none.
int letterLength(uchar first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xc2 && first < 0xe0)
        return 2;
    if (first >= 0xe0 && first < 0xf0)
        return 3;
    return first >= 0xf0 && first < 0xf5 ? 4 : 0;
}

/// Of UTF-16, with a byte order mark or with a letter of ASCII first.
bool isUtf16(QByteArrayView begin)
{
    return begin.startsWith("\xff\xfe") || begin.startsWith("\xfe\xff") || begin.contains('\0');
}

}

void Utf8Check::read(QByteArrayView piece)
{
    if (myFault || myIsOther || piece.isEmpty())
        return;
    const QByteArray bytes = myRest + piece.toByteArray();
    myRest.clear();
    if (myIsAtBegin && bytes.size() < 2) {
        myRest = bytes;
        return;
    }
    if (myIsAtBegin)
        myIsOther = isUtf16(QByteArrayView(bytes).first(2));
    myIsAtBegin = false;
    for (qsizetype i = 0; i < bytes.size() && !myIsOther;) {
        const auto first = uchar(bytes[i]);
        const int length = letterLength(first);
        if (length > bytes.size() - i) {
            myRest = bytes.mid(i);
            return;
        }
        if (length == 0 || (length > 1 && !QUtf8StringView(bytes.constData() + i, length).isValidUtf8())) {
            myFault = myPosition;
            return;
        }
        advance(first, length);
        i += length;
    }
}

// Columns count as the parser counts them, in UTF-16, where the longest letters of UTF-8 are two.
void Utf8Check::advance(uchar letter, int length)
{
    if (letter == '\n') {
        ++myPosition.line;
        myPosition.column = 1;
    } else {
        myPosition.column += length == 4 ? 2 : 1;
    }
}
