#pragma once

#include "run/jobs/RunHost.h"

#include <QList>
#include <QString>

// What the main window does when a run begins, goes on and ends: lists of steps in their required order.
// Pure, any thread.
namespace dravolin {

struct WindowStep
{
    enum class Kind {
        Status,          // text
        StatusToolTip,   // text
        Spinner,         // on
        Separator,       // shown from now on
        Progress,        // percent
        ProgressVisible, // on
        OverwriteSource, // on: the control can be used; the next five likewise
        SelectLUT,
        Prepopulate,
        SelectConfig,
        GenerateSOP,
        OnlyGenerateSOP,
        ScheduleLog, // text: opens the log window in a moment
        Pause,       // of the run's own thread, before the summary
        Grow         // to the height of a running window; the run starts when it is reached
    };
    Kind kind = Kind::Status;
    bool on = false;
    QString text = {};
    int percent = 0;

    bool operator==(const WindowStep &) const = default;
};

using WindowSteps = QList<WindowStep>;

inline constexpr int runningHeight = 696;

[[nodiscard]] WindowSteps beginSteps(const RunBeginning &beginning);
[[nodiscard]] WindowSteps progressSteps(const Progress &progress);
// `tablesExist`: there are look-up tables to select from.
[[nodiscard]] WindowSteps endSteps(const RunJudgement &judgement, bool tablesExist);

} // namespace dravolin
