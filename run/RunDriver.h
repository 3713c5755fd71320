#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QString>
#include <QStringList>

#include <functional>

// One run from the sorted drop to its judgement. On the run's own thread, unless it says otherwise.
namespace dravolin {

// Main thread: tells the host that a run begins; `start` is called when everything is ready for it.
void beginRun(const RunContext &context, std::function<void()> start);

// A run and its judgement: what the run's thread does. The drop's options get the attribute that a table is
// bound to. A run for which memory does not suffice ends where it is, with one error and a message.
RunJudgement performRun(const RunContext &context, Drop &drop);

// Ends, with one error, a run for which no thread could be had. Any thread.
RunJudgement giveUpRun(const RunContext &context);

// The steps of a run over `folders` and `files`. 1 when it was refused before any file was touched, else 0.
[[nodiscard]] quint64 processDroppedItems(const RunContext &context, const QStringList &folders,
                                          const QStringList &files, RunOptions &options);

// True when there is nothing to anonymize; the run is then refused.
[[nodiscard]] bool refusesEmptyTagList(const RunContext &context, const QString &configurationPath);

// Judges what the run has left in the state, ends it at the host, and empties the state's tally.
RunJudgement parseLog(const RunContext &context);

} // namespace dravolin
