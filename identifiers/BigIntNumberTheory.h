#pragma once

#include "identifiers/RandomSource.h"

#include <QtGlobal>

#include <array>

namespace dravolin {

class BigInt;

// The number-theoretic part of BigInt. x is the receiver, b is 2^32; errors as in BigInt.h. Values are
// expected to be trimmed.
//
// Residues come from mod(), so they may be negative and, after a digit of 2^28, not below the modulus. A
// modulus of zero raises "Division by zero.". Moduli that are reduced by Barrett's method have at most 34
// words: b^(2k) needs word 2k; longer ones raise "Multiplication overflow.".
//
// A constant of Barrett's reduction may have a digit cut short at 2^28, and then powers modulo n are wrong.
// The one case that matters: no test here passes a prime less than 2^(m - 29) below 2^m, for m = 100, 132,
// 164, ...
//
// Some calls never return, as no random number ends their search: rabinMillerTestWithConfidence(),
// isProbablePrimeWithConfidence() and generatePseudoPrimeWithBitsAndConfidence() say when.
class BigIntNumberTheory
{
public:
    // x^exponent mod |modulus|, except that a negative x with an odd exponent gives -(|x|^exponent mod
    // |modulus|), and that x^0 is 1 whatever the modulus. "Positive exponents only.". Trims the length of an
    // exponent that is not const, as bitCount() does.
    [[nodiscard]] BigInt modPowWithMod(BigInt &exponent, const BigInt &modulus) const;
    [[nodiscard]] BigInt modPowWithMod(const BigInt &exponent, const BigInt &modulus) const;
    // x mod n by Barrett's reduction for 0 <= x < b^(2k), with k = length of n and constant = b^(2k) / n as
    // divide() has it. A constant with a digit cut short makes the reduction lose multiples of b^(k+1): the
    // result is below n all the same, but need not be congruent to x.
    [[nodiscard]] static BigInt barrettReductionAndNAndConstant(const BigInt &x, const BigInt &n,
                                                                const BigInt &constant);
    // x becomes a random value of exactly that many bits, negative for 2240 bits, 0 for none. Its words are
    // scaledRandom() to b: not uniform, and below 1844674407 but for the top bit. A count below 0 or above
    // 2240: "Number of required bits > maxLength."; x is then unchanged.
    void getRandomBits(qint32 bits, RandomSource &source = RandomSource::platform());
    // The Jacobi symbol (a/b), but 0 for b = 1, where the textbook has 1. Even b: "ArgumentException" /
    // "Jacobi defined only for odd integers.".
    [[nodiscard]] static qint32 jacobiAndB(const BigInt &a, const BigInt &b);

    // {U, V, Q^m} mod n of the Lucas sequences with the parameters P and Q at the index m = k * 2^s. Even k:
    // "ArgumentException" / "Argument k must be odd.". constant is the Barrett constant of n. The terms 2 *
    // Q^i are shiftLeft(1) and lose what that loses, so the values are those of the textbook only as long as
    // no power of Q, nor its product with Q, has the top bit of its highest word set. Trims the length of a k
    // that is not const.
    [[nodiscard]] static std::array<BigInt, 3>
    lucasSequenceAndQAndkAndnAndConstantAnds(const BigInt &P, const BigInt &Q, BigInt &k, const BigInt &n,
                                             const BigInt &constant, qint32 s);
    [[nodiscard]] static std::array<BigInt, 3>
    lucasSequenceAndQAndkAndnAndConstantAnds(const BigInt &P, const BigInt &Q, const BigInt &k,
                                             const BigInt &n, const BigInt &constant, qint32 s);
    // The strong Lucas test of Baillie and Wagstaff with Selfridge's parameters P = 1, Q = (1 - D) / 4, and
    // their check of Q^((n + 1) / 2) after it. A warning: because of the terms lost above it refuses many
    // primes. About half of all primes have D = 5, where nothing is lost. Of the others it refuses nearly all
    // near a multiple of 32 bits (31 to 34, 63 to 66, 95 to 98, ...), fewer further from it, about one in ten
    // halfway between two, and hardly any below 28 bits.
    [[nodiscard]] static bool lucasStrongTest(const BigInt &n);

    // The test of Miller and Rabin with that many random bases, none longer than 43 % of the bits of |x|;
    // true without rounds. Never returns for an odd |x| from 5 to 15 and a positive number of rounds: no base
    // that short has two bits.
    [[nodiscard]] bool rabinMillerTestWithConfidence(qint32 rounds,
                                                     RandomSource &source = RandomSource::platform()) const;
    // Trial division by the primes below 2000, then Miller and Rabin. Never returns for |x| = 5, 7, 11 and 13
    // and a positive number of rounds.
    [[nodiscard]] bool isProbablePrimeWithConfidence(qint32 rounds,
                                                     RandomSource &source = RandomSource::platform()) const;
    // Trial division, the strong test to base 2 and lucasStrongTest(), Baillie and Wagstaff's combination. A
    // warning: it refuses every prime that lucasStrongTest() refuses, half of all for some sizes. true means
    // probably prime, false does not mean composite.
    [[nodiscard]] bool isProbablePrime() const;
    // Random odd values of that many bits until one passes isProbablePrimeWithConfidence(), however long that
    // takes. Never returns for 0 and 1 bits, of which 1 is the only value, nor for 3 and 4 bits and a
    // positive number of rounds, whose primes are 5, 7, 11 and 13. Past 1088 bits and with rounds it raises
    // "Multiplication overflow." at the first value without a small factor.
    [[nodiscard]] static BigInt
    generatePseudoPrimeWithBitsAndConfidence(qint32 bits, qint32 rounds,
                                             RandomSource &source = RandomSource::platform());

protected:
    constexpr BigIntNumberTheory() noexcept = default;
};

} // namespace dravolin
