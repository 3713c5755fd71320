#include "cli/Interruption.h"

#include <atomic>
#include <csignal>
#include <initializer_list>

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

} // namespace dravolin::cli
