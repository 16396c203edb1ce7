#include "OrderLine.h"

#include <QMimeData>
#include <QtMath>

namespace {

/// A longer line is scrolled.
constexpr int MOST_LINES = 4;
/// Above and below the text, in pixels.
constexpr int MARGINS = 4;
/// A place where a line may be broken.
constexpr QChar ZERO_WIDTH_SPACE(0x200b);

QString breakable(const QString &text)
{
    QString result;
    for (const QChar letter : text) {
        result += letter;
        if (letter == u',' || letter == u';' || letter == u':')
            result += ZERO_WIDTH_SPACE;
    }
    return result;
}

}

OrderLine::OrderLine(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    document()->setDocumentMargin(MARGINS / 2.0);
}

void OrderLine::setText(const QString &text)
{
    myText = text;
    setPlainText(breakable(text));
    fitHeight();
}

QMimeData *OrderLine::createMimeDataFromSelection() const
{
    QString selected = textCursor().selectedText();
    selected.replace(QChar::ParagraphSeparator, u'\n').remove(ZERO_WIDTH_SPACE);
    auto *copied = new QMimeData;
    copied->setText(selected);
    return copied;
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
    const qreal text = qMin(lines, MOST_LINES) * fontMetrics().lineSpacing() + MARGINS;
    setFixedHeight(qCeil(text) + 2 * frameWidth() + 1);
}
