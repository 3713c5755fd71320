#pragma once

#include "base/Files.h"
#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QString>
#include <QStringList>

// The walks over a dropped folder and everything below it. A folder is a directory by its own attributes:
// hidden ones count, links to folders do not. Not for the main thread.
namespace dravolin {

// Calls `visit` with the path of each folder of the tree, every subfolder before its parent, siblings in the
// file system's order. A folder's subfolders are listed before the first of them is visited.
template <typename Visit>
void forEachFolder(const QString &folder, Visit &&visit)
{
    for (const QString &name : listFolderNames(folder))
        forEachFolder(joinPath(folder, name), visit);
    visit(folder);
}

// Counts the folders of the tree into totalFolders, adds the lower-cased names of all but the top one to
// AllFoldersNames, and deletes scripts and output files that earlier runs left. Gives totalFolders.
quint64 countFolderTree(const RunContext &context, const QString &folder);

// Anonymizes the tree by the rules in the state, which are read for each folder. Adds failed jobs to
// errCount, advances folderCount and tells the progress after each folder.
void anonymizeFolderTree(const RunContext &context, const QString &folder, const RunOptions &options);

// The DICOMDIR files (DICOM PS3.10 8.6) at and below `folder`, as find(1) prints them: "./DICOMDIR",
// "./sub/DICOMDIR". Empty when find fails or its text is not UTF-8.
[[nodiscard]] QStringList findDicomdirs(const RunContext &context, const QString &folder);

// Tells the host how many of the run's folders are done.
void tellFolders(const RunContext &context, Progress::Event event);

} // namespace dravolin
