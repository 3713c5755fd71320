#include "base/FileStamps.h"

#include "base/PathText.h"

#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace dravolin {

namespace {

using Folder = std::unique_ptr<DIR, int (*)(DIR *)>;

Folder open(const QByteArray &folder)
{
    return {::opendir(folder.constData()), &::closedir};
}

qint64 nanoseconds(const timespec &time)
{
    return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::optional<FileStamp> stampAt(int folder, const char *name)
{
    struct stat attributes = {};
    if (::fstatat(folder, name, &attributes, 0) != 0 || !S_ISREG(attributes.st_mode))
        return std::nullopt;
    return FileStamp{.device = attributes.st_dev,
                     .number = attributes.st_ino,
                     .size = attributes.st_size,
                     .written = nanoseconds(attributes.st_mtim)};
}

} // namespace

std::optional<FileStamp> fileStamp(const QString &path)
{
    return stampAt(AT_FDCWD, systemPath(path).constData());
}

FolderStamps::FolderStamps(const QString &folder) : m_folder(systemPath(folder))
{
    const Folder entries = open(m_folder);
    while (const dirent *entry = entries ? ::readdir(entries.get()) : nullptr) {
        if (entry->d_type == DT_DIR)
            continue;
        const std::optional<FileStamp> stamp = stampAt(::dirfd(entries.get()), entry->d_name);
        if (stamp && entry->d_name[0] == '.')
            ++m_leftOut;
        else if (stamp)
            m_entries.push_back({entry->d_name, *stamp});
    }
}

FolderStamps::FolderStamps(const QString &folder, const QStringList &names) : m_folder(systemPath(folder))
{
    const Folder opened = open(m_folder);
    for (const QString &name : names) {
        const QByteArray bytes = toBytes(name);
        if (const auto stamp = opened ? stampAt(::dirfd(opened.get()), bytes.constData()) : std::nullopt)
            m_entries.push_back({bytes, *stamp});
        else
            ++m_leftOut;
    }
}

FolderStamps::Changes FolderStamps::changes() const
{
    Changes changes;
    const Folder opened = open(m_folder);
    for (const Entry &entry : m_entries) {
        const auto now = opened ? stampAt(::dirfd(opened.get()), entry.name.constData()) : std::nullopt;
        if (now && now != entry.stamp)
            ++changes.changed;
        else
            changes.unchanged.append(fromBytes(entry.name));
    }
    return changes;
}

} // namespace dravolin
