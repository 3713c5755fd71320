#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Evidence.h"
#include "cli/BatchCall.h"
#include "cli/BatchTexts.h"
#include "cli/Commands.h"
#include "cli/Interruption.h"
#include "cli/Progress.h"

#include <algorithm>
#include <thread>

namespace dravolin::cli {

namespace {

QString prefixed(const QString &command, const QString &text)
{
    return QStringLiteral("dravolin-cli %1: %2\n").arg(command, text);
}

// The call in the arguments; nothing when help or an error was printed and `status` is the exit status.
std::optional<BatchCall> readCall(const QString &command, const QStringList &arguments, int *status)
{
    const BatchCall call = parseBatchCall(command, arguments);
    *status = call.error.isEmpty() ? nothingFound : wrongCall;
    if (!call.error.isEmpty())
        printError(prefixed(command, call.error));
    else if (!call.help.isEmpty())
        print(call.help);
    else
        return call;
    return std::nullopt;
}

QString interruptedText()
{
    return prefixed(QStringLiteral("run"), Texts::tr("interrupted; the same call goes on from here"));
}

bool isClean(const BatchOutcome &outcome, check::Grade atLeast)
{
    return std::all_of(outcome.cases.begin(), outcome.cases.end(),
                       [](const CaseCounts &counts) { return counts.notDone.isEmpty(); }) &&
           std::all_of(outcome.findings.begin(), outcome.findings.end(),
                       [atLeast](const std::optional<CaseFindings> &findings) {
                           return findings && findings->verdict(atLeast) == check::Verdict::Clean;
                       });
}

int report(const BatchOutcome &outcome, const BatchCall &call)
{
    const QString command = QStringLiteral("run");
    if (!outcome.problems.isEmpty()) {
        printError(problemsText(outcome.problems));
        return wrongCall;
    }
    if (outcome.interrupted) {
        printError(interruptedText());
        return interrupted;
    }
    if (!call.quiet)
        print(outcomeText(outcome));
    if (!outcome.failure.isEmpty())
        printError(prefixed(command, outcome.failure));
    else if (!call.quiet)
        print(Texts::tr("Report: %1\n")
                  .arg(joinPath(evidenceFolder(call.options.runFolder()), QStringLiteral("report.html"))));
    if (!call.quiet && !outcome.nothingToDo && outcome.failure.isEmpty())
        print(Texts::tr("The check took %1 s.\n")
                  .arg(static_cast<double>(outcome.checkMilliseconds) / 1000, 0, 'f', 3));
    return outcome.failure.isEmpty() && isClean(outcome, call.options.atLeast) ? nothingFound
                                                                               : somethingFound;
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
    const bool complete = std::all_of(plan.cases.begin(), plan.cases.end(),
                                      [](const PlannedCase &planned) { return planned.troubled.isEmpty(); });
    return complete ? nothingFound : somethingFound;
}

int runBatchCommand(const QStringList &arguments)
{
    int status = nothingFound;
    const std::optional<BatchCall> call = readCall(QStringLiteral("run"), arguments, &status);
    if (!call)
        return status;
    noteInterruptions();
    Progress line(call->quiet ? Progress::Form::None : Progress::formHere(), printError);
    BatchEvents events;
    events.stop = isInterrupted;
    events.progress = [&line](const BatchProgress &progress) { line.show(progress); };
    // what was begun can be left as it is: the same call finds out what is whole
    const std::jthread watch = endWhenInterrupted(interruptedText());
    const BatchOutcome outcome = runBatch(call->options, events);
    line.finish();
    return report(outcome, *call);
}

} // namespace dravolin::cli
