#pragma once

#include "base/FileStamps.h"
#include "run/jobs/RunContext.h"

// What a run does to the files it goes over, told by the files themselves and not by the tools. On the run's
// thread.
namespace dravolin {

// Adds what has happened to the files of `folder` since `before` was taken, and the folder itself. Of a run
// that goes over its files a second time with a table, the unchanged ones are remembered by name.
void countFolder(const RunContext &context, const QString &folder, const FolderStamps &before);

// The second time: a file that was unchanged until now and is no longer as it was at `before`.
void countFile(const RunContext &context, const QString &path, const std::optional<FileStamp> &before);

} // namespace dravolin
