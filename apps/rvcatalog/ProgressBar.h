#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include <QElapsedTimer>
#include <QString>

#include <cstdio>

/// Shows the progress of reading a file, if the messages go to a terminal, and after the user has waited a second.
class ProgressBar
{
    Q_DISABLE_COPY_MOVE(ProgressBar)

public:
    explicit ProgressBar(std::FILE *terminal);
    ~ProgressBar() { hide(); }

    /// @p total is 0 if the size is unknown.
    void show(const QString &fileName, qint64 done, qint64 total);
    /// Clears the bar for other output on the terminal.
    void hide();

private:
    std::FILE *myTerminal = nullptr;
    QElapsedTimer mySinceStart;
    QElapsedTimer mySinceShown;
    bool myHasTerminal = false;
    bool myIsShown = false;
};

#endif
