#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

// The steps of a run that deal with look-up tables. On the run's own thread.
namespace dravolin {

// Makes the attribute of the first table marker in the selected configuration, which is loaded, the one that
// a table is constructed from, and gives its tag; nothing when there is no marker. On the main thread.
[[nodiscard]] std::optional<QString> prepareConstruction(const RunContext &context);

// Matches the selected table against the configuration and loads it. False when the run is refused.
[[nodiscard]] bool bindTable(const RunContext &context, RunOptions &options);

// Replaces selectedLUTdict by the table in the file at `path`; true when it then has at least one entry. A
// file that cannot be read, is not UTF-8 or empty leaves the table that was there.
[[nodiscard]] bool loadTable(const RunContext &context, const QString &path);

// Collects the values of the construction's attribute from everything dropped, writes the table file to the
// desktop and looks for tables again.
void constructTable(const RunContext &context, const QStringList &folders, const QStringList &files,
                    const RunOptions &options);

// Writes the loaded table's new values into everything dropped.
void propagateTable(const RunContext &context, const QStringList &folders, const QStringList &files,
                    const RunOptions &options);

// Looks for table files and tells which were found. Any thread.
void refreshTables(const RunContext &context);

} // namespace dravolin
