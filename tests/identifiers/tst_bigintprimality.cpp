#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include "identifiers/SmallPrimes.h"

#include <QTest>

#include <algorithm>

using namespace dravolin;
using namespace dravolin::test;

namespace {

// With this word drawn, the bit length of a base is that of the number times 0.2000000001, rounded down; with
// the others it is below 2, and the base's word is 0, 1 or 2.
constexpr quint32 fifth = 2000000000;
constexpr quint32 wordZero = 0;
constexpr quint32 wordOne = 2;

[[nodiscard]] BigInt number(qint64 value)
{
    return BigInt::createFromLong(value);
}

[[nodiscard]] bool isPrime(quint32 value)
{
    return test::isPrime(number(value));
}

} // namespace

class TestBigIntPrimality : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsThePrimesBelowTwoThousand()
    {
        QCOMPARE(smallPrimes.size(), 303U);
        quint32 value = 0;
        for (const quint32 prime : smallPrimes) {
            for (++value; value < prime; ++value)
                QVERIFY(!isPrime(value));
            QVERIFY(isPrime(prime));
        }
    }

    void judgesEveryNumberBelowThirtyThousand()
    {
        for (qint32 value = 0; value < 30000; ++value) {
            const bool expected = isPrime(static_cast<quint32>(value));
            QCOMPARE(number(value).isProbablePrime(), expected);
            QCOMPARE(number(-value).isProbablePrime(), expected);
        }
    }

    void refusesPseudoprimesOfTheStrongTest()
    {
        // Strong pseudoprimes to base 2; the last two are squares, which have no parameter D either.
        for (const qint64 value : {2047LL, 3215031751LL, 341550071728321LL, 1093LL * 1093, 3511LL * 3511})
            QVERIFY(!number(value).isProbablePrime());
        QVERIFY(!number(1999).multiply(number(2003)).isProbablePrime());
        for (const quint32 prime : smallPrimes)
            QVERIFY(!BigInt::lucasStrongTest(number(qint64{prime} * prime)));
    }

    void refusesPseudoprimesOfTheLucasTest_data()
    {
        // Strong pseudoprimes to the Lucas test without a factor below 2000: base 2 alone tells them.
        QTest::addColumn<qint64>("value");
        QTest::newRow("2063 * 4129") << qint64{8518127};
        QTest::newRow("2269 * 4373") << qint64{9922337};
        QTest::newRow("2243 * 49369") << qint64{110734667};
    }
    void refusesPseudoprimesOfTheLucasTest()
    {
        QFETCH(qint64, value);
        QVERIFY(BigInt::lucasStrongTest(number(value)));
        QVERIFY(!number(value).isProbablePrime());
    }

    void acceptsLargePrimesWithQMinusOne()
    {
        // Of the primes 2^m - 1 those with m = 3 mod 4, which have D = 5.
        for (const qint32 exponent : {31, 107, 127, 607})
            QVERIFY(powerOfTwo(exponent).subtract(number(1)).isProbablePrime());
        QVERIFY(!powerOfTwo(67).subtract(number(1)).isProbablePrime());
    }

    void keepsRefusingPrimesWhoseSequenceLosesABit()
    {
        // 2^32 - 5, where D = -7 and Q = 2: doubling a power of Q of 2^31 or more loses its top bit.
        QVERIFY(isPrime(4294967291U));
        QVERIFY(!number(4294967291).isProbablePrime());
        // 2^31 - 19, D = 13, Q = -3: the power itself is shorter, but not its product with Q.
        QVERIFY(isPrime(2147483629U));
        QVERIFY(!number(2147483629).isProbablePrime());
        // 2^32 - 99, D = 5, Q = -1: no power is longer than a bit.
        QVERIFY(number(4294967197).isProbablePrime());
    }

    void keepsRefusingPrimesWhoseConstantIsCutShort()
    {
        // b^8 / (2^100 - 15) = 2^156 + ..., whose first digit of 2^28 comes out one less; 2^99 - 115 has
        // none.
        const BigInt cut = powerOfTwo(100).subtract(number(15));
        QVERIFY(isPrime(cut));
        SeededSource source(23);
        QVERIFY(!cut.isProbablePrime());
        QVERIFY(!BigInt::lucasStrongTest(cut));
        QVERIFY(!cut.isProbablePrimeWithConfidence(1, source));
        const BigInt whole = powerOfTwo(99).subtract(number(115));
        QVERIFY(isPrime(whole));
        QVERIFY(whole.isProbablePrimeWithConfidence(3, source));
    }

    void hasTheErrorsOfItsSteps()
    {
        const QByteArray negation = "ArithmeticException / Overflow in negation.";
        QCOMPARE(errorOf([] { return mostNegative().isProbablePrime(); }), negation);
        QCOMPARE(errorOf([] { return mostNegative().isProbablePrimeWithConfidence(0); }), negation);
        QCOMPARE(errorOf([] { return mostNegative().rabinMillerTestWithConfidence(0); }), negation);
        QCOMPARE(errorOf([] { return BigInt::lucasStrongTest(mostNegative()); }), negation);
        // 2^2239 - 1 has no factor below 2000, as 2239 is a prime and its factors are multiples of 4478
        // plus 1.
        const QByteArray tooLong = "ArithmeticException / Multiplication overflow.";
        QCOMPARE(errorOf([] { return mostPositive().isProbablePrime(); }), tooLong);
        QCOMPARE(errorOf([] { return mostPositive().isProbablePrimeWithConfidence(1); }), tooLong);
        QCOMPARE(errorOf([] { return BigInt::lucasStrongTest(mostPositive()); }),
                 "ArithmeticException / Overflow");
        // 35 words
        QCOMPARE(errorOf([] { return BigInt::lucasStrongTest(powerOfTwo(1091).subtract(number(1))); }),
                 tooLong);
    }

    void drawsBasesForTheStrongTest()
    {
        // 2047 = 23 * 89 has 11 bits: a fifth are 2, and 2 is a base to which it passes, 3 one to which it
        // does not.
        ScriptedSource two({fifth, wordZero});
        QVERIFY(number(2047).rabinMillerTestWithConfidence(1, two));
        QCOMPARE(two.left(), 0);
        ScriptedSource three({fifth, wordOne});
        QVERIFY(!number(-2047).rabinMillerTestWithConfidence(1, three));
        QCOMPARE(three.left(), 0);
        // Lengths of 0 and 1 are drawn again.
        ScriptedSource again({0, 1000000000, 0xFFFFFFFF, fifth, wordZero, fifth, wordOne, 7});
        QVERIFY(!number(2047).rabinMillerTestWithConfidence(5, again));
        QCOMPARE(again.left(), 1);
    }

    void keepsDividingTheWordBeforeTheRangeMultipliesIt()
    {
        // 400000000 / 10^10 * 75 is 3, but 400000000 * (75 / 10^10) is less: bases of 3 and of 2 bits, 4
        // and 2. The number has 75 bits and is a strong pseudoprime to base 4, not to base 2.
        const BigInt n = number(79350424423).multiply(number(238051273267));
        ScriptedSource source({399999999, wordZero});
        QVERIFY(n.rabinMillerTestWithConfidence(1, source));
        QCOMPARE(source.left(), 0);
        ScriptedSource two({300000000, wordZero});
        QVERIFY(!n.rabinMillerTestWithConfidence(1, two));
    }

    void endsAtACommonFactorOfTheBase()
    {
        ScriptedSource source({fifth, wordOne, 7});
        QVERIFY(!number(3 * 683).rabinMillerTestWithConfidence(3, source));
        QCOMPARE(source.left(), 1);
    }

    void drawsNothingWithoutRounds()
    {
        ScriptedSource nothing({});
        QVERIFY(number(2047).rabinMillerTestWithConfidence(0, nothing));
        QVERIFY(number(2047).rabinMillerTestWithConfidence(-1, nothing));
        QVERIFY(number(7).isProbablePrimeWithConfidence(0, nothing));
        for (const qint32 value : {0, 1, 4, 6, 8}) {
            QVERIFY(!number(value).rabinMillerTestWithConfidence(0, nothing));
            QVERIFY(!number(value).isProbablePrimeWithConfidence(5, nothing));
        }
        for (const qint32 value : {2, 3, -2, -3}) {
            QVERIFY(number(value).rabinMillerTestWithConfidence(5, nothing));
            QVERIFY(number(value).isProbablePrimeWithConfidence(5, nothing));
        }
        QVERIFY(!number(9).isProbablePrimeWithConfidence(5, nothing));
        QVERIFY(!number(15).isProbablePrimeWithConfidence(5, nothing));
        QVERIFY(!withLength(BigInt(), 0).isProbablePrimeWithConfidence(5, nothing));
    }

    void keepsDrawingForEverBelowSixteen()
    {
        for (qint32 value = 5; value <= 15; value += 2) {
            SeededWithEnd source;
            QVERIFY_THROWS_EXCEPTION(
                ScriptedSource::Exhausted,
                static_cast<void>(number(value).rabinMillerTestWithConfidence(1, source)));
        }
        for (const qint32 value : {5, 7, 11, 13}) {
            SeededWithEnd source;
            QVERIFY_THROWS_EXCEPTION(
                ScriptedSource::Exhausted,
                static_cast<void>(number(value).isProbablePrimeWithConfidence(1, source)));
        }
        // 1, the only value of 1 bit, never passes; of 3 and 4 bits there are 5, 7, 11 and 13.
        for (const qint32 bits : {1, 3, 4}) {
            SeededWithEnd source;
            QVERIFY_THROWS_EXCEPTION(
                ScriptedSource::Exhausted,
                static_cast<void>(BigInt::generatePseudoPrimeWithBitsAndConfidence(bits, 1, source)));
        }
        SeededWithEnd source;
        QVERIFY(number(17).rabinMillerTestWithConfidence(1, source));
    }

    void testsWithRandomBases()
    {
        SeededSource source(21);
        for (qint32 value = 17; value < 3000; value += 2)
            QCOMPARE(number(value).isProbablePrimeWithConfidence(3, source),
                     isPrime(static_cast<quint32>(value)));
        QVERIFY(powerOfTwo(521).subtract(number(1)).isProbablePrimeWithConfidence(3, source));
        QVERIFY(number(4294967291).isProbablePrimeWithConfidence(3, source));
        QVERIFY(!powerOfTwo(523).subtract(number(1)).isProbablePrimeWithConfidence(3, source));
    }

    void generatesPrimes()
    {
        SeededSource source(22);
        for (const qint32 bits : {2, 5, 31, 32, 33, 64, 128, 200}) {
            BigInt prime = BigInt::generatePseudoPrimeWithBitsAndConfidence(bits, 10, source);
            QCOMPARE(prime.bitCount(), bits);
            QVERIFY(mpz_probab_prime_p(Reference(prime).get(), 25) != 0);
        }
        // 6 bits: 33 has a factor, 37 is the first to pass.
        ScriptedSource script({wordOne, 9, 7});
        QCOMPARE(image(BigInt::generatePseudoPrimeWithBitsAndConfidence(6, 0, script)), "1:25");
        QCOMPARE(script.left(), 1);
        QCOMPARE(errorOf([&] { return BigInt::generatePseudoPrimeWithBitsAndConfidence(2241, 1, source); }),
                 "ArithmeticException / Number of required bits > maxLength.");
        // 35 words
        QCOMPARE(errorOf([&] { return BigInt::generatePseudoPrimeWithBitsAndConfidence(1089, 1, source); }),
                 "ArithmeticException / Multiplication overflow.");
    }

private:
    class SeededWithEnd final : public RandomSource
    {
    public:
        quint32 nextWord() override
        {
            if (--m_left == 0)
                throw ScriptedSource::Exhausted();
            return m_left % 2 == 0 ? 0xFFFFFFFEU : m_source.nextWord();
        }

    private:
        int m_left = 20000;
        SeededSource m_source{7};
    };
};

DRAVOLIN_TEST(TestBigIntPrimality)
#include "tst_bigintprimality.moc"
