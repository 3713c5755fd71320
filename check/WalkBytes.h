#pragma once

#include <QByteArrayView>
#include <QtGlobal>

#include <optional>

// The numbers and headers that an object's bytes are made of. Pure functions, any thread. Offsets count from
// the start of the bytes; a function without a result on failure wants as many bytes there as it reads.
namespace dravolin::check {

struct Syntax
{
    bool isExplicit = false;
    bool isBigEndian = false;
};

// An attribute's tag, VR and length, before its value.
struct Header
{
    quint16 vr = 0; // its two letters, the first one high; 0 in the implicit syntax
    quint32 length = 0;
    qsizetype size = 8; // bytes of the header itself
};

inline constexpr quint16 vrBytes = 0x4F42;    // OB
inline constexpr quint16 vrWords = 0x4F57;    // OW
inline constexpr quint16 vrSequence = 0x5351; // SQ
inline constexpr quint16 vrUnknown = 0x554E;  // UN

[[nodiscard]] quint32 number32At(QByteArrayView bytes, qsizetype at, Syntax syntax);
[[nodiscard]] quint32 tagAt(QByteArrayView bytes, qsizetype at, Syntax syntax);
// Nothing when the bytes before `limit` cannot be a header.
[[nodiscard]] std::optional<Header> headerAt(QByteArrayView bytes, qsizetype at, qsizetype limit,
                                             Syntax syntax);

} // namespace dravolin::check
