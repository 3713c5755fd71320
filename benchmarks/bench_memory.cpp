// Memory and responsiveness during a long run: 100000 files in 10000 folders, with a tool that does nothing.
#include "BenchApp.h"
#include "Figures.h"
#include "Heartbeat.h"

#include <QFile>

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
    return figures.exitCode();
}
