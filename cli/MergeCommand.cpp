#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Evidence.h"
#include "batch/Merge.h"
#include "cli/BatchCall.h"
#include "cli/BatchTexts.h"
#include "cli/Commands.h"

namespace dravolin::cli {

namespace {

int report(const MergeOutcome &outcome, const MergeCall &call)
{
    for (const QString &problem : outcome.problems)
        printError(Texts::tr("dravolin-cli merge: %1\n").arg(problem));
    if (!outcome.problems.isEmpty())
        return wrongCall;
    if (!outcome.failure.isEmpty()) {
        printError(Texts::tr("dravolin-cli merge: %1\n").arg(outcome.failure));
        return somethingFound;
    }
    for (const QString &caseId : outcome.missing)
        printError(Texts::tr("dravolin-cli merge: the case %1 is in no part\n").arg(caseId));
    if (!call.quiet)
        print(counted(Texts::tr("%1 part%2"), outcome.parts) + u'\n' + mergeText(outcome.report) +
              Texts::tr("Report: %1\n")
                  .arg(joinPath(evidenceFolder(call.folder), QStringLiteral("report.html"))));
    return verdictOf(outcome.report) == check::Verdict::Clean ? nothingFound : somethingFound;
}

} // namespace

int runMerge(const QStringList &arguments)
{
    const MergeCall call = parseMergeCall(arguments);
    if (!call.help.isEmpty()) {
        print(call.help);
        return nothingFound;
    }
    if (!call.error.isEmpty()) {
        printError(Texts::tr("dravolin-cli merge: %1\n").arg(call.error));
        return wrongCall;
    }
    return report(mergeParts(call.list, call.folder), call);
}

} // namespace dravolin::cli
