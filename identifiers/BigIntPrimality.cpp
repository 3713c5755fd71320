#include "identifiers/BigInt.h"

#include "identifiers/BigIntNumberTheory.h"
#include "identifiers/BigIntWords.h"
#include "identifiers/SmallPrimes.h"

#include <algorithm>
#include <optional>

namespace dravolin {

namespace {

[[nodiscard]] bool isWord(const BigInt &value, quint32 word)
{
    return value.dataLength() == 1 && value.getDataAtIndex(0) == word;
}

[[nodiscard]] bool isEvenNumber(const BigInt &value)
{
    return value.getDataAtIndex(0) % 2 == 0;
}

/// The answer for 0 to 3 and for even numbers; nothing for the others.
[[nodiscard]] std::optional<bool> primalityOfSimpleCase(const BigInt &n)
{
    if (n.dataLength() == 1 && n.getDataAtIndex(0) <= 3)
        return n.getDataAtIndex(0) >= 2;
    if (isEvenNumber(n))
        return false;
    return std::nullopt;
}

[[nodiscard]] bool hasSmallFactor(const BigInt &n)
{
    for (const quint32 word : smallPrimes) {
        const BigInt prime = BigInt::createFromULong(word);
        if (prime.greaterThanOrEqualTo(n))
            return false;
        if (isWord(n.mod(prime), 0))
            return true;
    }
    return false;
}

/// 2^twos * odd.
struct Factors
{
    qint32 twos;
    BigInt odd;
};

[[nodiscard]] Factors splitTwos(const BigInt &value)
{
    const qint32 twos = numbertheory::trailingZeros(value);
    return {twos, value.shiftRight(twos)};
}

/// The step of a round of Miller and Rabin's test: whether base^t is 1, or n - 1 after at most s - 1
/// squarings.
[[nodiscard]] bool passesStrongTest(const BigInt &n, const BigInt &base)
{
    const BigInt nMinus1 = n.subtract(BigInt::createFromInt(1));
    const auto [twos, odd] = splitTwos(nMinus1);
    BigInt x = base.modPowWithMod(odd, n);
    if (isWord(x, 1))
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
            bits = static_cast<quint16>(numbertheory::scaledRandom(source, nBits));
        base.getRandomBits(bits, source);
    } while (isWord(base, 1));
    return base;
}

/// The running values of a Lucas sequence: U, V, the V that follows it and Q^index, all modulo n.
// intended: doublings by shiftLeft(1), which lose the top bit of a word that is full
class LucasSequence
{
public:
    LucasSequence(const BigInt &P, const BigInt &Q, const BigInt &n, const BigInt &constant)
        : m_P(P), m_Q(Q), m_n(n), m_constant(constant), m_V(BigInt::createFromInt(2).mod(n)),
          m_Qk(BigInt::createFromInt(1).mod(n)), m_V1(P.mod(n)), m_U1(m_Qk)
    {
    }

    void appendOne()
    {
        m_U1 = m_U1.multiply(m_V1).mod(m_n);
        advanceInto(m_V);
        m_V1 = barrettSquare(m_V1).subtract(m_Qk.multiply(m_Q).shiftLeft(1)).mod(m_n);
        squareQkTimesQ();
    }

    void appendZero()
    {
        m_U1 = m_U1.multiply(m_V).subtract(m_Qk).mod(m_n);
        advanceInto(m_V1);
        m_V = barrettSquare(m_V).subtract(m_Qk.shiftLeft(1)).mod(m_n);
        squareQk();
    }

    void appendLastOne()
    {
        m_U1 = m_U1.multiply(m_V).subtract(m_Qk).mod(m_n);
        advanceInto(m_V);
        squareQkTimesQ();
    }

    void doubleIndex()
    {
        m_U1 = m_U1.multiply(m_V).mod(m_n);
        m_V = m_V.multiply(m_V).subtract(m_Qk.shiftLeft(1)).mod(m_n);
        squareQk();
    }

    [[nodiscard]] std::array<BigInt, 3> values() const { return {m_U1, m_V, m_Qk}; }

private:
    [[nodiscard]] BigInt barrettSquare(const BigInt &value) const
    {
        return BigInt::barrettReductionAndNAndConstant(value.multiply(value), m_n, m_constant);
    }

    /// V of the odd index between the two known ones.
    void advanceInto(BigInt &target) { target = m_V.multiply(m_V1).subtract(m_P.multiply(m_Qk)).mod(m_n); }

    void squareQk()
    {
        m_Qk = m_isFirst ? m_Q.mod(m_n) : barrettSquare(m_Qk);
        m_isFirst = false;
    }

    void squareQkTimesQ()
    {
        if (!m_isFirst)
            m_Qk = barrettSquare(m_Qk);
        m_isFirst = false;
        m_Qk = m_Qk.multiply(m_Q).mod(m_n);
    }

    const BigInt &m_P;
    const BigInt &m_Q;
    const BigInt &m_n;
    const BigInt &m_constant;
    BigInt m_V;
    BigInt m_Qk;
    BigInt m_V1;
    BigInt m_U1;
    bool m_isFirst = true;
};

constexpr qint32 squareTestAfter = 20;

/// Selfridge's D, the first of 5, -7, 9, -11, ... with (D/n) = -1; nothing when the search shows n composite.
[[nodiscard]] std::optional<qint64> selfridgeParameter(const BigInt &n)
{
    qint64 magnitude = 5;
    qint64 sign = 1;
    for (qint32 rejected = 0;; ++rejected) {
        const qint32 symbol = BigInt::jacobiAndB(BigInt::createFromLong(sign * magnitude), n);
        if (symbol == -1)
            return sign * magnitude;
        if (symbol == 0 && BigInt::createFromLong(magnitude).lessThan(n))
            return std::nullopt;
        // A square has no such D at all.
        if (rejected == squareTestAfter) {
            const BigInt root = n.sqrt();
            if (root.multiply(root).equals(n))
                return std::nullopt;
        }
        magnitude += 2;
        sign = -sign;
    }
}

[[nodiscard]] BigInt madeNonNegative(const BigInt &residue, const BigInt &n)
{
    return residue.lessThan(BigInt()) ? residue.add(n) : residue;
}

/// Q^((n + 1) / 2) = Q * (Q/n) mod n, which holds for every prime n that does not divide Q.
[[nodiscard]] bool hasPrimePowerOfQ(const BigInt &n, const BigInt &Q, const BigInt &Qk)
{
    const BigInt symbol = BigInt::createFromInt(BigInt::jacobiAndB(Q, n));
    return madeNonNegative(Qk, n).equals(madeNonNegative(Q.multiply(symbol).mod(n), n));
}

} // namespace

std::array<BigInt, 3> BigInt::lucasSequenceAndQAndkAndnAndConstantAnds(const BigInt &P, const BigInt &Q,
                                                                       const BigInt &k, const BigInt &n,
                                                                       const BigInt &constant, qint32 s)
{
    if (k.isEven())
        throw BigIntError("ArgumentException", "Argument k must be odd.");
    LucasSequence sequence(P, Q, n, constant);
    for (qint32 bit = k.bitCount() - 1; bit > 0; --bit) {
        if ((k.getDataAtIndex(bit / 32) >> bit % 32 & 1U) != 0)
            sequence.appendOne();
        else
            sequence.appendZero();
    }
    sequence.appendLastOne();
    for (qint32 i = 0; i < s; ++i)
        sequence.doubleIndex();
    return sequence.values();
}

bool BigInt::lucasStrongTest(const BigInt &n)
{
    const BigInt candidate = n.abs();
    if (const std::optional<bool> answer = primalityOfSimpleCase(candidate))
        return *answer;
    const std::optional<qint64> D = selfridgeParameter(candidate);
    if (!D)
        return false;
    const BigInt Q = createFromLong((1 - *D) >> 2);
    const auto [twos, odd] = splitTwos(candidate.add(createFromInt(1)));
    const BigInt constant = numbertheory::barrettConstant(candidate);
    auto [U, V, Qk] =
        lucasSequenceAndQAndkAndnAndConstantAnds(createFromInt(1), Q, odd, candidate, constant, 0);

    const auto barrettSquare = [&](const BigInt &value) {
        return barrettReductionAndNAndConstant(value.multiply(value), candidate, constant);
    };
    bool passes = U.isZero() || V.isZero();
    for (qint32 i = 1; i < twos; ++i) {
        if (!passes) {
            V = barrettSquare(V).subtract(Qk.shiftLeft(1)).mod(candidate);
            passes = V.isZero();
        }
        // intended: also after passing, as the last check needs the power after all rounds
        Qk = barrettSquare(Qk);
    }
    if (passes && candidate.gcd(Q).isOne())
        passes = hasPrimePowerOfQ(candidate, Q, Qk);
    return passes;
}

bool BigInt::rabinMillerTestWithConfidence(qint32 rounds, RandomSource &source) const
{
    const BigInt n = abs();
    if (const std::optional<bool> answer = primalityOfSimpleCase(n))
        return *answer;
    const qint32 bits = n.bitCount();
    for (qint32 round = 0; round < rounds; ++round) {
        const BigInt base = randomBase(bits, source);
        const BigInt common = base.gcd(n);
        // A longer common factor is left to the strong test, which it fails.
        if (common.m_dataLength == 1 && !common.isOne())
            return false;
        if (!passesStrongTest(n, base))
            return false;
    }
    return true;
}

bool BigInt::isProbablePrimeWithConfidence(qint32 rounds, RandomSource &source) const
{
    const BigInt n = abs();
    return !hasSmallFactor(n) && n.rabinMillerTestWithConfidence(rounds, source);
}

bool BigInt::isProbablePrime() const
{
    const BigInt n = abs();
    if (const std::optional<bool> answer = primalityOfSimpleCase(n))
        return *answer;
    return !hasSmallFactor(n) && passesStrongTest(n, createFromInt(2)) && lucasStrongTest(n);
}

BigInt BigInt::generatePseudoPrimeWithBitsAndConfidence(qint32 bits, qint32 rounds, RandomSource &source)
{
    BigInt value;
    do {
        value.getRandomBits(bits, source);
        value.m_data[0] |= 1U;
    } while (!value.isProbablePrimeWithConfidence(rounds, source));
    return value;
}

} // namespace dravolin
