#include "cli/Interruption.h"

#include "cli/Commands.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <initializer_list>
#include <mutex>

namespace dravolin::cli {

namespace {

std::atomic<bool> interruptionNoted = false;
static_assert(std::atomic<bool>::is_always_lock_free); // or a signal's handler could not use it

void note(int)
{
    interruptionNoted = true;
}

} // namespace

void noteInterruptions()
{
    // a limit on the size of files is told like a full disk
    (void)::signal(SIGXFSZ, SIG_IGN);
    for (const int signal : {SIGINT, SIGTERM}) {
        struct sigaction action = {};
        action.sa_handler = note;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
        ::sigaction(signal, &action, nullptr);
    }
}

bool isInterrupted()
{
    return interruptionNoted;
}

std::jthread endWhenInterrupted(const QString &text)
{
    using namespace std::chrono_literals;
    return std::jthread([text](const std::stop_token &stop) {
        std::mutex mutex;
        std::condition_variable_any ended;
        const auto wait = [&](std::chrono::milliseconds time) {
            std::unique_lock lock(mutex);
            ended.wait_for(lock, stop, time, [] { return false; });
            return !stop.stop_requested();
        };
        while (wait(50ms)) {
            if (!isInterrupted() || !wait(600ms))
                continue;
            printError(text);
            std::_Exit(interrupted);
        }
    });
}

} // namespace dravolin::cli
