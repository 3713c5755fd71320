#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QString>
#include <QStringList>

// The walks over a dropped folder and everything below it. A folder is a directory by its own attributes:
// hidden ones count, links to folders do not. Not for the main thread.
namespace dravolin {

// Counts the folders of the tree into totalFolders, adds the lower-cased names of all but the top one to
// AllFoldersNames, and deletes scripts and output files that earlier runs left. Gives totalFolders.
quint64 countFolderTree(const RunContext &context, const QString &folder);

// Anonymizes the tree, every subfolder before its parent, siblings in the file system's order. Adds failed
// jobs to errCount and advances folderCount and the status text after each folder. Always 0.
quint64 anonymizeFolderTree(const RunContext &context, const QStringList &tags, const QString &folder,
                            const RunOptions &options);

// The DICOMDIR files (DICOM PS3.10 8.6) at and below `folder`, as find(1) prints them: "./DICOMDIR",
// "./sub/DICOMDIR". Empty when find fails or its text is not UTF-8.
[[nodiscard]] QStringList findDicomdirs(const RunContext &context, const QString &folder);

// The progress text with `folderCount` of `totalFolders`.
[[nodiscard]] QString workingText(const RunContext &context);

} // namespace dravolin
