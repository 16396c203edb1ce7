#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include <QElapsedTimer>
#include <QString>

#include <cstdio>

/// Shows how far the reading of a file has come, among the messages where they go to a terminal, and not before the
/// user has waited a second.
class ProgressBar
{
    Q_DISABLE_COPY_MOVE(ProgressBar)

public:
    explicit ProgressBar(std::FILE *terminal);
    ~ProgressBar() { hide(); }

    /// @p total is 0 where nobody knows how much there is.
    void show(const QString &fileName, qint64 done, qint64 total);
    /// Makes room for something else on the terminal.
    void hide();

private:
    std::FILE *myTerminal = nullptr;
    QElapsedTimer mySinceStart;
    QElapsedTimer mySinceShown;
    bool myHasTerminal = false;
    bool myIsShown = false;
};

#endif
