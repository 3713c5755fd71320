#include "run/DropIntake.h"

#include "base/Files.h"
#include "run/UidRootFields.h"

namespace dravolin {

namespace {

constexpr qsizetype manyFiles = 513;
RunOptions optionsOf(const RunContext &context)
{
    const Choices chosen = context.host.choices();
    RunOptions options;
    options.createBAKfiles = chosen.overwriteSource == Qt::Unchecked;
    if (chosen.table) {
        options.selectedLUT = *chosen.table;
        options.selectedLUTpath = context.state.get(&RunState::allLUTsPaths).value(*chosen.table);
    }
    return options;
}

bool uidRootIsUsable(const RunContext &context)
{
    if (checkUidRoot(context.host))
        return true;
    createUidRoot(context.host, context.uuids);
    if (checkUidRoot(context.host))
        return true;
    context.host.refuse(Refusal::InvalidStudyInstanceUid);
    return false;
}

} // namespace

Drop sortDroppedPaths(const QStringList &paths)
{
    Drop drop;
    for (const QString &path : paths)
        (isFolder(path) ? drop.folders : drop.individualFiles).append(path);
    return drop;
}

bool isLargeDrop(const Drop &drop)
{
    return drop.individualFiles.size() >= manyFiles && drop.folders.isEmpty();
}

std::optional<Drop> takeDrop(const RunContext &context, const QStringList &paths)
{
    Drop drop = sortDroppedPaths(paths);
    drop.options = optionsOf(context);
    if (!uidRootIsUsable(context))
        return std::nullopt;
    if (isLargeDrop(drop) && !context.host.ask(Question::LargeDrop))
        return std::nullopt;
    if (!drop.options.createBAKfiles && !context.host.ask(Question::OverwriteSource))
        return std::nullopt;
    return drop;
}

} // namespace dravolin
