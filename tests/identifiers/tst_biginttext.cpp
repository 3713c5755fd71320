#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

using namespace dravolin;
using namespace dravolin::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray invalid = "ArithmeticException / Invalid string in constructor.";
const QByteArray underflow = "ArithmeticException / Negative underflow in constructor.";

} // namespace

class TestBigIntText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void convertsAUuidToDecimal()
    {
        const QString decimal = u"340282366920938463463374607431768211455"_s; // 2^128 - 1
        QCOMPARE(BigInt::createFromStringAndRadix(QString(32, QLatin1Char('F')), 16).toStringWithRadix(10),
                 decimal);
        QCOMPARE(BigInt::createFromStringAndRadix(QString(32, QLatin1Char('f')), 16).toStringWithRadix(10),
                 decimal);
    }

    void readsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("radix");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("zero") << "0" << 10 << QByteArray("1:0");
        QTest::newRow("leading zeros") << "000ff" << 16 << QByteArray("1:ff");
        QTest::newRow("negative") << "-1234567890123456789" << 10 << QByteArray("70:-112210f47de98115");
        QTest::newRow("binary") << "100000000000000000000000000000000" << 2 << QByteArray("2:100000000");
        QTest::newRow("largest digit of all") << "Zz" << 36 << QByteArray("1:50f"); // 35 * 36 + 35
        QTest::newRow("only zero in radix 1") << "000" << 1 << QByteArray("1:0");
    }
    void readsText()
    {
        QFETCH(QString, text);
        QFETCH(qint32, radix);
        QFETCH(QByteArray, expected);
        QCOMPARE(image(BigInt::initWithStringAndRadix(text, radix)), expected);
        QCOMPARE(image(BigInt::createFromStringAndRadix(text, radix)), expected);
    }

    void refusesText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("radix");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("empty") << "" << 10 << invalid;
        QTest::newRow("minus alone") << "-" << 10 << underflow;
        QTest::newRow("minus zero") << "-0" << 10 << underflow;
        QTest::newRow("minus zero, hexadecimal") << "-000" << 16 << underflow;
        QTest::newRow("letter past the radix") << "1G" << 16 << invalid;
        QTest::newRow("minus inside") << "1-2" << 16 << invalid;
        QTest::newRow("two minus signs") << "--2" << 16 << invalid;
        QTest::newRow("plus") << "+2" << 10 << invalid;
        QTest::newRow("space") << " 2" << 10 << invalid;
        QTest::newRow("between the digits and the letters") << "1:2" << 36 << invalid;
        QTest::newRow("before A") << "@" << 36 << invalid;
        QTest::newRow("after Z") << "[" << 36 << invalid;
        QTest::newRow("other digits") << QString(QChar(0x0663)) << 10 << invalid;
        QTest::newRow("radix 0") << "0" << 0 << invalid;
        QTest::newRow("negative radix") << "0" << -2 << invalid;
        // 8 * 16^559 = 2^2239 itself is a product too large, however small the rest of the text is.
        QTest::newRow("2^2239") << (u"8"_s + QString(559, u'0')) << 16
                                << QByteArray("ArithmeticException / overflow.");
        // The place value of the 561st character is 2^2240.
        QTest::newRow("one digit too many")
            << (QString(561, u'1')) << 16 << QByteArray("ArithmeticException / Multiplication overflow.");
    }
    void refusesText()
    {
        QFETCH(QString, text);
        QFETCH(qint32, radix);
        QFETCH(QByteArray, expected);
        QCOMPARE(errorOf([&] { return BigInt::createFromStringAndRadix(text, radix); }), expected);
    }

    void readsUpToBothEndsOfTheRange()
    {
        const QString largest = u"7"_s + QString(559, u'F');
        QCOMPARE(image(BigInt::createFromStringAndRadix(largest, 16)), image(mostPositive()));
        const QString smallest = u"-8"_s + QString(559, u'0');
        QCOMPARE(image(BigInt::createFromStringAndRadix(smallest, 16)), image(mostNegative()));
        // One below: the last digit makes the product -2^2239, and the sum of both terms is out of range.
        const QString belowSmallest = u"-8"_s + QString(558, u'0') + u"1"_s;
        QCOMPARE(errorOf([&] { return BigInt::createFromStringAndRadix(belowSmallest, 16); }),
                 "ArithmeticException / Overflow");
    }

    void keepsReadingFromTheRight()
    {
        // The place value of the 562nd character from the right, 16^561, does not fit; the "G" left of it is
        // not seen.
        QCOMPARE(errorOf([] { return BigInt::createFromStringAndRadix(u"G"_s + QString(600, u'1'), 16); }),
                 "ArithmeticException / Multiplication overflow.");
        // To the right of the overflow it is.
        QCOMPARE(errorOf([] { return BigInt::createFromStringAndRadix(QString(600, u'1') + u"G"_s, 16); }),
                 invalid);
    }

    void keepsCountingLeadingZerosForThePlaceValue()
    {
        // The place value of the 560th character is 16^559 = 2^2236, that of the 561st 2^2240.
        QCOMPARE(image(BigInt::createFromStringAndRadix(QString(559, u'0') + u"1"_s, 16)), "1:1");
        QCOMPARE(errorOf([] { return BigInt::createFromStringAndRadix(QString(560, u'0') + u"1"_s, 16); }),
                 "ArithmeticException / Multiplication overflow.");
        // 8^746 = 2^2238 fits, 8^747 = 2^2241 does not; 2^2239 is the one product between both errors.
        QCOMPARE(image(BigInt::createFromStringAndRadix(QString(746, u'0') + u"1"_s, 8)), "1:1");
        QCOMPARE(errorOf([] { return BigInt::createFromStringAndRadix(QString(2239, u'0') + u"1"_s, 2); }),
                 "ArithmeticException / overflow.");
    }

    void readsTheLongestTexts_data()
    {
        QTest::addColumn<qint32>("radix");
        for (const qint32 radix : {3, 7, 10, 16, 31, 36})
            QTest::addRow("radix %d", radix) << radix;
    }
    void readsTheLongestTexts()
    {
        QFETCH(qint32, radix);
        const QString largest = mostPositive().toStringWithRadix(radix);
        const QString smallest = mostNegative().toStringWithRadix(radix);
        QCOMPARE(image(BigInt::createFromStringAndRadix(largest, radix)), image(mostPositive()));
        QCOMPARE(image(BigInt::createFromStringAndRadix(smallest, radix)), image(mostNegative()));
        // A wrong character anywhere, and a digit too many.
        for (qsizetype i = 0; i < largest.size(); ++i) {
            QString wrong = largest;
            wrong[i] = u'$';
            QCOMPARE(errorOf([&] { return BigInt::createFromStringAndRadix(wrong, radix); }), invalid);
        }
        QVERIFY(errorOf([&] { return BigInt::createFromStringAndRadix(largest + u'0', radix); }) !=
                "nothing raised");
    }

    void keepsRefusingTheBinaryTextOfTheSmallestValue()
    {
        // The place value of its "1" is 2^2239, which the sign comes too late for.
        QCOMPARE(
            errorOf([] { return BigInt::createFromStringAndRadix(mostNegative().toStringWithRadix(2), 2); }),
            "ArithmeticException / overflow.");
        QCOMPARE(image(BigInt::createFromStringAndRadix(mostPositive().toStringWithRadix(2), 2)),
                 image(mostPositive()));
    }

    void keepsTheRadixOfTheTextUnchecked()
    {
        QCOMPARE(image(BigInt::createFromStringAndRadix(u"Z1"_s, 40)), "1:579"); // 35 * 40 + 1
        // Any character that is no digit counts 9999999, which is a digit of radix 10000000: 9999999 * 10^7
        // + 3.
        QCOMPARE(image(BigInt::createFromStringAndRadix(u"!3"_s, 10000000)), "2:5af30fe1a983");
    }

    void keepsUpperCasingTheWholeText()
    {
        // The upper case of one sharp s is SS: 28 * 36 + 28.
        QCOMPARE(image(BigInt::createFromStringAndRadix(QString(QChar(0xDF)), 36)), "1:40c");
    }

    void writesText_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<qint32>("radix");
        QTest::addColumn<QString>("expected");
        QTest::newRow("zero") << QByteArray("0") << 2 << "0";
        QTest::newRow("largest digit") << QByteArray("23") << 36 << "Z";
        QTest::newRow("minus one") << QByteArray("-1") << 10 << "-1";
        QTest::newRow("power of the radix that fills a word") << QByteArray("3b9aca00") << 10 << "1000000000";
        QTest::newRow("one below it") << QByteArray("3b9ac9ff") << 10 << "999999999";
        QTest::newRow("zeros inside") << QByteArray("de0b6b3a7640000") << 10 << "1000000000000000000";
        QTest::newRow("zeros inside, five at the front")
            << QByteArray("de0b6b3a7640005") << 10 << "1000000000000000005";
        QTest::newRow("binary over words")
            << QByteArray("-100000001") << 2 << "-100000000000000000000000000000001";
        QTest::newRow("hexadecimal over words")
            << QByteArray("abcdef0000000012345678") << 16 << "ABCDEF0000000012345678";
    }
    void writesText()
    {
        QFETCH(QByteArray, value);
        QFETCH(qint32, radix);
        QFETCH(QString, expected);
        QCOMPARE(hex(value).toStringWithRadix(radix), expected);
    }

    void refusesOtherRadicesForWriting()
    {
        const QByteArray error = "ArgumentException / Radix must be >= 2 and <= 36";
        for (const qint32 radix : {37, 1, 0, -10}) {
            QCOMPARE(errorOf([=] { return BigInt::createFromInt(35).toStringWithRadix(radix); }), error);
            QCOMPARE(errorOf([=] { return BigInt().toStringWithRadix(radix); }), error);
        }
    }

    void keepsWritingTheMostNegativeValueFromItsOwnWords()
    {
        QCOMPARE(mostNegative().toStringWithRadix(16), u"-8"_s + QString(559, u'0'));
        QCOMPARE(mostNegative().toStringWithRadix(2), u"-1"_s + QString(2239, u'0'));
    }

    void writesTheLongestText() { QCOMPARE(mostPositive().toStringWithRadix(2), QString(2239, u'1')); }
};

DRAVOLIN_TEST(TestBigIntText)
#include "tst_biginttext.moc"
