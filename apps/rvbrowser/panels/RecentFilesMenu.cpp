#include "RecentFilesMenu.h"

#include "RecentFiles.h"
#include "ThemeIcon.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int MOST_CHARACTERS = 60;
constexpr int LAST_DIGIT = 9;

}

RecentFilesMenu::RecentFilesMenu(RecentFiles *files, QWidget *parent)
    : QMenu(tr("Open recen&t"), parent),
      myFiles(files)
{
    setObjectName(u"recentFiles"_s);
    setIcon(themeIcon("document-open-recent"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentFilesMenu::update);
    update();
}

void RecentFilesMenu::update()
{
    clear();
    const QStringList fileNames = myFiles->fileNames();
    for (qsizetype i = 0; i < fileNames.size(); ++i)
        addFile(fileNames.at(i), int(i) + 1);
    if (fileNames.isEmpty())
        addAction(tr("No catalogue was opened yet"))->setEnabled(false);
    addSeparator();
    QAction *forget = addAction(themeIcon("edit-clear-history"), tr("&Clear list"));
    forget->setEnabled(!fileNames.isEmpty());
    connect(forget, &QAction::triggered, this, [this] {
        myFiles->clear();
        Q_EMIT cleared();
    });
}

void RecentFilesMenu::addFile(const QString &fileName, int number)
{
    const QString key = number <= LAST_DIGIT ? u"&%1 "_s.arg(number) : QString();
    const QString path = QDir::toNativeSeparators(fileName);
    const int width = fontMetrics().averageCharWidth() * MOST_CHARACTERS;
    QString text = fontMetrics().elidedText(path, Qt::ElideMiddle, width).replace(u'&', "&&"_L1);
    const bool isThere = QFileInfo(fileName).isFile();
    if (!isThere)
        text = tr("%1 (missing)").arg(text);
    QAction *action = addAction(key + text);
    action->setToolTip(path);
    action->setEnabled(isThere);
    connect(action, &QAction::triggered, this, [this, fileName] { Q_EMIT fileChosen(fileName); });
}
