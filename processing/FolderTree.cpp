#include "processing/FolderTree.h"

#include "base/Lines.h"
#include "processing/CountedJobs.h"
#include "processing/FolderAnonymization.h"

namespace dravolin {

quint64 countFolderTree(const RunContext &context, const QString &folder)
{
    forEachFolder(folder, [&](const QString &visited) {
        context.state.update([&](RunState &state) {
            ++state.totalFolders;
            if (visited != folder)
                state.AllFoldersNames.append(lastPathComponent(visited).toLower());
        });
        removeFile(joinPath(visited, scriptFileName));
        removeFile(joinPath(visited, outputFileName));
    });
    return context.state.get(&RunState::totalFolders);
}

void anonymizeFolderTree(const RunContext &context, const QString &folder, const RunOptions &options)
{
    forEachFolder(folder, [&](const QString &visited) {
        // intended: what a drop beside this one has loaded meanwhile counts from here on
        context.state.add(&RunState::errCount,
                          anonymizeFolder(context, context.state.rules(), visited, options));
        context.state.add(&RunState::folderCount, 1);
        tellFolders(context, Progress::Event::FoldersAnonymized);
    });
}

QStringList findDicomdirs(const RunContext &context, const QString &folder)
{
    const JobResult search =
        runCounted(context, {.executable = QStringLiteral("/usr/bin/find"),
                             .arguments = {QStringLiteral("."), QStringLiteral("-name"),
                                           QStringLiteral("DICOMDIR"), QStringLiteral("-print")},
                             .folder = folder,
                             .pipeOutput = true});
    const QString printed = decodeUtf8(search.output).value_or(QString());
    QStringList paths;
    forEachLine(printed, [&paths](QStringView line) {
        if (line.endsWith(QStringLiteral("DICOMDIR")))
            paths.append(line.toString());
    });
    return paths;
}

void tellFolders(const RunContext &context, Progress::Event event)
{
    context.host.progress(context.state.update([event](const RunState &state) {
        return Progress{event, state.folderCount, state.totalFolders};
    }));
}

} // namespace dravolin
