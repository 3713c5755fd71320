#include "run/LutSteps.h"

namespace dravolin {

bool bindTable(const RunContext &, RunOptions &)
{
    return true;
}

void constructTable(const RunContext &, const Drop &) {}

void propagateTable(const RunContext &, const Drop &) {}

} // namespace dravolin
