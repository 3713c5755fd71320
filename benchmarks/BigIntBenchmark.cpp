// BigInt beside GMP: every line measures both in turn on the same operands and prints the median times per
// operation and their ratio. The last column is the ratio that the line has to stay below; without one it is
// only for looking.

#include "identifiers/BigInt.h"

#include <gmp.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <random>
#include <vector>

using dravolin::BigInt;
using dravolin::RandomSource;

namespace {

class SeededSource final : public RandomSource
{
public:
    quint32 nextWord() override { return static_cast<quint32>(m_engine()); }

private:
    std::mt19937 m_engine{20240229};
};

// One operand in both libraries.
struct Operand
{
    explicit Operand(qint32 bits, bool isOdd = false)
    {
        static std::mt19937 engine{42};
        for (qint32 i = 0; i < (bits + 31) / 32; ++i)
            ours.setDataAtIndex(static_cast<quint32>(engine()), i);
        const qint32 top = (bits - 1) / 32;
        const qint32 topBits = bits - 32 * top;
        ours.setDataAtIndex((ours.getDataAtIndex(top) | 0x80000000U) >> (32 - topBits), top);
        ours.setDataLength(top + 1);
        if (isOdd)
            ours.setDataAtIndex(ours.getDataAtIndex(0) | 1U, 0);
        mpz_init(gmp);
        mpz_import(gmp, static_cast<size_t>(ours.dataLength()), -1, sizeof(quint32), 0, 0, ours.getData());
    }
    ~Operand() { mpz_clear(gmp); }
    Operand(const Operand &) = delete;
    Operand &operator=(const Operand &) = delete;

    BigInt ours;
    mpz_t gmp;
};

struct Scratch
{
    Scratch() { mpz_init(value); }
    ~Scratch() { mpz_clear(value); }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;

    mpz_t value;
};

template <typename Value>
void keep(const Value &value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

// Processor time of this thread, which other work on the machine does not use up.
double nanosecondsSpent()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

template <typename Operation>
double nanosecondsPerCall(int calls, Operation operation)
{
    const double start = nanosecondsSpent();
    for (int i = 0; i < calls; ++i)
        operation();
    return (nanosecondsSpent() - start) / calls;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

int g_failures = 0;

void printLine(const char *name, double ours, double theirs, double limit)
{
    const double ratio = ours / theirs;
    std::printf("%-34s %12.1f ns %12.1f ns %8.2f", name, ours, theirs, ratio);
    if (limit > 0) {
        std::printf("   limit %.0f%s", limit, ratio > limit ? "  EXCEEDED" : "");
        g_failures += ratio > limit ? 1 : 0;
    }
    std::printf("\n");
}

// Both operations in turn, a few milliseconds each, many times over: what disturbs one disturbs the other.
template <typename Ours, typename Theirs>
void compare(const char *name, Ours ours, Theirs theirs, double limit = 0)
{
    constexpr double nanosecondsPerSample = 2e6;
    constexpr int samples = 41;
    const auto callsFor = [](double nanoseconds) {
        return std::clamp(static_cast<int>(nanosecondsPerSample / nanoseconds), 1, 1000000);
    };
    const int ourCalls = callsFor(nanosecondsPerCall(20, ours));
    const int theirCalls = callsFor(nanosecondsPerCall(20, theirs));
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int i = 0; i < samples; ++i) {
        ourTimes.push_back(nanosecondsPerCall(ourCalls, ours));
        theirTimes.push_back(nanosecondsPerCall(theirCalls, theirs));
    }
    printLine(name, median(ourTimes), median(theirTimes), limit);
}

void compareArithmetic()
{
    const Operand x(35 * 32 - 1);
    const Operand y(35 * 32 - 2);
    const Operand wide(70 * 32 - 1);
    const Operand divisor(35 * 32);
    const Operand small(128);
    const Operand word(32);
    Scratch result;
    const auto line = [&result](const char *name, auto operation, auto mpzOperation, const Operand &a,
                                const Operand &b, double limit) {
        compare(
            name, [&] { keep((a.ours.*operation)(b.ours)); },
            [&] { mpzOperation(result.value, a.gmp, b.gmp); }, limit);
    };
    line(
        "add 35 + 35 words", &BigInt::add, [](auto r, auto a, auto b) { mpz_add(r, a, b); }, x, y, 0);
    line(
        "multiply 1 x 1 word", &BigInt::multiply, [](auto r, auto a, auto b) { mpz_mul(r, a, b); }, word,
        word, 0);
    line(
        "multiply 4 x 4 words", &BigInt::multiply, [](auto r, auto a, auto b) { mpz_mul(r, a, b); }, small,
        small, 0);
    line(
        "multiply 35 x 35 words", &BigInt::multiply, [](auto r, auto a, auto b) { mpz_mul(r, a, b); }, x, y,
        6);
    line(
        "divide 4 by 1 word", &BigInt::divide, [](auto r, auto a, auto b) { mpz_tdiv_q(r, a, b); }, small,
        word, 0);
    line(
        "divide 70 by 35 words", &BigInt::divide, [](auto r, auto a, auto b) { mpz_tdiv_q(r, a, b); }, wide,
        divisor, 8);
    line(
        "mod 70 by 35 words", &BigInt::mod, [](auto r, auto a, auto b) { mpz_tdiv_r(r, a, b); }, wide,
        divisor, 0);
}

void compareText(const char *toName, const char *fromName, qint32 bits, int radix)
{
    constexpr double limit = 10;
    const Operand x(bits);
    std::array<char, 2300> buffer{};
    mpz_get_str(buffer.data(), -radix, x.gmp); // capitals, as BigInt writes them
    const QString text = QString::fromLatin1(buffer.data());
    const std::array<char, 2300> digits = buffer;
    Scratch result;
    compare(
        toName, [&] { keep(x.ours.toStringWithRadix(radix)); },
        [&] { keep(mpz_get_str(buffer.data(), radix, x.gmp)); }, radix == 10 ? limit : 0);
    compare(
        fromName, [&] { keep(BigInt::createFromStringAndRadix(text, radix)); },
        [&] { mpz_set_str(result.value, digits.data(), radix); }, limit);
}

void compareModPow(const char *name, qint32 bits, double limit)
{
    const Operand base(bits - 1);
    const Operand exponent(bits);
    const Operand modulus(bits, true);
    Scratch result;
    compare(
        name, [&] { keep(base.ours.modPowWithMod(exponent.ours, modulus.ours)); },
        [&] { mpz_powm(result.value, base.gmp, exponent.gmp, modulus.gmp); }, limit);
}

void comparePrimes()
{
    // 2^127 - 1
    const BigInt prime =
        BigInt::createFromStringAndRadix(QStringLiteral("7fffffffffffffffffffffffffffffff"), 16);
    Scratch gmpPrime;
    mpz_set_str(gmpPrime.value, "7fffffffffffffffffffffffffffffff", 16);
    compare(
        "isProbablePrime 127 bits", [&] { keep(prime.isProbablePrime()); },
        [&] { keep(mpz_probab_prime_p(gmpPrime.value, 24)); });

    SeededSource source;
    Scratch found;
    gmp_randstate_t random;
    gmp_randinit_mt(random);
    compare(
        "generatePseudoPrime 128 bits, 10",
        [&] { keep(BigInt::generatePseudoPrimeWithBitsAndConfidence(128, 10, source)); },
        [&] {
            do {
                mpz_urandomb(found.value, random, 128);
                mpz_setbit(found.value, 127);
                mpz_setbit(found.value, 0);
            } while (mpz_probab_prime_p(found.value, 24) == 0);
        });
    gmp_randclear(random);
}

void measureUuid()
{
    constexpr double limit = 20000;
    const QString uuid = QStringLiteral("F81D4FAE7DEC11D0A76500A0C91E6BF6");
    const auto convert = [&] { keep(BigInt::createFromStringAndRadix(uuid, 16).toStringWithRadix(10)); };
    std::vector<double> times(41);
    std::generate(times.begin(), times.end(), [&] { return nanosecondsPerCall(1000, convert); });
    const double time = median(times);
    std::printf("%-34s %12.1f ns   limit %.0f ns%s\n", "UUID to decimal text", time, limit,
                time > limit ? "  EXCEEDED" : "");
    g_failures += time > limit ? 1 : 0;
}

} // namespace

int main()
{
    std::printf("%-34s %15s %15s %8s\n", "", "BigInt", "GMP", "ratio");
    compareArithmetic();
    compareText("to decimal text, 128 bits", "from decimal text, 128 bits", 128, 10);
    compareText("to decimal text, 2239 bits", "from decimal text, 2239 bits", 2239, 10);
    compareText("to hexadecimal text, 128 bits", "from hexadecimal text, 128 bits", 128, 16);
    compareText("to hexadecimal text, 2239 bits", "from hexadecimal text, 2239 bits", 2239, 16);
    compareModPow("modPow 128 bits", 128, 0);
    compareModPow("modPow 512 bits", 512, 0);
    compareModPow("modPow 1024 bits", 1024, 25);
    comparePrimes();
    measureUuid();
    return g_failures == 0 ? 0 : 1;
}
