#include "processing/ChangeCount.h"

#include "base/PathText.h"

namespace dravolin {

void countFolder(const RunContext &context, const QString &folder, const FolderStamps &before)
{
    const FolderStamps::Changes changes = before.changes();
    context.state.update([&](RunState &state) {
        state.files.changed += changes.changed;
        state.files.unchanged += static_cast<quint64>(changes.unchanged.size());
        state.files.leftOut += before.leftOut();
        ++state.files.folders;
        if (!state.usingLUT)
            return;
        for (const QString &name : changes.unchanged)
            state.unchangedFiles.insert(joinPath(folder, name));
    });
}

void countFile(const RunContext &context, const QString &path, const std::optional<FileStamp> &before)
{
    const std::optional<FileStamp> now = fileStamp(path);
    if (!now || now == before)
        return;
    context.state.update([&path](RunState &state) {
        if (!state.unchangedFiles.remove(path))
            return;
        ++state.files.changed;
        --state.files.unchanged;
    });
}

} // namespace dravolin
