#include "RVFindingText_p.h"

using namespace Qt::StringLiterals;

namespace {

/// Joins the texts with commas, and the last two with a link such as "%1 or %2".
QString joined(QStringList texts, const QString &link)
{
    if (texts.isEmpty())
        return QString();
    const QString last = texts.takeLast();
    return texts.isEmpty() ? last : link.arg(texts.join(", "_L1), last);
}

}

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

QString rvAllOf(const QStringList &texts)
{
    return joined(texts, RVFindingText::tr("%1 and %2"));
}

QString rvOneOf(const QStringList &texts)
{
    constexpr qsizetype most = 3;
    QStringList quoted;
    for (const QString &text : texts.first(qMin(most, texts.size())))
        quoted += rvQuoted(text);
    return joined(quoted, RVFindingText::tr("%1 or %2"));
}

QString rvAdvised(const QString &fault, const QString &advice)
{
    return advice.isEmpty() ? fault : RVFindingText::tr("%1; %2").arg(fault, advice);
}
