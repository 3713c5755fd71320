#include "identifiers/BigIntNumberTheory.h"

#include "identifiers/BarrettModulus.h"
#include "identifiers/BigInt.h"
#include "identifiers/BigIntPrimality.h"

#include <optional>

namespace dravolin {

namespace {

// The running values of a Lucas sequence: U, V, the V that follows it and Q^index, all modulo n.
// intended: doublings by shiftLeft(1), which lose the top bit of a word that is full
class LucasSequence
{
public:
    LucasSequence(const BigInt &P, const BigInt &Q, const BarrettModulus &n)
        : m_P(P), m_Q(Q), m_n(n), m_V(mod(BigInt::createFromInt(2))), m_Qk(mod(BigInt::createFromInt(1))),
          m_V1(mod(P)), m_U1(m_Qk)
    {
    }

    void appendOne()
    {
        m_U1 = mod(m_U1.multiply(m_V1));
        advanceInto(m_V);
        m_V1 = mod(m_n.square(m_V1).subtract(m_Qk.multiply(m_Q).shiftLeft(1)));
        squareQkTimesQ();
    }

    void appendZero()
    {
        m_U1 = mod(m_U1.multiply(m_V).subtract(m_Qk));
        advanceInto(m_V1);
        m_V = mod(m_n.square(m_V).subtract(m_Qk.shiftLeft(1)));
        squareQk();
    }

    void appendLastOne()
    {
        m_U1 = mod(m_U1.multiply(m_V).subtract(m_Qk));
        advanceInto(m_V);
        squareQkTimesQ();
    }

    void doubleIndex()
    {
        m_U1 = mod(m_U1.multiply(m_V));
        m_V = mod(m_V.multiply(m_V).subtract(m_Qk.shiftLeft(1)));
        squareQk();
    }

    [[nodiscard]] std::array<BigInt, 3> values() const { return {m_U1, m_V, m_Qk}; }

private:
    [[nodiscard]] BigInt mod(const BigInt &value) const { return value.mod(m_n.n()); }

    // V of the odd index between the two known ones.
    void advanceInto(BigInt &target) { target = mod(m_V.multiply(m_V1).subtract(m_P.multiply(m_Qk))); }

    void squareQk()
    {
        m_Qk = m_isFirst ? mod(m_Q) : m_n.square(m_Qk);
        m_isFirst = false;
    }

    void squareQkTimesQ()
    {
        if (!m_isFirst)
            m_Qk = m_n.square(m_Qk);
        m_isFirst = false;
        m_Qk = mod(m_Qk.multiply(m_Q));
    }

    const BigInt &m_P;
    const BigInt &m_Q;
    const BarrettModulus &m_n;
    BigInt m_V;
    BigInt m_Qk;
    BigInt m_V1;
    BigInt m_U1;
    bool m_isFirst = true;
};

constexpr qint32 squareTestAfter = 20;

// Selfridge's D, the first of 5, -7, 9, -11, ... with (D/n) = -1; nothing when the search shows n composite.
// Trims n.
[[nodiscard]] std::optional<qint64> selfridgeParameter(BigInt &n)
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
    return residue.isNegative() ? residue.add(n) : residue;
}

// Q^((n + 1) / 2) = Q * (Q/n) mod n, which holds for every prime n that does not divide Q.
[[nodiscard]] bool hasPrimePowerOfQ(const BigInt &n, const BigInt &Q, const BigInt &Qk)
{
    const BigInt symbol = BigInt::createFromInt(BigInt::jacobiAndB(Q, n));
    return madeNonNegative(Qk, n).equals(madeNonNegative(Q.multiply(symbol).mod(n), n));
}

// The sequence at the odd index k, which is trimmed.
[[nodiscard]] LucasSequence sequenceAt(BigInt &k, const BigInt &P, const BigInt &Q, const BarrettModulus &n)
{
    if (k.isEven())
        throw BigIntError("ArgumentException", "Argument k must be odd.");
    LucasSequence sequence(P, Q, n);
    for (qint32 bit = k.bitCount() - 1; bit > 0; --bit) {
        if ((k.getDataAtIndex(bit / 32) >> bit % 32 & 1U) != 0)
            sequence.appendOne();
        else
            sequence.appendZero();
    }
    sequence.appendLastOne();
    return sequence;
}

} // namespace

std::array<BigInt, 3> BigIntNumberTheory::lucasSequenceAndQAndkAndnAndConstantAnds(
    const BigInt &P, const BigInt &Q, BigInt &k, const BigInt &n, const BigInt &constant, qint32 s)
{
    const BarrettModulus modulus(n, constant);
    LucasSequence sequence = sequenceAt(k, P, Q, modulus);
    for (qint32 i = 0; i < s; ++i)
        sequence.doubleIndex();
    return sequence.values();
}

std::array<BigInt, 3> BigIntNumberTheory::lucasSequenceAndQAndkAndnAndConstantAnds(
    const BigInt &P, const BigInt &Q, const BigInt &k, const BigInt &n, const BigInt &constant, qint32 s)
{
    BigInt copy = k;
    return lucasSequenceAndQAndkAndnAndConstantAnds(P, Q, copy, n, constant, s);
}

bool BigIntNumberTheory::lucasStrongTest(const BigInt &n)
{
    BigInt candidate = n.abs();
    if (const std::optional<bool> answer = primality::simpleAnswer(candidate))
        return *answer;
    const std::optional<qint64> D = selfridgeParameter(candidate);
    if (!D)
        return false;
    const BigInt P = BigInt::createFromInt(1);
    const BigInt Q = BigInt::createFromLong((1 - *D) >> 2);
    auto [twos, odd] = primality::splitTwos(candidate.add(P));
    const BarrettModulus modulus(candidate);
    auto [U, V, Qk] = sequenceAt(odd, P, Q, modulus).values();

    bool passes = U.isZero() || V.isZero();
    for (qint32 i = 1; i < twos; ++i) {
        if (!passes) {
            V = modulus.square(V).subtract(Qk.shiftLeft(1)).mod(candidate);
            passes = V.isZero();
        }
        // intended: also after passing, as the last check needs the power after all rounds
        Qk = modulus.square(Qk);
    }
    if (passes && candidate.gcd(Q).isOne())
        passes = hasPrimePowerOfQ(candidate, Q, Qk);
    return passes;
}

} // namespace dravolin
