#include "base/SystemLog.h"
#include "run/jobs/JobRunner.h"
#include "support/ScratchFolder.h"
#include "support/TestEntry.h"

#include <QTest>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace dravolin;
using test::ScratchFolder;

namespace {

const QString shell = QStringLiteral("/bin/sh");

JobResult run(const Job &job)
{
    return PosixJobRunner().run(job);
}

Job shellJob(const QString &command)
{
    return {shell, {QStringLiteral("-c"), command}, QStringLiteral("/"), std::nullopt, true};
}

} // namespace

class TestJobRunner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void environmentIsExactlyTheOneGiven_data();
    void environmentIsExactlyTheOneGiven();
    void withoutAnEnvironmentTheApplicationsOwnIsInherited();
    void runsInItsFolder_data();
    void runsInItsFolder();
    void handsArgumentsOnByteForByte();
    void collectsMoreThanAPipeHolds();
    void collectsOnlyStandardOutput();
    void withoutAPipeOutputIsTheApplicationsOwn();
    void reportsHowItEnded_data();
    void reportsHowItEnded();
    void signalsMeanWhatTheyUsuallyMean_data();
    void signalsMeanWhatTheyUsuallyMean();
    void reportsWhatCouldNotBeStarted_data();
    void reportsWhatCouldNotBeStarted();
    void reportsThatThereIsNoPipe();
    void waitsUntilItHasEnded();
    void leavesNoProcessAndNoDescriptorBehind();
    void endsAProcessThatPrintsWithoutEnd();
    void doesNotWaitForAReaderOfStandardError();
};

void TestJobRunner::environmentIsExactlyTheOneGiven_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("one variable") << QStringList{QStringLiteral("DCMDICTPATH=/x y/dicom.dic")}
                                  << QByteArray("DCMDICTPATH=/x y/dicom.dic\n");
    QTest::newRow("bytes that are not UTF-8") << QStringList{fromBytes("DCMDICTPATH=/\xFF/dicom.dic")}
                                              << QByteArray("DCMDICTPATH=/\xFF/dicom.dic\n");
    QTest::newRow("none at all") << QStringList() << QByteArray();
}

void TestJobRunner::environmentIsExactlyTheOneGiven()
{
    QFETCH(const QStringList, environment);
    QFETCH(const QByteArray, expected);
    const JobResult result =
        run({QStringLiteral("/usr/bin/env"), {}, QStringLiteral("/"), environment, true});
    QCOMPARE(result.outcome, JobOutcome::Ran);
    QCOMPARE(result.output, expected);
}

void TestJobRunner::withoutAnEnvironmentTheApplicationsOwnIsInherited()
{
    qputenv("DRAVOLIN_TEST_MARK", "inherited");
    const JobResult result = run(shellJob(QStringLiteral("printf %s \"$DRAVOLIN_TEST_MARK\"")));
    qunsetenv("DRAVOLIN_TEST_MARK");
    QCOMPARE(result.output, QByteArray("inherited"));
}

void TestJobRunner::runsInItsFolder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("plain") << QByteArray("plain");
    QTest::newRow("quotes and dollars") << QByteArray("a \"b\" '$c' `d` \\e");
    QTest::newRow("line break") << QByteArray("a\nb");
    QTest::newRow("not UTF-8") << QByteArray("\xFF\xE2\x82");
}

void TestJobRunner::runsInItsFolder()
{
    QFETCH(const QByteArray, name);
    const ScratchFolder scratch;
    const QString folder = scratch.folder(fromBytes(name));
    const JobResult result =
        run({QStringLiteral("/bin/pwd"), {QStringLiteral("-P")}, folder, QStringList(), true});
    QCOMPARE(result.output, toBytes(folder) + '\n');
}

void TestJobRunner::handsArgumentsOnByteForByte()
{
    const QStringList arguments = {QStringLiteral("%s|"),       QStringLiteral("a b"),  QString(),
                                   QStringLiteral("\"$x`\\"),   QStringLiteral("a\nb"), fromBytes("\xFF"),
                                   QStringLiteral("\U0001F600")};
    const JobResult result =
        run({QStringLiteral("/usr/bin/printf"), arguments, QStringLiteral("/"), QStringList(), true});
    QCOMPARE(result.output, QByteArray("a b||\"$x`\\|a\nb|\xFF|\xF0\x9F\x98\x80|"));
}

void TestJobRunner::collectsMoreThanAPipeHolds()
{
    QByteArray expected;
    for (int i = 1; i <= 200000; ++i)
        expected += QByteArray::number(i) + '\n';
    QVERIFY(expected.size() > 1000000);
    QCOMPARE(run(shellJob(QStringLiteral("seq 1 200000"))).output, expected);
}

void TestJobRunner::collectsOnlyStandardOutput()
{
    QCOMPARE(run(shellJob(QStringLiteral("echo out; exec 2>/dev/null; echo err >&2"))).output,
             QByteArray("out\n"));
}

void TestJobRunner::withoutAPipeOutputIsTheApplicationsOwn()
{
    const ScratchFolder scratch;
    const QString path = scratch.file(QStringLiteral("output"));
    std::fflush(stdout);
    const int saved = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    const int file = ::open(toBytes(path).constData(), O_WRONLY | O_CLOEXEC);
    ::dup2(file, STDOUT_FILENO);
    Job job = shellJob(QStringLiteral("echo here"));
    job.pipeOutput = false;
    const JobResult result = run(job);
    ::dup2(saved, STDOUT_FILENO);
    ::close(saved);
    ::close(file);
    QCOMPARE(result.outcome, JobOutcome::Ran);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(readBytes(path), std::optional(QByteArray("here\n")));
}

void TestJobRunner::reportsHowItEnded_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("status");
    QTest::newRow("exit 0") << QStringLiteral("exit 0") << 0;
    QTest::newRow("exit 1") << QStringLiteral("exit 1") << 1;
    QTest::newRow("exit 127") << QStringLiteral("exit 127") << 127;
    QTest::newRow("killed") << QStringLiteral("kill -KILL $$") << 128 + SIGKILL;
}

void TestJobRunner::reportsHowItEnded()
{
    QFETCH(const QString, end);
    const JobResult result = run(shellJob(QStringLiteral("echo printed; ") + end));
    QCOMPARE(result.outcome, JobOutcome::Ran);
    QCOMPARE(result.output, QByteArray("printed\n"));
    QTEST(result.exitStatus, "status");
}

void TestJobRunner::signalsMeanWhatTheyUsuallyMean_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGPIPE") << SIGPIPE;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestJobRunner::signalsMeanWhatTheyUsuallyMean()
{
    QFETCH(const int, signal);
    // what the application ignores or blocks, its children are not to ignore or to block
    const auto before = std::signal(signal, SIG_IGN);
    sigset_t blocked = {};
    sigset_t old = {};
    sigaddset(&blocked, signal);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &old);
    const JobResult result = run(shellJob(QStringLiteral("kill -%1 $$; echo survived").arg(signal)));
    ::pthread_sigmask(SIG_SETMASK, &old, nullptr);
    std::signal(signal, before);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.exitStatus, 128 + signal);
}

void TestJobRunner::reportsWhatCouldNotBeStarted_data()
{
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("folder");
    const QString here = QStringLiteral("/");
    QTest::newRow("executable missing") << QStringLiteral("/missing/tool") << here;
    QTest::newRow("a name without a folder is not searched for") << QStringLiteral("env") << here;
    QTest::newRow("executable is a folder") << QStringLiteral("/usr") << here;
    QTest::newRow("executable cannot be executed") << QStringLiteral("/etc/passwd") << here;
    QTest::newRow("folder missing") << shell << QStringLiteral("/missing/folder");
    QTest::newRow("folder is a file") << shell << QStringLiteral("/dev/null");
    QTest::newRow("folder empty") << shell << QString();
}

void TestJobRunner::reportsWhatCouldNotBeStarted()
{
    QFETCH(const QString, executable);
    QFETCH(const QString, folder);
    for (const bool pipe : {false, true}) {
        const JobResult result = run({executable, {}, folder, QStringList(), pipe});
        QCOMPARE(result.outcome, JobOutcome::CouldNotStart);
        QCOMPARE(result.output, QByteArray());
    }
}

void TestJobRunner::reportsThatThereIsNoPipe()
{
    const ScratchFolder scratch;
    const Job job = {
        QStringLiteral("/usr/bin/touch"), {QStringLiteral("started")}, scratch.path(), QStringList(), true};
    struct rlimit before = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const struct rlimit none = {0, before.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const JobResult result = run(job);
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &before), 0);
    QCOMPARE(result.outcome, JobOutcome::NoPipe);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(listNames(scratch.path()), QStringList());
    QCOMPARE(run(job).outcome, JobOutcome::Ran);
    QCOMPARE(listNames(scratch.path()), QStringList{QStringLiteral("started")});
}

void TestJobRunner::waitsUntilItHasEnded()
{
    const ScratchFolder scratch;
    Job job = shellJob(
        QStringLiteral("exec >/dev/null; i=0; while [ $i -lt 100000 ]; do i=$((i+1)); done; touch ended"));
    job.folder = scratch.path();
    for (const bool pipe : {false, true}) {
        job.pipeOutput = pipe;
        QCOMPARE(run(job).outcome, JobOutcome::Ran);
        QCOMPARE(listNames(scratch.path()), QStringList{QStringLiteral("ended")});
        removeFile(scratch.path(QStringLiteral("ended")));
    }
}

void TestJobRunner::leavesNoProcessAndNoDescriptorBehind()
{
    const auto descriptors = [] { return listNames(QStringLiteral("/proc/self/fd")).size(); };
    const qsizetype before = descriptors();
    for (int i = 0; i < 10; ++i) {
        (void)run(shellJob(QStringLiteral("echo x")));
        (void)run({QStringLiteral("/missing/tool"), {}, QStringLiteral("/"), std::nullopt, true});
        (void)run({shell, {}, QStringLiteral("/"), std::nullopt, false});
    }
    QCOMPARE(descriptors(), before);
    QCOMPARE(::waitpid(-1, nullptr, WNOHANG), -1);
    QCOMPARE(errno, ECHILD);
}

void TestJobRunner::endsAProcessThatPrintsWithoutEnd()
{
    Job job = shellJob(QStringLiteral("trap '' TERM PIPE; while :; do echo endless; done 2>/dev/null"));
    job.enoughOutput = 100'000;
    const JobResult result = run(job);
    QCOMPARE(result.outcome, JobOutcome::Ran);
    QCOMPARE(result.exitStatus, 128 + SIGKILL);
    QVERIFY(result.output.startsWith("endless\nendless\n"));
    QVERIFY(result.output.size() >= 100'000 && result.output.size() < 200'000);
}

void TestJobRunner::doesNotWaitForAReaderOfStandardError()
{
    std::array<int, 2> pipe = {-1, -1};
    QCOMPARE(::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK), 0);
    const QByteArray text(4096, 'x');
    while (::write(pipe[1], text.constData(), static_cast<size_t>(text.size())) > 0) {
    }
    ::fcntl(pipe[1], F_SETFL, 0);
    const int before = ::dup(STDERR_FILENO);
    ::dup2(pipe[1], STDERR_FILENO);
    const bool canWrite = canWriteToStandardError();
    const JobResult result = run(shellJob(QStringLiteral("echo a message >&2; echo done")));
    ::dup2(before, STDERR_FILENO);
    for (const int descriptor : {before, pipe[0], pipe[1]})
        ::close(descriptor);
    QVERIFY(!canWrite);
    QVERIFY(canWriteToStandardError());
    QCOMPARE(result.output, QByteArray("done\n"));
}

DRAVOLIN_TEST(TestJobRunner)
#include "tst_jobrunner.moc"
