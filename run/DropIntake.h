#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QStringList>

#include <optional>

// From dropped paths to a run that may start. On the main thread.
namespace dravolin {

// Directories go to the folders, everything else (links to directories too) to the individual files; the
// order of the drop is kept in both.
[[nodiscard]] Drop sortDroppedPaths(const QStringList &paths);

// Whether so many individual files call for the question about dropping their folder.
[[nodiscard]] bool isLargeDrop(const Drop &drop);

// Reads the choices, checks the UID root (replacing a bad one once), refuses an impossible Study Instance UID
// and asks, in this order, about a large drop and overwriting. Nothing when the run is not to start.
[[nodiscard]] std::optional<Drop> takeDrop(const RunContext &context, const QStringList &paths);

} // namespace dravolin
