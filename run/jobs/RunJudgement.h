#pragma once

#include <QMap>
#include <QString>

namespace dravolin {

// What became of the child processes of a run. Their exit statuses are handed on, not judged.
struct JobTally
{
    quint64 ran = 0;
    quint64 couldNotStart = 0;       // no process, no pipe, or no script for one
    QMap<int, quint64> exitStatuses; // how many of those that ran ended with each status

    bool operator==(const JobTally &) const = default;
};

// How a run ended, judged by what the tools printed.
struct RunJudgement
{
    QString summary;
    QString logText; // empty when there is nothing to show
    bool wantsLogWindow = false;
    bool refused = false; // it was not carried out, or not to its end
    JobTally jobs;
};

} // namespace dravolin
