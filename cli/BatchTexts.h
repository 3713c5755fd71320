#pragma once

#include "batch/BatchRun.h"

#include <QString>

// What `dravolin-cli plan` and `dravolin-cli run` tell. Pure functions.
namespace dravolin::cli {

// A line for each problem, in their order.
[[nodiscard]] QString problemsText(const QList<ListProblem> &problems);
// A line for each case, and one for all.
[[nodiscard]] QString planText(const Plan &plan);
// What was done, a line for each case; then the files that were not done, by name.
[[nodiscard]] QString outcomeText(const BatchOutcome &outcome);
// "12 of 48 files, 1 of 3 cases"
[[nodiscard]] QString progressText(const BatchProgress &progress);
// 1024 and more as KiB and so on, with one decimal.
[[nodiscard]] QString bytesText(quint64 bytes);

} // namespace dravolin::cli
