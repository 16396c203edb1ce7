#include "RVConfigurationTree_p.h"

RVFilePosition rvInCodeUnits(const QByteArray &text, const RVFilePosition &position)
{
    const QByteArray line = text.split('\n').value(position.line - 1);
    QString letters = QString::fromUtf8(line);
    if (position.line == 1 && letters.startsWith(QChar::ByteOrderMark))
        letters.remove(0, 1);
    const QList<uint> points = letters.toUcs4().mid(0, position.column - 1);
    // A place behind the end of the line, as that of a missing quote, is as far behind as it was.
    const qint64 behind = position.column - 1 - points.size();
    const QList<char32_t> units(points.begin(), points.end());
    return { position.line, QString::fromUcs4(units.constData(), units.size()).size() + 1 + behind };
}
