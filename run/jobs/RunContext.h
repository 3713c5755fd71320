#pragma once

#include "config/AppPaths.h"
#include "identifiers/Uuid.h"
#include "run/jobs/JobRunner.h"
#include "run/jobs/RunHost.h"
#include "run/jobs/RunState.h"

namespace dravolin {

// All that a run works with: its state, its ports and its settings. Everything referred to outlives every
// run. Runs beside each other in one window share one state; whoever wants cases apart gives each a state of
// its own.
struct RunContext
{
    SharedRunState &state;
    const AppPaths &paths;
    RunHost &host;
    JobRunner &jobs;
    NOXUtils::UuidSource &uuids;
    qsizetype max_arg_len = 262144; // characters (UTF-16 units) in one command line
};

} // namespace dravolin
