#pragma once

#include "identifiers/BigIntError.h"
#include "identifiers/RandomSource.h"

#include <QString>
#include <QtGlobal>

#include <array>

namespace dravolin {

/// A signed integer of fixed width: 70 words of 32 bits, two's complement, least significant word first. A
/// plain value, copied as it is, nothing on the heap.
///
/// Invariants, true after every operation:
/// - A value is negative exactly when bit 31 of word 69 is set. The range is -2^2239 to 2^2239 - 1.
/// - dataLength() words are in use, counted from word 0. All words above them are zero.
/// - The length is trimmed: above 1, the highest word in use is not zero. Zero has length 1, a negative value
///   has 70.
///
/// setDataLength() and getData() leave this to the caller. Two operations make a zero of length 0 or less,
/// sqrt() of zero and an empty word array: it calculates like zero and does not equal an ordinary one.
///
/// What goes wrong raises BigIntError, by its name "ArithmeticException" where no other is given; the
/// operands are then unchanged. Operations that "trim" an operand change its length, not its value; as long
/// as it is trimmed already, a value can be read from several threads at once.
///
/// Below, b is 2^32 and x is the receiver.
class BigInt
{
public:
    static constexpr qint32 maxLength = 70;

    /// Zero.
    constexpr BigInt() noexcept = default;

    // --- Construction. Each create... is the init... of the same argument.

    [[nodiscard]] static BigInt init() { return {}; }
    [[nodiscard]] static BigInt initWithInt(qint32 value) { return initWithLong(value); }
    [[nodiscard]] static BigInt initWithLong(qint64 value);
    [[nodiscard]] static BigInt initWithULong(quint64 value);
    /// A copy of the words in use; words above them come out zero even when the argument's are not.
    [[nodiscard]] static BigInt initWithBigInt(const BigInt &value);
    /// size words, most significant first. More than 70: "ArithmaticException" / "Byte overflow in
    /// constructor". A size of 0 or less gives a zero whose length is that size.
    [[nodiscard]] static BigInt initWithUIntArrayWithSize(const quint32 *words, qint32 size);
    /// The text in the radix (not checked), letters of either case, an optional "-" in front and no "+". Read
    /// from the last character to the first, so of two errors the right one is raised: "Invalid string in
    /// constructor." for a character that is no digit or an empty text; "Negative underflow in constructor."
    /// for a "-" before zero; "Positive overflow in constructor."; the errors of add() and multiply(), which
    /// the place value meets as well (leading zeros count).
    [[nodiscard]] static BigInt initWithStringAndRadix(const QString &text, qint32 radix);

    [[nodiscard]] static BigInt create() { return createFromLong(0); }
    [[nodiscard]] static BigInt createFromInt(qint32 value) { return initWithInt(value); }
    [[nodiscard]] static BigInt createFromLong(qint64 value) { return initWithLong(value); }
    [[nodiscard]] static BigInt createFromULong(quint64 value) { return initWithULong(value); }
    [[nodiscard]] static BigInt createFromBigInt(const BigInt &value) { return initWithBigInt(value); }
    [[nodiscard]] static BigInt createFromStringAndRadix(const QString &text, qint32 radix)
    {
        return initWithStringAndRadix(text, radix);
    }

    // --- Access. Indices are 0 to 69 and lengths at most 70; neither is checked.

    [[nodiscard]] qint32 dataLength() const { return m_dataLength; }
    void setDataLength(qint32 length) { m_dataLength = length; }
    [[nodiscard]] quint32 *getData() { return m_data.data(); }
    [[nodiscard]] const quint32 *getData() const { return m_data.data(); }
    [[nodiscard]] quint32 getDataAtIndex(qint32 index) const { return m_data[static_cast<size_t>(index)]; }
    void setDataAtIndex(quint32 word, qint32 index) { m_data[static_cast<size_t>(index)] = word; }
    /// Word 0 read as a signed number, whatever is above it.
    [[nodiscard]] qint32 intValue() const { return static_cast<qint32>(m_data[0]); }

    // --- Arithmetic

    /// x + y, or "Overflow".
    [[nodiscard]] BigInt add(const BigInt &other) const;
    /// x - y, or "Overflow".
    [[nodiscard]] BigInt subtract(const BigInt &other) const;
    /// x * y. A magnitude of 2^2240 and more: "Multiplication overflow."; from 2^2239 up to there:
    /// "overflow.", except that -2^2239 itself is a result.
    [[nodiscard]] BigInt multiply(const BigInt &other) const;
    /// x / y rounded towards zero; "Division by zero.". The most negative value on either side: "Overflow in
    /// negation.". By two words and more it is the division below, with what it says about digits.
    [[nodiscard]] BigInt divide(const BigInt &other) const;
    /// The remainder of that division, with the sign of x; errors as divide().
    [[nodiscard]] BigInt mod(const BigInt &other) const;
    /// -x; "Overflow in negation." for the most negative value.
    [[nodiscard]] BigInt negate() const;
    /// |x|; errors as negate().
    [[nodiscard]] BigInt abs() const;
    /// floor(square root of x) for x >= 0, bit by bit from above. From 2^2238 up the trial square raises
    /// "overflow.". Trims the length of x, as bitCount() does. The root of 0 is a zero of length 0.
    [[nodiscard]] BigInt sqrt() const;
    /// The greatest common divisor of |x| and |y| by Euclid's algorithm; gcd(0, y) = |y|.
    [[nodiscard]] BigInt gcd(const BigInt &other) const;

    // --- Bits, over all 70 words

    [[nodiscard]] BigInt not_() const;
    [[nodiscard]] BigInt and_(const BigInt &other) const;
    [[nodiscard]] BigInt or_(const BigInt &other) const;
    [[nodiscard]] BigInt xOr(const BigInt &other) const;
    /// (x * 2^bits) mod b^dataLength: never longer than x, so what leaves the highest word in use is lost,
    /// and 1 shifted by 32 is 0. No shift for bits <= 0.
    [[nodiscard]] BigInt shiftLeft(qint32 bits) const;
    /// The pattern of the words in use divided by 2^bits: zeros enter at the top, also for a negative x,
    /// which comes out non-negative. No shift for bits <= 0.
    [[nodiscard]] BigInt shiftRight(qint32 bits) const;
    /// The position of the highest set bit counted from 1; 0 for zero, 2240 for a negative x. Trims the
    /// length of x.
    qint32 bitCount() const;

    // --- Comparison

    /// The same length and the same words.
    [[nodiscard]] bool equals(const BigInt &other) const;
    [[nodiscard]] bool greaterThan(const BigInt &other) const;
    [[nodiscard]] bool lessThan(const BigInt &other) const;
    [[nodiscard]] bool lessThanOrEqualTo(const BigInt &other) const
    {
        return equals(other) || lessThan(other);
    }
    [[nodiscard]] bool greaterThanOrEqualTo(const BigInt &other) const
    {
        return equals(other) || greaterThan(other);
    }

    // --- Text

    /// Digits 0-9 and A-Z, "-" in front of a negative value, no leading zeros. A radix outside 2 to 36:
    /// "ArgumentException" / "Radix must be >= 2 and <= 36".
    [[nodiscard]] QString toStringWithRadix(qint32 radix) const;

    // --- Routines on words and on objects to fill

    /// Multiplies the size words (least significant first) by 2^bits in place, modulo b^size, and returns the
    /// trimmed length. bits <= 0 only trims.
    static qint32 shiftLeftWithSizeOfBits(quint32 *words, qint32 size, qint32 bits);
    /// Divides the size words by 2^bits in place and returns the trimmed length. bits <= 0 only trims.
    static qint32 shiftRightWithSizeOfBits(quint32 *words, qint32 size, qint32 bits);
    /// Quotient and remainder of unsigned bi1 by word 0 of bi2; "Division by zero.". The objects filled may
    /// be the operands.
    static void singleByteDivideBi2OutQuotientOutRemainder(const BigInt &bi1, const BigInt &bi2,
                                                           BigInt &outQuotient, BigInt &outRemainder);
    /// Quotient and remainder of unsigned bi1 by unsigned bi2 in the manner of Knuth's Algorithm D, which
    /// differs in one number: his estimate of a digit is corrected at the limit b, this one at 2^28. A digit
    /// that is 2^28, as is its estimate, comes out as 2^28 - 1 and leaves the divisor in the remainder once
    /// too often. As a last digit that makes 2^60 / 2^32 = 2^28 - 1, remainder 2^32; before further digits it
    /// lets the next one pass b, of which the quotient keeps the low word: 2^128 / 2^36 = 2^92 - 2^64,
    /// remainder 0. "Division by zero.".
    static void multiByteDivideBi2OutQuotientOutRemainder(const BigInt &bi1, const BigInt &bi2,
                                                          BigInt &outQuotient, BigInt &outRemainder);

    // --- Number theory. Residues come from mod(), so they may be negative and, after a digit of 2^28, not
    // below the modulus. A modulus of zero raises "Division by zero.". Moduli that are reduced by Barrett's
    // method have at most 34 words: b^(2k) needs word 2k; longer ones raise "Multiplication overflow.".

    /// x^exponent mod |modulus|, except that a negative x with an odd exponent gives -(|x|^exponent mod
    /// |modulus|), and that x^0 is 1 whatever the modulus. "Positive exponents only.". Trims the length of
    /// the exponent.
    [[nodiscard]] BigInt modPowWithMod(const BigInt &exponent, const BigInt &modulus) const;
    /// x mod n by Barrett's reduction for 0 <= x < b^(2k), with k = length of n and constant = b^(2k) / n as
    /// divide() has it. A constant with a digit cut short makes the reduction lose multiples of b^(k+1): the
    /// result is below n all the same, but need not be congruent to x.
    [[nodiscard]] static BigInt barrettReductionAndNAndConstant(const BigInt &x, const BigInt &n,
                                                                const BigInt &constant);
    /// x becomes a random value of exactly that many bits, negative for 2240 bits, 0 for none. Not uniform: a
    /// drawn word r becomes trunc(((r + 1) mod b) / 10^10 * b), which is below 1844674407. A count below 0 or
    /// above 2240: "Number of required bits > maxLength.".
    void getRandomBits(qint32 bits, RandomSource &source = RandomSource::platform());
    /// The Jacobi symbol (a/b), but 0 for b = 1, where the textbook has 1. Even b: "ArgumentException" /
    /// "Jacobi defined only for odd integers.".
    [[nodiscard]] static qint32 jacobiAndB(const BigInt &a, const BigInt &b);
    /// {U, V, Q^m} mod n of the Lucas sequences with the parameters P and Q at the index m = k * 2^s. Even k:
    /// "ArgumentException" / "Argument k must be odd.". constant is the Barrett constant of n. The terms
    /// 2 * Q^i are shiftLeft(1) and lose what that loses, so the values are those of the textbook only as
    /// long as no power of Q, nor its product with Q, has the top bit of its highest word set. Trims the
    /// length of k.
    [[nodiscard]] static std::array<BigInt, 3>
    lucasSequenceAndQAndkAndnAndConstantAnds(const BigInt &P, const BigInt &Q, const BigInt &k,
                                             const BigInt &n, const BigInt &constant, qint32 s);
    /// The strong Lucas test of Baillie and Wagstaff with Selfridge's parameters P = 1, Q = (1 - D) / 4, and
    /// their check of Q^((n + 1) / 2) after it. Because of the terms lost above it passes large primes
    /// when D is 5, and few others.
    [[nodiscard]] static bool lucasStrongTest(const BigInt &n);
    /// The test of Miller and Rabin with that many random bases, none longer than 43 % of the bits of |x|.
    /// Therefore it never returns for an odd |x| from 5 to 15 and a positive number of rounds.
    [[nodiscard]] bool rabinMillerTestWithConfidence(qint32 rounds,
                                                     RandomSource &source = RandomSource::platform()) const;
    /// Trial division by the primes below 2000, then Miller and Rabin; never returns for |x| = 5, 7, 11
    /// and 13.
    [[nodiscard]] bool isProbablePrimeWithConfidence(qint32 rounds,
                                                     RandomSource &source = RandomSource::platform()) const;
    /// Trial division, the strong test to base 2 and lucasStrongTest(): Baillie and Wagstaff's combination.
    [[nodiscard]] bool isProbablePrime() const;
    /// Random odd values of that many bits until one passes isProbablePrimeWithConfidence(), however long
    /// that takes: for ever with 0 and 1 bits, of which 1 is the only value.
    [[nodiscard]] static BigInt
    generatePseudoPrimeWithBitsAndConfidence(qint32 bits, qint32 rounds,
                                             RandomSource &source = RandomSource::platform());

private:
    [[nodiscard]] bool isNegative() const { return (m_data[maxLength - 1] & 0x80000000U) != 0; }
    [[nodiscard]] bool isZero() const;
    [[nodiscard]] bool isOne() const { return m_dataLength == 1 && m_data[0] == 1; }
    [[nodiscard]] bool isEven() const { return (m_data[0] & 1U) == 0; }
    void trim() const;
    static void divideMagnitudes(const BigInt &dividend, const BigInt &divisor, BigInt &quotient,
                                 BigInt &remainder);
    void divideInto(const BigInt &other, BigInt &quotient, BigInt &remainder) const;

    // bitCount() trims the length of a value that it otherwise only reads.
    mutable qint32 m_dataLength = 1;
    std::array<quint32, maxLength> m_data{};
};

} // namespace dravolin
