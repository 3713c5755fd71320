#include "run/jobs/JobRunner.h"

#include "base/PathText.h"
#include "base/SystemLog.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace dravolin {

namespace {

// A null-terminated argument or environment vector over its own bytes.
class StringVector
{
public:
    explicit StringVector(const QStringList &strings)
    {
        m_bytes.reserve(static_cast<size_t>(strings.size()));
        for (const QString &string : strings)
            m_bytes.push_back(toBytes(string));
        for (QByteArray &bytes : m_bytes)
            m_pointers.push_back(bytes.data());
        m_pointers.push_back(nullptr);
    }
    [[nodiscard]] char *const *data() const { return m_pointers.data(); }

private:
    std::vector<QByteArray> m_bytes;
    std::vector<char *> m_pointers;
};

class SpawnActions
{
public:
    SpawnActions() { ::posix_spawn_file_actions_init(&m_actions); }
    ~SpawnActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;
    posix_spawn_file_actions_t *get() { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions = {};
};

// Signals mean to a child what they usually mean, whatever this process ignores or blocks.
class SpawnAttributes
{
public:
    SpawnAttributes()
    {
        sigset_t signals = {};
        ::posix_spawnattr_init(&m_attributes);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
        ::posix_spawnattr_setsigmask(&m_attributes, &signals);
        ::sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signals);
    }
    ~SpawnAttributes() { ::posix_spawnattr_destroy(&m_attributes); }
    SpawnAttributes(const SpawnAttributes &) = delete;
    SpawnAttributes &operator=(const SpawnAttributes &) = delete;
    [[nodiscard]] const posix_spawnattr_t *get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes = {};
};

// The child's process id, or nothing when it could not be started. `output` is the pipe's write end or -1.
std::optional<pid_t> start(const Job &job, int output)
{
    const QByteArray executable = systemPath(job.executable);
    const QByteArray folder = systemPath(job.folder);
    const StringVector arguments(QStringList{job.executable} + job.arguments);
    const StringVector environment(job.environment.value_or(QStringList()));

    SpawnActions actions;
    ::posix_spawn_file_actions_addopen(actions.get(), STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (output >= 0)
        ::posix_spawn_file_actions_adddup2(actions.get(), output, STDOUT_FILENO);
    if (!canWriteToStandardError()) // the child would wait for ever for somebody to read it
        ::posix_spawn_file_actions_addopen(actions.get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addchdir_np(actions.get(), folder.constData());

    const SpawnAttributes attributes;
    pid_t child = -1;
    const std::lock_guard lock(processStartMutex());
    const int failure = ::posix_spawn(&child, executable.constData(), actions.get(), attributes.get(),
                                      arguments.data(), job.environment ? environment.data() : environ);
    return failure == 0 ? std::optional(child) : std::nullopt;
}

// Until its end, or until there is enough of it.
QByteArray readFrom(int pipe, qsizetype enough)
{
    QByteArray output;
    std::array<char, 16384> buffer = {};
    while (output.size() < enough) {
        const ssize_t got = ::read(pipe, buffer.data(), buffer.size());
        if (got > 0)
            output.append(buffer.data(), got);
        else if (got == 0 || errno != EINTR)
            break;
    }
    return output;
}

int waitAndTerminate(pid_t child)
{
    siginfo_t ended = {};
    while (::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT) != 0 && errno == EINTR) {
    }
    ::kill(child, SIGTERM); // it has ended but is not yet reaped, so that the id is still its own
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace

JobResult PosixJobRunner::run(const Job &job)
{
    std::array<int, 2> pipe = {-1, -1};
    if (job.pipeOutput && ::pipe2(pipe.data(), O_CLOEXEC) != 0)
        return {.outcome = JobOutcome::NoPipe};

    const std::optional<pid_t> child = start(job, pipe[1]);
    if (pipe[1] >= 0)
        ::close(pipe[1]);
    JobResult result;
    // read while it runs: a child whose output fills the pipe would otherwise never end
    if (child && pipe[0] >= 0)
        result.output = readFrom(pipe[0], job.enoughOutput);
    if (child && result.output.size() >= job.enoughOutput)
        ::kill(*child, SIGKILL); // not yet reaped, so that the id is still its own
    if (pipe[0] >= 0)
        ::close(pipe[0]);
    if (child) {
        result.exitStatus = waitAndTerminate(*child);
        result.outcome = JobOutcome::Ran;
    }
    return result;
}

void allowLongArgumentLists()
{
    constexpr rlim_t wanted = 32 * 1024 * 1024;
    rlimit limit = {};
    if (::getrlimit(RLIMIT_STACK, &limit) != 0 || limit.rlim_cur >= wanted)
        return;
    limit.rlim_cur = std::min(limit.rlim_max, wanted);
    ::setrlimit(RLIMIT_STACK, &limit);
}

std::mutex &processStartMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace dravolin
