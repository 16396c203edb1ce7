#ifndef STARTSCREEN_H
#define STARTSCREEN_H

#include <QWidget>

class QLabel;
class QListWidget;

/// The contents of the window while no catalogue is open: a button to open one, and those that were opened last.
class StartScreen : public QWidget
{
    Q_OBJECT

public:
    explicit StartScreen(QWidget *parent = nullptr);

    /// The newest first. Those that are gone are shown but cannot be chosen.
    void setRecentFiles(const QStringList &fileNames);

Q_SIGNALS:
    void openRequested();
    void fileChosen(const QString &fileName);

private:
    void prepareList();
    void arrange(const QList<QWidget *> &widgets);
    void addFile(const QString &fileName);

    QLabel *myRecentTitle;
    QListWidget *myRecent;
};

#endif
