#include "OrderLine.h"

#include <QtMath>

namespace {

/// A longer line is scrolled.
constexpr int MOST_LINES = 4;

}

OrderLine::OrderLine(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    document()->setDocumentMargin(2);
    fitHeight();
}

void OrderLine::setText(const QString &text)
{
    setPlainText(text);
    fitHeight();
}

void OrderLine::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    fitHeight();
}

void OrderLine::fitHeight()
{
    const int lines = qMax(1, qCeil(document()->size().height()));
    // A scroll bar that is not needed would take away room, which then is needed.
    setVerticalScrollBarPolicy(lines > MOST_LINES ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const qreal text = qMin(lines, MOST_LINES) * fontMetrics().lineSpacing() + 2 * document()->documentMargin();
    setFixedHeight(qCeil(text) + 2 * frameWidth() + 1);
}
