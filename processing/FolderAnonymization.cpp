#include "processing/FolderAnonymization.h"

#include "base/SystemLog.h"
#include "run/jobs/Script.h"
#include "run/jobs/ScriptJob.h"

namespace dravolin {

namespace {

QString preparedPrefix(const RunContext &context, const QStringList &tags, const RunOptions &options)
{
    const AnonymizationChoices choices = {
        .createBAKfiles = options.createBAKfiles,
        .edits = {.generateSOP = context.host.checkState(CheckBox::GenerateSOP),
                  .onlyGenerateSOP = context.host.checkState(CheckBox::OnlyGenerateSOP)}};
    const AnonymizationCommand command = anonymizationCommand(
        context.paths.dcmodify(), {tags, context.state.get(&RunState::newValueDict)}, choices);
    for (const QString &tag : command.malformedTags)
        logMessage(QStringLiteral("Ignoring malformed tag: %1").arg(tag));
    context.state.add(&RunState::errCount, static_cast<quint64>(command.malformedTags.size()));
    return command.prefix;
}

quint64 runAndCollect(const RunContext &context, const QString &folder, const QString &commands)
{
    const ScriptJobResult result = runScriptJob(context.jobs, context.paths, folder, commands);
    context.state.update([&](RunState &state) { state.output += result.output; });
    return result.ran ? 0 : 1;
}

} // namespace

AnonymizationCommand anonymizationCommand(const QString &tool, const TagRules &rules,
                                          const AnonymizationChoices &choices)
{
    const Edits wanted = edits(rules, choices.edits);
    const QString backups = choices.createBAKfiles ? QString() : QStringLiteral(" -nb");
    return {quoted(tool) + QStringLiteral(" -ie -imt") + backups + shellText(wanted.list), wanted.malformedTags};
}

quint64 anonymizeFolder(const RunContext &context, const QStringList &tags, const QString &folder,
                        const RunOptions &options)
{
    const QString prefix = preparedPrefix(context, tags, options);
    return runAndCollect(context, folder, prefix + QStringLiteral(" *") + appendingRedirections().only);
}

quint64 anonymizeFiles(const RunContext &context, const QStringList &tags, const QStringList &files,
                       const QString &folder, const RunOptions &options)
{
    if (files.isEmpty() || folder.isEmpty())
        return 0;
    const QString prefix = preparedPrefix(context, tags, options);
    return runAndCollect(context, folder,
                         commandLines(prefix, fileArguments(files), appendingRedirections(),
                                      context.state.get(&RunState::max_arg_len)));
}

} // namespace dravolin
