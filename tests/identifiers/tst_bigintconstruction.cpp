#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

#include <limits>
#include <type_traits>

using namespace dravolin;
using namespace dravolin::test;

class TestBigIntConstruction : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainValueOfSeventyWords()
    {
        static_assert(std::is_trivially_copyable_v<BigInt>);
        static_assert(sizeof(BigInt) == (BigInt::maxLength + 1) * sizeof(quint32));
        static_assert(std::is_base_of_v<std::exception, BigIntError>);
        const BigIntError error("Name", "Reason");
        QCOMPARE(error.name(), "Name");
        QCOMPARE(error.reason(), "Reason");
        QCOMPARE(error.what(), "Reason");
    }

    void startsAtZero()
    {
        QCOMPARE(image(BigInt()), "1:0");
        QCOMPARE(image(BigInt::init()), "1:0");
        QCOMPARE(image(BigInt::create()), "1:0");
    }

    void takesSignedIntegers_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("zero") << qint64{0} << QByteArray("1:0");
        QTest::newRow("one") << qint64{1} << QByteArray("1:1");
        QTest::newRow("minus one fills every word") << qint64{-1} << QByteArray("70:-1");
        QTest::newRow("end of a word") << qint64{0xFFFFFFFF} << QByteArray("1:ffffffff");
        QTest::newRow("second word") << qint64{0x100000000} << QByteArray("2:100000000");
        QTest::newRow("negative, second word") << qint64{-0x100000000} << QByteArray("70:-100000000");
        QTest::newRow("largest") << std::numeric_limits<qint64>::max() << QByteArray("2:7fffffffffffffff");
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << QByteArray("70:-8000000000000000");
    }
    void takesSignedIntegers()
    {
        QFETCH(qint64, value);
        QFETCH(QByteArray, expected);
        QCOMPARE(image(BigInt::initWithLong(value)), expected);
        QCOMPARE(image(BigInt::createFromLong(value)), expected);
    }

    void extendsTheSignOfShortIntegers()
    {
        QCOMPARE(image(BigInt::initWithInt(-5)), "70:-5");
        QCOMPARE(image(BigInt::createFromInt(std::numeric_limits<qint32>::min())), "70:-80000000");
        QCOMPARE(image(BigInt::createFromInt(std::numeric_limits<qint32>::max())), "1:7fffffff");
        const BigInt minusOne = BigInt::createFromLong(-1);
        for (qint32 i = 0; i < BigInt::maxLength; ++i)
            QCOMPARE(minusOne.getDataAtIndex(i), 0xFFFFFFFFU);
    }

    void takesUnsignedIntegers()
    {
        QCOMPARE(image(BigInt::initWithULong(0)), "1:0");
        QCOMPARE(image(BigInt::initWithULong(std::numeric_limits<quint64>::max())), "2:ffffffffffffffff");
        QCOMPARE(image(BigInt::createFromULong(0x80000000)), "1:80000000");
    }

    void copiesTheWordsInUse()
    {
        BigInt value = hex("12345678abcdef0123456789");
        QCOMPARE(image(BigInt::createFromBigInt(value)), image(value));
        QCOMPARE(image(BigInt::initWithBigInt(BigInt::createFromInt(-3))), "70:-3");
        value.setDataLength(2);
        QCOMPARE(image(BigInt::createFromBigInt(value)), "2:abcdef0123456789");
    }

    void takesWordsFromTheMostSignificantOne()
    {
        const std::array<quint32, 4> words{0, 1, 2, 3};
        QCOMPARE(image(BigInt::initWithUIntArrayWithSize(words.data(), 4)), "3:10000000200000003");
        QCOMPARE(image(BigInt::initWithUIntArrayWithSize(words.data(), 1)), "1:0");
        std::array<quint32, 71> many{};
        many.front() = 0x80000000U;
        QCOMPARE(image(BigInt::initWithUIntArrayWithSize(many.data(), 70)), image(mostNegative()));
    }

    void keepsTheLengthOfAnEmptyWordArray()
    {
        QCOMPARE(image(BigInt::initWithUIntArrayWithSize(nullptr, 0)), "0:0");
        QCOMPARE(image(BigInt::initWithUIntArrayWithSize(nullptr, -3)), "-3:0");
    }

    void keepsTheNameOfTheErrorForTooManyWords()
    {
        const std::array<quint32, 71> words{};
        QCOMPARE(errorOf([&] { return BigInt::initWithUIntArrayWithSize(words.data(), 71); }),
                 "ArithmaticException / Byte overflow in constructor");
    }

    void givesAccessToWordsAndLength()
    {
        BigInt value;
        value.setDataAtIndex(7, 0);
        value.setDataAtIndex(9, 2);
        value.setDataLength(3);
        QCOMPARE(image(value), "3:90000000000000007");
        QCOMPARE(value.getDataAtIndex(2), 9U);
        value.getData()[1] = 8;
        QCOMPARE(image(value), "3:90000000800000007");
        QCOMPARE(std::as_const(value).getData()[1], 8U);
    }

    void readsWordZeroAsAnInteger()
    {
        QCOMPARE(BigInt::createFromInt(-77).intValue(), -77);
        QCOMPARE(hex("1ffffffff").intValue(), -1);
        QCOMPARE(hex("500000000").intValue(), 0);
    }

    void negates()
    {
        QCOMPARE(image(BigInt::createFromInt(5).negate()), "70:-5");
        QCOMPARE(image(BigInt::createFromLong(-0x100000000).negate()), "2:100000000");
        QCOMPARE(image(mostPositive().negate().negate()), image(mostPositive()));
        QCOMPARE(image(BigInt().negate()), "1:0");
        QCOMPARE(image(withLength(BigInt(), 5).negate()), "1:0");
        QCOMPARE(image(BigInt::createFromInt(-9).abs()), "1:9");
        QCOMPARE(image(BigInt::createFromInt(9).abs()), "1:9");
        QCOMPARE(errorOf([] { return mostNegative().negate(); }),
                 "ArithmeticException / Overflow in negation.");
        QCOMPARE(errorOf([] { return mostNegative().abs(); }), "ArithmeticException / Overflow in negation.");
    }

    void treatsALengthBelowOneAsZero()
    {
        QCOMPARE(image(withLength(BigInt::createFromInt(5), 0).negate()), "1:0");
        QCOMPARE(withLength(BigInt::createFromInt(5), 0).toStringWithRadix(10), QStringLiteral("0"));
        QCOMPARE(withLength(BigInt(), -3).toStringWithRadix(10), QStringLiteral("0"));
        QCOMPARE(image(withLength(BigInt(), 0).add(BigInt::createFromInt(5))), "1:5");
        QCOMPARE(image(withLength(BigInt(), 0).subtract(BigInt::createFromInt(5))), "70:-5");
        QCOMPARE(image(withLength(BigInt(), 0).multiply(BigInt::createFromInt(-5))), "1:0");
        QCOMPARE(image(withLength(BigInt(), 0).divide(BigInt::createFromInt(5))), "1:0");
    }
};

DRAVOLIN_TEST(TestBigIntConstruction)
#include "tst_bigintconstruction.moc"
