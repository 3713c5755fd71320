#include "run/RunDriver.h"

#include "base/PathText.h"
#include "base/SystemLog.h"
#include "processing/FolderAnonymization.h"
#include "processing/FolderTree.h"
#include "run/Configuration.h"
#include "run/LutSteps.h"
#include "run/OutputAnalysis.h"

#include <new>

namespace dravolin {

namespace {

// Configuration, table, markers: false when the run is refused.
bool loadRules(const RunContext &context, RunOptions &options)
{
    const QString path = selectedConfiguration(context);
    loadTagsToAnonymize(context, path);
    context.state.set(&RunState::usingLUT, false);
    if (!options.selectedLUT.isEmpty() && !bindTable(context, options))
        return false;
    dropTableMarkers(context.state);
    return !refusesEmptyTagList(context, path);
}

void anonymize(const RunContext &context, const QStringList &folders, const QStringList &files,
               const RunOptions &options)
{
    for (const QString &folder : folders)
        countFolderTree(context, folder);
    if (!files.isEmpty())
        context.state.add(&RunState::totalFolders, 1);

    for (const QString &folder : folders) {
        tellFolders(context, Progress::Event::FoldersAnonymized);
        anonymizeFolderTree(context, folder, options);
    }
    if (files.isEmpty())
        return;
    // intended: all the files are taken to lie in the first one's folder
    const QString folder = parentPath(files.first());
    context.state.update([&](RunState &state) { state.AllFoldersNames.append(folder.toLower()); });
    context.state.add(&RunState::errCount,
                      anonymizeFiles(context, context.state.rules(), files, folder, options));
}

void searchDicomdirs(const RunContext &context, const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QStringList found = findDicomdirs(context, folder);
        context.state.update([&](RunState &state) { state.DICOMDIRpaths += found; });
    }
}

RunReport reportOf(const RunContext &context)
{
    const bool constructing = kindOf(context.host.choices()) == RunKind::Construct;
    return context.state.update([constructing](const RunState &state) {
        return RunReport{.output = state.output,
                         .errCount = state.errCount,
                         .constructing = constructing,
                         .usingLUT = state.usingLUT,
                         .numLUTadaptedFiles = state.numLUTadaptedFiles,
                         .numLUTskippedFiles = state.numLUTskippedFiles,
                         .AllFoldersNames = state.AllFoldersNames,
                         .DICOMDIRpaths = state.DICOMDIRpaths};
    });
}

RunJudgement judged(const RunContext &context)
{
    try {
        return judgeOutput(reportOf(context));
    } catch (const std::bad_alloc &) {
        logMessage(QStringLiteral("Not enough memory to look at the output of the tools"));
        context.state.update([](RunState &state) {
            state.output.clear();
            ++state.errCount;
        });
        return judgeOutput(reportOf(context));
    }
}

} // namespace

bool refusesEmptyTagList(const RunContext &context, const QString &configurationPath)
{
    if (!context.state.get(&RunState::allTagsToAnonymize).isEmpty() || context.state.get(&RunState::usingLUT))
        return false;
    context.host.refuse(Refusal::NoTags, configurationPath);
    return true;
}

quint64 processDroppedItems(const RunContext &context, const QStringList &folders, const QStringList &files,
                            RunOptions &options)
{
    const auto kind = [&context] { return kindOf(context.host.choices()); };
    // intended: a run that only generates UIDs works with the tags and the table state that the last run left
    if (context.host.choices().onlyGenerateSOP != Qt::Checked && !loadRules(context, options))
        return 1;
    if (kind() == RunKind::Construct) {
        constructTable(context, folders, files, options);
    } else {
        anonymize(context, folders, files, options);
        if (context.state.get(&RunState::usingLUT))
            propagateTable(context, folders, files, options);
    }
    if (kind() == RunKind::Anonymize)
        searchDicomdirs(context, folders);
    return 0;
}

void beginRun(const RunContext &context, std::function<void()> start)
{
    context.host.runBegins({.kind = kindOf(context.host.choices()),
                            .constructionTag = context.state.get(&RunState::LUTconstructionTag)},
                           std::move(start));
}

RunJudgement parseLog(const RunContext &context)
{
    RunJudgement judgement = judged(context);
    judgement.jobs = context.state.get(&RunState::jobs);
    judgement.files = context.state.get(&RunState::files);
    judgement.constructedRows = context.state.update(
        [](const RunState &state) { return static_cast<quint64>(state.LUTtagSet.size()); });
    context.host.runEnds(judgement);
    (void)context.state.takeTally(); // destroyed here, when the state is no longer locked; it may be large
    return judgement;
}

RunJudgement performRun(const RunContext &context, Drop &drop)
{
    quint64 result = 1;
    try {
        result = processDroppedItems(context, drop.folders, drop.individualFiles, drop.options);
    } catch (const std::bad_alloc &) {
        logMessage(QStringLiteral("Not enough memory to go on with the run"));
    }
    // intended: the result replaces whatever the operations counted during the run
    context.state.set(&RunState::errCount, result);
    return parseLog(context);
}

RunJudgement giveUpRun(const RunContext &context)
{
    logMessage(QStringLiteral("Could not start a thread for the run"));
    context.state.set(&RunState::errCount, quint64{1});
    return parseLog(context);
}

} // namespace dravolin
