#include "dicom/FileSink.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace dravolin {

namespace {

constexpr qsizetype bufferSize = 256 * 1024;
constexpr quint64 largePart = 1024 * 1024;

} // namespace

bool FileSink::write(QByteArrayView bytes)
{
    m_size += static_cast<quint64>(bytes.size());
    if (bytes.size() < bufferSize) {
        m_buffer.append(bytes);
        return m_buffer.size() < bufferSize || flush();
    }
    if (!flush())
        return false;
    m_hash.add(bytes);
    return writeNow(bytes);
}

bool FileSink::copy(SourceFile &file, quint64 offset, quint64 length)
{
    if (length < largePart || !m_kernelCopies)
        return ByteSink::copy(file, offset, length);
    return flush() && copyInKernel(file, offset, length);
}

bool FileSink::flush()
{
    const QByteArray bytes = std::exchange(m_buffer, {});
    m_hash.add(bytes);
    return writeNow(bytes);
}

bool FileSink::writeNow(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

bool FileSink::copyInKernel(SourceFile &file, quint64 offset, quint64 length)
{
    auto from = static_cast<off_t>(offset);
    while (length > 0) {
        const quint64 wanted = std::min(length, largePart);
        const QByteArray bytes = file.read(static_cast<quint64>(from), static_cast<qsizetype>(wanted));
        if (static_cast<quint64>(bytes.size()) != wanted)
            return false;
        const ssize_t copied = ::copy_file_range(file.descriptor(), &from, m_descriptor, nullptr, wanted, 0);
        if (copied <= 0) {
            // between some file systems, or for some files, it is not to be had
            m_kernelCopies = false;
            return ByteSink::copy(file, static_cast<quint64>(from), length);
        }
        m_hash.add(QByteArrayView(bytes).first(copied));
        m_size += static_cast<quint64>(copied);
        length -= static_cast<quint64>(copied);
    }
    return true;
}

} // namespace dravolin
