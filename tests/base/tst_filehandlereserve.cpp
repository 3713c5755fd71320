#include "base/FileHandleReserve.h"
#include "base/Files.h"
#include "support/TestEntry.h"

#include <QFile>
#include <QTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

using namespace dravolin;

namespace {

qsizetype openHandles()
{
    return listNames(QStringLiteral("/proc/self/fd")).size();
}

// Takes every handle that this process may have; the limit is lowered, so that these are few.
class NoHandles
{
public:
    NoHandles()
    {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit few = {200, m_before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &few);
        for (int handle = open(); handle >= 0; handle = open())
            m_handles.push_back(handle);
    }
    ~NoHandles()
    {
        for (const int handle : m_handles)
            ::close(handle);
        ::setrlimit(RLIMIT_NOFILE, &m_before);
    }
    NoHandles(const NoHandles &) = delete;
    NoHandles &operator=(const NoHandles &) = delete;

    // How many handles are to be had.
    static int available()
    {
        std::vector<int> handles;
        for (int handle = open(); handle >= 0; handle = open())
            handles.push_back(handle);
        for (const int handle : handles)
            ::close(handle);
        return static_cast<int>(handles.size());
    }

private:
    static int open() { return ::open("/dev/null", O_RDONLY | O_CLOEXEC); }

    rlimit m_before = {};
    std::vector<int> m_handles;
};

} // namespace

class TestFileHandleReserve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsHandlesAndGivesThemBack();
    void keepsThemWhileThereAreOthers();
    void givesThemWhenThereAreNoOthers();
    void takesNoneWhenThatWouldLeaveFew();
    void makesRoomForThemAndKeepsNone();
};

void TestFileHandleReserve::keepsHandlesAndGivesThemBack()
{
    const qsizetype before = openHandles();
    {
        FileHandleReserve reserve;
        QCOMPARE(openHandles(), before + 32);
        reserve.fill();
        QCOMPARE(openHandles(), before + 32);
    }
    QCOMPARE(openHandles(), before);
}

void TestFileHandleReserve::keepsThemWhileThereAreOthers()
{
    FileHandleReserve reserve;
    const qsizetype before = openHandles();
    reserve.releaseWhenScarce();
    QCOMPARE(openHandles(), before);
}

void TestFileHandleReserve::givesThemWhenThereAreNoOthers()
{
    const qsizetype before = openHandles();
    FileHandleReserve reserve;
    {
        const NoHandles none;
        QCOMPARE(NoHandles::available(), 0);
        reserve.releaseWhenScarce();
        QCOMPARE(NoHandles::available(), 32);
    }
    QCOMPARE(openHandles(), before);
    reserve.fill();
    QCOMPARE(openHandles(), before + 32);
}

void TestFileHandleReserve::takesNoneWhenThatWouldLeaveFew()
{
    const qsizetype before = openHandles();
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit few = {static_cast<rlim_t>(before) + 40, limit.rlim_max};
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &few), 0);
    qsizetype with = 0;
    {
        const FileHandleReserve reserve;
        with = openHandles();
    }
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &limit), 0);
    QCOMPARE(with, before);
}

void TestFileHandleReserve::makesRoomForThemAndKeepsNone()
{
    const qsizetype before = openHandles();
    FileHandleReserve::makeRoom();
    QCOMPARE(openHandles(), before);
    QFile status(QStringLiteral("/proc/self/status"));
    QVERIFY(status.open(QIODevice::ReadOnly));
    const QByteArrayList lines = status.readAll().split('\n');
    const auto places = std::find_if(lines.cbegin(), lines.cend(),
                                     [](const QByteArray &line) { return line.startsWith("FDSize:"); });
    QVERIFY(places != lines.cend());
    QVERIFY2(places->simplified().split(' ').last().toInt() >= 256, places->constData());
}

DRAVOLIN_TEST(TestFileHandleReserve)
#include "tst_filehandlereserve.moc"
