#include "RVNameText_p.h"

#include "RVFindingText_p.h"

#include <QStringList>

using namespace Qt::StringLiterals;

QString rvQuotedName(const QString &name)
{
    QStringList codePoints;
    for (const uint letter : name.toUcs4()) {
        if (letter >= 0x80)
            codePoints += "U+"_L1 + QString::number(letter, 16).toUpper().rightJustified(4, u'0');
    }
    codePoints.removeDuplicates();
    return codePoints.isEmpty() ? rvQuoted(name)
                                : RVFindingText::tr("%1 (with %2)").arg(rvQuoted(name), codePoints.join(", "_L1));
}

QString rvQuotedName(QLatin1StringView name)
{
    return rvQuoted(QString(name));
}

QString rvMisspeltElementText(const QString &name, QLatin1StringView meant)
{
    return RVFindingText::tr("the element %1 is not read; did you mean %2?")
            .arg(rvQuotedName(name), rvQuotedName(meant));
}

QString rvPrefixedElementText(const QString &name, QLatin1StringView meant)
{
    return RVFindingText::tr("the element %1 is not read because of its prefix; without it, it is %2")
            .arg(rvQuotedName(name), rvQuotedName(meant));
}
