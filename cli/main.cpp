#include "base/PathText.h"
#include "check/FileInHand.h"
#include "cli/Commands.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace {

// Large files come one after the other: their memory is kept for the next one. To have it emptied by the
// system each time costs as much as reading them. And small pieces are joined when they are freed: else each
// larger one that is wanted, as for the bytes of a file, has all of them joined first.
void tuneMemory()
{
    constexpr int most = 256 * 1024 * 1024; // bytes
    ::mallopt(M_MXFAST, 0);
    ::mallopt(M_MMAP_THRESHOLD, most);
    ::mallopt(M_TRIM_THRESHOLD, most);
}

// All files are closed and all threads have ended. What is left are tables of libraries, which it takes
// longer to take apart than a small run takes; the sanitizers alone want to see that.
void end([[maybe_unused]] int status)
{
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    if (std::fflush(nullptr) == 0)
        std::_Exit(status);
#endif
}

} // namespace

int main(int argc, char *argv[])
{
    tuneMemory();
    dravolin::check::tellCrashes();
    const QCoreApplication application(argc, argv);
    QStringList arguments; // as bytes: names that are no UTF-8 must arrive
    for (int i = 1; i < argc; ++i)
        arguments.append(dravolin::fromBytes(argv[i]));
    const int status = dravolin::cli::runCommand(arguments);
    end(status);
    return status;
}
