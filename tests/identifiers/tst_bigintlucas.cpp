#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

[[nodiscard]] BigInt number(qint64 value)
{
    return BigInt::createFromLong(value);
}

// k is an object or a passing value, const or not.
template <typename Index>
[[nodiscard]] std::array<BigInt, 3> sequence(const BigInt &P, const BigInt &Q, Index &&k, const BigInt &n,
                                             qint32 s)
{
    const BigInt constant = powerOfTwo(64 * n.dataLength()).divide(n);
    return BigInt::lucasSequenceAndQAndkAndnAndConstantAnds(P, Q, k, n, constant, s);
}

// U, V and Q^index mod n by their definition: each term is P times the one before less Q times the one
// before that.
struct Definition
{
    Definition(const BigInt &P, const BigInt &Q, qint32 index, const BigInt &n)
    {
        const Reference p(P);
        const Reference q(Q);
        const Reference modulus(n);
        Reference nextU(1L);
        Reference nextV(P);
        mpz_set_si(V.get(), 2);
        mpz_set_si(power.get(), 1);
        for (qint32 i = 0; i < index; ++i) {
            step(U, nextU, p, q, modulus);
            step(V, nextV, p, q, modulus);
            mpz_mul(power.get(), power.get(), q.get());
            mpz_mod(power.get(), power.get(), modulus.get());
        }
        mpz_mod(U.get(), U.get(), modulus.get());
        mpz_mod(V.get(), V.get(), modulus.get());
        mpz_mod(power.get(), power.get(), modulus.get());
    }

    static void step(Reference &term, Reference &next, const Reference &p, const Reference &q,
                     const Reference &n)
    {
        Reference result;
        mpz_mul(result.get(), next.get(), p.get());
        mpz_submul(result.get(), term.get(), q.get());
        mpz_mod(result.get(), result.get(), n.get());
        term = next;
        next = result;
    }

    Reference U;
    Reference V;
    Reference power;
};

[[nodiscard]] Reference residue(const BigInt &value, const BigInt &n)
{
    Reference result;
    mpz_mod(result.get(), Reference(value).get(), Reference(n).get());
    return result;
}

} // namespace

class TestBigIntLucas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsFibonacciAndLucasNumbers()
    {
        // F(7) = 13, L(7) = 29, (-1)^7.
        const auto [U, V, Q] = sequence(number(1), number(-1), number(7), number(1000), 0);
        QCOMPARE(image(U), "1:d");
        QCOMPARE(image(V), "1:1d");
        QCOMPARE(image(Q), "70:-1");
        // Three doublings: F(56) = 225851433717, L(56) = 505019158607, (-1)^56.
        const auto [U56, V56, Q56] = sequence(number(1), number(-1), number(7), number(1000), 3);
        QCOMPARE(image(U56), "1:2cd");
        QCOMPARE(image(V56), "1:25f");
        QCOMPARE(image(Q56), "1:1");
    }

    void startsAtIndexOne()
    {
        const auto [U, V, Q] = sequence(number(5), number(3), number(1), number(1000), 0);
        QCOMPARE(image(U), "1:1");
        QCOMPARE(image(V), "1:5");
        QCOMPARE(image(Q), "1:3");
    }

    void followsTheDefinition()
    {
        // Below 2^15 no power of Q and no product with Q reaches the top bit of a word.
        Operands operands(31);
        for (int i = 0; i < 1000; ++i) {
            const BigInt n = number(2 + operands.below(32766));
            compareWithDefinition(number(operands.below(65536) - 32768),
                                  number(operands.below(65536) - 32768), 2 * operands.below(300) + 1, n,
                                  operands.below(4));
        }
    }

    void followsTheDefinitionModuloLongNumbers()
    {
        // Powers of 1 and -1 lose nothing either; random quotients have no digit of 2^28.
        Operands operands(32);
        SeededSource source(32);
        for (int i = 0; i < 200; ++i) {
            BigInt n;
            n.getRandomBits(40 + operands.below(1000), source);
            compareWithDefinition(operands.natural(2), number(i % 2 == 0 ? 1 : -1),
                                  2 * operands.below(200) + 1, n, operands.below(3));
        }
    }

    void takesAnIndexOfManyWords()
    {
        // k = 2^32 + 1, 2^64 - 1 and 2^31: top bits at the beginning and at the end of a word. Modulo 7 and
        // with P = 1, Q = -1 both sequences have the period 16.
        const BigInt seven = number(7);
        for (const char *k : {"100000001", "ffffffffffffffff", "80000001", "10000000f", "8000000000000003"}) {
            const auto [U, V, Q] = sequence(number(1), number(-1), hex(k), seven, 0);
            const Definition expected(number(1), number(-1), hex(k).intValue() & 15, seven);
            QCOMPARE(image(residue(U, seven)), image(expected.U));
            QCOMPARE(image(residue(V, seven)), image(expected.V));
            QCOMPARE(image(Q), "70:-1");
        }
    }

    void keepsLosingTheTopBitOfDoubledPowers()
    {
        // P = 1, Q = 2^31, k = 5 modulo 2^80. V(2) = P^2 - 2Q, but 2^31 doubled in its one word is 0: V(2)
        // = 1. U(3) = U(2)V(1) - Q = 1 - Q, U(5) = U(3)V(2) - Q^2 = 1 - Q - Q^2 = 1 - 2^31 - 2^62; so is V(5)
        // by V(3) = V(1)V(2) - PQ = 1 - Q. Q^5 = 2^155 is 0.
        const auto [U, V, Q] = sequence(number(1), powerOfTwo(31), number(5), powerOfTwo(80), 0);
        QCOMPARE(image(U), "70:-400000007fffffff");
        QCOMPARE(image(V), "70:-400000007fffffff");
        QCOMPARE(image(Q), "1:0");
    }

    void refusesEvenIndices()
    {
        const QByteArray error = "ArgumentException / Argument k must be odd.";
        for (const BigInt &k : {BigInt(), number(2), number(-2), powerOfTwo(32)})
            QCOMPARE(errorOf([&] { return sequence(number(1), number(1), k, number(7), 0); }), error);
        QCOMPARE(errorOf([] {
                     return BigInt::lucasSequenceAndQAndkAndnAndConstantAnds(number(1), number(1), number(3),
                                                                             BigInt(), number(1), 0);
                 }),
                 "ArithmeticException / Division by zero.");
    }

    void keepsTrimmingTheIndex()
    {
        BigInt k = withLength(number(7), 5);
        const auto values = sequence(number(1), number(-1), k, number(1000), 0);
        QCOMPARE(image(values[0]), "1:d");
        QCOMPARE(k.dataLength(), 1);
    }

    void passesTwoPseudoprimesOfTheLucasTest()
    {
        for (qint32 value = 0; value < 30000; ++value) {
            const bool expected = isPrime(number(value)) || value == 5777 || value == 10877;
            QCOMPARE(BigInt::lucasStrongTest(number(value)), expected);
        }
        QVERIFY(!BigInt::lucasStrongTest(withLength(BigInt(), 0)));
        QVERIFY(BigInt::lucasStrongTest(number(-7)));
    }

    void keepsRefusingManyPrimesOfSomeSizes_data()
    {
        // Of the primes less than 2000 below 2^bits; with D = 5 all pass.
        QTest::addColumn<qint32>("bits");
        QTest::addColumn<qint32>("withOtherD");
        QTest::addColumn<qint32>("refused");
        QTest::newRow("24 bits") << 24 << 72 << 0;
        QTest::newRow("32 bits") << 32 << 40 << 40;
        QTest::newRow("48 bits") << 48 << 36 << 0;
        QTest::newRow("64 bits") << 64 << 21 << 21;
    }
    void keepsRefusingManyPrimesOfSomeSizes()
    {
        QFETCH(qint32, bits);
        qint32 withOtherD = 0;
        qint32 refused = 0;
        for (qint32 difference = 1; difference < 2000; difference += 2) {
            const BigInt value = powerOfTwo(bits).subtract(number(difference));
            if (!isPrime(value))
                continue;
            const bool passes = BigInt::lucasStrongTest(value);
            QCOMPARE(value.isProbablePrime(), passes);
            const bool hasOtherD = BigInt::jacobiAndB(number(5), value) != -1;
            QVERIFY(passes || hasOtherD);
            withOtherD += hasOtherD ? 1 : 0;
            refused += passes ? 0 : 1;
        }
        QTEST(withOtherD, "withOtherD");
        QTEST(refused, "refused");
    }

    void keepsSquaringThePowerOfQAfterPassing()
    {
        // 179 + 1 = 4 * 45, D = -15, Q = 4: V(45) is 0 at once, with Q^45 = 177. The last check needs Q^90
        // = 4.
        QVERIFY(BigInt::lucasStrongTest(number(179)));
    }

private:
    static void compareWithDefinition(const BigInt &P, const BigInt &Q, qint32 k, const BigInt &n, qint32 s)
    {
        const auto [U, V, power] = sequence(P, Q, number(k), n, s);
        const Definition expected(P, Q, k << s, n);
        QCOMPARE(image(residue(U, n)), image(expected.U));
        QCOMPARE(image(residue(V, n)), image(expected.V));
        QCOMPARE(image(residue(power, n)), image(expected.power));
    }
};

DRAVOLIN_TEST(TestBigIntLucas)
#include "tst_bigintlucas.moc"
