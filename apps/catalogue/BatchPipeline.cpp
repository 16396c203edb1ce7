#include "BatchPipeline.h"

#include <algorithm>
#include <utility>

BatchWorkers::~BatchWorkers()
{
    {
        const std::lock_guard locker(myMutex);
        myTasks.clear();
        myIsEnding = true;
    }
    myHasNews.notify_all();
    for (std::thread &thread : myThreads)
        thread.join();
}

// The reading thread keeps one core busy for less than half of the time, so others than those of a few cores would
// wait.
int BatchWorkers::mostThreads()
{
    return std::clamp(int(std::thread::hardware_concurrency()), 1, 8);
}

void BatchWorkers::add(std::function<void()> task)
{
    if (int(myThreads.size()) < mostThreads())
        myThreads.emplace_back([this] { work(); });
    {
        const std::lock_guard locker(myMutex);
        myTasks.push_back(std::move(task));
    }
    myHasNews.notify_one();
}

void BatchWorkers::work()
{
    for (;;) {
        std::unique_lock locker(myMutex);
        myHasNews.wait(locker, [this] { return myIsEnding || !myTasks.empty(); });
        if (myTasks.empty())
            return;
        const std::function<void()> task = std::move(myTasks.front());
        myTasks.pop_front();
        locker.unlock();
        task();
    }
}
