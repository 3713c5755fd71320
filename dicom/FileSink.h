#pragma once

#include "dicom/Patches.h"
#include "dicom/Sha256.h"

namespace dravolin {

// Bytes into a file that is open for writing, with the hash of all of them. Large parts of another file go
// from file to file in the kernel where the file systems can do that. The descriptor stays the caller's.
class FileSink : public ByteSink
{
public:
    explicit FileSink(int descriptor) : m_descriptor(descriptor) {}

    [[nodiscard]] bool write(QByteArrayView bytes) override;
    [[nodiscard]] bool copy(SourceFile &file, quint64 offset, quint64 length) override;
    [[nodiscard]] bool finish() override { return flush(); }

    [[nodiscard]] quint64 size() const { return m_size; }
    [[nodiscard]] QByteArray digits() { return m_hash.digits(); } // of what was written, as Sha256::digits()

private:
    [[nodiscard]] bool flush();
    [[nodiscard]] bool writeNow(QByteArrayView bytes) const;
    [[nodiscard]] bool copyInKernel(SourceFile &file, quint64 offset, quint64 length);

    int m_descriptor;
    bool m_kernelCopies = true; // until it refuses
    QByteArray m_buffer;
    Sha256 m_hash;
    quint64 m_size = 0;
};

} // namespace dravolin
