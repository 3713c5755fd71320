#include "base/PathText.h"
#include "base/Texts.h"
#include "check/ObjectReader.h"
#include "check/Report.h"
#include "check/Summary.h"
#include "cli/CheckCall.h"
#include "cli/Commands.h"
#include "cli/Progress.h"

#include <QDateTime>

namespace dravolin::cli {

namespace {

int statusOf(check::Verdict verdict)
{
    switch (verdict) {
    case check::Verdict::Clean: return nothingFound;
    case check::Verdict::Found: return somethingFound;
    case check::Verdict::Incomplete: return notChecked;
    }
    return notChecked;
}

void printValues(const QString &file, const QList<check::Finding> &findings, const check::Patterns &patterns)
{
    for (const check::Finding &finding : findings)
        print(Texts::tr("%1: %2: %3 (%4, from %5)\n")
                  .arg(file, check::textOf(finding.place),
                       fromBytes(patterns.at(finding.match.pattern).value),
                       check::nameOf(finding.match.grade),
                       check::sourceText(patterns.at(finding.match.pattern))));
}

void printFailure(const QString &text)
{
    printError(Texts::tr("dravolin-cli check: %1\n").arg(text));
}

int runCall(const CheckCall &call)
{
    if (const QString failure = check::initialiseReader(); !failure.isEmpty()) {
        printFailure(failure);
        return notChecked;
    }
    check::ReportWriter writer(call.reportFolder, {call.options, call.atLeast, QDateTime::currentDateTime()});
    if (!writer.begin()) {
        printFailure(writer.error());
        return wrongCall;
    }
    Progress progress(call.quiet ? Progress::Form::None : Progress::formHere(), printError);
    check::CheckEvents events;
    events.progress = [&progress](const check::CheckProgress &now) { progress.show(now); };
    events.findings = [&](const QString &file, const QList<check::Finding> &findings,
                          const check::Patterns &patterns) {
        writer.add(file, findings, patterns);
        if (call.showValues)
            printValues(file, findings, patterns);
    };
    const check::CheckReport report = check::check(call.options, events);
    progress.finish();
    if (!call.quiet)
        print(check::summaryText(report, call.atLeast));
    if (!writer.end(report)) {
        printFailure(writer.error());
        return notChecked;
    }
    return statusOf(check::verdictOf(report, call.atLeast));
}

} // namespace

int runCheck(const QStringList &arguments)
{
    const CheckCall call = parseCheckCall(arguments);
    if (!call.help.isEmpty()) {
        print(call.help);
        return nothingFound;
    }
    if (!call.error.isEmpty()) {
        printFailure(call.error);
        return wrongCall;
    }
    return runCall(call);
}

} // namespace dravolin::cli
