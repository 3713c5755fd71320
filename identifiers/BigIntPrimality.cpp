#include "identifiers/BigIntPrimality.h"

#include "identifiers/BigIntRows.h"
#include "identifiers/BigIntWords.h"
#include "identifiers/SmallPrimes.h"

namespace dravolin {

using primality::splitTwos;

std::optional<bool> primality::simpleAnswer(const BigInt &number)
{
    if (number.dataLength() == 1 && number.getDataAtIndex(0) <= 3)
        return number.getDataAtIndex(0) >= 2;
    if (number.isEven())
        return false;
    return std::nullopt;
}

primality::Factors primality::splitTwos(const BigInt &number)
{
    const qint32 twos = words::trailingZeros(number.getData());
    return {twos, number.shiftRight(twos)};
}

namespace {

[[nodiscard]] bool hasSmallFactor(const BigInt &n)
{
    for (const quint32 prime : smallPrimes) {
        if (n.dataLength() == 1 && prime >= n.getDataAtIndex(0))
            return false;
        if (words::remainder(n.getData(), n.dataLength(), prime) == 0)
            return true;
    }
    return false;
}

// The step of a round of Miller and Rabin's test: whether base^t is 1, or n - 1 after at most s - 1
// squarings.
[[nodiscard]] bool passesStrongTest(const BigInt &n, const BigInt &base)
{
    const BigInt nMinus1 = n.subtract(BigInt::createFromInt(1));
    const auto [twos, odd] = splitTwos(nMinus1);
    BigInt x = base.modPowWithMod(odd, n);
    if (x.isOne())
        return true;
    for (qint32 i = 0; i < twos; ++i) {
        if (x.equals(nMinus1))
            return true;
        x = x.multiply(x).mod(n);
    }
    return false;
}

[[nodiscard]] BigInt randomBase(qint32 nBits, RandomSource &source)
{
    BigInt base;
    do {
        quint16 bits = 0;
        // intended: never ends for numbers below 16, of which 43 % of the bits are less than two
        while (bits < 2)
            bits = static_cast<quint16>(scaledRandom(source, nBits));
        base.getRandomBits(bits, source);
    } while (base.isOne());
    return base;
}

} // namespace

bool BigIntNumberTheory::rabinMillerTestWithConfidence(qint32 rounds, RandomSource &source) const
{
    BigInt n = static_cast<const BigInt &>(*this).abs();
    if (const std::optional<bool> answer = primality::simpleAnswer(n))
        return *answer;
    const qint32 bits = n.bitCount();
    for (qint32 round = 0; round < rounds; ++round) {
        const BigInt base = randomBase(bits, source);
        const BigInt common = base.gcd(n);
        // A longer common factor is left to the strong test, which it fails.
        if (common.dataLength() == 1 && !common.isOne())
            return false;
        if (!passesStrongTest(n, base))
            return false;
    }
    return true;
}

bool BigIntNumberTheory::isProbablePrimeWithConfidence(qint32 rounds, RandomSource &source) const
{
    const BigInt n = static_cast<const BigInt &>(*this).abs();
    return !hasSmallFactor(n) && n.rabinMillerTestWithConfidence(rounds, source);
}

bool BigIntNumberTheory::isProbablePrime() const
{
    const BigInt n = static_cast<const BigInt &>(*this).abs();
    if (const std::optional<bool> answer = primality::simpleAnswer(n))
        return *answer;
    return !hasSmallFactor(n) && passesStrongTest(n, BigInt::createFromInt(2)) && lucasStrongTest(n);
}

BigInt BigIntNumberTheory::generatePseudoPrimeWithBitsAndConfidence(qint32 bits, qint32 rounds,
                                                                    RandomSource &source)
{
    BigInt value;
    do {
        value.getRandomBits(bits, source);
        value.setDataAtIndex(value.getDataAtIndex(0) | 1U, 0);
    } while (!value.isProbablePrimeWithConfidence(rounds, source));
    return value;
}

} // namespace dravolin
