#pragma once

#include "batch/BatchRun.h"

#include <QString>

// What `dravolin-cli plan` and `dravolin-cli run` tell. Pure functions.
namespace dravolin::cli {

// With %1 the number, and with %2 what makes its noun a plural.
[[nodiscard]] QString counted(const QString &text, qsizetype count);
// A line for each problem, in their order.
[[nodiscard]] QString problemsText(const QList<ListProblem> &problems);
// A line for each case, and one for all.
[[nodiscard]] QString planText(const Plan &plan);
// What was done and found, a line for each case with its files that were not done; then where values were
// found, over all cases. Nothing in it is a value.
[[nodiscard]] QString outcomeText(const BatchOutcome &outcome);
// What several calls together have done and found.
[[nodiscard]] QString mergeText(const QJsonObject &report);
// "12 of 48 files, 1 of 3 cases, 3.4 MB/s, 10 s left", or "checking case 2 of 3: 40 of 96 files"
[[nodiscard]] QString progressText(const BatchProgress &progress, qint64 milliseconds);
// 1024 and more as KiB and so on, with one decimal.
[[nodiscard]] QString bytesText(quint64 bytes);

} // namespace dravolin::cli
