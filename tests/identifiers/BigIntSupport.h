#pragma once

#include "identifiers/BigInt.h"

#include <gmp.h>

#include <QByteArray>
#include <QList>

#include <random>
#include <utility>

namespace dravolin::test {

// "length:digits", the words as one signed hexadecimal number: what the tests compare, so that a wrong
// length shows.
[[nodiscard]] QByteArray image(const BigInt &value);

// From hexadecimal digits with an optional "-"; the value wraps at 2240 bits, so any pattern can be written.
[[nodiscard]] BigInt hex(const QByteArray &digits);
[[nodiscard]] BigInt powerOfTwo(qint32 exponent);
// -2^2239 and 2^2239 - 1.
[[nodiscard]] BigInt mostNegative();
[[nodiscard]] BigInt mostPositive();
[[nodiscard]] BigInt withLength(const BigInt &value, qint32 length);
[[nodiscard]] bool isPrime(const BigInt &value); // by the reference library

// "name / reason" of what the operation raises, or "nothing raised".
template <typename Operation>
[[nodiscard]] QByteArray errorOf(Operation operation)
{
    try {
        operation();
    } catch (const BigIntError &error) {
        return QByteArray(error.name()) + " / " + error.reason();
    }
    return "nothing raised";
}

// A number of the reference library with value semantics.
class Reference
{
public:
    Reference() { mpz_init(m_value); }
    explicit Reference(long value) { mpz_init_set_si(m_value, value); }
    explicit Reference(const BigInt &value);
    Reference(const Reference &other) { mpz_init_set(m_value, other.m_value); }
    Reference &operator=(const Reference &other);
    ~Reference() { mpz_clear(m_value); }

    [[nodiscard]] mpz_ptr get() { return m_value; }
    [[nodiscard]] mpz_srcptr get() const { return m_value; }
    [[nodiscard]] bool isInRange() const;
    // Word index of the magnitude.
    [[nodiscard]] quint32 word(qint32 index) const;
    [[nodiscard]] qint32 bits() const;

private:
    mpz_t m_value;
};

// The image of the value as BigInt holds it: trimmed, and of 70 words when it is negative.
[[nodiscard]] QByteArray image(const Reference &value);

// The image when the value is in range, else the error.
[[nodiscard]] QByteArray imageOrError(const Reference &value, const QByteArray &error);

// Whether the divisor's magnitude has two words or more and the quotient a word of 2^28: then a digit may be
// cut short and neither quotient nor remainder is that of the textbook.
[[nodiscard]] bool mayMeetTheLimit(const Reference &dividend, const Reference &divisor);

// Seeded operands, dense where words begin and end.
class Operands
{
public:
    explicit Operands(quint32 seed) : m_engine(seed) {}

    [[nodiscard]] qint32 below(qint32 limit)
    {
        return static_cast<qint32>(m_engine() % static_cast<quint32>(limit));
    }
    [[nodiscard]] quint32 word();
    // 0 <= value < 2^2239 of at most that many words.
    [[nodiscard]] BigInt natural(qint32 mostWords = BigInt::maxLength);
    [[nodiscard]] BigInt integer(qint32 mostWords = BigInt::maxLength);
    [[nodiscard]] BigInt odd(qint32 mostWords);

private:
    std::mt19937 m_engine;
};

// Gives the words it was given, then raises Exhausted.
class ScriptedSource final : public RandomSource
{
public:
    struct Exhausted
    {
    };

    explicit ScriptedSource(QList<quint32> words) : m_words(std::move(words)) {}

    quint32 nextWord() override;
    [[nodiscard]] qsizetype left() const { return m_words.size(); }

private:
    QList<quint32> m_words;
};

class SeededSource final : public RandomSource
{
public:
    explicit SeededSource(quint32 seed) : m_engine(seed) {}

    quint32 nextWord() override { return static_cast<quint32>(m_engine()); }

private:
    std::mt19937 m_engine;
};

} // namespace dravolin::test
