#include "MessageBanner.h"

#include "TextLabel.h"
#include "ThemeIcon.h"

#include <QHBoxLayout>
#include <QToolButton>

using namespace Qt::StringLiterals;

MessageBanner::MessageBanner(QWidget *parent) : QFrame(parent), myText(createTextLabel(u"bannerText"_s))
{
    setObjectName(u"banner"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    auto *icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(themeIcon("dialog-error", QStyle::SP_MessageBoxCritical).pixmap(size, size));
    myText->setForegroundRole(QPalette::ToolTipText);
    myText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *close = new QToolButton;
    close->setAutoRaise(true);
    close->setText(tr("Close"));
    close->setAccessibleName(tr("Close the message"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(icon);
    layout->addWidget(myText, 1);
    layout->addWidget(close);
    hide();
}

void MessageBanner::showMessage(const QString &text)
{
    myText->setText(text);
    show();
}

QString MessageBanner::text() const
{
    return isHidden() ? QString() : myText->text();
}
