#ifndef RECENTFILESMENU_H
#define RECENTFILESMENU_H

#include <QMenu>

class RecentFiles;

/// Offers the catalogues that were opened last, as they are when it opens. Those that are gone cannot be chosen.
class RecentFilesMenu : public QMenu
{
    Q_OBJECT

public:
    /// The files must live longer.
    explicit RecentFilesMenu(RecentFiles *files, QWidget *parent = nullptr);

    /// Makes the menu again; done by itself before it opens.
    void update();

Q_SIGNALS:
    void fileChosen(const QString &fileName);
    void cleared();

private:
    void addFile(const QString &fileName, int number);

    RecentFiles *myFiles;
};

#endif
