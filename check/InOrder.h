#pragma once

#include <QtGlobal>

#include <atomic>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace dravolin::check {

// Does `count` pieces of work on `workers` threads and hands over the results one at a time in the order of
// the pieces, on any of the threads. `makeWorker` is called once for each thread and gives the function that
// does a piece, from its index to its result; `commit` takes index and result. Returns when all is done, or,
// once `stop` gives true, when what has begun is done. None of them may throw.
template <typename Result, typename MakeWorker, typename Commit, typename Stop>
void inOrder(qsizetype count, int workers, MakeWorker makeWorker, Commit commit, Stop stop)
{
    std::atomic<qsizetype> next = 0;
    std::mutex mutex;
    std::map<qsizetype, Result> waiting; // for earlier ones
    qsizetype committed = 0;

    const auto work = [&] {
        auto worker = makeWorker();
        for (qsizetype index = next++; index < count && !stop(); index = next++) {
            Result result = worker(index);
            const std::scoped_lock lock(mutex);
            waiting.emplace(index, std::move(result));
            while (!waiting.empty() && waiting.begin()->first == committed) {
                commit(committed, waiting.begin()->second);
                waiting.erase(waiting.begin());
                ++committed;
            }
        }
    };
    std::vector<std::jthread> threads;
    for (int i = 1; i < workers; ++i)
        threads.emplace_back(work);
    work();
}

} // namespace dravolin::check
