#include "run/LutSteps.h"

#include "base/PathText.h"
#include "config/LutDiscovery.h"
#include "processing/FolderTree.h"
#include "processing/LutConstruction.h"
#include "processing/LutPropagation.h"
#include "run/Configuration.h"

#include <algorithm>

namespace dravolin {

namespace {

void refuse(const RunContext &context, Refusal refusal, const QString &table)
{
    context.state.set(&RunState::usingLUT, false);
    context.host.refuse(refusal, table);
}

} // namespace

std::optional<QString> prepareConstruction(const RunContext &context)
{
    loadTagsToAnonymize(context, selectedConfiguration(context));
    std::optional<QString> tag = firstTagWithTableMarker(context.state.get(&RunState::newValueDict));
    context.state.set(&RunState::LUTconstructionTag, tag.value_or(QString()));
    return tag;
}

bool bindTable(const RunContext &context, RunOptions &options)
{
    const QString &name = options.selectedLUT;
    const QString marker = tableMarkerPrefix + name + u'>';
    const NewValueDict values = context.state.get(&RunState::newValueDict);
    const auto bound = std::find(values.cbegin(), values.cend(), marker);
    if (bound == values.cend()) {
        refuse(context, Refusal::NoTagForTable, name);
        return false;
    }
    if (!loadTable(context, options.selectedLUTpath)) {
        refuse(context, Refusal::TableUnreadable, name);
        return false;
    }
    if (!context.state.get(&RunState::selectedLUTdict).contains(missingValue)) {
        refuse(context, Refusal::TableWithoutMissing, name);
        return false;
    }
    const QString &tag = bound.key();
    context.state.update([&tag](RunState &state) {
        state.usingLUT = true;
        state.newValueDict.remove(tag);
        state.allTagsToAnonymize.removeOne(tag);
    });
    options.theLUTtag = tag;
    return true;
}

bool loadTable(const RunContext &context, const QString &path)
{
    std::optional<LutTable> table = loadLut(path);
    if (!table)
        return false;
    const bool hasEntries = !table->isEmpty();
    // swapped, so that a large old table is not destroyed while the state is locked
    context.state.update([&table](RunState &state) { state.selectedLUTdict.swap(*table); });
    return hasEntries;
}

void constructTable(const RunContext &context, const QStringList &folders, const QStringList &files,
                    const RunOptions &options)
{
    SharedRunState &shared = context.state;
    // intended: dropped items are counted here, not the folders below them
    const quint64 items = static_cast<quint64>(folders.size()) + (files.isEmpty() ? 0 : 1);
    shared.update([items](RunState &state) {
        state.totalFolders = items;
        state.folderCount = state.numLUTadaptedFiles = state.numLUTskippedFiles = 0;
        state.LUTtagSet.clear();
    });
    for (const QString &folder : folders) {
        shared.add(&RunState::errCount, collectFromTree(context, folder));
        shared.add(&RunState::folderCount, 1);
    }
    if (!files.isEmpty()) {
        shared.add(&RunState::errCount, collectFromFiles(context, files));
        shared.add(&RunState::folderCount, 1);
    }
    writeConstructedLut(context, options);
    refreshTables(context);
}

void propagateTable(const RunContext &context, const QStringList &folders, const QStringList &files,
                    const RunOptions &options)
{
    context.host.progress({.event = Progress::Event::PropagationBegins});
    // intended: files that were skipped add up over the runs, until a table is constructed
    context.state.update([](RunState &state) { state.folderCount = state.numLUTadaptedFiles = 0; });
    for (const QString &folder : folders) {
        tellFolders(context, Progress::Event::FoldersPropagated);
        propagateThroughTree(context, folder, options);
    }
    if (!files.isEmpty())
        context.state.add(&RunState::errCount,
                          propagateThroughFiles(context, files, parentPath(files.first()), options));
    context.host.progress({.event = Progress::Event::PropagationEnds});
}

void refreshTables(const RunContext &context)
{
    const TitleToPath found = findLuts(context.paths);
    context.state.set(&RunState::allLUTsPaths, found);
    context.host.tablesFound(found);
}

} // namespace dravolin
