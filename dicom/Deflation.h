#pragma once

#include "dicom/Patches.h"

#include <zlib.h>

#include <memory>

// Data sets in the deflated transfer syntaxes (DICOM PS3.5, A.5), by zlib.
namespace dravolin {

// The inflated bytes of `file` from `begin` on, in a file without a name in `folder`. Null when the bytes are
// damaged, inflate to more than 4 GiB or cannot be written.
[[nodiscard]] std::unique_ptr<SourceFile> inflated(SourceFile &file, quint64 begin, const QString &folder);

// Deflates what it gets and passes it on.
class DeflateSink : public ByteSink
{
public:
    explicit DeflateSink(ByteSink &next);
    ~DeflateSink() override;
    DeflateSink(const DeflateSink &) = delete;
    DeflateSink &operator=(const DeflateSink &) = delete;

    [[nodiscard]] bool write(QByteArrayView bytes) override;
    [[nodiscard]] bool finish() override;

private:
    [[nodiscard]] bool deflateInput(int flush);

    ByteSink &m_next;
    z_stream m_stream = {};
    quint64 m_written = 0;
};

} // namespace dravolin
