#include "run/LutSteps.h"

#include "base/PathText.h"
#include "config/LutDiscovery.h"
#include "base/Texts.h"
#include "processing/LutConstruction.h"
#include "processing/LutPropagation.h"

#include <algorithm>

namespace dravolin {

namespace {

// Always false, for the caller to return.
bool refuse(const RunContext &context, const QString &message, const QString &informativeText)
{
    context.state.set(&RunState::usingLUT, false);
    AlertSheet sheet;
    sheet.message = message;
    sheet.informativeText = informativeText;
    sheet.buttons = {Texts::tr("Retry Drop"), Texts::tr("Quit")};
    sheet.completion = [&host = context.host](int code) {
        if (code == AlertSheet::secondButton)
            host.closeMainWindow();
    };
    context.host.showSheet(sheet);
    return false;
}

bool refuseTable(const RunContext &context, const QString &name, const QString &extraText)
{
    return refuse(context, Texts::tr("LUT file found, but not successfully parsed."),
                  Texts::tr("\nSelected LUT: %1%2\n\n\n").arg(name, extraText));
}

} // namespace

bool bindTable(const RunContext &context, RunOptions &options)
{
    const QString &name = options.selectedLUT;
    const QString marker = tableMarkerPrefix + name + u'>';
    const NewValueDict values = context.state.get(&RunState::newValueDict);
    const auto bound = std::find(values.cbegin(), values.cend(), marker);
    if (bound == values.cend())
        return refuse(context,
                      Texts::tr("Your configuration file provided no tags matching the selected LUT!"),
                      Texts::tr("\nSelected LUT: %1\n\n\n").arg(name));

    if (!loadTable(context, options.selectedLUTpath))
        return refuseTable(context, name, QString());
    if (!context.state.get(&RunState::selectedLUTdict).contains(missingValue))
        return refuseTable(context, name,
                           Texts::tr("\n\nYou should implement the <missing> value for the <old_value> field."
                                     "\n\n(See the example file in the Application Bundle)"));

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
        shared.add(&RunState::errCount, collectLutValues(context, {}, folder));
        shared.add(&RunState::folderCount, 1);
    }
    if (!files.isEmpty()) {
        shared.add(&RunState::errCount, collectLutValues(context, files, QString()));
        shared.add(&RunState::folderCount, 1);
    }
    writeConstructedLut(context, options);
    refreshTables(context);
}

void propagateTable(const RunContext &context, const QStringList &folders, const QStringList &files,
                    const RunOptions &options)
{
    RunHost &host = context.host;
    host.setSpinning(false);
    host.setProgress(0);
    host.setProgressVisible(true);
    // intended: files that were skipped add up over the runs, until a table is constructed
    context.state.update([](RunState &state) { state.folderCount = state.numLUTadaptedFiles = 0; });
    for (const QString &folder : folders) {
        host.setStatus(propagatingText(context));
        context.state.add(&RunState::errCount, propagateThroughTree(context, folder, options));
    }
    if (!files.isEmpty())
        context.state.add(&RunState::errCount,
                          propagateThroughFiles(context, files, parentPath(files.first()), options));
    host.setProgressVisible(false);
}

void refreshTables(const RunContext &context)
{
    const TitleToPath found = findLuts(context.paths);
    context.state.set(&RunState::allLUTsPaths, found);
    context.host.setLUTTitles(found.keys());
}

} // namespace dravolin
