// How long the log window holds up the main thread with logs far longer than anybody reads: while it opens,
// until all of it is there, and while it is scrolled.
#include "BenchApp.h"
#include "Figures.h"
#include "Heartbeat.h"

#include <QScrollBar>
#include <QTextDocument>

namespace {

using namespace dravolin;
using namespace dravolin::bench;

constexpr qsizetype million = 1'000'000;

QString errorLines(qsizetype length)
{
    QString log;
    log.reserve(length + 100);
    for (int i = 0; log.size() < length; ++i)
        log += QStringLiteral("E: unable to load file IM%1: End of stream\n").arg(i, 8, 10, QChar(u'0'));
    return log;
}

QString words(qsizetype length)
{
    return QStringLiteral("lorem ipsum ").repeated(length / 12);
}

void beat(int milliseconds)
{
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < milliseconds;)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void scroll(LogWindowController &log)
{
    QScrollBar &bar = *log.logTextView()->verticalScrollBar();
    for (const int place : {bar.maximum(), bar.maximum() / 2, 0}) {
        bar.setValue(place);
        beat(100);
    }
}

double resizeMilliseconds(LogWindowController &log)
{
    const Heartbeat heartbeat;
    log.window()->resize(900, 600);
    beat(100);
    return heartbeat.longestMilliseconds();
}

void measure(Figures &figures, const char *name, const QString &text)
{
    LogWindowController log;
    beat(100);
    QElapsedTimer timer;
    timer.start();
    const Heartbeat heartbeat;
    MachineNoise noise;
    log.showWithText(text);
    while (log.logTextView()->document()->characterCount() <= text.size())
        beat(10);
    const double all = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    scroll(log);
    std::printf("%s\n", name);
    figures.add("  longest time between two beats of the main thread", heartbeat.longestMilliseconds(), 50,
                "ms", 1);
    Figures::note("  the same in a thread that only sleeps: the machine's share", noise.stop(), "ms", 1);
    Figures::note("  until all of it was there", all, "ms", 0);
    Figures::note("  another width, for which the view looks at every block", resizeMilliseconds(log), "ms",
                  0);
}

} // namespace

int main(int argc, char *argv[])
{
    const auto application = makeApplication(argc, argv);
    Figures figures;
    measure(figures, "100 MB of error lines", errorLines(100 * million));
    measure(figures, "one line of 20 MB without a blank", QString(20 * million, u'x'));
    measure(figures, "one line of 20 MB of words", words(20 * million));
    return figures.exitCode();
}
