#include "Excerpt.h"

#include "WrappedText.h"

#include <QList>

#include <algorithm>
#include <cwchar>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int TAB_WIDTH = 8;
constexpr qint64 LINE_END = std::numeric_limits<qint64>::max();
constexpr QChar ELLIPSIS = u'…';

/// A letter as a terminal shows it.
struct Cell
{
    QString text;
    int column = 0; // on the terminal, from 0
    int width = 1;
    bool isMarked = false;

    int end() const { return column + width; }
};

/// Letters that are invisible, or that change the direction of others, are replaced by a sign.
Cell shown(char32_t letter, int column)
{
    if (letter == U'\t') {
        const int width = TAB_WIDTH - column % TAB_WIDTH;
        return { QString(width, u' '), column, width };
    }
    const int width = ::wcwidth(wchar_t(letter));
    if (width < 0 || QChar::category(letter) == QChar::Other_Format)
        return { QString(QChar::ReplacementCharacter), column, 1 };
    return { QString::fromUcs4(&letter, 1), column, width };
}

QList<Cell> cellsOf(const QString &line, qint64 begin, qint64 end)
{
    QList<Cell> result;
    int column = 0;
    qint64 place = 1;
    const QList<uint> letters = line.toUcs4();
    for (const char32_t letter : letters) {
        Cell cell = shown(letter, column);
        cell.isMarked = place >= begin && place < end;
        column = cell.end();
        result += cell;
        place += QChar::requiresSurrogates(letter) ? 2 : 1;
    }
    return result;
}

/// The cells that fit into a number of columns and contain the first marked one.
QList<Cell> cut(const QList<Cell> &cells, int width)
{
    if (cells.isEmpty())
        return cells;
    const int total = cells.constLast().end();
    const auto first = std::find_if(cells.begin(), cells.end(), [](const Cell &cell) { return cell.isMarked; });
    const int place = first == cells.end() ? total : first->column;
    const int from = qMax(0, qMin(place - width / 3, total - width));
    const int to = from + width;
    QList<Cell> result;
    for (const Cell &cell : cells) {
        if (cell.column >= (from > 0 ? from + 1 : 0) && cell.end() <= (to < total ? to - 1 : to))
            result += cell;
    }
    if (from > 0)
        result.prepend(Cell { QString(ELLIPSIS), from });
    if (to < total)
        result.append(Cell { QString(ELLIPSIS), to - 1 });
    return result;
}

}

Excerpt excerptOf(const QString &line, const RVFileRange &range)
{
    constexpr int numberWidth = 5;
    const QString gutter = QString::number(range.begin.line).rightJustified(numberWidth) + " | "_L1;
    // A range that ends in another line is marked to the end of this one.
    const qint64 end = range.end.line == range.begin.line ? range.end.column : LINE_END;
    const QList<Cell> cells = cellsOf(line, range.begin.column, qMax(end, range.begin.column + 1));
    Excerpt result { gutter, QString(gutter.size() - 2, u' ') + "| "_L1, u"^"_s };
    int marked = 0;
    for (const Cell &cell : cut(cells, int(TERMINAL_WIDTH - gutter.size()))) {
        result.text += cell.text;
        if (cell.isMarked)
            marked += cell.width;
        else if (marked == 0)
            result.indent += QString(cell.width, u' ');
    }
    result.marks += QString(qMax(marked - 1, 0), u'~');
    return result;
}
