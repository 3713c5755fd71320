#include "batch/Workers.h"

#include <QElapsedTimer>
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
    constexpr int shortestPause = 25; // milliseconds
    constexpr int longestPause = 100;
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
    int pause = shortestPause;
    while (!finished.tryAcquire(threads, pause)) {
        QElapsedTimer timer;
        timer.start();
        if (meanwhile)
            meanwhile();
        // what takes long, such as a slow disk, is to be asked seldom
        pause = std::clamp(static_cast<int>(4 * timer.elapsed()), shortestPause, longestPause);
    }
    for (const auto &thread : running)
        thread->wait();
    if (meanwhile)
        meanwhile();
}

} // namespace dravolin
