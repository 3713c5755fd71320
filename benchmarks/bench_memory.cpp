// Memory and responsiveness during a long run: 100000 files in 10000 folders, with a tool that does nothing;
// and how long a long log holds up the main thread.
#include "BenchApp.h"
#include "Figures.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <atomic>
#include <ctime>
#include <thread>

namespace {

using namespace dravolin;
using namespace dravolin::bench;

double peakMegabytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.sliced(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

// Forgets the peak so far.
void resetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

// Beats each millisecond and keeps the longest time between two beats.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { beat(); });
        m_since.start();
        m_timer.start();
    }
    [[nodiscard]] double longestMilliseconds() const { return m_longest; }

private:
    void beat()
    {
        m_longest = std::max(m_longest, static_cast<double>(m_since.nsecsElapsed()) / 1e6);
        m_since.restart();
    }

    QTimer m_timer;
    QElapsedTimer m_since;
    double m_longest = 0;
};

// The same in a thread that does nothing else: how long the machine itself keeps a thread waiting.
class MachineNoise
{
public:
    MachineNoise() : m_thread([this] { beat(); }) {}
    ~MachineNoise() { stop(); }
    MachineNoise(const MachineNoise &) = delete;
    MachineNoise &operator=(const MachineNoise &) = delete;

    double stop()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        return m_longest;
    }

private:
    void beat()
    {
        while (!m_stop) {
            QElapsedTimer since;
            since.start();
            const timespec millisecond = {0, 1'000'000};
            ::nanosleep(&millisecond, nullptr);
            m_longest = std::max(m_longest, static_cast<double>(since.nsecsElapsed()) / 1e6);
        }
    }

    std::atomic<bool> m_stop = false;
    double m_longest = 0;
    std::thread m_thread;
};

} // namespace

int main(int argc, char *argv[])
{
    const auto application = makeApplication(argc, argv);
    Figures figures;
    BenchApp app(Tool::Stub);
    const QString tree = app.makeTree(QStringLiteral("tree"), 10'000, 10);
    resetPeak();
    MachineNoise noise;
    const Heartbeat heartbeat;
    const double seconds = app.run(tree);
    const double machine = noise.stop();

    std::printf("100000 files in 10000 folders, a tool that does nothing\n");
    Figures::note("  the run", seconds, "s", 1);
    figures.add("  most memory resident (VmHWM)", peakMegabytes(), 150, "MB", 1);
    figures.add("  longest time between two beats of the main thread", heartbeat.longestMilliseconds(), 50,
                "ms", 1);
    Figures::note("  the same in a thread that only sleeps: the machine's share", machine, "ms", 1);

    QString log;
    for (int i = 0; i < 100'000; ++i)
        log += QStringLiteral("E: unable to load file IM%1: End of stream\n\n").arg(i, 6, 10, QChar(u'0'));
    QElapsedTimer timer;
    timer.start();
    app.controller().showLogWindowWithLogText(log);
    QCoreApplication::processEvents();
    Figures::note("opening the log window with 100000 lines", static_cast<double>(timer.nsecsElapsed()) / 1e6,
                  "ms", 1);
    return figures.exitCode();
}
