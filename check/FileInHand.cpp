#include "check/FileInHand.h"

#include "base/PathText.h"

#include <array>
#include <csignal>
#include <memory>
#include <unistd.h>

namespace dravolin::check {

namespace {

struct CrashSignal
{
    int number;
    struct sigaction before;
};

std::array<CrashSignal, 5> crashSignals = {
    {{SIGSEGV, {}}, {SIGBUS, {}}, {SIGFPE, {}}, {SIGILL, {}}, {SIGABRT, {}}}};

thread_local const QByteArray *inHand = nullptr; // a path

// A stack for the handler: the thread's own may be what has run out.
class SignalStack
{
public:
    SignalStack()
    {
        stack_t present = {};
        m_isOurs = ::sigaltstack(nullptr, &present) == 0 && (present.ss_flags & SS_DISABLE) != 0;
        if (!m_isOurs)
            return;
        m_bytes = std::make_unique<char[]>(size);
        set(m_bytes.get(), 0);
    }
    ~SignalStack()
    {
        if (m_isOurs)
            set(nullptr, SS_DISABLE);
    }
    Q_DISABLE_COPY_MOVE(SignalStack)

private:
    static constexpr size_t size = 64 * 1024;
    static void set(void *bytes, int flags)
    {
        const stack_t stack = {bytes, flags, size};
        (void)::sigaltstack(&stack, nullptr);
    }

    bool m_isOurs = false;
    std::unique_ptr<char[]> m_bytes;
};

void write(QByteArrayView bytes)
{
    (void)!::write(STDERR_FILENO, bytes.data(), static_cast<size_t>(bytes.size()));
}

void tellFileInHand(const QByteArray &path)
{
    write("\nThe program was ended by reading ");
    write(path);
    write("\nTake this file away, give the same command again, and send the file to those who look after the "
          "program.\n");
}

void endWithName(int signal, siginfo_t *information, void *)
{
    if (inHand)
        tellFileInHand(*inHand);
    for (const CrashSignal &known : crashSignals)
        if (known.number == signal)
            (void)::sigaction(signal, &known.before, nullptr);
    // a fault comes again by itself, as soon as this returns
    const bool isFault = information->si_code > 0;
    if (!isFault)
        (void)::raise(signal);
}

} // namespace

FileInHand::FileInHand(const QString &path) : m_path(toBytes(path)), m_outer(inHand)
{
    thread_local const SignalStack stack;
    (void)stack;
    inHand = &m_path;
}

FileInHand::~FileInHand()
{
    inHand = m_outer;
}

void tellCrashes()
{
    for (CrashSignal &crash : crashSignals) {
        struct sigaction action = {};
        action.sa_sigaction = endWithName;
        action.sa_flags = static_cast<int>(SA_ONSTACK | SA_SIGINFO);
        (void)::sigaction(crash.number, &action, &crash.before);
    }
}

} // namespace dravolin::check
