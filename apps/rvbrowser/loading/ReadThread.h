#ifndef READTHREAD_H
#define READTHREAD_H

#include "LoadError.h"

#include <QThread>

#include <optional>

class ObservedFile;

/// Reads files. Ask for an interruption to give it up.
class ReadThread : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;

    /// The reason why a file could not be read; none if all was read or given up. Known once the thread has finished.
    std::optional<LoadError> error() const { return myError; }

Q_SIGNALS:
    /// The progress has changed; @p percent is from 0 to 100.
    void progressed(int percent);

protected:
    /// Opens a file for reading. False if it cannot be opened; the error names it @p shownName.
    bool open(ObservedFile *file, const QString &shownName);
    /// Reports the progress, from 0 to 100. False if the thread is to end.
    bool report(int percent);
    void fail(const LoadError &error) { myError = error; }

private:
    std::optional<LoadError> myError;
    int myPercent = -1;
};

#endif
