#ifndef LARGEFONT_H
#define LARGEFONT_H

#include <QFont>
#include <QFontInfo>

/// The font, bold and so much larger; also where the desktop counts in pixels.
inline QFont largeFont(QFont font, qreal factor)
{
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    font.setBold(true);
    return font;
}

#endif
