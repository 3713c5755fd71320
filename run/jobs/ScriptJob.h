#pragma once

#include "config/AppPaths.h"
#include "run/jobs/JobRunner.h"
#include "run/jobs/ToolOutput.h"

#include <QString>

// Running commands in a folder: a hidden script and a hidden output file in it. Not on the main thread.
namespace dravolin {

inline const QString scriptFileName = QStringLiteral(".noxTemp.sh");
inline const QString outputFileName = QStringLiteral(".noxTemp.out");

struct ScriptJobResult
{
    bool ran = false;   // false: the script could not be written or made executable, or no process started
    QString output;     // what readOutput() gives of the output file, or ""
    int exitStatus = 0; // of the shell, when it ran
};

// Writes `commands` with the script header into `folder`, runs it through /bin/sh there with DCMDICTPATH as
// its whole environment, and waits. The script is deleted when it has run; the output file stays in the
// folder. Nothing is shown or logged; what the tools report is only in the output.
[[nodiscard]] ScriptJobResult runScriptJob(JobRunner &jobs, const AppPaths &paths, const QString &folder,
                                           const QString &commands, OutputUse use = OutputUse::Judged);

// The environment that the tools get: the path of their dictionary and nothing else.
[[nodiscard]] QStringList toolEnvironment(const AppPaths &paths);

// Deletes the path made of the folder's path with ".noxTemp.out" directly behind it: for /data/s1 that is
// /data/s1.noxTemp.out, beside the folder. intended: the output file inside the folder is not meant.
void removeOutputBeside(const QString &folder);

} // namespace dravolin
