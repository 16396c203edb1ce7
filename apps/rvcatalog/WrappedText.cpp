#include "WrappedText.h"

using namespace Qt::StringLiterals;

QStringList wrapped(const QStringList &pieces, qsizetype width)
{
    QStringList lines(1);
    const auto add = [&lines, width](const QString &piece) {
        if (!lines.last().isEmpty() && lines.last().size() + 1 + piece.size() > width)
            lines += QString();
        lines.last() += (lines.last().isEmpty() ? ""_L1 : " "_L1) + piece;
    };
    for (const QString &piece : pieces) {
        for (const QString &part : piece.size() > width ? piece.split(u' ') : QStringList(piece))
            add(part);
    }
    return lines;
}

QStringList wrapped(const QString &text, qsizetype width)
{
    return wrapped(text.split(u' '), width);
}

QString filledParagraphs(const QString &text)
{
    QStringList paragraphs = text.split(u"\n\n"_s);
    for (QString &paragraph : paragraphs) {
        if (!paragraph.startsWith(u' '))
            paragraph = wrapped(paragraph.replace(u'\n', u' '), TERMINAL_WIDTH).join(u'\n');
    }
    return paragraphs.join("\n\n"_L1);
}
