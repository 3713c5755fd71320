#include "identifiers/BigInt.h"

#include "identifiers/BigIntNumberTheory.h"
#include "identifiers/BigIntWords.h"

#include <algorithm>
#include <bit>
#include <utility>

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

/// The low words of left * right, from the partial products below word count alone.
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

/// value mod n for a value of at most n's length and one word more. The same as subtracting n until that is
/// no longer possible, which a constant with a digit cut short can make a matter of 2^32 times and more.
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

} // namespace

BigInt numbertheory::barrettConstant(const BigInt &n)
{
    const qint32 length = words::trimmedLength(n.getData(), n.dataLength());
    if (length > longestBarrettModulus)
        words::raiseArithmetic("Multiplication overflow.");
    BigInt power;
    power.setDataAtIndex(1, 2 * length);
    power.setDataLength(2 * length + 1);
    return power.divide(n);
}

qint32 numbertheory::trailingZeros(const BigInt &value)
{
    qint32 word = 0;
    while (value.getDataAtIndex(word) == 0)
        ++word;
    return 32 * word + std::countr_zero(value.getDataAtIndex(word));
}

BigInt BigInt::barrettReductionAndNAndConstant(const BigInt &x, const BigInt &n, const BigInt &constant)
{
    if (n.isZero())
        words::raiseArithmetic("Division by zero.");
    const qint32 k = words::trimmedLength(n.m_data.data(), n.m_dataLength);
    if (k > longestBarrettModulus)
        words::raiseArithmetic("Multiplication overflow.");
    const BigInt q1 = withoutLowWords(x, k - 1);
    const BigInt q3 = withoutLowWords(q1.multiply(constant), k + 1);
    // intended: with a constant cut short q3 can be too small by so much that r loses multiples of b^(k+1)
    BigInt r = lowWords(x, k + 1).subtract(lowProduct(q3, n, k + 1));
    if (r.isNegative()) {
        BigInt power;
        power.setDataAtIndex(1, k + 1);
        power.m_dataLength = k + 2;
        r = r.add(power);
    }
    subtractAllMultiples(r, n, k);
    return r;
}

BigInt BigInt::modPowWithMod(const BigInt &exponent, const BigInt &modulus) const
{
    if (exponent.isNegative())
        words::raiseArithmetic("Positive exponents only.");
    BigInt result = createFromInt(1);
    BigInt base = abs().mod(modulus);
    const BigInt n = modulus.abs();
    const BigInt constant = numbertheory::barrettConstant(n);
    const qint32 bitTotal = exponent.bitCount();
    qint32 bit = 0;
    do {
        if ((exponent.getDataAtIndex(bit / 32) >> bit % 32 & 1U) != 0)
            result = barrettReductionAndNAndConstant(result.multiply(base), n, constant);
        base = barrettReductionAndNAndConstant(base.multiply(base), n, constant);
        ++bit;
    } while (bit < bitTotal && !base.isOne());
    // intended: an odd power of a negative value is negative, not a residue
    return isNegative() && !exponent.isEven() ? result.negate() : result;
}

void BigInt::getRandomBits(qint32 bits, RandomSource &source)
{
    const qint32 length = bits / 32 + (bits % 32 != 0 ? 1 : 0);
    if (bits < 0 || length > maxLength)
        words::raiseArithmetic("Number of required bits > maxLength.");
    const auto end = m_data.begin() + length;
    std::generate(m_data.begin(), end, [&source] {
        return static_cast<quint32>(numbertheory::scaledRandom(source, static_cast<double>(words::base)));
    });
    std::fill(end, m_data.end(), 0U);
    // intended: the top bit of the last word makes 2240 bits a negative value
    if (length > 0) {
        const qint32 topBits = bits - 32 * (length - 1);
        quint32 &top = m_data[static_cast<size_t>(length - 1)];
        top = (top | 1U << (topBits - 1)) & words::largest >> (32 - topBits);
    }
    m_dataLength = std::max(length, 1);
}

qint32 BigInt::jacobiAndB(const BigInt &a, const BigInt &b)
{
    BigInt top = a;
    BigInt bottom = b;
    qint32 sign = 1;
    for (;;) {
        if (bottom.isEven())
            throw BigIntError("ArgumentException", "Jacobi defined only for odd integers.");
        if (top.greaterThanOrEqualTo(bottom))
            top = top.mod(bottom);
        // intended: with b = 1 the remainder decides, so (a/1) is 0
        if (top.isZero())
            return 0;
        if (top.isOne())
            return sign;
        const quint32 bottomWord = bottom.getDataAtIndex(0);
        if (top.isNegative()) {
            top = top.negate();
            if ((bottomWord & 2U) != 0)
                sign = -sign;
            continue;
        }
        const qint32 zeros = numbertheory::trailingZeros(top);
        top = top.shiftRight(zeros);
        if (zeros % 2 != 0 && (bottomWord % 8 == 3 || bottomWord % 8 == 5))
            sign = -sign;
        if (bottomWord % 4 == 3 && top.getDataAtIndex(0) % 4 == 3)
            sign = -sign;
        if (top.isOne())
            return sign;
        bottom = std::exchange(top, bottom.mod(top));
    }
}

} // namespace dravolin
