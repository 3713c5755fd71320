#include "processing/CountedJobs.h"

namespace dravolin {

namespace {

void count(const RunContext &context, bool ran, int exitStatus)
{
    context.state.update([ran, exitStatus](RunState &state) {
        ++(ran ? state.jobs.ran : state.jobs.couldNotStart);
        if (ran)
            ++state.jobs.exitStatuses[exitStatus];
    });
}

} // namespace

JobResult runCounted(const RunContext &context, const Job &job)
{
    JobResult result = context.jobs.run(job);
    count(context, result.outcome == JobOutcome::Ran, result.exitStatus);
    return result;
}

ScriptJobResult runScriptCounted(const RunContext &context, const QString &folder, const QString &commands,
                                 OutputUse use)
{
    ScriptJobResult result = runScriptJob(context.jobs, context.paths, folder, commands, use);
    count(context, result.ran, result.exitStatus);
    return result;
}

} // namespace dravolin
