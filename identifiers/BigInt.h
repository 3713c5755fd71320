#pragma once

#include "identifiers/BigIntConversion.h"
#include "identifiers/BigIntError.h"
#include "identifiers/BigIntNumberTheory.h"
#include "identifiers/BigIntStorage.h"

#include <QtGlobal>

namespace dravolin {

// A signed integer of fixed width: 70 words of 32 bits. A plain value, copied as it is. Words, length and
// signs are in BigIntStorage.h, conversions in BigIntConversion.h, primes and residues in
// BigIntNumberTheory.h; here are arithmetic, bits and comparison.
//
// What goes wrong raises BigIntError, by its name "ArithmeticException" where no other is given; the operands
// are then unchanged. "Trims" means that an operand's length may change, not its value. A value that nobody
// changes can be read from several threads at once.
//
// Below, b is 2^32 and x is the receiver.
class BigInt : public BigIntStorage, public BigIntConversion, public BigIntNumberTheory
{
public:
    // Zero.
    constexpr BigInt() noexcept = default;

    // --- Arithmetic

    // x + y, or "Overflow".
    [[nodiscard]] BigInt add(const BigInt &other) const;
    // x - y, or "Overflow".
    [[nodiscard]] BigInt subtract(const BigInt &other) const;
    // x * y. A magnitude of 2^2240 and more: "Multiplication overflow."; from 2^2239 up to there:
    // "overflow.", except that -2^2239 itself is a result.
    [[nodiscard]] BigInt multiply(const BigInt &other) const;
    // x / y rounded towards zero; "Division by zero.". The most negative value on either side: "Overflow in
    // negation.". By two words and more it is the division below, with what it says about digits.
    [[nodiscard]] BigInt divide(const BigInt &other) const;
    // The remainder of that division, with the sign of x; errors as divide().
    [[nodiscard]] BigInt mod(const BigInt &other) const;
    // -x; "Overflow in negation." for the most negative value.
    [[nodiscard]] BigInt negate() const;
    // |x|; errors as negate().
    [[nodiscard]] BigInt abs() const;
    // floor(square root of x) for x >= 0, bit by bit from above. From 2^2238 up the trial square raises
    // "overflow.". Trims x, as bitCount() does. The root of 0 is a zero of length 0.
    [[nodiscard]] BigInt sqrt();
    // The greatest common divisor of |x| and |y| by Euclid's algorithm; gcd(0, y) = |y|.
    [[nodiscard]] BigInt gcd(const BigInt &other) const;

    // Quotient and remainder of unsigned bi1 by word 0 of bi2; "Division by zero.". The objects filled may be
    // the operands.
    static void singleByteDivideBi2OutQuotientOutRemainder(const BigInt &bi1, const BigInt &bi2,
                                                           BigInt &outQuotient, BigInt &outRemainder);
    // Quotient and remainder of unsigned bi1 by unsigned bi2 in the manner of Knuth's Algorithm D, which
    // differs in one number: his estimate of a digit is corrected at the limit b, this one at 2^28. A digit
    // that is 2^28, as is its estimate, comes out as 2^28 - 1 and leaves the divisor in the remainder once
    // too often. As a last digit that makes 2^60 / 2^32 = 2^28 - 1, remainder 2^32; before further digits it
    // lets the next one pass b, of which the quotient keeps the low word: 2^128 / 2^36 = 2^92 - 2^64,
    // remainder 0. "Division by zero.".
    static void multiByteDivideBi2OutQuotientOutRemainder(const BigInt &bi1, const BigInt &bi2,
                                                          BigInt &outQuotient, BigInt &outRemainder);

    // --- Bits, over all 70 words

    [[nodiscard]] BigInt not_() const;
    [[nodiscard]] BigInt and_(const BigInt &other) const;
    [[nodiscard]] BigInt or_(const BigInt &other) const;
    [[nodiscard]] BigInt xOr(const BigInt &other) const;
    // (x * 2^bits) mod b^dataLength: never longer than x, so what leaves the highest word in use is lost, and
    // 1 shifted by 32 is 0. No shift for bits <= 0.
    [[nodiscard]] BigInt shiftLeft(qint32 bits) const;
    // The pattern of the words in use divided by 2^bits: zeros enter at the top, also for a negative x, which
    // comes out non-negative. No shift for bits <= 0.
    [[nodiscard]] BigInt shiftRight(qint32 bits) const;
    // The size words (least significant first) times 2^bits modulo b^size, or divided by 2^bits, in place;
    // the result is the trimmed length. bits <= 0 only trims.
    static qint32 shiftLeftWithSizeOfBits(quint32 *words, qint32 size, qint32 bits);
    static qint32 shiftRightWithSizeOfBits(quint32 *words, qint32 size, qint32 bits);
    // The position of the highest set bit counted from 1; 0 for zero, 2240 for a negative x. Trims x.
    qint32 bitCount();

    // --- Comparison

    // The same length and the same words.
    [[nodiscard]] bool equals(const BigInt &other) const;
    [[nodiscard]] bool greaterThan(const BigInt &other) const;
    [[nodiscard]] bool lessThan(const BigInt &other) const;
    [[nodiscard]] bool lessThanOrEqualTo(const BigInt &other) const;
    [[nodiscard]] bool greaterThanOrEqualTo(const BigInt &other) const;

private:
    void divideInto(const BigInt &other, BigInt &quotient, BigInt &remainder) const;
};

} // namespace dravolin
