#include "CatalogueLoader.h"

#include "LoadThread.h"

CatalogueLoader::~CatalogueLoader()
{
    const auto threads = findChildren<LoadThread *>();
    for (LoadThread *thread : threads)
        thread->requestInterruption();
    for (LoadThread *thread : threads)
        thread->wait();
}

void CatalogueLoader::start(const QString &fileName)
{
    if (myThread)
        myThread->requestInterruption();
    auto *thread = new LoadThread(fileName, this);
    myThread = thread;
    connect(thread, &LoadThread::progressed, this, [this, thread](int percent) {
        if (thread == myThread)
            Q_EMIT progressed(percent);
    });
    connect(thread, &LoadThread::finished, this, [this, thread] { finish(thread); });
    thread->start();
}

void CatalogueLoader::cancel()
{
    if (myThread)
        myThread->requestInterruption();
}

// A thread that another one has taken the place of ends in silence.
void CatalogueLoader::finish(LoadThread *thread)
{
    thread->deleteLater();
    if (thread != myThread)
        return;
    myThread = nullptr;
    if (thread->catalogue())
        Q_EMIT loaded(thread->catalogue());
    else if (const std::optional<LoadError> error = thread->error())
        Q_EMIT failed(*error);
    else
        Q_EMIT cancelled();
}
