#include "batch/Workers.h"

#include <QSemaphore>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <memory>
#include <vector>

namespace dravolin {

void workThrough(qsizetype count, int workers, const std::function<void(qsizetype)> &work,
                 const std::function<bool()> &stop, const std::function<void()> &meanwhile)
{
    constexpr int pause = 100; // milliseconds
    std::atomic<qsizetype> next = 0;
    QSemaphore finished;
    const auto loop = [&] {
        for (qsizetype number = next++; number < count && !stop(); number = next++)
            work(number);
        finished.release();
    };
    const int threads = static_cast<int>(std::clamp<qsizetype>(workers, 1, std::max<qsizetype>(count, 1)));
    std::vector<std::unique_ptr<QThread>> running;
    for (int i = 0; i < threads; ++i) {
        running.emplace_back(QThread::create(loop));
        running.back()->start();
    }
    while (!finished.tryAcquire(threads, pause))
        if (meanwhile)
            meanwhile();
    for (const auto &thread : running)
        thread->wait();
    if (meanwhile)
        meanwhile();
}

} // namespace dravolin
