#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <limits>
#include <mutex>
#include <optional>

namespace dravolin {

// One child process. Its standard input is the null device, its standard error the application's own, or the
// null device while nobody reads that.
struct Job
{
    QString executable;
    QStringList arguments; // without the executable
    QString folder;        // current directory
    // The whole environment, "NAME=value"; nothing: the application's own.
    std::optional<QStringList> environment = std::nullopt;
    bool pipeOutput = false; // collect standard output; else it is the application's own
    // Bytes of piped output after which no more is wanted: the process is then ended.
    qsizetype enoughOutput = std::numeric_limits<qsizetype>::max();
};

enum class JobOutcome {
    Ran, // started and ended, however it ended
    CouldNotStart,
    NoPipe // no pipe could be created for its output
};

struct JobResult
{
    JobOutcome outcome = JobOutcome::CouldNotStart;
    QByteArray output = {}; // what was piped
    int exitStatus =
        0; // of one that ran: what it exited with, or 128 and the number of the signal that ended it
};

// The seam to child processes. No meaning is given to anything here: exit statuses are reported, not judged.
class JobRunner
{
public:
    virtual ~JobRunner() = default;
    // Starts `job`, waits without a limit until it has ended, and returns. Any thread; it blocks.
    [[nodiscard]] virtual JobResult run(const Job &job) = 0;
};

// POSIX processes. QProcess is not used because it cannot carry folder names and arguments that are not
// UTF-8, and because posix_spawn's cost does not grow with the application's memory. A child is left alone
// when the application ends. One object may serve several threads.
class PosixJobRunner : public JobRunner
{
public:
    [[nodiscard]] JobResult run(const Job &job) override;
};

// Lets the kernel pass longer argument lists to children: it gives them a quarter of the stack limit, up to
// 6 MiB. A folder whose names do not fit into one command is not worked through. Call once, at start.
void allowLongArgumentLists();

// Held while a script is open for writing and while a child is created: a child that inherited the open
// script, if only for a moment, would make the kernel refuse to execute it ("Text file busy").
[[nodiscard]] std::mutex &processStartMutex();

} // namespace dravolin
