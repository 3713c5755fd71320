#include "identifiers/BigInt.h"

#include "identifiers/BigIntRows.h"
#include "identifiers/BigIntWords.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace dravolin {

namespace {

// intended: 2^28, where Knuth's algorithm has the base of the words, 2^32
constexpr quint64 digitLimit = 0x10000000;

// Step D3. partTop points at the highest word of the current part; first and second are the divisor's two
// highest words, normalised. The digit is the true one or a few above it; only at the limit it can be one
// below.
[[nodiscard]] quint64 estimateDigit(const quint32 *partTop, quint32 first, quint32 second)
{
    const quint64 head = (quint64{partTop[0]} << 32) | partTop[-1];
    const quint64 digit = head / first;
    const quint64 rest = head % first;
    // A product that wraps, of a digit past 32 bits, misses a correction that step D6 then makes. There is no
    // second correction here: rest + first is past the limit, as first is 2^31 or more.
    if (digit == digitLimit || digit * second > ((rest << 32) | partTop[-2]))
        return digit - 1;
    return digit;
}

// part -= digit * divisor, the part being one word longer than the divisor; whether that went below zero.
bool subtractMultiple(quint32 *part, const quint32 *divisor, qint32 size, quint32 digit)
{
    quint64 carry = 0;
    quint64 borrow = 0;
    for (qint32 i = 0; i < size; ++i) {
        const quint64 product = quint64{digit} * divisor[i] + carry;
        const quint64 difference = quint64{part[i]} - words::low(product) - borrow;
        part[i] = words::low(difference);
        carry = product >> 32;
        borrow = difference >> 63;
    }
    const quint64 difference = quint64{part[size]} - carry - borrow;
    part[size] = words::low(difference);
    return difference >> 63 != 0;
}

// part += divisor after a subtraction that went below zero; whether it is back at zero or above.
bool addBack(quint32 *part, const quint32 *divisor, qint32 size)
{
    const quint32 carry = words::add(part, divisor, size);
    part[size] += carry;
    return carry != 0 && part[size] == 0;
}

// Steps D3 to D6 for one digit: takes it out of the part (size + 1 words) and returns its low word.
quint32 divideStep(quint32 *part, const quint32 *divisor, qint32 size)
{
    const quint64 estimate = estimateDigit(part + size, divisor[size - 1], divisor[size - 2]);
    quint32 digit = words::low(estimate);
    if (estimate > words::largest) {
        // Either the digit before came out short at the limit and this one really passes the base (intended:
        // the quotient keeps its low word), or it is an ordinary estimate of a digit below the base.
        if (words::compare(part + 1, divisor, size) >= 0)
            words::subtract(part + 1, divisor, size);
        else
            digit = words::largest;
    }
    bool isBelowZero = subtractMultiple(part, divisor, size, digit);
    while (isBelowZero) {
        --digit;
        isBelowZero = !addBack(part, divisor, size);
    }
    return digit;
}

// Of values that are not negative.
void divideNaturals(const BigInt &dividend, const BigInt &divisor, BigInt &quotient, BigInt &remainder)
{
    if (dividend.lessThan(divisor))
        remainder = dividend;
    else if (divisor.dataLength() == 1)
        BigInt::singleByteDivideBi2OutQuotientOutRemainder(dividend, divisor, quotient, remainder);
    else
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(dividend, divisor, quotient, remainder);
}

} // namespace

void BigInt::singleByteDivideBi2OutQuotientOutRemainder(const BigInt &bi1, const BigInt &bi2,
                                                        BigInt &outQuotient, BigInt &outRemainder)
{
    const quint32 divisor = bi2.getDataAtIndex(0);
    if (divisor == 0)
        words::raiseArithmetic("Division by zero.");
    const qint32 length = bi1.m_dataLength;
    outQuotient = bi1;
    std::fill(outQuotient.m_data.begin() + std::max(length, 0), outQuotient.m_data.end(), 0U);
    outRemainder = BigInt();
    outRemainder.m_dataLength = std::min(length, 1);
    outRemainder.m_data[0] = words::divide(outQuotient.m_data.data(), length, divisor);
    outQuotient.m_dataLength = std::max(length, 1);
    outQuotient.trim();
}

void BigInt::multiByteDivideBi2OutQuotientOutRemainder(const BigInt &bi1, const BigInt &bi2,
                                                       BigInt &outQuotient, BigInt &outRemainder)
{
    const qint32 size = words::trimmedLength(bi2.m_data.data(), bi2.m_dataLength);
    if (size <= 1) {
        singleByteDivideBi2OutQuotientOutRemainder(bi1, bi2, outQuotient, outRemainder);
        return;
    }
    // Plain unsigned words: the running remainder takes one more than a value has.
    const qint32 length = std::max(bi1.m_dataLength, 0);
    std::array<quint32, maxLength + 1> running; // length + 1 words
    std::array<quint32, maxLength> divisor;     // size words
    std::copy_n(bi1.m_data.begin(), length, running.begin());
    running[static_cast<size_t>(length)] = 0;
    std::copy_n(bi2.m_data.begin(), size, divisor.begin());
    const qint32 shift = std::countl_zero(divisor[static_cast<size_t>(size - 1)]);
    shiftLeftWithSizeOfBits(running.data(), length + 1, shift);
    shiftLeftWithSizeOfBits(divisor.data(), size, shift);

    outQuotient = BigInt();
    // intended: each part begins where the digit before ended, so a word that a digit one short has left
    // above it stays where it is and is part of the remainder
    for (qint32 i = length - size; i >= 0; --i)
        outQuotient.setDataAtIndex(divideStep(running.data() + i, divisor.data(), size), i);
    outQuotient.m_dataLength = std::max(length + 1 - size, 1);
    outQuotient.trim();

    shiftRightWithSizeOfBits(running.data(), length + 1, shift);
    outRemainder = BigInt();
    std::copy_n(running.begin(), length, outRemainder.m_data.begin());
    outRemainder.m_dataLength = std::max(length, 1);
    outRemainder.trim();
}

void BigInt::divideInto(const BigInt &other, BigInt &quotient, BigInt &remainder) const
{
    if (!isNegative() && !other.isNegative()) {
        divideNaturals(*this, other, quotient, remainder);
        return;
    }
    // intended: the most negative value has no magnitude, so its negation raises
    divideNaturals(abs(), other.abs(), quotient, remainder);
    if (isNegative())
        remainder = remainder.negate();
    if (isNegative() != other.isNegative())
        quotient = quotient.negate();
}

BigInt BigInt::divide(const BigInt &other) const
{
    BigInt quotient;
    BigInt remainder;
    divideInto(other, quotient, remainder);
    return quotient;
}

BigInt BigInt::mod(const BigInt &other) const
{
    BigInt quotient;
    BigInt remainder;
    divideInto(other, quotient, remainder);
    return remainder;
}

BigInt BigInt::gcd(const BigInt &other) const
{
    BigInt g = other.abs();
    BigInt h = abs();
    while (!h.isZero())
        g = std::exchange(h, g.mod(h));
    return g;
}

} // namespace dravolin
