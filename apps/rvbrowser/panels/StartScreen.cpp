#include "StartScreen.h"

#include "LargeFont.h"
#include "PlainToolTip.h"
#include "ThemeIcon.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel *createLine(const QString &text)
{
    auto *line = new QLabel(text);
    line->setTextFormat(Qt::PlainText);
    line->setWordWrap(true);
    return line;
}

}

StartScreen::StartScreen(QWidget *parent)
    : QWidget(parent),
      myRecentTitle(new QLabel(tr("Recent catalogues"))),
      myRecent(new QListWidget)
{
    setObjectName(u"startScreen"_s);
    auto *title = createLine(tr("Catalogues of print products"));
    title->setFont(largeFont(title->font(), 1.6));
    auto *hint = createLine(tr("Open a catalogue with Ctrl+O, or drop one here."));
    hint->setObjectName(u"welcome"_s);
    auto *open = new QPushButton(themeIcon("document-open", QStyle::SP_DialogOpenButton), tr("&Open…"));
    open->setObjectName(u"startOpen"_s);
    connect(open, &QPushButton::clicked, this, &StartScreen::openRequested);
    setFocusProxy(open);

    prepareList();
    arrange({ title, hint, open, myRecentTitle, myRecent });
    setRecentFiles({});
}

void StartScreen::arrange(const QList<QWidget *> &widgets)
{
    auto *layout = new QHBoxLayout(this);
    auto *column = new QVBoxLayout;
    layout->addStretch(1);
    layout->addLayout(column, 2);
    layout->addStretch(1);
    column->setSpacing(column->spacing() + fontMetrics().height() / 2);
    column->addStretch(1);
    for (QWidget *widget : widgets)
        column->addWidget(widget, 0, qobject_cast<QPushButton *>(widget) ? Qt::AlignLeft : Qt::Alignment());
    column->addStretch(2);
}

void StartScreen::setRecentFiles(const QStringList &fileNames)
{
    myRecent->clear();
    for (const QString &fileName : fileNames)
        addFile(fileName);
    myRecent->setCurrentRow(0);
    myRecent->setMaximumHeight(myRecent->count() * myRecent->sizeHintForRow(0) + 2 * myRecent->frameWidth());
    myRecentTitle->setVisible(!fileNames.isEmpty());
    myRecent->setVisible(!fileNames.isEmpty());
}

void StartScreen::prepareList()
{
    myRecent->setObjectName(u"recentList"_s);
    myRecent->setAccessibleName(myRecentTitle->text());
    myRecent->setAlternatingRowColors(true);
    myRecent->setTextElideMode(Qt::ElideMiddle);
    myRecent->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    myRecent->setAcceptDrops(false); // a file that is dropped here is to be opened
    connect(myRecent, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { Q_EMIT fileChosen(item->data(Qt::UserRole).toString()); });
}

void StartScreen::addFile(const QString &fileName)
{
    const QFileInfo file(fileName);
    const bool isThere = file.isFile();
    const QString name = isThere ? file.fileName() : tr("%1 (missing)").arg(file.fileName());
    auto *item = new QListWidgetItem(name + u'\n' + QDir::toNativeSeparators(file.path()), myRecent);
    item->setData(Qt::UserRole, fileName);
    item->setToolTip(plainToolTip(QDir::toNativeSeparators(fileName)));
    item->setFlags(isThere ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags);
}
