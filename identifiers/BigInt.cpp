#include "identifiers/BigInt.h"

#include "identifiers/BigIntRows.h"
#include "identifiers/BigIntWords.h"

#include <algorithm>
#include <utility>

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

using Words = std::array<quint32, BigInt::maxLength>;

// The words of |value|, those of the most negative value being their own negation. Only a negative value is
// copied.
[[nodiscard]] const quint32 *magnitude(const BigInt &value, Words &copy)
{
    if (!value.isNegative())
        return value.getData();
    std::copy_n(value.getData(), copy.size(), copy.begin());
    words::negate(copy.data(), BigInt::maxLength);
    return copy.data();
}

// Stores what is carried out of a row.
void storeCarry(quint32 *product, qint32 index, quint64 carry)
{
    for (; carry != 0; carry >>= 32, ++index) {
        if (index >= BigInt::maxLength)
            raiseArithmetic("Multiplication overflow.");
        product[index] = low(carry);
    }
}

// product = left * right in 70 words, all zero before. The longer factor is the row.
void multiplyWords(quint32 *product, const quint32 *left, qint32 leftLength, const quint32 *right,
                   qint32 rightLength)
{
    // Two top words that are not zero and meet above word 69.
    if (leftLength + rightLength > BigInt::maxLength + 1)
        raiseArithmetic("Multiplication overflow.");
    if (leftLength > rightLength) {
        std::swap(left, right);
        std::swap(leftLength, rightLength);
    }
    qint32 i = 0;
    for (; i + 1 < leftLength; i += 2)
        storeCarry(product, i + rightLength,
                   words::addTwoMultiples(product + i, right, rightLength, left[i], left[i + 1]));
    if (i < leftLength)
        storeCarry(product, i + rightLength, words::addMultiple(product + i, right, rightLength, left[i]));
}

} // namespace

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
    Words leftCopy;
    Words rightCopy;
    const quint32 *left = magnitude(*this, leftCopy);
    const quint32 *right = magnitude(other, rightCopy);
    BigInt product;
    multiplyWords(product.getData(), left, words::trimmedLength(left, m_dataLength), right,
                  words::trimmedLength(right, other.m_dataLength));
    product.m_dataLength = std::min(m_dataLength + other.m_dataLength, maxLength);
    product.trim();

    const bool signsDiffer = isNegative() != other.isNegative();
    // intended: another text than that of a product that does not fit at all, and -2^2239 is no error
    if (product.isNegative() && !(signsDiffer && isMostNegative(product.getData())))
        raiseArithmetic("overflow.");
    if (signsDiffer && !product.isNegative() && !product.isZero())
        product = product.negate();
    return product;
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

BigInt BigInt::sqrt()
{
    const qint32 bits = (bitCount() + 1) / 2;
    const qint32 bitPosition = bits % 32;
    quint32 mask = bitPosition != 0 ? 1U << bitPosition : words::topBit;
    BigInt root;
    // intended: the root of zero has length 0
    root.m_dataLength = bits / 32 + (bitPosition != 0 ? 1 : 0);
    for (qint32 i = root.m_dataLength - 1; i >= 0; --i, mask = words::topBit) {
        quint32 &word = root.m_data[static_cast<size_t>(i)];
        for (; mask != 0; mask >>= 1) {
            word |= mask;
            // intended: from 2^2238 up the square itself overflows
            if (root.multiply(root).greaterThan(*this))
                word &= ~mask;
        }
    }
    root.trim();
    return root;
}

} // namespace dravolin
