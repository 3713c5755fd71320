#include "processing/FolderAnonymization.h"

#include "base/PathText.h"
#include "base/SystemLog.h"
#include "processing/ChangeCount.h"
#include "processing/CountedJobs.h"

namespace dravolin {

namespace {

QString preparedPrefix(const RunContext &context, const TagRules &rules, const RunOptions &options)
{
    const Choices chosen = context.host.choices();
    const AnonymizationCommand command = anonymizationCommand(
        context.paths.dcmodify(), rules,
        {.createBAKfiles = options.createBAKfiles,
         .edits = {.generateSOP = chosen.generateSOP, .onlyGenerateSOP = chosen.onlyGenerateSOP}});
    for (const QString &tag : command.malformedTags)
        logMessage(QStringLiteral("Ignoring malformed tag: %1").arg(tag));
    context.state.add(&RunState::errCount, static_cast<quint64>(command.malformedTags.size()));
    return command.prefix;
}

quint64 runAndCollect(const RunContext &context, const QString &folder, const QString &commands,
                      const FolderStamps &before)
{
    const ScriptJobResult result = runScriptCounted(context, folder, commands);
    countFolder(context, folder, before);
    context.state.update([&](RunState &state) { state.output += result.output; });
    return result.ran ? 0 : 1;
}

} // namespace

AnonymizationCommand anonymizationCommand(const QString &tool, const TagRules &rules,
                                          const AnonymizationChoices &choices)
{
    const Edits wanted = edits(rules, choices.edits);
    const QString backups = choices.createBAKfiles ? QString() : QStringLiteral(" -nb");
    return {quoted(tool) + QStringLiteral(" -ie -imt") + backups + shellText(wanted.list),
            wanted.malformedTags};
}

const Redirections &anonymizationRedirections()
{
    // intended: "2>>&1" is what these lines say, though no shell accepts it
    static const QString last = QStringLiteral(" >>%1 2>>&1").arg(outputFileName);
    static const Redirections redirections = {.only = QStringLiteral(" >%1 2>&1").arg(outputFileName),
                                              .more = last + u'\n',
                                              .last = last,
                                              .counted = last.size()};
    return redirections;
}

quint64 anonymizeFolder(const RunContext &context, const TagRules &rules, const QString &folder,
                        const RunOptions &options)
{
    const QString prefix = preparedPrefix(context, rules, options);
    return runAndCollect(context, folder, prefix + QStringLiteral(" *") + anonymizationRedirections().only,
                         FolderStamps(folder));
}

quint64 anonymizeFiles(const RunContext &context, const TagRules &rules, const QStringList &files,
                       const QString &folder, const RunOptions &options)
{
    if (files.isEmpty() || folder.isEmpty())
        return 0;
    const QString prefix = preparedPrefix(context, rules, options);
    QStringList names;
    for (const QString &file : files)
        names.append(lastPathComponent(file));
    return runAndCollect(
        context, folder,
        commandLines(prefix, fileArguments(files), anonymizationRedirections(), context.max_arg_len),
        FolderStamps(folder, names));
}

} // namespace dravolin
