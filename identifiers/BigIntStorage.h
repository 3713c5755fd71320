#pragma once

#include <QtGlobal>

#include <array>

namespace dravolin {

// What a BigInt holds: 70 words of 32 bits in two's complement, least significant word first, and how many of
// them are in use. Nothing on the heap.
//
// Invariants, true after every operation:
// - A value is negative exactly when bit 31 of word 69 is set. The range is -2^2239 to 2^2239 - 1.
// - dataLength() words are in use, counted from word 0. All words above them are zero.
// - The length is trimmed: above 1, the highest word in use is not zero. Zero has length 1, a negative value
//   has 70.
//
// There are two exceptions. setDataLength(), setDataAtIndex() and getData() leave the invariants to the
// caller. And a zero can have a length of 0 or less: it calculates like zero and does not equal an ordinary
// one. Two operations make such a zero, sqrt() of zero (length 0) and an empty word array (its size). Where
// operands have such lengths, results that are zero can have one too:
// - add(), subtract(): the longer of the two;
// - multiply(): the sum of the two, also when the other operand is an ordinary value of few words;
// - mod() and the remainder of singleByteDivide...: that of the dividend;
// - abs(), gcd(), shiftLeft(), shiftRight() and copies: that of the operand.
// Quotients, negate(), not_(), and_(), or_() and xOr() have the ordinary lengths.
class BigIntStorage
{
public:
    static constexpr qint32 maxLength = 70;

    // Indices are 0 to 69 and lengths at most 70; neither is checked.
    [[nodiscard]] qint32 dataLength() const { return m_dataLength; }
    void setDataLength(qint32 length) { m_dataLength = length; }
    [[nodiscard]] quint32 *getData() { return m_data.data(); }
    [[nodiscard]] const quint32 *getData() const { return m_data.data(); }
    [[nodiscard]] quint32 getDataAtIndex(qint32 index) const { return m_data[static_cast<size_t>(index)]; }
    void setDataAtIndex(quint32 word, qint32 index) { m_data[static_cast<size_t>(index)] = word; }
    // Word 0 read as a signed number, whatever is above it.
    [[nodiscard]] qint32 intValue() const { return static_cast<qint32>(m_data[0]); }

    [[nodiscard]] bool isNegative() const { return (m_data[maxLength - 1] & 0x80000000U) != 0; }
    // Of any length.
    [[nodiscard]] bool isZero() const;
    // Of length 1: like equals(), it does not see a one whose length is not trimmed.
    [[nodiscard]] bool isOne() const { return m_dataLength == 1 && m_data[0] == 1; }
    [[nodiscard]] bool isEven() const { return (m_data[0] & 1U) == 0; }

protected:
    constexpr BigIntStorage() noexcept = default;

    // Takes high zero words off the length, but not below 1.
    void trim();

    qint32 m_dataLength = 1;
    std::array<quint32, maxLength> m_data{};
};

} // namespace dravolin
