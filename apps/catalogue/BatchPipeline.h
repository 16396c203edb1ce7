#ifndef BATCHPIPELINE_H
#define BATCHPIPELINE_H

#include "CatalogueReader.h"

#include <QThread>
#include <QThreadPool>

#include <deque>
#include <future>
#include <memory>

/// One thread reads, so more than some others would only wait for it.
inline int batchThreads()
{
    return qBound(1, QThread::idealThreadCount(), 8);
}

/**
 * Reads a catalogue to its end, or until @p take returns false: @p work turns every batch into a result, on every core
 * of the machine, and @p take gets the results in the order of the file.
 *
 * `Result work(const CatalogueBatch &)` is called on several threads at once; `bool take(Result)` on the caller's. Only
 * so many batches are on their way that memory does not grow with the file.
 */
template<typename Work, typename Take>
void forEachBatch(CatalogueReader &reader, Work work, Take take)
{
    using Result = decltype(work(CatalogueBatch()));
    constexpr qsizetype batchSize = qsizetype(64) * 1024;
    QThreadPool pool;
    pool.setMaxThreadCount(batchThreads());
    const std::size_t mostOnTheirWay = std::size_t(pool.maxThreadCount()) * 2;

    std::deque<std::future<Result>> results;
    const auto takeFirst = [&] {
        Result result = results.front().get();
        results.pop_front();
        return take(std::move(result));
    };
    qint64 productCount = 0;
    bool goesOn = true;
    while (goesOn) {
        CatalogueBatch batch(productCount);
        if (!reader.read(&batch, batchSize))
            break;
        productCount += batch.size();
        // What a small catalogue has is done before a thread would have begun.
        if (results.empty() && reader.atEnd()) {
            take(work(batch));
            break;
        }
        const auto task = std::make_shared<std::packaged_task<Result()>>(
                [&work, batch = std::move(batch)] { return work(batch); });
        results.push_back(task->get_future());
        pool.start([task] { (*task)(); });
        if (results.size() >= mostOnTheirWay)
            goesOn = takeFirst();
    }
    while (goesOn && !results.empty())
        goesOn = takeFirst();
}

#endif
