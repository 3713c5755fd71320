#include "base/Texts.h"
#include "batch/BatchRun.h"
#include "cli/BatchCall.h"
#include "cli/BatchTexts.h"
#include "cli/Commands.h"
#include "cli/Interruption.h"

#include <QElapsedTimer>

#include <algorithm>
#include <unistd.h>

namespace dravolin::cli {

namespace {

QString prefixed(const QString &command, const QString &text)
{
    return QStringLiteral("dravolin-cli %1: %2\n").arg(command, text);
}

// The call in the arguments; nothing when help or an error was printed and `status` is the exit status.
std::optional<BatchCall> readCall(const QString &command, const QStringList &arguments, int *status)
{
    BatchCall call = parseBatchCall(command, arguments);
    if (call.error.isEmpty() && !dictionaryIsLoaded())
        call.error = Texts::tr("DCMTK's dictionary of attributes is missing");
    *status = call.error.isEmpty() ? nothingFound : wrongCall;
    if (!call.error.isEmpty())
        printError(prefixed(command, call.error));
    else if (!call.help.isEmpty())
        print(call.help);
    else
        return call;
    return std::nullopt;
}

// Over itself on a terminal, a line every ten seconds elsewhere.
class BatchProgressLine
{
public:
    BatchProgressLine() { m_sinceLast.start(); }

    void show(const BatchProgress &progress)
    {
        constexpr qint64 pause = 10'000;
        if (!m_isTerminal && m_sinceLast.elapsed() < pause)
            return;
        m_sinceLast.restart();
        printError(m_isTerminal ? u'\r' + progressText(progress) + QStringLiteral("\x1b[K")
                                : progressText(progress) + u'\n');
    }
    void finish() const
    {
        if (m_isTerminal)
            printError(QStringLiteral("\r\x1b[K"));
    }

private:
    bool m_isTerminal = ::isatty(STDERR_FILENO) == 1;
    QElapsedTimer m_sinceLast;
};

int report(const BatchOutcome &outcome, const BatchCall &call)
{
    const QString command = QStringLiteral("run");
    if (!outcome.problems.isEmpty()) {
        printError(problemsText(outcome.problems));
        return wrongCall;
    }
    if (!call.quiet)
        print(outcomeText(outcome));
    if (outcome.interrupted) {
        printError(prefixed(command, Texts::tr("interrupted; the same call goes on from here")));
        return interrupted;
    }
    if (!outcome.failure.isEmpty())
        printError(prefixed(command, outcome.failure));
    const bool complete = std::all_of(outcome.cases.begin(), outcome.cases.end(),
                                      [](const CaseCounts &counts) { return counts.notDone.isEmpty(); });
    return complete && outcome.failure.isEmpty() ? nothingFound : somethingFound;
}

} // namespace

int runPlan(const QStringList &arguments)
{
    int status = nothingFound;
    const std::optional<BatchCall> call = readCall(QStringLiteral("plan"), arguments, &status);
    if (!call)
        return status;
    noteInterruptions();
    const Plan plan = planBatch(call->options, isInterrupted);
    if (isInterrupted())
        return interrupted;
    printError(problemsText(plan.problems));
    if (!plan.problems.isEmpty())
        return wrongCall;
    if (!call->quiet)
        print(planText(plan));
    const bool complete = std::all_of(plan.cases.begin(), plan.cases.end(), [](const PlannedCase &planned) {
        return std::all_of(planned.files.begin(), planned.files.end(),
                           [](const PlannedFile &file) { return file.problem.isEmpty(); });
    });
    return complete ? nothingFound : somethingFound;
}

int runBatchCommand(const QStringList &arguments)
{
    int status = nothingFound;
    const std::optional<BatchCall> call = readCall(QStringLiteral("run"), arguments, &status);
    if (!call)
        return status;
    noteInterruptions();
    BatchProgressLine line;
    BatchEvents events;
    events.stop = isInterrupted;
    if (!call->quiet)
        events.progress = [&line](const BatchProgress &progress) { line.show(progress); };
    const BatchOutcome outcome = runBatch(call->options, events);
    if (!call->quiet)
        line.finish();
    return report(outcome, *call);
}

} // namespace dravolin::cli
