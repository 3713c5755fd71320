#include "base/PathText.h"
#include "check/FileInHand.h"
#include "support/TestEntry.h"

#include <QTest>

#include <array>
#include <csignal>
#include <functional>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace dravolin;
using namespace dravolin::check;

namespace {

struct Ended
{
    QByteArray said;
    int signal = 0;
};

// What a process says on standard error that does this, and the signal that ends it.
Ended endOf(const std::function<void()> &work)
{
    std::array<int, 2> ends = {};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return {};
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit none = {0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT})
            (void)::signal(signal, SIG_DFL); // not those of the tests
        ::dup2(ends[1], STDERR_FILENO);
        tellCrashes();
        work();
        ::_exit(0);
    }
    ::close(ends[1]);
    Ended ended;
    std::array<char, 4096> piece = {};
    for (ssize_t got = 0; (got = ::read(ends[0], piece.data(), piece.size())) > 0;)
        ended.said.append(piece.data(), got);
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    ended.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    return ended;
}

QByteArray toldOf(const QByteArray &path)
{
    return "\nThe program was ended by reading " + path +
           "\nTake this file away, give the same command again, and send the file to those who look after "
           "the "
           "program.\n";
}

// NOLINTNEXTLINE(misc-no-recursion): the stack is to run out
int fillStack(volatile char *before)
{
    volatile char bytes[4096] = {};
    bytes[0] = *before;
    return *before != 0 ? 1 : fillStack(bytes) + bytes[1];
}

} // namespace

class TestFileInHand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isToldWhenAFileEndsTheProgram_data();
    void isToldWhenAFileEndsTheProgram();
    void isToldWhenTheStackRunsOut();
    void isTheInnerOne();
    void isNotToldWhenItIsNoLongerInHand();
};

void TestFileInHand::isToldWhenAFileEndsTheProgram_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("a fault of memory") << SIGSEGV;
    QTest::newRow("a file that became shorter") << SIGBUS;
    QTest::newRow("a division by zero") << SIGFPE;
    QTest::newRow("an instruction that the processor lacks") << SIGILL;
    QTest::newRow("abort()") << SIGABRT;
}

void TestFileInHand::isToldWhenAFileEndsTheProgram()
{
    QFETCH(const int, signal);
    const QByteArray path = "/a folder/n\xff.dcm";
    const Ended ended = endOf([&] {
        const FileInHand inHand(fromBytes(path));
        if (signal == SIGABRT)
            ::abort();
        (void)::raise(signal);
    });
    QCOMPARE(ended.said, toldOf(path));
    QCOMPARE(ended.signal, signal);
}

void TestFileInHand::isToldWhenTheStackRunsOut()
{
    const Ended ended = endOf([] {
        const FileInHand inHand(QStringLiteral("deep"));
        constexpr rlim_t mebibyte = 1024 * 1024;
        const rlimit small = {mebibyte, mebibyte};
        ::setrlimit(RLIMIT_STACK, &small);
        char first = 0;
        std::exit(fillStack(&first));
    });
    QVERIFY2(ended.said.startsWith(toldOf("deep")), ended.said.constData()); // a sanitizer says more
    QVERIFY(ended.signal == SIGSEGV || ended.signal == SIGABRT || ended.said.contains("stack-overflow"));
}

void TestFileInHand::isTheInnerOne()
{
    const Ended ended = endOf([] {
        const FileInHand outer(QStringLiteral("outer"));
        {
            const FileInHand inner(QStringLiteral("inner"));
        }
        (void)::raise(SIGSEGV);
    });
    QCOMPARE(ended.said, toldOf("outer"));
}

void TestFileInHand::isNotToldWhenItIsNoLongerInHand()
{
    const Ended ended = endOf([] {
        {
            const FileInHand inHand(QStringLiteral("a"));
        }
        (void)::raise(SIGSEGV);
    });
    QCOMPARE(ended.said, QByteArray());
    QCOMPARE(ended.signal, SIGSEGV);
}

DRAVOLIN_TEST(TestFileInHand)
#include "tst_fileinhand.moc"
