#include "run/jobs/ScriptJob.h"

#include "base/Files.h"
#include "run/jobs/Script.h"

namespace dravolin {

namespace {

bool placeScript(const QString &path, const QString &text)
{
    const std::lock_guard lock(processStartMutex());
    // a link of that name is somebody else's, and what it points to must not become a script
    return writeText(path, text, Links::Refuse) && makeExecutable(path);
}

} // namespace

ScriptJobResult runScriptJob(JobRunner &jobs, const AppPaths &paths, const QString &folder,
                             const QString &commands, OutputUse use)
{
    const QString script = joinPath(folder, scriptFileName);
    if (!placeScript(script, scriptText(commands)))
        return {};
    const JobResult job = jobs.run({.executable = QStringLiteral("/bin/sh"),
                                    .arguments = {QStringLiteral("-c"), quoted(script)},
                                    .folder = folder,
                                    .environment = toolEnvironment(paths)});
    removeFile(script);
    if (job.outcome != JobOutcome::Ran)
        return {};
    const QString output = readOutput(joinPath(folder, outputFileName), use).value_or(QString());
    removeOutputBeside(folder);
    return {.ran = true, .output = output, .exitStatus = job.exitStatus};
}

QStringList toolEnvironment(const AppPaths &paths)
{
    return {QStringLiteral("DCMDICTPATH=") + paths.dictionary()};
}

void removeOutputBeside(const QString &folder)
{
    removeFile(folder + outputFileName);
}

} // namespace dravolin
