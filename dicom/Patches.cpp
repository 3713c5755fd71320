#include "dicom/Patches.h"

#include <algorithm>

namespace dravolin {

namespace {

constexpr quint64 blockSize = 256 * 1024;

} // namespace

bool ByteSink::copy(SourceFile &file, quint64 offset, quint64 length)
{
    while (length > 0) {
        const quint64 wanted = std::min(length, blockSize);
        const QByteArray bytes = file.readInOrder(offset, static_cast<qsizetype>(wanted));
        if (static_cast<quint64>(bytes.size()) != wanted || !write(bytes))
            return false;
        offset += wanted;
        length -= wanted;
    }
    return true;
}

bool sendPatched(SourceFile &file, quint64 begin, quint64 end, const Patches &patches, ByteSink &sink)
{
    quint64 position = begin;
    for (const Patch &patch : patches) {
        if (!sink.copy(file, position, patch.offset - position) || !sink.write(patch.inserted))
            return false;
        position = patch.offset + patch.removed;
    }
    return sink.copy(file, position, end - position);
}

} // namespace dravolin
