#include "run/LutSteps.h"

#include "config/LutDiscovery.h"

namespace dravolin {

bool bindTable(const RunContext &, RunOptions &)
{
    return true;
}

void constructTable(const RunContext &, const QStringList &, const QStringList &, const RunOptions &)
{
}

void propagateTable(const RunContext &, const QStringList &, const QStringList &, const RunOptions &)
{
}

void refreshTables(const RunContext &context)
{
    const TitleToPath found = findLuts(context.paths);
    context.state.set(&RunState::allLUTsPaths, found);
    context.host.setLUTTitles(found.keys());
}

} // namespace dravolin
