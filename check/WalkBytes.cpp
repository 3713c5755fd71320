#include "check/WalkBytes.h"

#include <QtEndian>

#include <algorithm>
#include <string_view>

namespace dravolin::check {

namespace {

constexpr std::string_view shortVrs = "AEASATCSDADSDTFLFDISLOLTPNSHSLSSSTTMUIULUS";
constexpr std::string_view longVrs = "OBODOFOLOVOWSQSVUCUNURUTUV";

bool isOneOf(std::string_view vrs, quint16 vr)
{
    for (size_t i = 0; i < vrs.size(); i += 2) {
        if (static_cast<quint16>((vrs[i] << 8) | vrs[i + 1]) == vr)
            return true;
    }
    return false;
}

quint16 number16At(QByteArrayView bytes, qsizetype at, Syntax syntax)
{
    const char *const place = bytes.data() + at;
    return syntax.isBigEndian ? qFromBigEndian<quint16>(place) : qFromLittleEndian<quint16>(place);
}

} // namespace

quint32 number32At(QByteArrayView bytes, qsizetype at, Syntax syntax)
{
    const char *const place = bytes.data() + at;
    return syntax.isBigEndian ? qFromBigEndian<quint32>(place) : qFromLittleEndian<quint32>(place);
}

quint32 tagAt(QByteArrayView bytes, qsizetype at, Syntax syntax)
{
    return (quint32{number16At(bytes, at, syntax)} << 16) | number16At(bytes, at + 2, syntax);
}

std::optional<Header> headerAt(QByteArrayView bytes, qsizetype at, qsizetype limit, Syntax syntax)
{
    constexpr qsizetype size = 8;
    constexpr qsizetype longSize = 12;
    if (limit - at < size)
        return std::nullopt;
    if (!syntax.isExplicit)
        return Header{.length = number32At(bytes, at + 4, syntax)};
    const quint16 vr = qFromBigEndian<quint16>(bytes.data() + at + 4);
    if (isOneOf(shortVrs, vr))
        return Header{.vr = vr, .length = number16At(bytes, at + 6, syntax)};
    if (!isOneOf(longVrs, vr) || limit - at < longSize)
        return std::nullopt;
    return Header{.vr = vr, .length = number32At(bytes, at + size, syntax), .size = longSize};
}

} // namespace dravolin::check
