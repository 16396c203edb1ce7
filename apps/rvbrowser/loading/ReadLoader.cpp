#include "ReadLoader.h"

#include "ReadThread.h"

ReadLoader::~ReadLoader()
{
    const auto threads = findChildren<ReadThread *>();
    for (ReadThread *thread : threads)
        thread->requestInterruption();
    for (ReadThread *thread : threads)
        thread->wait();
}

void ReadLoader::run(ReadThread *thread)
{
    cancel();
    myThread = thread;
    connect(thread, &ReadThread::progressed, this, [this, thread](int percent) {
        if (thread == myThread)
            Q_EMIT progressed(percent);
    });
    connect(thread, &ReadThread::finished, this, [this, thread] { finish(thread); });
    thread->start();
}

void ReadLoader::cancel()
{
    if (myThread)
        myThread->requestInterruption();
}

void ReadLoader::giveUp()
{
    cancel();
    myThread = nullptr;
}

// A thread that another one has taken the place of ends in silence.
void ReadLoader::finish(ReadThread *thread)
{
    thread->deleteLater();
    if (thread != myThread)
        return;
    myThread = nullptr;
    if (take(thread))
        return;
    if (const std::optional<LoadError> error = thread->error())
        Q_EMIT failed(*error);
    else
        Q_EMIT cancelled();
}
