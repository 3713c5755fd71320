#include "dicom/FileSink.h"

#include <algorithm>
#include <cerrno>
#include <linux/magic.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>

namespace dravolin {

namespace {

constexpr qsizetype bufferSize = 256 * 1024;
constexpr qsizetype largePart = 16 * 1024;
constexpr quint64 pageSize = 4096;

bool liesOnServer(int descriptor)
{
    constexpr quint32 cifs = 0xff534d42;
    constexpr quint32 ceph = 0x00c36400;
    struct statfs system = {};
    if (::fstatfs(descriptor, &system) != 0)
        return false;
    const auto type = static_cast<quint32>(system.f_type);
    return type == NFS_SUPER_MAGIC || type == SMB2_SUPER_MAGIC || type == cifs || type == ceph;
}

} // namespace

FileSink::FileSink(int descriptor, KernelCopies copies)
    : m_descriptor(descriptor), m_kernelCopies(copies == KernelCopies::Always || liesOnServer(descriptor))
{
}

bool FileSink::write(QByteArrayView bytes)
{
    m_hash.add(bytes);
    return take(bytes);
}

bool FileSink::copy(SourceFile &file, quint64 offset, quint64 length)
{
    while (length > 0) {
        // up to the end of a page of the new file: the system writes whole pages faster
        const quint64 most = static_cast<quint64>(bufferSize) - m_size % pageSize;
        const auto wanted = static_cast<qsizetype>(std::min(length, most));
        const QByteArray bytes = file.readInOrder(offset, wanted, &m_hash);
        if (bytes.size() != wanted || !takeCopied(file, offset, bytes))
            return false;
        offset += static_cast<quint64>(wanted);
        length -= static_cast<quint64>(wanted);
    }
    return true;
}

bool FileSink::take(QByteArrayView bytes)
{
    m_size += static_cast<quint64>(bytes.size());
    if (bytes.size() >= largePart)
        return flush() && writeNow(bytes);
    m_buffer.append(bytes);
    return m_buffer.size() < bufferSize || flush();
}

bool FileSink::takeCopied(const SourceFile &file, quint64 offset, QByteArrayView bytes)
{
    if (!m_kernelCopies || bytes.size() < largePart)
        return take(bytes);
    if (!flush())
        return false;
    const QByteArrayView rest = copyInKernel(file, offset, bytes);
    m_size += static_cast<quint64>(bytes.size() - rest.size());
    return take(rest);
}

bool FileSink::flush()
{
    return writeNow(std::exchange(m_buffer, {}));
}

bool FileSink::writeNow(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            m_error = written < 0 ? errno : ENOSPC;
            return false;
        }
        bytes = bytes.sliced(written);
    }
    return true;
}

QByteArrayView FileSink::copyInKernel(const SourceFile &file, quint64 offset, QByteArrayView bytes)
{
    auto from = static_cast<off_t>(offset);
    while (m_kernelCopies && !bytes.isEmpty()) {
        const ssize_t copied = ::copy_file_range(file.descriptor(), &from, m_descriptor, nullptr,
                                                 static_cast<size_t>(bytes.size()), 0);
        // between some file systems, or for some files, it is not to be had
        m_kernelCopies = copied > 0;
        bytes = bytes.sliced(std::max<ssize_t>(copied, 0));
    }
    return bytes;
}

} // namespace dravolin
