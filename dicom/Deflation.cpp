#include "dicom/Deflation.h"

#include "base/PathText.h"
#include "dicom/FileSink.h"

#include <algorithm>
#include <array>
#include <fcntl.h>

namespace dravolin {

namespace {

constexpr int rawDeflate = -MAX_WBITS;
constexpr qsizetype blockSize = 65536;
constexpr quint64 mostInflated = quint64(4) << 30;

using Block = std::array<char, blockSize>;

void give(z_stream &stream, QByteArrayView bytes)
{
    // zlib does not write through the pointer, it only lacks the const
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
}

// How much of the block was filled; `result` gets zlib's answer.
template <typename Step>
QByteArrayView filled(z_stream &stream, Block &block, Step step, int &result)
{
    stream.next_out = reinterpret_cast<Bytef *>(block.data());
    stream.avail_out = blockSize;
    result = step(&stream);
    return QByteArrayView(block.data(), blockSize - static_cast<qsizetype>(stream.avail_out));
}

bool inflateInto(z_stream &stream, SourceFile &file, quint64 begin, FileSink &sink)
{
    const auto block = std::make_unique<Block>();
    QByteArray bytes;
    for (int result = Z_OK; result != Z_STREAM_END;) {
        if (stream.avail_in == 0) {
            bytes = file.read(begin, blockSize);
            begin += static_cast<quint64>(bytes.size());
            give(stream, bytes);
        }
        const QByteArrayView part = filled(
            stream, *block, [](z_stream *all) { return ::inflate(all, Z_NO_FLUSH); }, result);
        if ((result != Z_OK && result != Z_STREAM_END) || !sink.write(part) || sink.size() > mostInflated)
            return false;
    }
    return sink.finish();
}

} // namespace

std::unique_ptr<SourceFile> inflated(SourceFile &file, quint64 begin, const QString &folder)
{
    Descriptor target(::open(systemPath(folder).constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    z_stream stream = {};
    if (!target.isOpen() || ::inflateInit2(&stream, rawDeflate) != Z_OK)
        return nullptr;
    FileSink sink(target.get());
    const bool done = inflateInto(stream, file, begin, sink);
    ::inflateEnd(&stream);
    return done ? std::make_unique<SourceFile>(std::move(target), sink.size()) : nullptr;
}

DeflateSink::DeflateSink(ByteSink &next) : m_next(next)
{
    constexpr int usualMemory = 8;
    (void)::deflateInit2(&m_stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, rawDeflate, usualMemory,
                         Z_DEFAULT_STRATEGY);
}

DeflateSink::~DeflateSink()
{
    ::deflateEnd(&m_stream);
}

bool DeflateSink::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const QByteArrayView part = bytes.first(std::min(bytes.size(), blockSize));
        give(m_stream, part);
        if (!deflateInput(Z_NO_FLUSH))
            return false;
        bytes = bytes.sliced(part.size());
    }
    return true;
}

bool DeflateSink::finish()
{
    give(m_stream, {});
    if (!deflateInput(Z_FINISH))
        return false;
    // an odd file is made even, as the data set would have been
    return (m_written % 2 == 0 || m_next.write(QByteArrayView("", 1))) && m_next.finish();
}

bool DeflateSink::deflateInput(int flush)
{
    const auto block = std::make_unique<Block>();
    int result = Z_OK;
    do {
        const QByteArrayView part = filled(
            m_stream, *block, [flush](z_stream *all) { return ::deflate(all, flush); }, result);
        m_written += static_cast<quint64>(part.size());
        if (result == Z_STREAM_ERROR || !m_next.write(part))
            return false;
    } while (m_stream.avail_out == 0);
    return true;
}

} // namespace dravolin
