#include "run/StartUp.h"
#include "support/TestEntry.h"

#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <pwd.h>
#include <unistd.h>

using namespace dravolin;

// What a process does for itself before it has an application object.
class TestStartUp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsAHomeFolder_data();
    void findsAHomeFolder();
    void isNotEndedByAPipeWithoutAReader();
    void leavesMessagesOutThatNobodyReads();

private:
    // As in a process of its own: what it changes is put back.
    static void prepare(const std::function<void()> &look)
    {
        const auto handler = std::signal(SIGPIPE, SIG_DFL);
        const QtMessageHandler messages = qInstallMessageHandler(nullptr);
        prepareProcess();
        look();
        qInstallMessageHandler(messages);
        std::signal(SIGPIPE, handler);
    }
};

void TestStartUp::findsAHomeFolder_data()
{
    QTest::addColumn<QByteArray>("home");
    QTest::addColumn<QByteArray>("found");
    const QByteArray own = ::getpwuid(::geteuid())->pw_dir;
    QTest::newRow("unset") << QByteArray() << own;
    QTest::newRow("empty") << QByteArray("") << own;
    QTest::newRow("named") << QByteArray("/somewhere else") << QByteArray("/somewhere else");
}

void TestStartUp::findsAHomeFolder()
{
    QFETCH(const QByteArray, home);
    QFETCH(const QByteArray, found);
    const QByteArray before = qgetenv("HOME");
    if (home.isNull())
        qunsetenv("HOME");
    else
        qputenv("HOME", home);
    QByteArray seen;
    prepare([&seen] { seen = qgetenv("HOME"); });
    qputenv("HOME", before);
    QCOMPARE(seen, found);
}

void TestStartUp::isNotEndedByAPipeWithoutAReader()
{
    std::array<int, 2> pipe = {-1, -1};
    QCOMPARE(::pipe2(pipe.data(), O_CLOEXEC), 0);
    ::close(pipe[0]);
    int error = 0;
    prepare([&] { error = ::write(pipe[1], "x", 1) < 0 ? errno : 0; });
    ::close(pipe[1]);
    QCOMPARE(error, EPIPE);
}

void TestStartUp::leavesMessagesOutThatNobodyReads()
{
    std::array<int, 2> pipe = {-1, -1};
    QCOMPARE(::pipe2(pipe.data(), O_CLOEXEC), 0);
    const int before = ::dup(STDERR_FILENO);
    const auto putBack = qScopeGuard([&] { ::close(before); });
    QByteArray received;
    prepare([&] {
        ::dup2(pipe[1], STDERR_FILENO);
        for (int i = 0; i < 10000; ++i) // many times what the pipe holds
            qWarning("a message that is not very long");
        ::dup2(before, STDERR_FILENO);
    });
    ::close(pipe[1]);
    std::array<char, 4096> buffer = {};
    for (ssize_t got = 1; got > 0;) {
        got = ::read(pipe[0], buffer.data(), buffer.size());
        received.append(buffer.data(), std::max<ssize_t>(got, 0));
    }
    ::close(pipe[0]);
    QVERIFY(received.startsWith("a message that is not very long\n"));
    QVERIFY(received.size() < 100000);
}

DRAVOLIN_TEST(TestStartUp)
#include "tst_startup.moc"
