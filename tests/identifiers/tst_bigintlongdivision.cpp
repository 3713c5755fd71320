#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

// The branches of the division by two words and more. Below, an estimate is the quotient of the two highest
// words of the running remainder and the divisor's highest word, after both were shifted up until its top
// bit is set; b is 2^32 and L = 2^28 the limit.
class TestBigIntLongDivision : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesEveryBranchOfATextbookDigit_data()
    {
        addColumns();
        row("exact estimate", "100000003", "100000002", "1:1", "1:1");
        // 2 * v = 200000002: the second words show the estimate 2 too high by one.
        row("second word lowers the estimate", "200000000", "100000001", "1:1", "1:ffffffff");
        // v = 1 00000002 00000003: the first two words agree with an estimate of 2, the third does not.
        row("product alone lowers the estimate", "20000000400000005", "10000000200000003", "1:1",
            "3:10000000200000002");
        // The estimate is b - 1, the digit b - 3: one step by the second word, one by the product.
        row("second word and product lower it", "1fffffffe80000000", "200000003", "1:fffffffd",
            "2:180000009");
        row("divisor with its top bit set", "ffffffffffffffff0000000000000000", "ffffffffffffffff",
            "3:10000000000000000", "1:0");
        row("divisor shifted by 31", "70000000000000000", "100000000", "2:700000000", "1:0");
        row("zero digits around one", "300000000000000000000000600000000", "300000000000000000000",
            "2:1000000000000", "2:600000000");
    }
    void takesEveryBranchOfATextbookDigit() { checkRow(); }

    void takesDigitsWhoseEstimateReachesTheBase_data()
    {
        addColumns();
        // Estimate b, digit b - 1: the running remainder begins with the divisor's first word.
        row("estimate b, lowered by the second word", "17ffffffe40000000", "17fffffff", "1:ffffffff",
            "1:bfffffff");
        row("estimate b, lowered by the product", "1100000007ffffffeffffffff", "1100000007fffffff",
            "1:ffffffff", "3:1100000007ffffffe");
        row("estimate b, lowered by both", "2fffffffc00000000", "2ffffffff", "1:fffffffe", "2:2fffffffe");
        row("estimate b + 1", "200000002ffffffff", "200000003", "1:ffffffff", "2:200000002");
    }
    void takesDigitsWhoseEstimateReachesTheBase() { checkRow(); }

    void keepsTheLimitOfTheEstimate_data()
    {
        addColumns();
        // Estimate and digit are both L: the digit becomes L - 1 and the divisor stays in the remainder once.
        row("2^60 / 2^32", "1000000000000000", "100000000", "1:fffffff", "2:100000000");
        // L * 180000001 = 1800000010000000, and 1 remains: 180000001 + 1.
        row("remainder beside the divisor", "1800000010000001", "180000001", "1:fffffff", "2:180000002");
        // (L - 1) * v + (v - 1): the estimate is L, the digit already L - 1.
        row("estimate at the limit, digit below", "180000000fffffff", "180000001", "1:fffffff",
            "2:180000000");
        // L + 1 is past the limit and comes out whole: (L + 1) * 2^32 + 5.
        row("one above the limit", "1000000100000005", "100000000", "1:10000001", "1:5");
        row("one below the limit", "fffffff00000005", "100000000", "1:fffffff", "1:5");
        // Division by one word has no limit.
        row("one word divisor", "20000000", "2", "1:10000000", "1:0");
    }
    void keepsTheLimitOfTheEstimate() { checkRow(); }

    void keepsTheLowWordOfADigitThatPassesTheBase_data()
    {
        addColumns();
        // L comes out as L - 1, so the next digit is b + 0 and its low word 0 is stored: (L - 1) * b^2.
        row("2^128 / 2^36", "100000000000000000000000000000000", "1000000000", "3:fffffff0000000000000000",
            "1:0");
        // In each of the following the first digit is L and comes out as L - 1, which leaves the divisor's
        // worth of b to the second. Estimate and digit 160000000: its low word is stored.
        row("digit past the base", "100000008000000110000000", "100000002", "2:fffffff60000000",
            "1:50000000");
        // Estimate 150000000, digit 14fffffff.
        row("lowered by the second word", "100000008000000080000001", "100000003", "2:fffffff4fffffff",
            "1:90000004");
        // Estimate 100000002, digit 100000001.
        row("lowered by the product", "10000000280000021000000500000000", "10000000280000001",
            "2:fffffff00000001", "3:1000000027fffffff");
        // Estimate 170000000, digit 16ffffffe.
        row("lowered by both", "100000007fffffff00000001", "100000001", "2:fffffff6ffffffe", "1:90000003");
        // Estimate 110000003, by the second word 110000002, digit 110000000.
        row("lowered by the product twice", "10000001100000010000000effffffe", "10000000ffffffff",
            "2:fffffff10000000", "2:10000000fffffffe");
        // Estimate 1c0000000, by the second word 1bfffffff, digit 1bffffffc.
        row("lowered by the product thrice", "10000000ffffffff8000000100000003", "100000003fffffffe",
            "2:fffffffbffffffc", "2:a00000127ffffffb");
        // After L - 1 for L the estimate b + 1 is lowered to the digit b, of which 0 is stored.
        row("estimate past the base, digit on it", "18000000100000017fffffff", "180000001",
            "2:fffffff00000000", "2:17fffffff");
    }
    void keepsTheLowWordOfADigitThatPassesTheBase() { checkRow(); }

    void keepsAWordLeftAboveThePart_data()
    {
        addColumns();
        // (L - 1) * v + 2v - 1 with v = 180000000: the remainder 2ffffffff of a digit cut short is longer
        // than v once both are shifted by 31, and is all there when it is shifted back.
        row("last digit", "180000017fffffff", "180000000", "1:fffffff", "2:2ffffffff");
        // One digit further: the part begins below the word left, which therefore never goes away. The
        // remainder so far, shifted, is 1 7fffffff 80000000; with 00000000 brought down, the next digit
        // aaaaaaaa takes all of 7fffffff 80000000 00000000 = aaaaaaaa * c0000000 00000000. What stays is b^3,
        // shifted back by 31: 2^65.
        row("before another digit", "180000017fffffff00000000", "180000000", "2:fffffffaaaaaaaa",
            "3:20000000000000000");
    }
    void keepsAWordLeftAboveThePart() { checkRow(); }

    void dividesSeventyUnsignedWords()
    {
        BigInt quotient;
        BigInt remainder;
        // The words of -1 are 2^2240 - 1 = (2^1120 - 1) * (2^1120 + 1).
        const BigInt divisor = powerOfTwo(1120).add(BigInt::createFromInt(1));
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(BigInt::createFromInt(-1), divisor, quotient,
                                                          remainder);
        QCOMPARE(image(quotient), image(powerOfTwo(1120).subtract(BigInt::createFromInt(1))));
        QCOMPARE(image(remainder), "1:0");
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(BigInt::createFromInt(-1), mostNegative(), quotient,
                                                          remainder);
        QCOMPARE(image(quotient), "1:1");
        QCOMPARE(image(remainder), image(mostPositive()));
        BigInt::singleByteDivideBi2OutQuotientOutRemainder(mostNegative(), BigInt::createFromInt(1), quotient,
                                                           remainder);
        QCOMPARE(image(quotient), image(mostNegative()));
        QCOMPARE(image(remainder), "1:0");
    }

    void fillsItsOperands()
    {
        BigInt dividend = hex("500000000000000000000000d");
        BigInt divisor = hex("10000000000000000");
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(dividend, divisor, dividend, divisor);
        QCOMPARE(image(dividend), "2:500000000");
        QCOMPARE(image(divisor), "1:d");
        dividend = hex("500000007");
        divisor = hex("5");
        BigInt::singleByteDivideBi2OutQuotientOutRemainder(dividend, divisor, divisor, dividend);
        QCOMPARE(image(divisor), "2:100000001");
        QCOMPARE(image(dividend), "1:2");
    }

    void takesDirectCallsOutsideTheDomainOfDivide()
    {
        BigInt quotient;
        BigInt remainder;
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(hex("5"), hex("100000000"), quotient, remainder);
        QCOMPARE(image(quotient), "1:0");
        QCOMPARE(image(remainder), "1:5");
        BigInt::multiByteDivideBi2OutQuotientOutRemainder(hex("100000005"), withLength(hex("7"), 3), quotient,
                                                          remainder);
        QCOMPARE(image(quotient), "1:24924925");
        QCOMPARE(image(remainder), "1:2");
        const QByteArray error = "ArithmeticException / Division by zero.";
        QCOMPARE(errorOf([&] {
                     BigInt::multiByteDivideBi2OutQuotientOutRemainder(hex("5"), BigInt(), quotient,
                                                                       remainder);
                 }),
                 error);
        QCOMPARE(errorOf([&] {
                     BigInt::singleByteDivideBi2OutQuotientOutRemainder(hex("5"), BigInt(), quotient,
                                                                        remainder);
                 }),
                 error);
    }

private:
    static void addColumns()
    {
        QTest::addColumn<QByteArray>("dividend");
        QTest::addColumn<QByteArray>("divisor");
        QTest::addColumn<QByteArray>("quotient");
        QTest::addColumn<QByteArray>("remainder");
    }

    static void row(const char *name, const char *dividend, const char *divisor, const char *quotient,
                    const char *remainder)
    {
        QTest::newRow(name) << QByteArray(dividend) << QByteArray(divisor) << QByteArray(quotient)
                            << QByteArray(remainder);
    }

    static void checkRow()
    {
        QFETCH(QByteArray, dividend);
        QFETCH(QByteArray, divisor);
        QTEST(image(hex(dividend).divide(hex(divisor))), "quotient");
        QTEST(image(hex(dividend).mod(hex(divisor))), "remainder");
    }
};

DRAVOLIN_TEST(TestBigIntLongDivision)
#include "tst_bigintlongdivision.moc"
