// From the start of the application to its painted window, and its memory at rest, beside a bare window that
// is started in turn with it and shows one word: whoever writes anything pays for the fonts. The figures
// beside an empty window are told, too. Argument: the application's executable. Needs a screen of its own.
#include "Figures.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

namespace {

using namespace dravolin::bench;

constexpr int rounds = 15;
constexpr qint64 longest = 60000; // milliseconds

struct Start
{
    double milliseconds = 0; // until it was painted
    double mebibytes = 0;    // resident, at rest
};

// Whether the middle of the screen, which is black, shows a window's ground.
bool isPainted(QScreen &screen)
{
    const QPoint middle = screen.geometry().center();
    const QImage strip = screen.grabWindow(0, middle.x() - 200, middle.y(), 400, 1).toImage();
    for (int x = 0; x < strip.width(); ++x)
        if (qGray(strip.pixel(x, 0)) > 200)
            return true;
    return false;
}

bool waitUntil(QScreen &screen, bool painted)
{
    QElapsedTimer clock;
    clock.start();
    while (isPainted(screen) != painted) {
        if (clock.elapsed() > longest)
            return false;
        QThread::usleep(500);
    }
    return true;
}

double residentMebibytes(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n'))
        if (line.startsWith("Rss:"))
            return line.simplified().split(' ').at(1).toDouble() / 1024;
    return 0;
}

Start measure(QScreen &screen, const QString &executable, const QStringList &arguments = {})
{
    QProcess process;
    QElapsedTimer clock;
    clock.start();
    process.start(executable, arguments);
    if (!waitUntil(screen, true))
        qFatal("%s showed no window", qPrintable(executable));
    Start start = {.milliseconds = static_cast<double>(clock.nsecsElapsed()) / 1e6};
    QThread::msleep(1000); // what follows the first picture is over
    start.mebibytes = residentMebibytes(process.processId());
    process.kill();
    process.waitForFinished();
    if (!waitUntil(screen, false))
        qFatal("the window of %s stayed", qPrintable(executable));
    return start;
}

// A configuration, so that no question is asked.
void prepareHome()
{
    const QString folder = QDir::homePath() + QStringLiteral("/.local/share/Dravolin");
    QDir().mkpath(folder);
    QFile file(folder + QStringLiteral("/AnonymizationConfiguration_Bench.txt"));
    if (!file.open(QIODevice::WriteOnly) || file.write("0010,0030\tBirth Date\n") < 0)
        qFatal("no configuration could be written");
}

} // namespace

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    prepareHome();
    qunsetenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"); // there is no screen reader
    QScreen &screen = *QGuiApplication::primaryScreen();
    const QString executable = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    std::vector<double> times;
    std::vector<double> bareTimes;
    std::vector<double> timeRatios;
    std::vector<double> memoryRatios;
    std::vector<double> memory;
    std::vector<double> emptyTimeRatios;
    std::vector<double> emptyMemoryRatios;
    for (int round = 0; round <= rounds; ++round) {
        const Start bare = measure(screen, QStringLiteral(BARE_WINDOW));
        const Start own = measure(screen, executable);
        const Start empty = measure(screen, QStringLiteral(BARE_WINDOW), {QStringLiteral("empty")});
        if (round == 0)
            continue; // to warm up
        times.push_back(own.milliseconds);
        bareTimes.push_back(bare.milliseconds);
        timeRatios.push_back(own.milliseconds / bare.milliseconds);
        memory.push_back(own.mebibytes);
        memoryRatios.push_back(own.mebibytes / bare.mebibytes);
        emptyTimeRatios.push_back(own.milliseconds / empty.milliseconds);
        emptyMemoryRatios.push_back(own.mebibytes / empty.mebibytes);
    }
    Figures figures;
    Figures::note("start to a painted window, median", median(times), "ms", 0);
    Figures::note("the same of a bare window", median(bareTimes), "ms", 0);
    figures.add("  ratio, median of pairs", median(timeRatios), 1.3, "");
    Figures::note("memory at rest, median", median(memory), "MiB", 1);
    figures.add("  ratio to a bare window's, median of pairs", median(memoryRatios), 1.4, "");
    Figures::note("start beside an empty window, ratio", median(emptyTimeRatios), "");
    Figures::note("memory beside an empty window, ratio", median(emptyMemoryRatios), "");
    return figures.exitCode();
}
