#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

const QByteArray sumOverflow = "ArithmeticException / Overflow";
const QByteArray productOverflow = "ArithmeticException / overflow.";
const QByteArray storeOverflow = "ArithmeticException / Multiplication overflow.";
const QByteArray negationOverflow = "ArithmeticException / Overflow in negation.";
const QByteArray divisionByZero = "ArithmeticException / Division by zero.";

[[nodiscard]] BigInt number(qint64 value)
{
    return BigInt::createFromLong(value);
}

} // namespace

class TestBigIntArithmetic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAndSubtractsAtTheEdges()
    {
        QCOMPARE(image(hex("ffffffff").add(number(1))), "2:100000000");
        QCOMPARE(image(hex("100000000").subtract(number(1))), "1:ffffffff");
        QCOMPARE(image(number(3).subtract(number(5))), "70:-2");
        QCOMPARE(image(number(-3).add(number(3))), "1:0");
        QCOMPARE(image(number(3).subtract(number(-1))), "1:4");
        QCOMPARE(image(number(-1).add(number(-1))), "70:-2");
        QCOMPARE(image(mostPositive().add(mostNegative())), "70:-1");
        QCOMPARE(image(mostNegative().subtract(mostNegative())), "1:0");
        QCOMPARE(image(mostNegative().add(number(1)).subtract(number(1))), image(mostNegative()));
    }

    void refusesSumsOutOfRange()
    {
        QCOMPARE(errorOf([] { return mostPositive().add(number(1)); }), sumOverflow);
        QCOMPARE(errorOf([] { return mostNegative().add(number(-1)); }), sumOverflow);
        QCOMPARE(errorOf([] { return mostNegative().add(mostNegative()); }), sumOverflow);
        QCOMPARE(errorOf([] { return mostPositive().subtract(number(-1)); }), sumOverflow);
        QCOMPARE(errorOf([] { return mostNegative().subtract(number(1)); }), sumOverflow);
        QCOMPARE(errorOf([] { return BigInt().subtract(mostNegative()); }), sumOverflow);
    }

    void multipliesAtTheEdges()
    {
        QCOMPARE(image(hex("ffffffff").multiply(hex("ffffffff"))), "2:fffffffe00000001");
        QCOMPARE(image(number(-7).multiply(number(6))), "70:-2a");
        QCOMPARE(image(number(-7).multiply(number(-6))), "1:2a");
        QCOMPARE(image(number(-7).multiply(BigInt())), "1:0");
        QCOMPARE(image(powerOfTwo(2206).multiply(powerOfTwo(32))), image(powerOfTwo(2238)));
        QCOMPARE(image(withLength(number(3), 40).multiply(withLength(number(5), 40))), "1:f");
    }

    void keepsTwoErrorsForProductsByTheirSize()
    {
        QCOMPARE(errorOf([] { return powerOfTwo(2238).multiply(number(2)); }), productOverflow);
        QCOMPARE(errorOf([] { return mostPositive().multiply(number(2)); }), productOverflow);
        // 2^2240 - 1 = (2^1120 - 1) * (2^1120 + 1), the largest product that still fits in the words.
        const BigInt half = powerOfTwo(1120);
        QCOMPARE(errorOf([&] { return half.subtract(number(1)).multiply(half.add(number(1))); }),
                 productOverflow);
        QCOMPARE(errorOf([&] { return half.multiply(half); }), storeOverflow);
        QCOMPARE(errorOf([] { return mostPositive().multiply(number(3)); }), storeOverflow);
        QCOMPARE(errorOf([] { return mostPositive().multiply(mostPositive()); }), storeOverflow);
        QCOMPARE(errorOf([] { return mostPositive().multiply(mostNegative()); }), storeOverflow);
        // 2 and 69 words: the carry of the only two rows goes to words 69 and 70.
        QCOMPARE(
            errorOf([] { return hex("ffffffffffffffff").multiply(powerOfTwo(2208).subtract(number(1))); }),
            storeOverflow);
        // The signs do not decide which of the two it is.
        QCOMPARE(errorOf([] { return mostPositive().multiply(number(-2)); }), productOverflow);
        QCOMPARE(errorOf([] { return mostPositive().multiply(number(-3)); }), storeOverflow);
    }

    void keepsTheMostNegativeProduct()
    {
        QCOMPARE(image(powerOfTwo(2238).multiply(number(-2))), image(mostNegative()));
        QCOMPARE(image(mostNegative().multiply(number(1))), image(mostNegative()));
        QCOMPARE(image(mostNegative().multiply(BigInt())), "1:0");
        QCOMPARE(errorOf([] { return mostNegative().multiply(number(-1)); }), productOverflow);
        QCOMPARE(errorOf([] { return mostNegative().multiply(number(2)); }), storeOverflow);
    }

    void dividesTowardsZero_data()
    {
        QTest::addColumn<QByteArray>("dividend");
        QTest::addColumn<QByteArray>("divisor");
        QTest::addColumn<QByteArray>("quotient");
        QTest::addColumn<QByteArray>("remainder");
        const auto row = [](const char *name, const char *dividend, const char *divisor, const char *quotient,
                            const char *remainder) {
            QTest::newRow(name) << QByteArray(dividend) << QByteArray(divisor) << QByteArray(quotient)
                                << QByteArray(remainder);
        };
        row("both positive", "7", "2", "1:3", "1:1");
        row("negative dividend", "-7", "2", "70:-3", "70:-1");
        row("negative divisor", "7", "-2", "70:-3", "1:1");
        row("both negative", "-7", "-2", "1:3", "70:-1");
        row("smaller dividend", "3", "5", "1:0", "1:3");
        row("smaller negative dividend", "-3", "5", "1:0", "70:-3");
        row("no remainder", "-6", "2", "70:-3", "1:0");
        row("zero", "0", "9", "1:0", "1:0");
        row("equal", "123456789abcdef01", "123456789abcdef01", "1:1", "1:0");
        row("one word, top word below it", "1ffffffff", "ffffffff", "1:2", "1:1");
        row("one word, top word at least it", "500000003", "5", "2:100000000", "1:3");
        row("several words", "-100000000000000000000000000000005", "10000000000000000",
            "70:-10000000000000000", "70:-5");
    }
    void dividesTowardsZero()
    {
        QFETCH(QByteArray, dividend);
        QFETCH(QByteArray, divisor);
        QTEST(image(hex(dividend).divide(hex(divisor))), "quotient");
        QTEST(image(hex(dividend).mod(hex(divisor))), "remainder");
    }

    void refusesDivisionByZero()
    {
        for (const BigInt &zero : {BigInt(), withLength(BigInt(), 0), withLength(BigInt(), 4)}) {
            for (const BigInt &dividend : {BigInt(), number(-1), mostPositive(), withLength(BigInt(), 0)}) {
                QCOMPARE(errorOf([&] { return dividend.divide(zero); }), divisionByZero);
                QCOMPARE(errorOf([&] { return dividend.mod(zero); }), divisionByZero);
            }
        }
    }

    void keepsTheNegationErrorOfTheMostNegativeOperand()
    {
        for (const BigInt &other : {number(1), number(-3), powerOfTwo(100), mostNegative(), BigInt()}) {
            QCOMPARE(errorOf([&] { return mostNegative().divide(other); }), negationOverflow);
            QCOMPARE(errorOf([&] { return mostNegative().mod(other); }), negationOverflow);
            QCOMPARE(errorOf([&] { return other.divide(mostNegative()); }), negationOverflow);
            QCOMPARE(errorOf([&] { return other.mod(mostNegative()); }), negationOverflow);
            QCOMPARE(errorOf([&] { return mostNegative().gcd(other); }), negationOverflow);
            QCOMPARE(errorOf([&] { return other.gcd(mostNegative()); }), negationOverflow);
        }
    }

    void leavesOperandsAsTheyAre()
    {
        const BigInt left = number(-123456789);
        const BigInt right = mostPositive();
        QCOMPARE(errorOf([&] { return left.add(right); }), "nothing raised");
        QCOMPARE(errorOf([&] { return right.subtract(left); }), sumOverflow);
        QCOMPARE(errorOf([&] { return right.multiply(left); }), storeOverflow);
        QCOMPARE(image(left.multiply(left)), "2:3626229738a3b9");
        QCOMPARE(image(left), "70:-75bcd15");
        QCOMPARE(image(right), image(mostPositive()));
    }

    void findsTheGreatestCommonDivisor()
    {
        QCOMPARE(image(number(12).gcd(number(18))), "1:6");
        QCOMPARE(image(number(-12).gcd(number(18))), "1:6");
        QCOMPARE(image(number(12).gcd(number(-18))), "1:6");
        QCOMPARE(image(BigInt().gcd(number(-9))), "1:9");
        QCOMPARE(image(number(-9).gcd(BigInt())), "1:9");
        QCOMPARE(image(BigInt().gcd(BigInt())), "1:0");
        QCOMPARE(image(withLength(BigInt(), 0).gcd(number(4))), "1:4");
        // On the way the remainder 2^32 of 2^60 by 2^32 is not below the divisor; it is taken once more.
        QCOMPARE(image(powerOfTwo(32).gcd(powerOfTwo(60))), "2:100000000");
    }

    void findsSquareRoots_data()
    {
        QTest::addColumn<QByteArray>("square");
        QTest::addColumn<QByteArray>("root");
        QTest::newRow("1") << QByteArray("1") << QByteArray("1:1");
        QTest::newRow("3") << QByteArray("3") << QByteArray("1:1");
        QTest::newRow("4") << QByteArray("4") << QByteArray("1:2");
        QTest::newRow("a word filled") << QByteArray("fffffffe00000001") << QByteArray("1:ffffffff");
        QTest::newRow("below it") << QByteArray("fffffffe00000000") << QByteArray("1:fffffffe");
        QTest::newRow("two words begin") << QByteArray("10000000000000000") << QByteArray("2:100000000");
        QTest::newRow("below two words") << QByteArray("ffffffffffffffff") << QByteArray("1:ffffffff");
    }
    void findsSquareRoots()
    {
        QFETCH(QByteArray, square);
        QTEST(image(hex(square).sqrt()), "root");
    }

    void keepsTheRootOfZeroAtLengthZero()
    {
        BigInt root = BigInt().sqrt();
        QCOMPARE(image(root), "0:0");
        QVERIFY(!root.equals(BigInt()));
        QVERIFY(!root.lessThanOrEqualTo(BigInt()));
        QCOMPARE(image(root.multiply(root)), "0:0");
        QCOMPARE(image(root.mod(number(5))), "0:0");
        QCOMPARE(image(root.shiftLeft(3)), "0:0");
        QCOMPARE(root.bitCount(), 0);
    }

    void keepsTheLengthsOfShortZeros()
    {
        const BigInt none = withLength(BigInt(), 0);
        const BigInt less = withLength(BigInt(), -3);
        const BigInt seven = number(7);
        // These pass the length on, ...
        QCOMPARE(image(none.add(less)), "0:0");
        QCOMPARE(image(less.subtract(less)), "-3:0");
        QCOMPARE(image(none.multiply(none)), "0:0");
        QCOMPARE(image(less.multiply(seven)), "-2:0");
        QCOMPARE(image(less.mod(seven)), "-3:0");
        QCOMPARE(image(none.abs()), "0:0");
        QCOMPARE(image(none.gcd(none)), "0:0");
        QCOMPARE(image(none.shiftLeft(3)), "0:0");
        QCOMPARE(image(less.shiftRight(3)), "-3:0");
        QCOMPARE(image(BigInt::createFromBigInt(less)), "-3:0");
        BigInt quotient;
        BigInt remainder;
        BigInt::singleByteDivideBi2OutQuotientOutRemainder(less, seven, quotient, remainder);
        QCOMPARE(image(quotient) + ' ' + image(remainder), "1:0 -3:0");
        // ... these do not.
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(less, powerOfTwo(40), quotient, remainder);
        QCOMPARE(image(quotient) + ' ' + image(remainder), "1:0 1:0");
        for (const BigInt &zero : {none, less}) {
            for (const BigInt &result : {zero.divide(seven), zero.negate(), zero.and_(zero), zero.or_(zero),
                                         zero.xOr(zero), zero.add(BigInt()), BigInt().mod(seven)})
                QCOMPARE(image(result), "1:0");
            QCOMPARE(image(zero.not_()), "70:-1");
            QCOMPARE(image(zero.add(seven)), "1:7");
            QCOMPARE(zero.toStringWithRadix(10), QStringLiteral("0"));
        }
    }

    void keepsTheOverflowOfTheTrialSquare()
    {
        // 2^1118.5 and down: no trial goes past 2^1119, whose square is 2^2238.
        BigInt below = powerOfTwo(2238).subtract(number(1));
        BigInt root = below.sqrt();
        QVERIFY(root.multiply(root).lessThanOrEqualTo(below));
        QCOMPARE(root.bitCount(), 1119);
        // From 2^2238 up 2^1119 holds, and (2^1119 + 2^1118)^2 = 9 * 2^2236 is past 2^2239.
        QCOMPARE(errorOf([] { return powerOfTwo(2238).sqrt(); }), productOverflow);
        QCOMPARE(errorOf([] { return mostPositive().sqrt(); }), productOverflow);
    }
};

DRAVOLIN_TEST(TestBigIntArithmetic)
#include "tst_bigintarithmetic.moc"
