#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

#include <array>

using namespace dravolin;
using namespace dravolin::test;

namespace {

[[nodiscard]] BigInt number(qint64 value)
{
    return BigInt::createFromLong(value);
}

} // namespace

class TestBigIntLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void combinesAllWords()
    {
        QCOMPARE(image(BigInt().not_()), "70:-1");
        QCOMPARE(image(number(-1).not_()), "1:0");
        QCOMPARE(image(number(5).not_()), "70:-6");
        QCOMPARE(image(hex("f0f0f0f0f").and_(hex("ffffffff"))), "1:f0f0f0f");
        QCOMPARE(image(hex("f00000000").or_(number(1))), "2:f00000001");
        QCOMPARE(image(hex("f00000001").xOr(hex("f00000000"))), "1:1");
        QCOMPARE(image(number(-1).and_(hex("123456789"))), "2:123456789");
        QCOMPARE(image(number(-8).or_(number(3))), "70:-5");
        QCOMPARE(image(number(-8).xOr(number(-1))), "1:7");
        QCOMPARE(image(hex("100000000").and_(number(1))), "1:0");
    }

    void keepsLeftShiftsWithinTheLength_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<qint32>("bits");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("room in the word") << QByteArray("3") << 1 << QByteArray("1:6");
        QTest::newRow("a whole word") << QByteArray("1") << 32 << QByteArray("1:0");
        QTest::newRow("top bit") << QByteArray("80000000") << 1 << QByteArray("1:0");
        QTest::newRow("more than the length") << QByteArray("123456789") << 2000000000 << QByteArray("1:0");
        QTest::newRow("between words") << QByteArray("1ffffffff") << 4 << QByteArray("2:1ffffffff0");
        QTest::newRow("word by word")
            << QByteArray("123456789abcdef") << 32 << QByteArray("2:89abcdef00000000");
        QTest::newRow("lower word only")
            << QByteArray("10000000000000001") << 36 << QByteArray("2:1000000000");
        QTest::newRow("by 31") << QByteArray("300000003") << 31 << QByteArray("2:8000000180000000");
        QTest::newRow("by 0") << QByteArray("5") << 0 << QByteArray("1:5");
        QTest::newRow("by less than 0") << QByteArray("5") << -1 << QByteArray("1:5");
        QTest::newRow("negative") << QByteArray("-3") << 1 << QByteArray("70:-6");
        QTest::newRow("negative, all out") << QByteArray("-1") << 2240 << QByteArray("1:0");
    }
    void keepsLeftShiftsWithinTheLength()
    {
        QFETCH(QByteArray, value);
        QFETCH(qint32, bits);
        QTEST(image(hex(value).shiftLeft(bits)), "expected");
    }

    void shiftsRight_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<qint32>("bits");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("within a word") << QByteArray("c") << 2 << QByteArray("1:3");
        QTest::newRow("between words") << QByteArray("300000000") << 1 << QByteArray("2:180000000");
        QTest::newRow("a whole word") << QByteArray("300000005") << 32 << QByteArray("1:3");
        QTest::newRow("by 33") << QByteArray("700000005") << 33 << QByteArray("1:3");
        QTest::newRow("all out") << QByteArray("700000005") << 35 << QByteArray("1:0");
        QTest::newRow("more than the length") << QByteArray("700000005") << 2000000000 << QByteArray("1:0");
        QTest::newRow("by 0") << QByteArray("5") << 0 << QByteArray("1:5");
        QTest::newRow("by less than 0") << QByteArray("-5") << -31 << QByteArray("70:-5");
    }
    void shiftsRight()
    {
        QFETCH(QByteArray, value);
        QFETCH(qint32, bits);
        QTEST(image(hex(value).shiftRight(bits)), "expected");
    }

    void keepsRightShiftsOfNegativeValuesLogical()
    {
        // (2^2240 - 8) / 2 = 2^2239 - 4
        QCOMPARE(image(number(-8).shiftRight(1)), image(mostPositive().subtract(number(3))));
        QCOMPARE(image(number(-1).shiftRight(2239)), "1:1");
    }

    void trimsWhenNothingIsShifted()
    {
        QCOMPARE(image(withLength(number(5), 3).shiftLeft(0)), "1:5");
        QCOMPARE(image(withLength(number(5), 3).shiftRight(-1)), "1:5");
        // The room of an untrimmed value is its length.
        QCOMPARE(image(withLength(number(5), 3).shiftLeft(64)), "3:50000000000000000");
    }

    void shiftsWordsInTheirBuffer()
    {
        std::array<quint32, 4> words{0x80000001U, 0, 0, 7};
        QCOMPARE(BigInt::shiftLeftWithSizeOfBits(words.data(), 3, 33), 3);
        QCOMPARE(words, (std::array<quint32, 4>{0, 2, 1, 7}));
        QCOMPARE(BigInt::shiftLeftWithSizeOfBits(words.data(), 3, 31), 3);
        QCOMPARE(words, (std::array<quint32, 4>{0, 0, 0x80000001U, 7}));
        QCOMPARE(BigInt::shiftRightWithSizeOfBits(words.data(), 3, 64), 1);
        QCOMPARE(words, (std::array<quint32, 4>{0x80000001U, 0, 0, 7}));
        QCOMPARE(BigInt::shiftRightWithSizeOfBits(words.data(), 3, 1), 1);
        QCOMPARE(words, (std::array<quint32, 4>{0x40000000U, 0, 0, 7}));
    }

    void returnsTheTrimmedLengthOfShiftedWords()
    {
        std::array<quint32, 3> words{1, 2, 0};
        QCOMPARE(BigInt::shiftLeftWithSizeOfBits(words.data(), 3, 0), 2);
        QCOMPARE(BigInt::shiftRightWithSizeOfBits(words.data(), 3, -4), 2);
        // A carry out of the highest word in use stays when the buffer has room for it and is lost when not.
        QCOMPARE(BigInt::shiftLeftWithSizeOfBits(words.data(), 3, 31), 3);
        QCOMPARE(words, (std::array<quint32, 3>{0x80000000U, 0, 1}));
        QCOMPARE(BigInt::shiftLeftWithSizeOfBits(words.data(), 3, 32), 2);
        QCOMPARE(words, (std::array<quint32, 3>{0, 0x80000000U, 0}));
        QCOMPARE(BigInt::shiftLeftWithSizeOfBits(words.data(), 2, 64), 1);
        QCOMPARE(BigInt::shiftRightWithSizeOfBits(words.data(), 0, 5), 0);
    }

    void tellsSignAndParity_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("isNegative");
        QTest::addColumn<bool>("isZero");
        QTest::addColumn<bool>("isOne");
        QTest::addColumn<bool>("isEven");
        QTest::newRow("zero") << QByteArray("0") << false << true << false << true;
        QTest::newRow("one") << QByteArray("1") << false << false << true << false;
        QTest::newRow("two") << QByteArray("2") << false << false << false << true;
        QTest::newRow("minus one") << QByteArray("-1") << true << false << false << false;
        QTest::newRow("minus two") << QByteArray("-2") << true << false << false << true;
        QTest::newRow("2^32") << QByteArray("100000000") << false << false << false << true;
        QTest::newRow("2^32 + 1") << QByteArray("100000001") << false << false << false << false;
    }
    void tellsSignAndParity()
    {
        QFETCH(QByteArray, value);
        QTEST(hex(value).isNegative(), "isNegative");
        QTEST(hex(value).isZero(), "isZero");
        QTEST(hex(value).isOne(), "isOne");
        QTEST(hex(value).isEven(), "isEven");
    }

    void tellsSignAndParityOfOtherLengths()
    {
        for (const qint32 length : {-3, 0, 5, 70})
            QVERIFY(withLength(BigInt(), length).isZero());
        QVERIFY(!withLength(powerOfTwo(100), 70).isZero());
        QVERIFY(!withLength(number(1), 2).isOne());
        QVERIFY(mostNegative().isNegative());
        QVERIFY(!mostPositive().isNegative());
    }

    void countsBits()
    {
        QCOMPARE(BigInt().bitCount(), 0);
        QCOMPARE(number(1).bitCount(), 1);
        QCOMPARE(hex("80000000").bitCount(), 32);
        QCOMPARE(powerOfTwo(32).bitCount(), 33);
        QCOMPARE(mostPositive().bitCount(), 2239);
        QCOMPARE(number(-1).bitCount(), 2240);
        QCOMPARE(mostNegative().bitCount(), 2240);
    }

    void keepsTrimmingWhatIsCounted()
    {
        BigInt counted = withLength(number(5), 40);
        QCOMPARE(counted.bitCount(), 3);
        QCOMPARE(counted.dataLength(), 1);
        BigInt square = withLength(number(9), 40);
        QCOMPARE(image(square.sqrt()), "1:3");
        QCOMPARE(square.dataLength(), 1);
        BigInt exponent = withLength(number(3), 40);
        QCOMPARE(image(number(2).modPowWithMod(exponent, number(5))), "1:3");
        QCOMPARE(exponent.dataLength(), 1);
        // No other operation does.
        const BigInt other = withLength(number(7), 40);
        QCOMPARE(image(other.add(other).subtract(other).gcd(other)), "1:7");
        QCOMPARE(other.dataLength(), 40);
    }

    void compares_data()
    {
        QTest::addColumn<QByteArray>("left");
        QTest::addColumn<QByteArray>("right");
        QTest::addColumn<int>("order");
        QTest::newRow("equal") << QByteArray("123456789a") << QByteArray("123456789a") << 0;
        QTest::newRow("equal, negative") << QByteArray("-5") << QByteArray("-5") << 0;
        QTest::newRow("low word") << QByteArray("1200000001") << QByteArray("1200000002") << -1;
        QTest::newRow("high word") << QByteArray("1300000001") << QByteArray("1200000002") << 1;
        QTest::newRow("longer") << QByteArray("100000000") << QByteArray("ffffffff") << 1;
        QTest::newRow("negative and zero") << QByteArray("-1") << QByteArray("0") << -1;
        QTest::newRow("negative and large") << QByteArray("-ffffffffff") << QByteArray("1") << -1;
        QTest::newRow("both negative") << QByteArray("-2") << QByteArray("-1") << -1;
    }
    void compares()
    {
        QFETCH(QByteArray, left);
        QFETCH(QByteArray, right);
        QFETCH(int, order);
        checkOrder(hex(left), hex(right), order);
        checkOrder(hex(right), hex(left), -order);
    }

    void comparesTheEndsOfTheRange()
    {
        checkOrder(mostNegative(), mostPositive(), -1);
        checkOrder(mostNegative(), number(-1), -1);
        checkOrder(mostPositive(), number(0), 1);
    }

    void keepsValuesOfDifferentLengthUnequal()
    {
        const BigInt longer = withLength(number(5), 2);
        QVERIFY(!longer.equals(number(5)));
        QVERIFY(!longer.greaterThan(number(5)));
        QVERIFY(!longer.lessThan(number(5)));
        QVERIFY(!longer.greaterThanOrEqualTo(number(5)));
    }

private:
    static void checkOrder(const BigInt &left, const BigInt &right, int order)
    {
        QCOMPARE(left.equals(right), order == 0);
        QCOMPARE(left.lessThan(right), order < 0);
        QCOMPARE(left.greaterThan(right), order > 0);
        QCOMPARE(left.lessThanOrEqualTo(right), order <= 0);
        QCOMPARE(left.greaterThanOrEqualTo(right), order >= 0);
    }
};

DRAVOLIN_TEST(TestBigIntLogic)
#include "tst_bigintlogic.moc"
