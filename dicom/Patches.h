#pragma once

#include "dicom/SourceFile.h"

#include <QByteArray>

#include <vector>

// Changes to a file, said by position, so that everything else keeps its bytes.
namespace dravolin {

struct Patch
{
    quint64 offset = 0;
    quint64 removed = 0; // bytes
    QByteArray inserted; // in their place

    bool operator==(const Patch &) const = default;
};

// In ascending order, not overlapping; of two at one place the first removes nothing.
using Patches = std::vector<Patch>;

// Where bytes go, one piece behind the other. False when they could not be written.
class ByteSink
{
public:
    virtual ~ByteSink() = default;
    [[nodiscard]] virtual bool write(QByteArrayView bytes) = 0;
    // A part of a file, behind all that was copied of it before; false, too, when it could not be read.
    [[nodiscard]] virtual bool copy(SourceFile &file, quint64 offset, quint64 length);
    // After the last piece.
    [[nodiscard]] virtual bool finish() { return true; }
};

// Sends the bytes of `file` from `begin` to `end` with the patches applied.
[[nodiscard]] bool sendPatched(SourceFile &file, quint64 begin, quint64 end, const Patches &patches,
                               ByteSink &sink);

} // namespace dravolin
