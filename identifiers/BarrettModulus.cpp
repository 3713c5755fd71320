#include "identifiers/BarrettModulus.h"

#include "identifiers/BigIntRows.h"
#include "identifiers/BigIntWords.h"

#include <algorithm>

namespace dravolin {

namespace {

// b^(2k) needs word 2k.
constexpr qint32 longestBarrettModulus = (BigInt::maxLength - 1) / 2;

[[nodiscard]] BigInt withoutLowWords(const BigInt &value, qint32 count)
{
    BigInt result;
    const qint32 length = value.dataLength() - count;
    if (length > 0)
        std::copy_n(value.getData() + count, length, result.getData());
    result.setDataLength(std::max(length, 1));
    return result;
}

[[nodiscard]] BigInt lowWords(const BigInt &value, qint32 count)
{
    BigInt result;
    const qint32 length = std::min(value.dataLength(), count);
    std::copy_n(value.getData(), std::max(length, 0), result.getData());
    result.setDataLength(words::trimmedLength(result.getData(), length));
    return result;
}

// The low words of left * right, from the partial products below word count alone.
[[nodiscard]] BigInt lowProduct(const BigInt &left, const BigInt &right, qint32 count)
{
    BigInt result;
    quint32 *sum = result.getData();
    for (qint32 i = 0; i < std::min(left.dataLength(), count); ++i) {
        const qint32 size = std::min(right.dataLength(), count - i);
        const quint32 carry = words::addMultiple(sum + i, right.getData(), size, left.getDataAtIndex(i));
        if (i + size < count)
            sum[i + size] = carry;
    }
    result.setDataLength(words::trimmedLength(sum, count));
    return result;
}

// value mod n for a value of at most n's length and one word more. The same as subtracting n until that is
// no longer possible, which a constant with a digit cut short can make a matter of 2^32 times and more.
void subtractAllMultiples(BigInt &value, const BigInt &n, qint32 nLength)
{
    const qint32 nBits = words::bitLength(n.getData(), nLength);
    for (qint32 bits = value.bitCount() - nBits; bits >= 0; --bits) {
        BigInt multiple = n;
        multiple.setDataLength(BigInt::shiftLeftWithSizeOfBits(multiple.getData(), nLength + 1, bits));
        if (!value.lessThan(multiple))
            value = value.subtract(multiple);
    }
}

[[nodiscard]] BigInt barrettConstant(const BigInt &n)
{
    const qint32 length = words::trimmedLength(n.getData(), n.dataLength());
    if (length > longestBarrettModulus)
        words::raiseArithmetic("Multiplication overflow.");
    BigInt power;
    power.setDataAtIndex(1, 2 * length);
    power.setDataLength(2 * length + 1);
    return power.divide(n);
}

} // namespace

BarrettModulus::BarrettModulus(const BigInt &n) : m_n(n), m_constant(barrettConstant(n))
{
}

BigInt BarrettModulus::reduce(const BigInt &x) const
{
    if (m_n.isZero())
        words::raiseArithmetic("Division by zero.");
    const qint32 k = words::trimmedLength(m_n.getData(), m_n.dataLength());
    if (k > longestBarrettModulus)
        words::raiseArithmetic("Multiplication overflow.");
    const BigInt q1 = withoutLowWords(x, k - 1);
    const BigInt q3 = withoutLowWords(q1.multiply(m_constant), k + 1);
    // intended: with a constant cut short q3 can be too small by so much that r loses multiples of b^(k+1)
    BigInt r = lowWords(x, k + 1).subtract(lowProduct(q3, m_n, k + 1));
    if (r.isNegative()) {
        BigInt power;
        power.setDataAtIndex(1, k + 1);
        power.setDataLength(k + 2);
        r = r.add(power);
    }
    subtractAllMultiples(r, m_n, k);
    return r;
}

} // namespace dravolin
