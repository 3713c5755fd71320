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

// What a run did to the files it went over. The files were looked at before and after; what the tools say
// plays no part.
struct FileCounts
{
    quint64 changed = 0;
    quint64 unchanged = 0;
    quint64 leftOut = 0; // hidden, or not where they were looked for
    quint64 folders = 0;

    bool operator==(const FileCounts &) const = default;
};

// How a run ended, judged by what the tools printed.
struct RunJudgement
{
    QString summary;
    QString logText; // empty when there is nothing to show
    bool wantsLogWindow = false;
    bool refused = false;   // it was not carried out, or not to its end
    bool hasErrors = false; // the tools reported some
    JobTally jobs;
    FileCounts files;
    bool constructed = false;    // a table, and no file was changed
    quint64 constructedRows = 0; // values that were found for it
};

} // namespace dravolin
