#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QByteArray storeOverflow = "ArithmeticException / Multiplication overflow.";
const QByteArray negationOverflow = "ArithmeticException / Overflow in negation.";
const QByteArray divisionByZero = "ArithmeticException / Division by zero.";

[[nodiscard]] BigInt number(qint64 value)
{
    return BigInt::createFromLong(value);
}

[[nodiscard]] BigInt barrettConstant(const BigInt &n)
{
    return powerOfTwo(64 * n.dataLength()).divide(n);
}

[[nodiscard]] BigInt reduce(const BigInt &x, const BigInt &n)
{
    return BigInt::barrettReductionAndNAndConstant(x, n, barrettConstant(n));
}

} // namespace

class TestBigIntModular : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void raisesToPowers_data()
    {
        QTest::addColumn<qint64>("base");
        QTest::addColumn<qint64>("exponent");
        QTest::addColumn<qint64>("modulus");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char *name, qint64 base, qint64 exponent, qint64 modulus,
                            const char *expected) {
            QTest::newRow(name) << base << exponent << modulus << QByteArray(expected);
        };
        row("4^13 mod 497", 4, 13, 497, "1:1bd"); // 445
        row("exponent 0", 4, 0, 497, "1:1");
        row("exponent 0, modulus 1", 4, 0, 1, "1:1");
        row("modulus 1", 4, 3, 1, "1:0");
        row("base 0", 0, 5, 7, "1:0");
        row("0^0", 0, 0, 7, "1:1");
        row("base above the modulus", 501, 13, 497, "1:1bd");
        row("negative modulus", 4, 13, -497, "1:1bd");
        row("base becomes 1 before the last bit", 3, 5, 8, "1:3"); // 243
        row("base is 1 at once", 9, 5, 8, "1:1");
        row("exponent of two words", 3, qint64{1} << 40, 1000003, "1:5c5e8"); // 378344
        row("Fermat", 2, 2147483646, 2147483647, "1:1");
        row("negative base, even exponent", -4, 12, 497, "1:1e4"); // 484
        row("negative base, exponent 0", -4, 0, 497, "1:1");
        row("negative base, zero", -4, 3, 64, "1:0");
    }
    void raisesToPowers()
    {
        QFETCH(qint64, base);
        QFETCH(qint64, exponent);
        QFETCH(qint64, modulus);
        QTEST(image(number(base).modPowWithMod(number(exponent), number(modulus))), "expected");
    }

    void keepsOddPowersOfNegativeValuesNegative()
    {
        QCOMPARE(image(number(-4).modPowWithMod(number(13), number(497))), "70:-1bd");
        QCOMPARE(image(number(-501).modPowWithMod(number(13), number(-497))), "70:-1bd");
    }

    void refusesPowers()
    {
        QCOMPARE(errorOf([] { return number(2).modPowWithMod(number(-1), BigInt()); }),
                 "ArithmeticException / Positive exponents only.");
        QCOMPARE(errorOf([] { return number(2).modPowWithMod(number(0), BigInt()); }), divisionByZero);
        QCOMPARE(errorOf([] { return BigInt().modPowWithMod(number(3), BigInt()); }), divisionByZero);
        QCOMPARE(errorOf([] { return mostNegative().modPowWithMod(number(2), number(7)); }),
                 negationOverflow);
        QCOMPARE(errorOf([] { return number(2).modPowWithMod(number(2), mostNegative()); }),
                 negationOverflow);
        // 34 words are the longest modulus: b^68 is the highest power with a word for its bit and an even
        // exponent.
        QCOMPARE(errorOf([] { return number(2).modPowWithMod(number(2), powerOfTwo(34 * 32)); }),
                 storeOverflow);
        QCOMPARE(image(number(2).modPowWithMod(number(3), powerOfTwo(34 * 32 - 1))), "1:8");
    }

    void raisesToPowersAsTheReferenceDoes()
    {
        Operands operands(11);
        int compared = 0;
        for (int i = 0; i < 600; ++i) {
            const BigInt n = i % 4 == 0 ? operands.natural(34) : operands.odd(8);
            const BigInt x = operands.natural(i % 4 == 0 ? 40 : 10);
            const BigInt exponent = operands.natural(2);
            const Reference modulus(n);
            if (mpz_sgn(modulus.get()) == 0 || mpz_sgn(Reference(exponent).get()) == 0 ||
                mayMeetTheLimit(Reference(x), modulus) ||
                mayMeetTheLimit(Reference(powerOfTwo(64 * n.dataLength())), modulus))
                continue;
            ++compared;
            Reference expected;
            mpz_powm(expected.get(), Reference(x).get(), Reference(exponent).get(), modulus.get());
            QCOMPARE(image(x.modPowWithMod(exponent, n)), image(expected));
        }
        QVERIFY(compared > 400);
    }

    void reducesAsTheReferenceDoes()
    {
        Operands operands(12);
        int compared = 0;
        for (int i = 0; i < 5000; ++i) {
            const BigInt n = operands.natural(i % 2 == 0 ? 34 : 3);
            const Reference modulus(n);
            if (mpz_sgn(modulus.get()) == 0 ||
                mayMeetTheLimit(Reference(powerOfTwo(64 * n.dataLength())), modulus))
                continue;
            ++compared;
            const BigInt x = operands.natural(2 * n.dataLength() - 1);
            Reference expected;
            mpz_mod(expected.get(), Reference(x).get(), modulus.get());
            QCOMPARE(image(reduce(x, n)), image(expected));
        }
        QVERIFY(compared > 3000);
    }

    void reducesAtTheEdges()
    {
        QCOMPARE(image(reduce(hex("ffffffffffffffff"), number(1))), "1:0");
        QCOMPARE(image(reduce(BigInt(), number(7))), "1:0");
        QCOMPARE(image(reduce(number(6), number(7))), "1:6");
        QCOMPARE(image(reduce(number(7), number(7))), "1:0");
        const BigInt n = hex("ffffffffffffffff");
        QCOMPARE(image(reduce(n.multiply(n), n)), "1:0");
        QCOMPARE(image(reduce(n.multiply(n).subtract(number(1)), n)), "2:fffffffffffffffe");
        QCOMPARE(
            errorOf([] { return BigInt::barrettReductionAndNAndConstant(number(5), BigInt(), number(1)); }),
            divisionByZero);
        QCOMPARE(errorOf([] {
                     return BigInt::barrettReductionAndNAndConstant(number(5), powerOfTwo(34 * 32),
                                                                    number(1));
                 }),
                 storeOverflow);
        QCOMPARE(
            errorOf([] { return BigInt::barrettReductionAndNAndConstant(number(5), number(-7), number(1)); }),
            storeOverflow);
    }

    void keepsReducingByAConstantCutShort()
    {
        // n = 2^100 - 1: the first digit of b^8 / n = 2^156 + 2^56 is 2^28 and comes out one less, the last
        // but one passes the base: (2^28 - 1) * (2^128 + 2^28).
        const BigInt n = powerOfTwo(100).subtract(number(1));
        QCOMPARE(image(barrettConstant(n)), "5:fffffff000000000000000000fffffff0000000");
        // x = 2^199: q1 = 2^103, q3 = 2^99 - 2^71, r = x - q3 * n = 2^171 + 2^99 - 2^71, of which b^5 = 2^160
        // loses 2^171. The residue would be 2^99.
        QCOMPARE(image(reduce(powerOfTwo(199), n)), "4:7ffffff800000000000000000");
        QCOMPARE(image(number(3).modPowWithMod(number(120), n)), "4:2e022f64bba8cee4829895645");
    }

    void returnsWhereSubtractingOnceWouldTakeForEver()
    {
        // n = 2^68: the constant is 2^124 - 2^96, so x = 2^135 leaves r = 2^107, which is 2^39 times n.
        QCOMPARE(image(reduce(powerOfTwo(135), powerOfTwo(68))), "1:0");
        QCOMPARE(image(reduce(powerOfTwo(135).add(number(5)), powerOfTwo(68))), "1:5");
    }

    void findsJacobiSymbols_data()
    {
        QTest::addColumn<qint64>("a");
        QTest::addColumn<qint64>("b");
        QTest::addColumn<qint32>("expected");
        QTest::newRow("(2/7)") << qint64{2} << qint64{7} << 1;
        QTest::newRow("(3/7)") << qint64{3} << qint64{7} << -1;
        QTest::newRow("(7/7)") << qint64{7} << qint64{7} << 0;
        QTest::newRow("(0/7)") << qint64{0} << qint64{7} << 0;
        QTest::newRow("(1/7)") << qint64{1} << qint64{7} << 1;
        QTest::newRow("(2/3)") << qint64{2} << qint64{3} << -1;
        QTest::newRow("(2/5)") << qint64{2} << qint64{5} << -1;
        QTest::newRow("(-1/7)") << qint64{-1} << qint64{7} << -1;
        QTest::newRow("(-1/5)") << qint64{-1} << qint64{5} << 1;
        QTest::newRow("(-14/7)") << qint64{-14} << qint64{7} << 0;
        QTest::newRow("(1001/9907)") << qint64{1001} << qint64{9907} << -1;
        QTest::newRow("(30/9907)") << qint64{30} << qint64{9907} << -1; // of 2, 3 and 5: -1 each
        QTest::newRow("(5/-7): a below |b|, both odd") << qint64{5} << qint64{-7} << -1;
    }
    void findsJacobiSymbols()
    {
        QFETCH(qint64, a);
        QFETCH(qint64, b);
        QTEST(BigInt::jacobiAndB(number(a), number(b)), "expected");
    }

    void findsJacobiSymbolsAsTheReferenceDoes()
    {
        Operands operands(13);
        for (int i = 0; i < 3000; ++i) {
            const BigInt a = operands.integer(i % 10 == 0 ? 70 : 4);
            const BigInt b = operands.odd(i % 10 == 0 ? 70 : 4);
            if (b.equals(number(1)))
                continue;
            QCOMPARE(BigInt::jacobiAndB(a, b), mpz_jacobi(Reference(a).get(), Reference(b).get()));
        }
    }

    void keepsTheSymbolOverOneZero()
    {
        for (const qint64 a : {0, 1, 2, 5, -1, -3})
            QCOMPARE(BigInt::jacobiAndB(number(a), number(1)), 0);
    }

    void refusesEvenJacobiModuli()
    {
        const QByteArray error = "ArgumentException / Jacobi defined only for odd integers.";
        for (const BigInt &b : {BigInt(), number(2), number(-4), powerOfTwo(40), mostNegative()}) {
            QCOMPARE(errorOf([&] { return BigInt::jacobiAndB(number(1), b); }), error);
            QCOMPARE(errorOf([&] { return BigInt::jacobiAndB(BigInt(), b); }), error);
        }
    }
};

DRAVOLIN_TEST(TestBigIntModular)
#include "tst_bigintmodular.moc"
