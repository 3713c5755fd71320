#include "run/RunDriver.h"

#include "base/PathText.h"
#include "base/Texts.h"
#include "processing/FolderAnonymization.h"
#include "processing/FolderTree.h"
#include "run/LutSteps.h"
#include "run/OutputAnalysis.h"
#include "run/UidRootFields.h"

namespace dravolin {

namespace {

bool isOn(const RunContext &context, CheckBox box)
{
    return context.host.checkState(box) == Qt::Checked;
}

// Configuration, table, markers: false when the run is refused.
bool loadRules(const RunContext &context, RunOptions &options)
{
    const QString path =
        context.state.get(&RunState::allConfigPaths).value(context.host.selectedConfigTitle());
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

    const QStringList tags = context.state.get(&RunState::allTagsToAnonymize);
    for (const QString &folder : folders) {
        context.host.setStatus(workingText(context));
        context.state.add(&RunState::errCount, anonymizeFolderTree(context, tags, folder, options));
    }
    if (files.isEmpty())
        return;
    // intended: all the files are taken to lie in the first one's folder
    const QString folder = parentPath(files.first());
    context.state.update([&](RunState &state) { state.AllFoldersNames.append(folder.toLower()); });
    context.state.add(&RunState::errCount, anonymizeFiles(context, tags, files, folder, options));
}

void searchDicomdirs(const RunContext &context, const QStringList &folders)
{
    for (const QString &folder : folders) {
        const QStringList found = findDicomdirs(context, folder);
        context.state.update([&](RunState &state) { state.DICOMDIRpaths += found; });
    }
}

} // namespace

void loadTagsToAnonymize(const RunContext &context, const QString &path)
{
    TagRules rules = loadConfiguration(path);
    RunHost &host = context.host;
    const CaseTexts texts = {host.text(TextField::Diagnosis), host.text(TextField::CaseId),
                             host.text(TextField::Credits), host.text(TextField::Keywords)};
    addFixedTags(rules, texts, composeStudyInstanceUid(host, context.uuids));
    context.state.update([&](RunState &state) {
        state.allTagsToAnonymize = rules.allTagsToAnonymize;
        state.newValueDict = rules.newValueDict;
    });
}

void dropTableMarkers(SharedRunState &shared)
{
    shared.update([](RunState &state) {
        const QStringList values = state.newValueDict.values();
        QList<qsizetype> markers;
        for (qsizetype i = 0; i < values.size(); ++i) {
            if (values.at(i).startsWith(tableMarkerPrefix))
                markers.append(i);
        }
        if (!markers.isEmpty() && state.firstFoundLUTtagInNewValueDict.isEmpty()) {
            QString name = values.at(markers.first()).sliced(tableMarkerPrefix.size());
            name.chop(1); // the ">", or whatever stands in its place
            state.firstFoundLUTtagInNewValueDict = name;
        }
        for (const qsizetype marker : markers) {
            // intended: the indexes stay while the keys move up, so that later ones hit other keys
            const QStringList keys = state.newValueDict.keys();
            if (marker < keys.size())
                state.newValueDict.remove(keys.at(marker));
        }
    });
}

bool refusesEmptyTagList(const RunContext &context, const QString &configurationPath)
{
    if (!context.state.get(&RunState::allTagsToAnonymize).isEmpty() || context.state.get(&RunState::usingLUT))
        return false;
    AlertSheet sheet;
    sheet.message = Texts::tr("Your configuration file provided no tags to anonymize!");
    sheet.informativeText = Texts::tr("\nPath: %1\n\n\n").arg(configurationPath);
    sheet.buttons = {Texts::tr("Save copy of default config to Desktop & Quit"), Texts::tr("Quit")};
    sheet.escape = AlertSheet::secondButton;
    sheet.completion = [context](int code) {
        if (code == AlertSheet::firstButton)
            copyDefaultConfiguration(context.paths, context.paths.desktopFolder,
                                     QStringLiteral("AnonymizationConfiguration.txt"));
        context.host.closeMainWindow();
    };
    context.host.showSheet(sheet);
    return true;
}

quint64 processDroppedItems(const RunContext &context, const QStringList &folders, const QStringList &files,
                            RunOptions &options)
{
    // intended: a run that only generates UIDs works with the tags and the table state that the last run left
    if (!isOn(context, CheckBox::OnlyGenerateSOP) && !loadRules(context, options))
        return 1;
    if (isOn(context, CheckBox::Prepopulate)) {
        constructTable(context, folders, files, options);
    } else {
        anonymize(context, folders, files, options);
        if (context.state.get(&RunState::usingLUT))
            propagateTable(context, folders, files, options);
    }
    if (!isOn(context, CheckBox::Prepopulate) && !isOn(context, CheckBox::OnlyGenerateSOP))
        searchDicomdirs(context, folders);
    return 0;
}

void performRun(const RunContext &context, Drop &drop)
{
    // intended: the result replaces whatever the operations counted during the run
    context.state.set(&RunState::errCount,
                      processDroppedItems(context, drop.folders, drop.individualFiles, drop.options));
    parseLog(context);
}

} // namespace dravolin
