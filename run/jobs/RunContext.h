#pragma once

#include "config/AppPaths.h"
#include "identifiers/Uuid.h"
#include "run/jobs/JobRunner.h"
#include "run/jobs/RunHost.h"
#include "run/jobs/RunState.h"

namespace dravolin {

// How long the program waits where it waits, in milliseconds.
struct Delays
{
    int beforeConfigurationScan = 250; // so that the window is on screen first
    int windowGrowth = 250;
    int beforeSummary = 500;
    int beforeLogWindow = 510; // just behind the summary
};

// All that a run works with: its state and its ports. Everything referred to outlives every run.
struct RunContext
{
    SharedRunState &state;
    const AppPaths &paths;
    RunHost &host;
    JobRunner &jobs;
    NOXUtils::UuidSource &uuids;
    const Delays &delays;
};

} // namespace dravolin
