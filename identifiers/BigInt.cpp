#include "BigInt.h"

#include "identifiers/BigIntWords.h"

#include <algorithm>
#include <optional>

namespace dravolin {

using words::low;
using words::raiseArithmetic;

namespace {

constexpr qint32 signWord = BigInt::maxLength - 1;

[[nodiscard]] bool isMostNegative(const quint32 *data)
{
    return data[signWord] == words::topBit &&
           std::all_of(data, data + signWord, [](quint32 word) { return word == 0; });
}

/// The words of |value|, those of the most negative value being their own negation. Only a negative value is
/// copied.
[[nodiscard]] const quint32 *magnitude(const BigInt &value, std::optional<BigInt> &copy)
{
    if ((value.getDataAtIndex(signWord) & words::topBit) == 0)
        return value.getData();
    words::negate(copy.emplace(value).getData(), BigInt::maxLength);
    return copy->getData();
}

} // namespace

BigInt BigInt::initWithLong(qint64 value)
{
    BigInt result;
    qint64 rest = value;
    qint32 length = 0;
    for (; rest != 0 && length < maxLength; ++length) {
        result.setDataAtIndex(static_cast<quint32>(rest & words::largest), length);
        rest >>= 32;
    }
    if (value > 0 && result.isNegative())
        raiseArithmetic("Positive overflow in constructor.");
    if (value < 0 && (rest != -1 || !result.isNegative()))
        raiseArithmetic("Negative underflow in constructor.");
    result.m_dataLength = std::max(length, 1);
    return result;
}

BigInt BigInt::initWithULong(quint64 value)
{
    BigInt result;
    quint64 rest = value;
    qint32 length = 0;
    for (; rest != 0 && length < maxLength; ++length) {
        result.setDataAtIndex(low(rest), length);
        rest >>= 32;
    }
    if (rest != 0 || result.isNegative())
        raiseArithmetic("Positive overflow in constructor.");
    result.m_dataLength = std::max(length, 1);
    return result;
}

BigInt BigInt::initWithBigInt(const BigInt &value)
{
    BigInt result;
    result.m_dataLength = value.m_dataLength;
    std::copy_n(value.m_data.begin(), std::max(value.m_dataLength, 0), result.m_data.begin());
    return result;
}

BigInt BigInt::initWithUIntArrayWithSize(const quint32 *words, qint32 size)
{
    // intended: the name's spelling, here and nowhere else
    if (size > maxLength)
        throw BigIntError("ArithmaticException", "Byte overflow in constructor");
    BigInt result;
    for (qint32 i = 0; i < size; ++i)
        result.setDataAtIndex(words[size - 1 - i], i);
    result.m_dataLength = size;
    result.trim();
    return result;
}

bool BigInt::isZero() const
{
    const qint32 length = words::trimmedLength(m_data.data(), m_dataLength);
    return length < 1 || (length == 1 && m_data[0] == 0);
}

void BigInt::trim() const
{
    const qint32 length = words::trimmedLength(m_data.data(), m_dataLength);
    if (length != m_dataLength)
        m_dataLength = length;
}

BigInt BigInt::add(const BigInt &other) const
{
    const qint32 length = std::max(m_dataLength, other.m_dataLength);
    BigInt result;
    quint64 carry = 0;
    for (qint32 i = 0; i < length; ++i) {
        carry += quint64{getDataAtIndex(i)} + other.getDataAtIndex(i);
        result.setDataAtIndex(low(carry), i);
        carry >>= 32;
    }
    result.m_dataLength = length;
    if (carry != 0 && length < maxLength)
        result.setDataAtIndex(low(carry), result.m_dataLength++);
    result.trim();
    if (isNegative() == other.isNegative() && result.isNegative() != isNegative())
        raiseArithmetic("Overflow");
    return result;
}

BigInt BigInt::subtract(const BigInt &other) const
{
    const qint32 length = std::max(m_dataLength, other.m_dataLength);
    BigInt result;
    quint64 borrow = 0;
    for (qint32 i = 0; i < length; ++i) {
        const quint64 difference = quint64{getDataAtIndex(i)} - other.getDataAtIndex(i) - borrow;
        result.setDataAtIndex(low(difference), i);
        borrow = difference >> 63;
    }
    result.m_dataLength = length;
    if (borrow != 0) {
        std::fill(result.m_data.begin() + length, result.m_data.end(), words::largest);
        result.m_dataLength = maxLength;
    }
    result.trim();
    if (isNegative() != other.isNegative() && result.isNegative() != isNegative())
        raiseArithmetic("Overflow");
    return result;
}

BigInt BigInt::multiply(const BigInt &other) const
{
    std::optional<BigInt> leftCopy;
    std::optional<BigInt> rightCopy;
    const quint32 *left = magnitude(*this, leftCopy);
    const quint32 *right = magnitude(other, rightCopy);
    const qint32 leftLength = words::trimmedLength(left, m_dataLength);
    const qint32 rightLength = words::trimmedLength(right, other.m_dataLength);
    // Two top words that are not zero and meet above word 69.
    if (leftLength + rightLength > maxLength + 1)
        raiseArithmetic("Multiplication overflow.");

    BigInt product;
    for (qint32 i = 0; i < leftLength; ++i) {
        if (left[i] == 0)
            continue;
        const quint32 carry = words::addMultiple(product.m_data.data() + i, right, rightLength, left[i]);
        if (carry == 0)
            continue;
        if (i + rightLength >= maxLength)
            raiseArithmetic("Multiplication overflow.");
        product.setDataAtIndex(carry, i + rightLength);
    }
    product.m_dataLength = std::min(m_dataLength + other.m_dataLength, maxLength);
    product.trim();

    const bool signsDiffer = isNegative() != other.isNegative();
    if (product.isNegative()) {
        if (signsDiffer && isMostNegative(product.getData()))
            return product;
        // intended: another text than that of a product that does not fit at all
        raiseArithmetic("overflow.");
    }
    return signsDiffer ? product.negate() : product;
}

BigInt BigInt::negate() const
{
    if (isZero())
        return {};
    BigInt result = *this;
    words::negate(result.m_data.data(), maxLength);
    if (result.isNegative() == isNegative())
        raiseArithmetic("Overflow in negation.");
    result.m_dataLength = maxLength;
    result.trim();
    return result;
}

BigInt BigInt::abs() const
{
    return isNegative() ? negate() : *this;
}

} // namespace dravolin
