#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QString>
#include <QStringList>

// One run from the sorted drop to its return value. On the run's own thread.
namespace dravolin {

// Fills allTagsToAnonymize and newValueDict from the file at `path`, nothing of an earlier load surviving,
// and adds the five attributes whose values come from the window, among them a newly composed Study Instance
// UID. Any thread.
void loadTagsToAnonymize(const RunContext &context, const QString &path);

// Takes the values away from all table markers that are left, and keeps the first one's table name for naming
// a constructed table. Tags that lose their value stay in the list, so that they are erased.
void dropTableMarkers(SharedRunState &state);

// True when there is nothing to anonymize; the sheet that says so is then up.
[[nodiscard]] bool refusesEmptyTagList(const RunContext &context, const QString &configurationPath);

// The whole run over `folders` and `files`. 1 when it was refused before any file was touched, else 0.
[[nodiscard]] quint64 processDroppedItems(const RunContext &context, const QStringList &folders,
                                          const QStringList &files, RunOptions &options);

// A run and its analysis: what the run's thread does. The result replaces errCount.
void performRun(const RunContext &context, Drop &drop);

} // namespace dravolin
