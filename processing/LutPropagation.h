#pragma once

#include "run/jobs/RunContext.h"
#include "run/jobs/RunOptions.h"

#include <QString>
#include <QStringList>

#include <optional>

// Giving one attribute of every file the new value that the loaded table has for it. Two processes a file:
// one reads the value, one writes the new one. Not for the main thread.
namespace dravolin {

// The tree under `folder`, every subfolder before its parent; a folder is a directory by its own attributes.
// Adds errors to errCount, advances folderCount and tells the progress after each folder.
void propagateThroughTree(const RunContext &context, const QString &folder, const RunOptions &options);

// The regular files among `entries` (names or paths, of which the names count) in `folder`; hidden ones and
// backups ("bak") are passed over. Counts into numLUTadaptedFiles and numLUTskippedFiles, and tells the
// progress before each. 1 when no pipe could be created, which the user has then been told; else 0.
[[nodiscard]] quint64 propagateThroughFiles(const RunContext &context, const QStringList &entries,
                                            const QString &folder, const RunOptions &options);

// The value in what the search printed; nothing when there is none. Pure.
[[nodiscard]] std::optional<QString> searchedValue(const QString &printed);

// The new value for `value`. Pure.
[[nodiscard]] QString propagatedValue(const LutTable &table, const QString &value);

// The command that gives `tag` of the file `name` the value `newValue`. Pure; nothing is escaped.
[[nodiscard]] QString propagationCommand(const QString &tool, const QString &tag, const QString &newValue,
                                         const QString &name);

} // namespace dravolin
