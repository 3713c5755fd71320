#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/ScriptJob.h"

// A run's child processes, counted into its tally. On the run's thread; each blocks until the child has
// ended.
namespace dravolin {

[[nodiscard]] JobResult runCounted(const RunContext &context, const Job &job);

// runScriptJob() in `folder`; a script that could not be placed counts as a job that could not start.
[[nodiscard]] ScriptJobResult runScriptCounted(const RunContext &context, const QString &folder,
                                               const QString &commands, OutputUse use = OutputUse::Judged);

} // namespace dravolin
