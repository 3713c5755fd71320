#include "check/Inflate.h"

#include <algorithm>
#include <array>
#include <limits>
#include <zlib.h>

namespace dravolin::check {

Inflated inflate(QByteArrayView stream, qsizetype limit)
{
    Inflated result;
    z_stream state = {};
    if (inflateInit2(&state, -MAX_WBITS) != Z_OK)
        return result;
    state.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(stream.data())); // zlib does not write there
    state.avail_in = static_cast<uInt>(std::min<qsizetype>(stream.size(), std::numeric_limits<uInt>::max()));
    std::array<char, 65536> part;
    int status = Z_OK;
    while (status == Z_OK && result.bytes.size() < limit) {
        state.next_out = reinterpret_cast<Bytef *>(part.data());
        state.avail_out = part.size();
        status = ::inflate(&state, Z_NO_FLUSH);
        result.bytes.append(part.data(), static_cast<qsizetype>(part.size() - state.avail_out));
    }
    result.used = static_cast<qsizetype>(state.total_in);
    result.complete = status == Z_STREAM_END;
    inflateEnd(&state);
    return result;
}

} // namespace dravolin::check
