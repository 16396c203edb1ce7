#include "ElidedLabel.h"

#include "PlainToolTip.h"

#include <QHelpEvent>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {

constexpr int LEAST_LABEL_CHARACTERS = 6;

}

ElidedLabel::ElidedLabel(const QString &text, QWidget *parent) : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::sizeHint() const
{
    QSize result = QLabel::sizeHint();
    if (!myUsualText.isEmpty())
        result.setWidth(fontMetrics().horizontalAdvance(myUsualText));
    if (myMostCharacters)
        result.setWidth(qMin(result.width(), fontMetrics().averageCharWidth() * *myMostCharacters));
    return result;
}

QSize ElidedLabel::minimumSizeHint() const
{
    const QSize wanted = sizeHint();
    return { qMin(wanted.width(), fontMetrics().averageCharWidth() * LEAST_LABEL_CHARACTERS), wanted.height() };
}

bool ElidedLabel::event(QEvent *event)
{
    const bool asksForText = event->type() == QEvent::ToolTip && isElided();
    const auto *help = asksForText ? dynamic_cast<QHelpEvent *>(event) : nullptr;
    if (!help)
        return QLabel::event(event);
    // A label with a buddy has an ampersand for its key.
    const QString whole = buddy() ? text().replace("&&"_L1, "&"_L1) : text();
    QToolTip::showText(help->globalPos(), plainToolTip(whole), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *event)
{
    if (!isElided()) {
        QLabel::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    int flags = int(alignment());
    if (buddy())
        flags |= Qt::TextShowMnemonic;
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width(), flags);
    painter.drawItemText(contentsRect(), flags, palette(), isEnabled(), shown, foregroundRole());
}
