#include "PrintableText.h"

QString printableText(QString text)
{
    for (QChar &character : text) {
        if (!character.isPrint() && !character.isSurrogate())
            character = u' ';
    }
    return text;
}
