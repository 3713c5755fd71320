#include "base/Files.h"

#include "base/SystemLog.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace dravolin {

namespace {

constexpr qsizetype largestRead = 8 * 1024 * 1024;

std::filesystem::path nativePath(const QString &path)
{
    return systemPath(path).toStdString();
}

class FileDescriptor
{
public:
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    [[nodiscard]] int get() const { return m_fd; }
    bool close()
    {
        const bool closed = m_fd < 0 || ::close(m_fd) == 0;
        m_fd = -1;
        return closed;
    }

private:
    int m_fd;
};

// Writes, and closes when all of it was written.
bool writeAll(FileDescriptor &file, const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            ::write(file.get(), bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return file.close();
}

// Removes the file at `path` if it is still the one of these attributes, and no link, pipe or device.
void removeRegularFile(const QString &path, const struct stat &written)
{
    struct stat named = {};
    if (::lstat(systemPath(path).constData(), &named) == 0 && S_ISREG(named.st_mode) &&
        named.st_ino == written.st_ino && named.st_dev == written.st_dev)
        removeFile(path);
}

// What `read` gives; nothing, and a message, when memory does not suffice for it.
template <typename Read>
auto readIfItFits(const QString &path, Read &&read) -> decltype(read())
{
    try {
        return read();
    } catch (const std::bad_alloc &) {
        logMessage(QStringLiteral("Not enough memory to read file: %1").arg(path));
        return std::nullopt;
    }
}

std::optional<QByteArray> readWhole(const QString &path)
{
    // O_NONBLOCK: a pipe of that name must not stop the program
    FileDescriptor file(::open(systemPath(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat attributes = {};
    if (!file.isOpen() || ::fstat(file.get(), &attributes) != 0 || !S_ISREG(attributes.st_mode) ||
        attributes.st_size > largestFile)
        return std::nullopt;
    QByteArray bytes(static_cast<qsizetype>(attributes.st_size) + 1, Qt::Uninitialized);
    qsizetype used = 0;
    for (;;) {
        if (used > largestFile)
            return std::nullopt;
        if (used == bytes.size())
            bytes.resize(used + std::max<qsizetype>(4096, used / 2));
        // in pieces: the system ends a process only between two of them
        const auto wanted = static_cast<size_t>(std::min(bytes.size() - used, largestRead));
        const ssize_t got = ::read(file.get(), bytes.data() + used, wanted);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        used += got;
        if (used == attributes.st_size && static_cast<size_t>(got) < wanted) // it had no more to give
            break;
    }
    bytes.truncate(used);
    return bytes;
}

void forEachEntry(const QString &folder, const std::function<void(const dirent &)> &visit)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(::opendir(systemPath(folder).constData()),
                                                       &::closedir);
    if (!entries)
        return;
    while (const dirent *entry = ::readdir(entries.get())) {
        const QByteArrayView name(entry->d_name);
        if (name != "." && name != "..")
            visit(*entry);
    }
}

} // namespace

QStringList listNames(const QString &folder)
{
    QStringList names;
    forEachEntry(folder, [&names](const dirent &entry) { names.append(fromBytes(entry.d_name)); });
    return names;
}

QStringList listFolderNames(const QString &folder)
{
    QStringList names;
    forEachEntry(folder, [&](const dirent &entry) {
        if (entry.d_type != DT_DIR && entry.d_type != DT_UNKNOWN)
            return;
        const QString name = fromBytes(entry.d_name);
        if (isFolder(joinPath(folder, name)))
            names.append(name);
    });
    return names;
}

bool isFolder(const QString &path)
{
    return entryKind(path) == EntryKind::Folder;
}

std::optional<EntryKind> entryKind(const QString &path, SystemError *error)
{
    struct stat attributes = {};
    if (::lstat(systemPath(path).constData(), &attributes) != 0) {
        if (error)
            *error = {errno, QString::fromStdString(std::generic_category().message(errno))};
        return std::nullopt;
    }
    if (S_ISREG(attributes.st_mode))
        return EntryKind::File;
    return S_ISDIR(attributes.st_mode) ? EntryKind::Folder : EntryKind::Other;
}

bool pathExists(const QString &path)
{
    struct stat attributes = {};
    return ::stat(systemPath(path).constData(), &attributes) == 0;
}

std::optional<QByteArray> readBytes(const QString &path)
{
    return readIfItFits(path, [&path] { return readWhole(path); });
}

std::optional<QString> readText(const QString &path)
{
    return readIfItFits(path, [&path] {
        const std::optional<QByteArray> bytes = readWhole(path);
        return bytes ? decodeUtf8(*bytes) : std::nullopt;
    });
}

bool writeText(const QString &path, const QString &text, Links links)
{
    const int linkFlag = links == Links::Refuse ? O_NOFOLLOW : 0;
    FileDescriptor file(::open(systemPath(path).constData(),
                               O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK | linkFlag, 0666));
    struct stat attributes = {};
    if (!file.isOpen() || ::fstat(file.get(), &attributes) != 0)
        return false;
    if (writeAll(file, toBytes(text)))
        return true;
    removeRegularFile(path, attributes); // half a text would be found and used
    return false;
}

bool makeExecutable(const QString &path)
{
    return ::chmod(systemPath(path).constData(), 0777) == 0;
}

bool createFolder(const QString &path, SystemError *error)
{
    std::error_code code;
    std::filesystem::create_directories(nativePath(path), code);
    if (!code && !std::filesystem::is_directory(nativePath(path), code) && !code)
        code = std::make_error_code(std::errc::not_a_directory);
    if (error)
        *error = {code.value(), code ? QString::fromStdString(code.message()) : QString()};
    return !code;
}

bool copyFile(const QString &from, const QString &to)
{
    const std::optional<QByteArray> bytes = readBytes(from);
    if (!bytes)
        return false;
    FileDescriptor file(::open(systemPath(to).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.isOpen())
        return false;
    if (writeAll(file, *bytes))
        return true;
    removeFile(to); // half a configuration would be found and used
    return false;
}

void removeFile(const QString &path)
{
    ::unlink(systemPath(path).constData());
}

} // namespace dravolin
