#include "run/jobs/JobRunner.h"
#include "support/TestEntry.h"

#include <QScopeGuard>
#include <QTest>

#include <array>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace dravolin;

// What a job gets from this process, and what it does not.
class TestJobSurroundings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standardInputIsTheNullDevice();
    void stackGrowsForLongArgumentLists_data();
    void stackGrowsForLongArgumentLists();
};

void TestJobSurroundings::standardInputIsTheNullDevice()
{
    std::array<int, 2> pipe = {-1, -1};
    QCOMPARE(::pipe2(pipe.data(), O_CLOEXEC), 0);
    QCOMPARE(::write(pipe[1], "not for the job\n", 16), ssize_t(16));
    ::close(pipe[1]);
    const int before = ::dup(STDIN_FILENO);
    const auto putBack = qScopeGuard([&] {
        ::dup2(before, STDIN_FILENO);
        ::close(before);
        ::close(pipe[0]);
    });
    ::dup2(pipe[0], STDIN_FILENO);
    const Job job = {QStringLiteral("/bin/sh"),
                     {QStringLiteral("-c"), QStringLiteral("readlink /proc/self/fd/0; cat")},
                     QStringLiteral("/"),
                     std::nullopt,
                     true};
    QCOMPARE(PosixJobRunner().run(job).output, QByteArray("/dev/null\n"));
}

void TestJobSurroundings::stackGrowsForLongArgumentLists_data()
{
    constexpr quint64 mebibyte = 1024 * 1024;
    QTest::addColumn<quint64>("before");
    QTest::addColumn<quint64>("after");
    QTest::newRow("usual") << 8 * mebibyte << 32 * mebibyte;
    QTest::newRow("a byte less than wanted") << 32 * mebibyte - 1 << 32 * mebibyte;
    QTest::newRow("as wanted") << 32 * mebibyte << 32 * mebibyte;
    QTest::newRow("more than wanted") << 64 * mebibyte << 64 * mebibyte;
}

void TestJobSurroundings::stackGrowsForLongArgumentLists()
{
    QFETCH(const quint64, before);
    rlimit usual = {};
    QCOMPARE(::getrlimit(RLIMIT_STACK, &usual), 0);
    const auto putBack = qScopeGuard([&] { ::setrlimit(RLIMIT_STACK, &usual); });
    rlimit limit = {before, usual.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_STACK, &limit), 0);
    allowLongArgumentLists();
    QCOMPARE(::getrlimit(RLIMIT_STACK, &limit), 0);
    QTEST(quint64(limit.rlim_cur), "after");
    QCOMPARE(limit.rlim_max, usual.rlim_max);
}

DRAVOLIN_TEST(TestJobSurroundings)
#include "tst_jobsurroundings.moc"
