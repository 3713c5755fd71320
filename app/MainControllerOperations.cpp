// The operations of MainController that only name a function of the core. The program's own runs do not pass
// through them: a run calls the core.
#include "app/MainController.h"

#include "config/LutDiscovery.h"
#include "processing/FolderAnonymization.h"
#include "processing/FolderTree.h"
#include "processing/LutConstruction.h"
#include "processing/LutPropagation.h"
#include "run/Configuration.h"
#include "run/LutSteps.h"
#include "run/RunDriver.h"

namespace dravolin {

quint64 MainController::processDICOMfoldersAndIndividualFilesWithOptions(const QStringList &folders,
                                                                         const QStringList &files,
                                                                         RunOptions &options)
{
    return processDroppedItems(m_context, folders, files, options);
}

void MainController::parseLog()
{
    (void)dravolin::parseLog(m_context);
}

QStringList MainController::loadTagsToAnonymizeFromPath(const QString &path)
{
    loadTagsToAnonymize(m_context, path);
    return m_state.get(&RunState::allTagsToAnonymize);
}

TitleToPath MainController::getConfigsAtPath(const QString &folder) const
{
    return configsAtPath(folder);
}

TitleToPath MainController::getLUTsAtPath(const QString &folder) const
{
    return lutsAtPath(folder);
}

bool MainController::loadLUTdictAtPath(const QString &path)
{
    return loadTable(m_context, path);
}

quint64 MainController::anonymizeTagsForDICOMFilesInFolderWithOptions(const QStringList &tags,
                                                                      const QString &folder,
                                                                      const RunOptions &options)
{
    return anonymizeFolder(m_context, {tags, m_state.get(&RunState::newValueDict)}, folder, options);
}

quint64 MainController::anonymizeTagsInDICOMFilesInFolderWithOptions(const QStringList &tags,
                                                                     const QStringList &files,
                                                                     const QString &folder,
                                                                     const RunOptions &options)
{
    return anonymizeFiles(m_context, {tags, m_state.get(&RunState::newValueDict)}, files, folder, options);
}

quint64 MainController::recursivelyCountOfFolderInFolderTree(const QString &folder)
{
    return countFolderTree(m_context, folder);
}

quint64 MainController::recursivelyAnonymizeTagsForDICOMFilesInFolderTreeWithOptions(
    const QStringList &tags, const QString &folder, const RunOptions &options)
{
    m_state.set(&RunState::allTagsToAnonymize, tags);
    anonymizeFolderTree(m_context, folder, options);
    return 0;
}

QStringList MainController::findDICOMDIRsAtPath(const QString &folder)
{
    return findDicomdirs(m_context, folder);
}

quint64 MainController::prepopulateLUTforDICOMFilesOrRecursivelyForFolderWithOptions(const QStringList &files,
                                                                                     const QString &folder,
                                                                                     const RunOptions &)
{
    // the options decide nothing here
    return folder.isEmpty() ? collectFromFiles(m_context, files) : collectFromTree(m_context, folder);
}

quint64 MainController::recursivelyPropagateLUTtoDICOMFilesinFolderTreeWithOptions(const QString &folder,
                                                                                   const RunOptions &options)
{
    propagateThroughTree(m_context, folder, options);
    return 0;
}

quint64 MainController::propagateLUTtoDICOMFilesInFolderWithOptions(const QStringList &entries,
                                                                    const QString &folder,
                                                                    const RunOptions &options)
{
    return propagateThroughFiles(m_context, entries, folder, options);
}

} // namespace dravolin
