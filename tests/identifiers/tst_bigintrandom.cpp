#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;

namespace {

[[nodiscard]] BigInt randomBits(qint32 bits, RandomSource &source)
{
    BigInt value = BigInt::createFromInt(-5);
    value.getRandomBits(bits, source);
    return value;
}

} // namespace

class TestBigIntRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWordsInTheLowerPartOfTheirRange()
    {
        // (r + 1) mod 2^32, divided by 10^10 and times 2^32: 0.4 for 1, 1.3 for 3, 922337203.7 for 2^31 and
        // at most 1844674406.9; the largest r wraps to 0.
        ScriptedSource source({0, 2, 0x7FFFFFFF, 0xFFFFFFFE, 0xFFFFFFFF, 0});
        QCOMPARE(image(randomBits(192, source)), "6:80000000000000006df37f6636f9bfb30000000100000000");
        QCOMPARE(source.left(), 0);
    }

    void setsTheTopBit_data()
    {
        QTest::addColumn<qint32>("bits");
        QTest::addColumn<QByteArray>("expected");
        // Every word is 1844674406 = 6df37f66 before the top one is cut.
        QTest::newRow("0 bits") << 0 << QByteArray("1:0");
        QTest::newRow("1 bit") << 1 << QByteArray("1:1");
        QTest::newRow("2 bits") << 2 << QByteArray("1:2");
        QTest::newRow("5 bits") << 5 << QByteArray("1:16");
        QTest::newRow("31 bits") << 31 << QByteArray("1:6df37f66");
        QTest::newRow("32 bits") << 32 << QByteArray("1:edf37f66");
        QTest::newRow("33 bits") << 33 << QByteArray("2:16df37f66");
        QTest::newRow("64 bits") << 64 << QByteArray("2:edf37f666df37f66");
    }
    void setsTheTopBit()
    {
        QFETCH(qint32, bits);
        ScriptedSource source({0xFFFFFFFE, 0xFFFFFFFE});
        QTEST(image(randomBits(bits, source)), "expected");
    }

    void hasExactlyTheBitsAskedFor()
    {
        SeededSource source(3);
        for (qint32 bits = 0; bits <= 2239; ++bits) {
            BigInt value = randomBits(bits, source);
            QCOMPARE(value.dataLength(), std::max((bits + 31) / 32, 1));
            for (qint32 word = 0; word + 1 < value.dataLength(); ++word)
                QVERIFY(value.getDataAtIndex(word) < 1844674407U);
            QCOMPARE(value.bitCount(), bits);
        }
    }

    void keepsValuesOfAllBitsNegative()
    {
        SeededSource source(4);
        const BigInt value = randomBits(2240, source);
        QCOMPARE(value.dataLength(), 70);
        QVERIFY(value.lessThan(BigInt()));
    }

    void refusesOtherCounts()
    {
        const QByteArray error = "ArithmeticException / Number of required bits > maxLength.";
        for (const qint32 bits : {2241, 2272, 2147483647, -1, -31, -32, -2147483647 - 1}) {
            BigInt value = BigInt::createFromInt(-5);
            SeededSource source(5);
            QCOMPARE(errorOf([&] { value.getRandomBits(bits, source); }), error);
            QCOMPARE(image(value), "70:-5");
        }
    }

    void drawsFromThePlatformByDefault()
    {
        BigInt first;
        BigInt second;
        first.getRandomBits(1024);
        second.getRandomBits(1024);
        QCOMPARE(first.bitCount(), 1024);
        QVERIFY(!first.equals(second));
    }
};

DRAVOLIN_TEST(TestBigIntRandom)
#include "tst_bigintrandom.moc"
