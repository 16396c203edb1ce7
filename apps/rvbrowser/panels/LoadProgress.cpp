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

LoadProgress::LoadProgress(const QString &name, QWidget *parent)
    : QWidget(parent),
      myText(new QLabel),
      myBar(new QProgressBar)
{
    setObjectName(name);
    myText->setTextFormat(Qt::PlainText);
    myBar->setRange(0, 100);
    myBar->setFixedWidth(BAR_WIDTH);
    auto *cancel = new QPushButton(tr("&Cancel"));
    cancel->setObjectName(name + "Cancel"_L1);
    connect(cancel, &QPushButton::clicked, this, &LoadProgress::cancelRequested);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(myText);
    layout->addWidget(myBar);
    layout->addWidget(cancel);
    hide();
}

void LoadProgress::start(const QString &fileName)
{
    startWith(tr("Loading %1").arg(QFileInfo(fileName).fileName()));
}

void LoadProgress::start(const QString &oldFileName, const QString &newFileName)
{
    startWith(tr("Comparing %1 with %2").arg(QFileInfo(oldFileName).fileName(), QFileInfo(newFileName).fileName()));
}

void LoadProgress::startWith(const QString &text)
{
    myText->setText(text);
    myBar->setValue(0);
    show();
}

void LoadProgress::setPercent(int percent)
{
    myBar->setValue(percent);
}
