#include "BigIntSupport.h"

#include <algorithm>

namespace dravolin::test {

namespace {

constexpr qint32 allBits = 32 * BigInt::maxLength;

[[nodiscard]] QByteArray hexDigits(mpz_srcptr value)
{
    QByteArray digits(static_cast<qsizetype>(mpz_sizeinbase(value, 16)) + 2, '\0');
    mpz_get_str(digits.data(), 16, value);
    return QByteArray(digits.constData());
}

} // namespace

Reference::Reference(const BigInt &value)
{
    mpz_init(m_value);
    mpz_import(m_value, BigInt::maxLength, -1, sizeof(quint32), 0, 0, value.getData());
    if (mpz_tstbit(m_value, allBits - 1) != 0) {
        Reference wrap;
        mpz_setbit(wrap.get(), allBits);
        mpz_sub(m_value, m_value, wrap.get());
    }
}

Reference &Reference::operator=(const Reference &other)
{
    mpz_set(m_value, other.m_value);
    return *this;
}

bool Reference::isInRange() const
{
    Reference magnitude(*this);
    if (mpz_sgn(m_value) < 0)
        mpz_com(magnitude.m_value, m_value);
    return magnitude.bits() < allBits;
}

quint32 Reference::word(qint32 index) const
{
    Reference shifted;
    mpz_tdiv_q_2exp(shifted.m_value, m_value, static_cast<mp_bitcnt_t>(32 * index));
    return static_cast<quint32>(mpz_get_ui(shifted.m_value) & 0xFFFFFFFFU);
}

qint32 Reference::bits() const
{
    return mpz_sgn(m_value) == 0 ? 0 : static_cast<qint32>(mpz_sizeinbase(m_value, 2));
}

bool isPrime(const BigInt &value)
{
    return mpz_probab_prime_p(Reference(value).get(), 25) != 0;
}

QByteArray image(const BigInt &value)
{
    return QByteArray::number(value.dataLength()) + ':' + hexDigits(Reference(value).get());
}

QByteArray image(const Reference &value)
{
    const qint32 length =
        mpz_sgn(value.get()) < 0 ? BigInt::maxLength : std::max((value.bits() + 31) / 32, 1);
    return QByteArray::number(length) + ':' + hexDigits(value.get());
}

QByteArray imageOrError(const Reference &value, const QByteArray &error)
{
    return value.isInRange() ? image(value) : error;
}

BigInt hex(const QByteArray &digits)
{
    Reference value;
    mpz_set_str(value.get(), digits.constData(), 16);
    mpz_fdiv_r_2exp(value.get(), value.get(), allBits);
    BigInt result;
    for (qint32 i = 0; i < BigInt::maxLength; ++i)
        result.setDataAtIndex(value.word(i), i);
    result.setDataLength(std::max((value.bits() + 31) / 32, 1));
    return result;
}

BigInt powerOfTwo(qint32 exponent)
{
    BigInt result;
    result.setDataAtIndex(1U << exponent % 32, exponent / 32);
    result.setDataLength(exponent / 32 + 1);
    return result;
}

BigInt mostNegative()
{
    return powerOfTwo(allBits - 1);
}

BigInt mostPositive()
{
    return mostNegative().not_();
}

BigInt withLength(const BigInt &value, qint32 length)
{
    BigInt result = value;
    result.setDataLength(length);
    return result;
}

bool mayMeetTheLimit(const Reference &dividend, const Reference &divisor)
{
    if (divisor.bits() <= 32)
        return false;
    Reference quotient;
    mpz_tdiv_q(quotient.get(), dividend.get(), divisor.get());
    for (qint32 i = 0; i <= quotient.bits() / 32; ++i) {
        if (quotient.word(i) == 0x10000000U)
            return true;
    }
    return false;
}

quint32 Operands::word()
{
    switch (below(5)) {
    case 0: return 0;
    case 1: return 0xFFFFFFFFU;
    case 2: return 1U << below(32);
    case 3: return (1U << below(32)) - 1U;
    default: return static_cast<quint32>(m_engine());
    }
}

BigInt Operands::natural(qint32 mostWords)
{
    const qint32 length = below(3) == 0 ? std::min(mostWords, 2) : 1 + below(mostWords);
    BigInt value;
    for (qint32 i = 0; i < length; ++i)
        value.setDataAtIndex(word(), i);
    value.setDataAtIndex(value.getDataAtIndex(BigInt::maxLength - 1) & 0x7FFFFFFFU, BigInt::maxLength - 1);
    value.setDataLength(length);
    static_cast<void>(value.bitCount()); // trims
    return value;
}

BigInt Operands::integer(qint32 mostWords)
{
    const BigInt value = natural(mostWords);
    return below(2) == 0 ? value : value.negate();
}

BigInt Operands::odd(qint32 mostWords)
{
    BigInt value = natural(mostWords);
    value.setDataAtIndex(value.getDataAtIndex(0) | 1U, 0);
    return value;
}

quint32 ScriptedSource::nextWord()
{
    if (m_words.isEmpty())
        throw Exhausted();
    return m_words.takeFirst();
}

} // namespace dravolin::test
