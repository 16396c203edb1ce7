#ifndef READTHREAD_H
#define READTHREAD_H

#include "LoadError.h"

#include <QThread>

class ObservedFile;

/// Reads files. Ask for an interruption to give it up.
class ReadThread : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;

    /// Once the thread has finished: none where all was read, or given up.
    std::optional<LoadError> error() const { return myError; }

Q_SIGNALS:
    /// From 0 to 100.
    void progressed(int percent);

protected:
    /// False, with an error that calls it by @p shownName, where it cannot be opened.
    bool open(ObservedFile *file, const QString &shownName);
    /// False when the thread is to end.
    bool report(int percent);
    void fail(const LoadError &error) { myError = error; }

private:
    std::optional<LoadError> myError;
    int myPercent = -1;
};

#endif
