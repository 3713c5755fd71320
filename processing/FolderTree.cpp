#include "processing/FolderTree.h"

#include "base/Files.h"
#include "base/Lines.h"
#include "base/Texts.h"
#include "processing/FolderAnonymization.h"
#include "run/jobs/ScriptJob.h"

namespace dravolin {

quint64 countFolderTree(const RunContext &context, const QString &folder)
{
    for (const QString &name : listFolderNames(folder)) {
        countFolderTree(context, joinPath(folder, name));
        context.state.update([&](RunState &state) { state.AllFoldersNames.append(name.toLower()); });
    }
    context.state.add(&RunState::totalFolders, 1);
    removeFile(joinPath(folder, scriptFileName));
    removeFile(joinPath(folder, outputFileName));
    return context.state.get(&RunState::totalFolders);
}

quint64 anonymizeFolderTree(const RunContext &context, const QStringList &tags, const QString &folder,
                            const RunOptions &options)
{
    for (const QString &name : listFolderNames(folder)) {
        const quint64 errors = anonymizeFolderTree(context, tags, joinPath(folder, name), options);
        context.state.add(&RunState::errCount, errors);
    }
    context.state.add(&RunState::errCount, anonymizeFolder(context, tags, folder, options));
    context.state.add(&RunState::folderCount, 1);
    context.host.setStatus(workingText(context));
    return 0;
}

QStringList findDicomdirs(const RunContext &context, const QString &folder)
{
    const Job find = {
        QStringLiteral("/usr/bin/find"),
        {QStringLiteral("."), QStringLiteral("-name"), QStringLiteral("DICOMDIR"), QStringLiteral("-print")},
        folder,
        std::nullopt,
        true};
    const QString printed = decodeUtf8(context.jobs.run(find).output).value_or(QString());
    QStringList paths;
    for (const QStringView line : lines(printed)) {
        if (line.endsWith(QStringLiteral("DICOMDIR")))
            paths.append(line.toString());
    }
    return paths;
}

QString workingText(const RunContext &context)
{
    return Texts::tr("\nWorking... %1/%2 folders")
        .arg(QString::number(context.state.get(&RunState::folderCount)),
             QString::number(context.state.get(&RunState::totalFolders)));
}

} // namespace dravolin
