#pragma once

#include "run/jobs/RunJudgement.h"

#include <QString>
#include <QStringList>
#include <QStringView>

// Judging what the tools printed; their exit codes are never asked for.
namespace dravolin {

struct RunReport
{
    QString output;            // what the tools printed
    quint64 errCount = 0;      // 1 for a refused run, else 0
    bool constructing = false; // the construction check box is on
    bool usingLUT = false;
    quint64 numLUTadaptedFiles = 0;
    quint64 numLUTskippedFiles = 0;
    QStringList AllFoldersNames; // lower-cased
    QStringList DICOMDIRpaths;
};

// The summary and the log text of a run; without its jobs and files. Pure; time grows with the output plus
// the number of folder names.
[[nodiscard]] RunJudgement judgeOutput(const RunReport &report);

// The count of dcmodify's closing line ("E: There was 1 error", "E: There were 12 errors"), trimmed.
// intended: it is read from the reversed line, so that 12 gives 21 and 10 gives 1; a line too short for the
// cuts gives 0.
[[nodiscard]] qint64 closingLineCount(QStringView line);

} // namespace dravolin
