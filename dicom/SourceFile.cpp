#include "dicom/SourceFile.h"

#include "base/PathText.h"
#include "base/Texts.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dravolin {

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

std::unique_ptr<SourceFile> SourceFile::open(const QString &path, QString *problem)
{
    Descriptor descriptor(
        ::open(systemPath(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    struct stat attributes = {};
    if (!descriptor.isOpen() || ::fstat(descriptor.get(), &attributes) != 0) {
        *problem = Texts::tr("cannot be opened: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        return nullptr;
    }
    if (!S_ISREG(attributes.st_mode)) {
        *problem = Texts::tr("is no regular file");
        return nullptr;
    }
    auto file = std::make_unique<SourceFile>(std::move(descriptor), static_cast<quint64>(attributes.st_size));
    file->m_modified = attributes.st_mtim.tv_sec * qint64(1'000'000'000) + attributes.st_mtim.tv_nsec;
    return file;
}

QByteArray SourceFile::read(quint64 offset, qsizetype length)
{
    if (length > windowSize)
        return readNow(offset, length);
    const auto inWindow = [&] {
        return offset >= m_windowStart &&
               offset + static_cast<quint64>(length) <= m_windowStart + static_cast<quint64>(m_window.size());
    };
    if (!inWindow()) {
        m_window = readNow(offset, windowSize);
        m_windowStart = offset;
    }
    return m_window.mid(static_cast<qsizetype>(offset - m_windowStart), length);
}

QByteArray SourceFile::readNow(quint64 offset, qsizetype length) const
{
    if (offset >= m_size)
        return {};
    // never more than the file has: a length that was read from a damaged file may be anything
    length = static_cast<qsizetype>(std::min(static_cast<quint64>(length), m_size - offset));
    QByteArray bytes(length, Qt::Uninitialized);
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
    return bytes;
}

} // namespace dravolin
