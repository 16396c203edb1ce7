#ifndef BATCHPIPELINE_H
#define BATCHPIPELINE_H

#include "CatalogueReader.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

/// Threads that do tasks in the order in which they come, as many as the machine has cores. For one owner.
class BatchWorkers
{
    Q_DISABLE_COPY_MOVE(BatchWorkers)

public:
    BatchWorkers() = default;
    /// Waits for the tasks that have begun; the others are dropped.
    ~BatchWorkers();

    static int mostThreads();
    void add(std::function<void()> task);

private:
    void work();

    std::mutex myMutex;
    std::condition_variable myHasNews;
    std::deque<std::function<void()>> myTasks;
    std::vector<std::thread> myThreads;
    bool myIsEnding = false;
};

/**
 * Reads a catalogue to its end, or until @p take returns false: @p work turns every batch into a result, on every core
 * of the machine, and @p take gets the results in the order of the file.
 *
 * `Result work(const CatalogueBatch &)` is called on several threads at once, `bool take(Result)` on the caller's. Only
 * so many batches are on their way that memory does not grow with the file.
 */
template<typename Work, typename Take>
void forEachBatch(CatalogueReader &reader, Work work, Take take)
{
    using Result = decltype(work(CatalogueBatch()));
    constexpr qsizetype batchSize = qsizetype(64) * 1024;
    const std::size_t mostOnTheirWay = std::size_t(BatchWorkers::mostThreads()) * 2;

    BatchWorkers workers;
    std::deque<std::future<Result>> results;
    const auto takeFirst = [&] {
        std::future<Result> first = std::move(results.front());
        results.pop_front();
        return take(first.get());
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
        workers.add([task] { (*task)(); });
        if (results.size() >= mostOnTheirWay)
            goesOn = takeFirst();
    }
    while (goesOn && !results.empty())
        goesOn = takeFirst();
}

#endif
