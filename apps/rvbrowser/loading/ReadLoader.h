#ifndef READLOADER_H
#define READLOADER_H

#include "LoadError.h"

#include <QObject>

class ReadThread;

/// Runs threads that read files, one at a time.
class ReadLoader : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    /// Gives up what is being read.
    ~ReadLoader() override;

    /// Gives up what is being read, if anything; cancelled() follows.
    void cancel();
    bool isLoading() const { return myThread; }

Q_SIGNALS:
    /// From 0 to 100.
    void progressed(int percent);
    /// A file cannot be read, or not to its end.
    void failed(const LoadError &error);
    void cancelled();

protected:
    /// Starts the thread, a child of this loader; gives up without a signal what is being read.
    void run(ReadThread *thread);
    /// Gives up without a signal what is being read.
    void giveUp();
    /// Tells of what the thread has read; false where it has read nothing.
    virtual bool take(ReadThread *thread) = 0;

private:
    void finish(ReadThread *thread);

    ReadThread *myThread = nullptr;
};

#endif
