#include "RVFindingText_p.h"

using namespace Qt::StringLiterals;

QString rvQuoted(QStringView text)
{
    constexpr qsizetype longest = 80;
    QString shown = text.left(longest).toString();
    if (!shown.isEmpty() && shown.back().isHighSurrogate())
        shown.chop(1);
    for (QChar &character : shown) {
        if (!character.isPrint() && !character.isSurrogate())
            character = u' ';
    }
    return u'"' + shown + (text.size() > longest ? u"…\""_s : u"\""_s);
}
