#pragma once

#include "dicom/Sha256.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

// Bytes of files by position. An object belongs to one thread.
namespace dravolin {

// A file descriptor that is closed with its owner; -1 is none.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1) : m_fd(fd) {}
    ~Descriptor();
    Descriptor(Descriptor &&other) noexcept : m_fd(other.m_fd) { other.m_fd = -1; }
    Descriptor &operator=(Descriptor &&other) noexcept;
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] int get() const { return m_fd; }
    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    // Before its owner does; false, with errno, when something that was written is lost.
    [[nodiscard]] bool close();

private:
    int m_fd;
};

// A regular file that is only read. Bytes come through a small window, so that walking over the headers of a
// large object reads little more than these.
class SourceFile
{
public:
    // Follows no link and waits for nothing: a pipe or a device is refused. The path is a text of
    // base/PathText.h. Null on failure; `problem` then gets a text for people.
    [[nodiscard]] static std::unique_ptr<SourceFile> open(const QString &path, QString *problem);
    // Bytes that were put into a file without a name.
    explicit SourceFile(Descriptor descriptor, quint64 size)
        : m_descriptor(std::move(descriptor)), m_size(size)
    {
    }

    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }
    // The size when the file was opened.
    [[nodiscard]] quint64 size() const { return m_size; }
    [[nodiscard]] qint64 modified() const { return m_modified; } // nanoseconds since 1970

    // `length` bytes from `offset`; fewer when the file ends there or cannot be read.
    [[nodiscard]] QByteArray read(quint64 offset, qsizetype length);
    // The same for a few bytes, not copied; holds until the next call.
    [[nodiscard]] QByteArrayView view(quint64 offset, qsizetype length);

    // SHA-256 of the whole file, without reading its bytes twice: between beginHash() and endHash(), pieces
    // that readInOrder() gives, each behind the last one, are hashed on the way, for `other` as well, and
    // what lies between them is read for the hash alone. Nothing when not all could be read, or when the file
    // has been changed since it was opened.
    void beginHash() { m_hash.emplace(); }
    [[nodiscard]] QByteArray readInOrder(quint64 offset, qsizetype length, Sha256 *other = nullptr);
    [[nodiscard]] std::optional<QByteArray> endHash();

private:
    static constexpr qsizetype windowSize = 16384;
    void readInto(QByteArray &bytes, quint64 offset, qsizetype length) const;
    void hashUpTo(quint64 offset);
    [[nodiscard]] bool isUnchanged() const;

    Descriptor m_descriptor;
    quint64 m_size = 0;
    qint64 m_modified = 0;
    QByteArray m_window;
    quint64 m_windowStart = 0;
    std::optional<Sha256> m_hash;
    quint64 m_hashed = 0; // bytes, from the beginning
};

} // namespace dravolin
