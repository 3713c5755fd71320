#pragma once

#include "dicom/Patches.h"
#include "dicom/Sha256.h"

namespace dravolin {

// Bytes into a file that is open for writing, with the hash of all of them. The descriptor stays the
// caller's.
class FileSink : public ByteSink
{
public:
    // Copying from file to file in the kernel: bytes are read for the hash all the same, so that it saves
    // only where a server holds both files, and writing is faster everywhere else.
    enum class KernelCopies { OnServers, Always };
    explicit FileSink(int descriptor, KernelCopies copies = KernelCopies::OnServers);

    [[nodiscard]] bool write(QByteArrayView bytes) override;
    [[nodiscard]] bool copy(SourceFile &file, quint64 offset, quint64 length) override;
    [[nodiscard]] bool finish() override { return flush(); }

    // What kept bytes from being written, an errno; 0 when they were all written.
    [[nodiscard]] int error() const { return m_error; }
    [[nodiscard]] quint64 size() const { return m_size; }
    [[nodiscard]] QByteArray digits() { return m_hash.digits(); } // of what was written, as Sha256::digits()

private:
    // Of bytes that were hashed.
    [[nodiscard]] bool take(QByteArrayView bytes);
    [[nodiscard]] bool takeCopied(const SourceFile &file, quint64 offset, QByteArrayView bytes);
    [[nodiscard]] bool flush();
    [[nodiscard]] bool writeNow(QByteArrayView bytes);
    // Gives those of the bytes at `offset` that are left to be written.
    [[nodiscard]] QByteArrayView copyInKernel(const SourceFile &file, quint64 offset, QByteArrayView bytes);

    int m_descriptor;
    int m_error = 0;
    bool m_kernelCopies; // until the kernel refuses
    QByteArray m_buffer;
    Sha256 m_hash;
    quint64 m_size = 0;
};

} // namespace dravolin
