#pragma once

// Natural numbers as rows of 32-bit words, least significant first: what BigInt's sources share. Sizes are in
// words; a size below 1 is an empty row. BigIntRows.h calculates with them.

#include "identifiers/BigIntError.h"

#include <QtGlobal>

#include <bit>
#include <limits>

namespace dravolin::words {

inline constexpr quint64 base = quint64{1} << 32;
inline constexpr quint32 largest = std::numeric_limits<quint32>::max();
inline constexpr quint32 topBit = 0x80000000U;

[[noreturn]] inline void raiseArithmetic(const char *reason)
{
    throw BigIntError("ArithmeticException", reason);
}

[[nodiscard]] inline quint32 low(quint64 value)
{
    return static_cast<quint32>(value);
}

[[nodiscard]] inline quint32 high(quint64 value)
{
    return static_cast<quint32>(value >> 32);
}

// The size without high zero words, but not taken below 1.
[[nodiscard]] inline qint32 trimmedLength(const quint32 *words, qint32 size)
{
    while (size > 1 && words[size - 1] == 0)
        --size;
    return size;
}

// The position of the highest set bit counted from 1; 0 when there is none.
[[nodiscard]] inline qint32 bitLength(const quint32 *words, qint32 size)
{
    const qint32 length = trimmedLength(words, size);
    return length < 1 ? 0 : 32 * (length - 1) + static_cast<qint32>(std::bit_width(words[length - 1]));
}

// -1, 0 or 1 for left below, equal to, above right.
[[nodiscard]] inline int compare(const quint32 *left, const quint32 *right, qint32 size)
{
    for (qint32 i = size - 1; i >= 0; --i) {
        if (left[i] != right[i])
            return left[i] < right[i] ? -1 : 1;
    }
    return 0;
}

// The number of zero bits below the lowest set one, which there has to be.
[[nodiscard]] inline qint32 trailingZeros(const quint32 *words)
{
    qint32 word = 0;
    while (words[word] == 0)
        ++word;
    return 32 * word + static_cast<qint32>(std::countr_zero(words[word]));
}

} // namespace dravolin::words
