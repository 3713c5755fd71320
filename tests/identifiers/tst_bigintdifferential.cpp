#include "BigIntSupport.h"
#include "support/TestEntry.h"

#include <QTest>

#include <vector>

using namespace dravolin;
using namespace dravolin::test;

namespace {

constexpr int rounds = 5000;
constexpr quint32 limit = 0x10000000;

struct Division
{
    Reference quotient;
    Reference remainder;
};

// Long division with digits of 32 bits, but a digit of 2^28 that is estimated as such becomes 2^28 - 1, and
// a digit only sees the words of its own part.
[[nodiscard]] Division modelDivision(const Reference &dividend, const Reference &divisor)
{
    const qint32 size = (divisor.bits() + 31) / 32;
    const auto shift = static_cast<mp_bitcnt_t>(32 * size - divisor.bits());
    Reference v;
    mpz_mul_2exp(v.get(), divisor.get(), shift);
    Division result;
    mpz_mul_2exp(result.remainder.get(), dividend.get(), shift);
    for (qint32 i = (dividend.bits() + 31) / 32 - size; i >= 0; --i) {
        Reference part;
        mpz_tdiv_q_2exp(part.get(), result.remainder.get(), static_cast<mp_bitcnt_t>(32 * i));
        mpz_tdiv_r_2exp(part.get(), part.get(), static_cast<mp_bitcnt_t>(32 * (size + 1)));
        Reference digit;
        mpz_tdiv_q(digit.get(), part.get(), v.get());
        const quint64 head = (quint64{part.word(size)} << 32) | part.word(size - 1);
        if (mpz_cmp_ui(digit.get(), limit) == 0 && head / v.word(size - 1) == limit)
            mpz_sub_ui(digit.get(), digit.get(), 1);
        Reference product;
        mpz_mul(product.get(), digit.get(), v.get());
        mpz_mul_2exp(product.get(), product.get(), static_cast<mp_bitcnt_t>(32 * i));
        mpz_sub(result.remainder.get(), result.remainder.get(), product.get());
        mpz_mul_2exp(result.quotient.get(), result.quotient.get(), 32);
        mpz_add_ui(result.quotient.get(), result.quotient.get(), digit.word(0));
    }
    mpz_tdiv_q_2exp(result.remainder.get(), result.remainder.get(), shift);
    return result;
}

// Where operands go wrong they are in the message.
[[nodiscard]] QByteArray described(const QByteArray &result, const BigInt &left, const BigInt &right)
{
    return result + " of " + image(left) + " and " + image(right);
}

} // namespace

class TestBigIntDifferential : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsSubtractsMultiplies()
    {
        Operands operands(1);
        for (int i = 0; i < rounds; ++i) {
            const BigInt x = operands.integer(i % 3 == 0 ? 35 : BigInt::maxLength);
            const BigInt y = operands.integer(i % 3 == 0 ? 36 : BigInt::maxLength);
            check(x, y, &BigInt::add, mpz_add, "ArithmeticException / Overflow");
            check(x, y, &BigInt::subtract, mpz_sub, "ArithmeticException / Overflow");
            Reference product;
            mpz_mul(product.get(), Reference(x).get(), Reference(y).get());
            const bool fitsTheWords = product.bits() <= 32 * BigInt::maxLength;
            check(x, y, &BigInt::multiply, mpz_mul,
                  fitsTheWords ? "ArithmeticException / overflow."
                               : "ArithmeticException / Multiplication overflow.");
        }
    }

    void divides()
    {
        Operands operands(2);
        int compared = 0;
        for (int i = 0; i < rounds; ++i) {
            const BigInt x = operands.integer();
            const BigInt y = operands.integer(i % 2 == 0 ? 4 : 40);
            if (y.equals(BigInt()) || mayMeetTheLimit(Reference(x), Reference(y)))
                continue;
            ++compared;
            check(x, y, &BigInt::divide, mpz_tdiv_q, {});
            check(x, y, &BigInt::mod, mpz_tdiv_r, {});
        }
        QVERIFY(compared > rounds / 2);
    }

    void dividesNearlyFullDigits()
    {
        Operands operands(3);
        for (int i = 0; i < rounds; ++i) {
            // Quotients of 0, b - 2 and b - 1 from remainders at both ends: where estimates are too high.
            const BigInt y = operands.natural(6).or_(powerOfTwo(40 + operands.below(160)));
            BigInt quotient = hex(operands.below(2) == 0 ? "ffffffff" : "fffffffe00000000ffffffff");
            quotient = operands.below(2) == 0 ? quotient : BigInt::createFromULong(operands.word());
            const BigInt one = BigInt::createFromInt(1);
            const BigInt x = quotient.multiply(y).add(operands.below(2) == 0 ? y.subtract(one) : BigInt());
            if (mayMeetTheLimit(Reference(x), Reference(y)))
                continue;
            check(x, y, &BigInt::divide, mpz_tdiv_q, {});
            check(x, y, &BigInt::mod, mpz_tdiv_r, {});
        }
    }

    void keepsDigitsCutShortAtTheLimit()
    {
        Operands operands(4);
        int cut = 0;
        for (int i = 0; i < rounds; ++i) {
            const BigInt y = operands.natural(6).or_(powerOfTwo(40 + operands.below(160)));
            BigInt quotient;
            for (qint32 digit = 0; digit < 4; ++digit)
                quotient.setDataAtIndex(operands.below(2) == 0 ? limit : operands.word(), digit);
            quotient.setDataAtIndex(limit, operands.below(4));
            quotient.setDataLength(4);
            const BigInt rest =
                operands.below(2) == 0 ? operands.natural(2) : y.subtract(BigInt::createFromInt(1));
            const BigInt x = quotient.multiply(y).add(rest);
            const Division expected = modelDivision(Reference(x), Reference(y));
            QCOMPARE(described(image(x.divide(y)), x, y), described(image(expected.quotient), x, y));
            QCOMPARE(described(image(x.mod(y)), x, y), described(image(expected.remainder), x, y));
            Reference textbook;
            mpz_tdiv_q(textbook.get(), Reference(x).get(), Reference(y).get());
            cut += mpz_cmp(textbook.get(), expected.quotient.get()) != 0 ? 1 : 0;
        }
        QVERIFY(cut > rounds / 4);
    }

    void findsDivisorsAndRoots()
    {
        Operands operands(5);
        for (int i = 0; i < rounds / 5; ++i) {
            const BigInt common = operands.natural(20);
            const BigInt x = common.multiply(operands.integer(20));
            const BigInt y = common.multiply(operands.integer(20));
            check(x, y, &BigInt::gcd, mpz_gcd, {});
        }
        for (int i = 0; i < rounds / 20; ++i) {
            const BigInt root = operands.natural(30).add(BigInt::createFromInt(2));
            for (const qint32 difference : {-1, 0, 1}) {
                BigInt x = root.multiply(root).add(BigInt::createFromInt(difference));
                Reference expected;
                mpz_sqrt(expected.get(), Reference(x).get());
                QCOMPARE(described(image(x.sqrt()), x, x), described(image(expected), x, x));
            }
        }
    }

    void combinesWords()
    {
        Operands operands(6);
        for (int i = 0; i < rounds; ++i) {
            BigInt x = operands.integer();
            const BigInt y = operands.integer();
            check(x, y, &BigInt::and_, mpz_and, {});
            check(x, y, &BigInt::or_, mpz_ior, {});
            check(x, y, &BigInt::xOr, mpz_xor, {});
            Reference expected;
            mpz_com(expected.get(), Reference(x).get());
            QCOMPARE(image(x.not_()), image(expected));
            const int order = mpz_cmp(Reference(x).get(), Reference(y).get());
            QCOMPARE(x.lessThan(y), order < 0);
            QCOMPARE(x.greaterThan(y), order > 0);
            QCOMPARE(x.equals(y), order == 0);
            QVERIFY(x.equals(BigInt(x)));
            const Reference magnitude(x);
            QCOMPARE(x.bitCount(), mpz_sgn(magnitude.get()) < 0 ? 2240 : magnitude.bits());
        }
    }

    void shifts()
    {
        Operands operands(7);
        for (int i = 0; i < rounds; ++i) {
            const BigInt x = operands.integer();
            const qint32 bits = operands.below(3) == 0 ? 32 * operands.below(71) : operands.below(2300);
            Reference pattern(x);
            mpz_fdiv_r_2exp(pattern.get(), pattern.get(), 32 * BigInt::maxLength);
            Reference expected;
            mpz_tdiv_q_2exp(expected.get(), pattern.get(), static_cast<mp_bitcnt_t>(bits));
            const BigInt right = x.shiftRight(bits);
            QCOMPARE(image(right), bits == 0 ? image(x) : image(expected));
            mpz_mul_2exp(expected.get(), pattern.get(), static_cast<mp_bitcnt_t>(bits));
            mpz_tdiv_r_2exp(expected.get(), expected.get(), static_cast<mp_bitcnt_t>(32 * x.dataLength()));
            const BigInt left = x.shiftLeft(bits);
            for (qint32 word = 0; word < BigInt::maxLength; ++word)
                QCOMPARE(left.getDataAtIndex(word), expected.word(word));
            QCOMPARE(left.dataLength(), std::max((expected.bits() + 31) / 32, 1));
        }
    }

    void convertsText()
    {
        Operands operands(8);
        std::vector<char> buffer(2300);
        for (int i = 0; i < rounds / 5; ++i) {
            const BigInt x = operands.integer(i % 5 == 0 ? BigInt::maxLength : 12);
            const qint32 radix = 2 + operands.below(35);
            mpz_get_str(buffer.data(), -radix, Reference(x).get());
            const QString text = QString::fromLatin1(buffer.data());
            QCOMPARE(x.toStringWithRadix(radix), text);
            QCOMPARE(image(BigInt::createFromStringAndRadix(text, radix)), image(x));
            QCOMPARE(image(BigInt::createFromStringAndRadix(text.toLower(), radix)), image(x));
        }
    }

private:
    using Operation = BigInt (BigInt::*)(const BigInt &) const;
    using ReferenceOperation = void (*)(mpz_ptr, mpz_srcptr, mpz_srcptr);

    static void check(const BigInt &x, const BigInt &y, Operation operation, ReferenceOperation reference,
                      const QByteArray &error)
    {
        Reference expected;
        reference(expected.get(), Reference(x).get(), Reference(y).get());
        BigInt result;
        const QByteArray raised = errorOf([&] { result = (x.*operation)(y); });
        const QByteArray actual = raised == "nothing raised" ? image(result) : raised;
        QCOMPARE(described(actual, x, y), described(imageOrError(expected, error), x, y));
    }
};

DRAVOLIN_TEST(TestBigIntDifferential)
#include "tst_bigintdifferential.moc"
