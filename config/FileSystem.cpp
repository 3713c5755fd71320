#include "config/FileSystem.h"

#include <QStringDecoder>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace dravolin {

namespace {

constexpr char16_t escapeBase = 0xDC00;
constexpr qsizetype largestFile = qsizetype(1) << 30;
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

bool isEscapedByte(char16_t unit)
{
    return unit >= escapeBase + 0x80 && unit <= escapeBase + 0xFF;
}

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

// Writes and closes.
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

QByteArray toBytes(const QString &text)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        if (unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (isEscapedByte(unit.unicode())) {
            bytes += QStringView(text).sliced(start, i - start).toUtf8();
            bytes += static_cast<char>(unit.unicode() - escapeBase);
            start = i + 1;
        }
    }
    return bytes + QStringView(text).sliced(start).toUtf8();
}

QByteArray systemPath(const QString &path)
{
    // the system would take the path to end there, and that is somebody else's file
    return path.contains(QChar::Null) ? QByteArray() : toBytes(path);
}

QString fromBytes(const QByteArray &bytes)
{
    if (std::optional<QString> text = decodeUtf8(bytes); text && !bytes.startsWith(byteOrderMark))
        return *text;
    QString text;
    for (qsizetype i = 0; i < bytes.size();) {
        qsizetype length = std::min<qsizetype>(
            QByteArrayView(bytes).sliced(i).startsWith(byteOrderMark) ? 3 : 4, bytes.size() - i);
        while (length > 0 && !QByteArrayView(bytes).sliced(i, length).isValidUtf8())
            --length;
        if (length == 0) {
            text += QChar(static_cast<char16_t>(escapeBase + static_cast<unsigned char>(bytes.at(i))));
            length = 1;
        } else if (const QByteArrayView valid = QByteArrayView(bytes).sliced(i, length);
                   valid == byteOrderMark) {
            text += QChar::ByteOrderMark; // fromUtf8 would drop it, and a name may begin with one
        } else {
            text += QString::fromUtf8(valid);
        }
        i += length;
    }
    return text;
}

std::optional<QString> decodeUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

QString joinPath(const QString &folder, const QString &name)
{
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString lastPathComponent(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QString parentPath(const QString &path)
{
    const qsizetype separator = path.lastIndexOf(u'/');
    return separator == 0 ? QStringLiteral("/") : path.first(std::max<qsizetype>(separator, 0));
}

QString pathExtension(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.sliced(dot + 1) : QString();
}

QString withoutExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.first(dot) : name;
}

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
        const ssize_t got = ::read(file.get(), bytes.data() + used, static_cast<size_t>(bytes.size() - used));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        used += got;
    }
    bytes.truncate(used);
    return bytes;
}

std::optional<QString> readText(const QString &path)
{
    const std::optional<QByteArray> bytes = readBytes(path);
    return bytes ? decodeUtf8(*bytes) : std::nullopt;
}

bool writeText(const QString &path, const QString &text, Links links)
{
    const int linkFlag = links == Links::Refuse ? O_NOFOLLOW : 0;
    FileDescriptor file(::open(systemPath(path).constData(),
                               O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK | linkFlag, 0666));
    return file.isOpen() && writeAll(file, toBytes(text));
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
