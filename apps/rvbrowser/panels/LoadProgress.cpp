#include "LoadProgress.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int BAR_WIDTH = 200;

}

LoadProgress::LoadProgress(QWidget *parent) : QWidget(parent), myText(new QLabel), myBar(new QProgressBar)
{
    setObjectName(u"progress"_s);
    myText->setTextFormat(Qt::PlainText);
    myBar->setRange(0, 100);
    myBar->setFixedWidth(BAR_WIDTH);
    auto *cancel = new QPushButton(tr("&Cancel"));
    cancel->setObjectName(u"cancel"_s);
    connect(cancel, &QPushButton::clicked, this, &LoadProgress::cancelRequested);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(myText);
    layout->addWidget(myBar);
    layout->addWidget(cancel);
    hide();
}

void LoadProgress::start(const QString &fileName)
{
    myText->setText(tr("Loading %1").arg(QFileInfo(fileName).fileName()));
    myBar->setValue(0);
    show();
}

void LoadProgress::setPercent(int percent)
{
    myBar->setValue(percent);
}
