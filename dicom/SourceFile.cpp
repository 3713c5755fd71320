#include "dicom/SourceFile.h"

#include "base/PathText.h"
#include "base/Texts.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace dravolin {

namespace {

qint64 modificationTime(const struct stat &attributes)
{
    return attributes.st_mtim.tv_sec * qint64(1'000'000'000) + attributes.st_mtim.tv_nsec;
}

QString couldNotOpen(int error)
{
    // what the system says about a link that is not to be followed speaks of too many links
    return error == ELOOP
               ? Texts::tr("is a link")
               : Texts::tr("cannot be opened: %1").arg(QString::fromLocal8Bit(std::strerror(error)));
}

} // namespace

Descriptor::~Descriptor()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

Descriptor &Descriptor::operator=(Descriptor &&other) noexcept
{
    std::swap(m_fd, other.m_fd);
    return *this;
}

bool Descriptor::close()
{
    return ::close(std::exchange(m_fd, -1)) == 0;
}

std::unique_ptr<SourceFile> SourceFile::open(const QString &path, QString *problem)
{
    Descriptor descriptor(
        ::open(systemPath(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat attributes = {};
    if (!descriptor.isOpen() || ::fstat(descriptor.get(), &attributes) != 0) {
        *problem = couldNotOpen(errno);
        return nullptr;
    }
    if (!S_ISREG(attributes.st_mode)) {
        *problem = Texts::tr("is no regular file");
        return nullptr;
    }
    auto file = std::make_unique<SourceFile>(std::move(descriptor), static_cast<quint64>(attributes.st_size));
    file->m_modified = modificationTime(attributes);
    return file;
}

QByteArray SourceFile::read(quint64 offset, qsizetype length)
{
    if (length <= windowSize)
        return view(offset, length).toByteArray();
    QByteArray bytes;
    readInto(bytes, offset, length);
    return bytes;
}

QByteArrayView SourceFile::view(quint64 offset, qsizetype length)
{
    Q_ASSERT(length <= windowSize);
    const quint64 windowEnd = m_windowStart + static_cast<quint64>(m_window.size());
    if (offset < m_windowStart || offset + static_cast<quint64>(length) > windowEnd) {
        readInto(m_window, offset, windowSize);
        m_windowStart = offset;
    }
    const qsizetype at = static_cast<qsizetype>(offset - m_windowStart);
    return QByteArrayView(m_window).sliced(at, std::min(length, m_window.size() - at));
}

QByteArray SourceFile::readInOrder(quint64 offset, qsizetype length, Sha256 *other)
{
    if (m_hash)
        hashUpTo(offset);
    QByteArray bytes = read(offset, length);
    if (m_hash && other)
        Sha256::addToBoth(*m_hash, *other, bytes);
    else if (m_hash)
        m_hash->add(bytes);
    else if (other)
        other->add(bytes);
    m_hashed += static_cast<quint64>(bytes.size());
    return bytes;
}

std::optional<QByteArray> SourceFile::endHash()
{
    hashUpTo(m_size);
    const QByteArray digits = m_hash->digits();
    m_hash.reset();
    return m_hashed == m_size && isUnchanged() ? std::optional(digits) : std::nullopt;
}

void SourceFile::hashUpTo(quint64 offset)
{
    constexpr quint64 blockSize = 256 * 1024;
    while (m_hashed < offset) {
        const QByteArray bytes =
            read(m_hashed, static_cast<qsizetype>(std::min(blockSize, offset - m_hashed)));
        if (bytes.isEmpty())
            return;
        m_hash->add(bytes);
        m_hashed += static_cast<quint64>(bytes.size());
    }
}

bool SourceFile::isUnchanged() const
{
    struct stat attributes = {};
    return ::fstat(m_descriptor.get(), &attributes) == 0 &&
           static_cast<quint64>(attributes.st_size) == m_size && modificationTime(attributes) == m_modified;
}

void SourceFile::readInto(QByteArray &bytes, quint64 offset, qsizetype length) const
{
    // never more than the file has: a length that was read from a damaged file may be anything
    const quint64 rest = offset < m_size ? m_size - offset : 0;
    length = static_cast<qsizetype>(std::min(static_cast<quint64>(length), rest));
    bytes.resize(length);
    qsizetype done = 0;
    while (done < length) {
        const ssize_t got = ::pread(m_descriptor.get(), bytes.data() + done,
                                    static_cast<size_t>(length - done), static_cast<off_t>(offset) + done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += got;
    }
    bytes.truncate(done);
}

} // namespace dravolin
