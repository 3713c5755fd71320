#pragma once

#include "run/jobs/RunContext.h"

#include <QString>

// The configuration of a run. Any thread.
namespace dravolin {

// The path of the configuration that is selected at this moment; "" when the title has none.
[[nodiscard]] QString selectedConfiguration(const RunContext &context);

// Fills allTagsToAnonymize and newValueDict from the file at `path`, nothing of an earlier load surviving,
// and adds the five attributes whose values the user gives, among them a newly composed Study Instance UID.
void loadTagsToAnonymize(const RunContext &context, const QString &path);

// Takes the values away from all table markers that are left, and keeps the first one's table name for naming
// a constructed table. Tags that lose their value stay in the list, so that they are erased.
void dropTableMarkers(SharedRunState &state);

} // namespace dravolin
