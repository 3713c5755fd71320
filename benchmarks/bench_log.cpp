// How long the log window holds up the main thread with logs far longer than anybody reads: while it opens,
// until all of it is there, while it is scrolled, gets another width and is searched.
#include "BenchApp.h"
#include "Figures.h"
#include "Heartbeat.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextDocument>

#include <functional>

namespace {

using namespace dravolin;
using namespace dravolin::bench;

constexpr qsizetype million = 1'000'000;
const QString lastWords = QStringLiteral("these are the last words\n");

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

void resize(LogWindowController &log)
{
    for (const int width : {900, 500}) {
        log.window()->resize(width, 600);
        beat(100);
    }
}

// From the middle of the log to its end, and round to where it began.
void find(LogWindowController &log)
{
    auto *const field = log.window()->findChild<QLineEdit *>(QStringLiteral("findField"));
    auto *const result = log.window()->findChild<QLabel *>(QStringLiteral("findResult"));
    for (const char *text : {"the last words", "nobody wrote this"}) {
        log.logTextView()->verticalScrollBar()->setValue(log.logTextView()->verticalScrollBar()->maximum() /
                                                         2);
        field->setText(QString::fromUtf8(text));
        Q_EMIT field->returnPressed();
        while (!log.logTextView()->textCursor().hasSelection() && result->text().isEmpty())
            beat(10);
        beat(100);
        log.logTextView()->moveCursor(QTextCursor::Start);
    }
}

void time(Figures &figures, const char *what, const std::function<void()> &step)
{
    MachineNoise noise;
    const Heartbeat heartbeat;
    step();
    figures.add(what, heartbeat.longestMilliseconds(), 50, "ms", 1);
    Figures::note("    the machine's share: a thread that only sleeps", noise.stop(), "ms", 1);
}

void measure(Figures &figures, const char *name, const QString &text)
{
    std::printf("%s: longest time between two beats of the main thread\n", name);
    LogWindowController log;
    beat(100);
    QElapsedTimer timer;
    double all = 0;
    time(figures, "  the window opens", [&] {
        timer.start();
        log.showWithText(text);
        while (log.logTextView()->document()->characterCount() <= text.size())
            beat(10);
        all = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    });
    time(figures, "  scrolling", [&] { scroll(log); });
    time(figures, "  another width", [&] { resize(log); });
    timer.start();
    time(figures, "  find", [&] { find(log); });
    Figures::note("  until all of it was there", all, "s", 1);
}

} // namespace

int main(int argc, char *argv[])
{
    const auto application = makeApplication(argc, argv);
    Figures figures;
    measure(figures, "100 MB of error lines", errorLines(100 * million) + lastWords);
    measure(figures, "one line of 20 MB without a blank", QString(20 * million, u'x') + lastWords);
    measure(figures, "one line of 20 MB of words", words(20 * million) + lastWords);
    return figures.exitCode();
}
