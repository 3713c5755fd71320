#include "identifiers/BigInt.h"

#include "identifiers/BigIntWords.h"

#include <algorithm>
#include <functional>

namespace dravolin {

namespace {

constexpr qint32 bitsPerWord = 32;

[[nodiscard]] quint64 pairOf(quint32 high, quint32 low)
{
    return (quint64{high} << bitsPerWord) | low;
}

[[nodiscard]] int compareWords(const BigInt &left, const BigInt &right)
{
    return words::compare(left.getData(), right.getData(), std::max(left.dataLength(), right.dataLength()));
}

template <typename Operation>
[[nodiscard]] BigInt combine(const BigInt &left, const BigInt &right, Operation operation)
{
    BigInt result;
    const qint32 length = std::max(left.dataLength(), right.dataLength());
    for (qint32 i = 0; i < length; ++i)
        result.setDataAtIndex(operation(left.getDataAtIndex(i), right.getDataAtIndex(i)), i);
    result.setDataLength(words::trimmedLength(result.getData(), BigInt::maxLength));
    return result;
}

} // namespace

BigInt BigInt::not_() const
{
    BigInt result;
    std::transform(m_data.begin(), m_data.end(), result.m_data.begin(), std::bit_not<>());
    result.m_dataLength = maxLength;
    result.trim();
    return result;
}

BigInt BigInt::and_(const BigInt &other) const
{
    return combine(*this, other, std::bit_and<>());
}

BigInt BigInt::or_(const BigInt &other) const
{
    return combine(*this, other, std::bit_or<>());
}

BigInt BigInt::xOr(const BigInt &other) const
{
    return combine(*this, other, std::bit_xor<>());
}

qint32 BigInt::shiftLeftWithSizeOfBits(quint32 *words, qint32 size, qint32 bits)
{
    if (bits > 0) {
        const qint32 wordShift = bits / bitsPerWord;
        for (qint32 i = size - 1; i >= 0; --i) {
            const qint32 source = i - wordShift;
            const quint64 pair = pairOf(source >= 0 ? words[source] : 0, source >= 1 ? words[source - 1] : 0);
            words[i] = words::high(pair << bits % bitsPerWord);
        }
    }
    return words::trimmedLength(words, size);
}

qint32 BigInt::shiftRightWithSizeOfBits(quint32 *words, qint32 size, qint32 bits)
{
    if (bits > 0) {
        const qint32 wordShift = bits / bitsPerWord;
        for (qint32 i = 0; i < size; ++i) {
            const qint32 source = i + wordShift;
            const quint64 pair =
                pairOf(source + 1 < size ? words[source + 1] : 0, source < size ? words[source] : 0);
            words[i] = words::low(pair >> bits % bitsPerWord);
        }
    }
    return words::trimmedLength(words, size);
}

BigInt BigInt::shiftLeft(qint32 bits) const
{
    BigInt result = *this;
    // intended: the room is the value's own length, so bits that leave its highest word in use are lost
    result.m_dataLength = shiftLeftWithSizeOfBits(result.m_data.data(), m_dataLength, bits);
    return result;
}

BigInt BigInt::shiftRight(qint32 bits) const
{
    BigInt result = *this;
    // intended: zeros enter at the top of a negative value too
    result.m_dataLength = shiftRightWithSizeOfBits(result.m_data.data(), m_dataLength, bits);
    return result;
}

qint32 BigInt::bitCount()
{
    // intended: the length of a value that is only counted is trimmed
    trim();
    return words::bitLength(m_data.data(), m_dataLength);
}

bool BigInt::equals(const BigInt &other) const
{
    // intended: zeros of different lengths differ
    return m_dataLength == other.m_dataLength && compareWords(*this, other) == 0;
}

bool BigInt::greaterThan(const BigInt &other) const
{
    if (isNegative() != other.isNegative())
        return other.isNegative();
    return compareWords(*this, other) > 0;
}

bool BigInt::lessThan(const BigInt &other) const
{
    if (isNegative() != other.isNegative())
        return isNegative();
    return compareWords(*this, other) < 0;
}

bool BigInt::lessThanOrEqualTo(const BigInt &other) const
{
    return equals(other) || lessThan(other);
}

bool BigInt::greaterThanOrEqualTo(const BigInt &other) const
{
    return equals(other) || greaterThan(other);
}

} // namespace dravolin
