#include "base/PathText.h"
#include "check/FileInHand.h"
#include "cli/Commands.h"

#include <QCoreApplication>

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

} // namespace

int main(int argc, char *argv[])
{
    tuneMemory();
    dravolin::check::tellCrashes();
    const QCoreApplication application(argc, argv);
    QStringList arguments; // as bytes: names that are no UTF-8 must arrive
    for (int i = 1; i < argc; ++i)
        arguments.append(dravolin::fromBytes(argv[i]));
    return dravolin::cli::runCommand(arguments);
}
