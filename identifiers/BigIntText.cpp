#include "identifiers/BigIntConversion.h"

#include "identifiers/BigInt.h"
#include "identifiers/BigIntRows.h"
#include "identifiers/BigIntWords.h"

#include <QStringView>

#include <algorithm>
#include <bit>
#include <cmath>

namespace dravolin {

namespace {

constexpr qint32 smallestRadix = 2;
constexpr qint32 largestRadix = 36;
// intended: any other character is a digit of this value, which only a radix larger still takes
constexpr qint32 noDigit = 9999999;

// Raises where the character is no digit in the radix.
[[nodiscard]] qint32 digitValue(QChar character, qint32 radix)
{
    const char16_t unit = character.unicode();
    qint32 digit = noDigit;
    if (unit >= u'0' && unit <= u'9')
        digit = unit - u'0';
    else if (unit >= u'A' && unit <= u'Z')
        digit = unit - u'A' + 10;
    if (digit >= radix)
        words::raiseArithmetic("Invalid string in constructor.");
    return digit;
}

struct Chunk
{
    quint32 divisor; // radix^digits, the largest such power that fits in a word
    qint32 digits;
};

[[nodiscard]] Chunk largestChunk(quint32 radix)
{
    Chunk chunk{radix, 1};
    while (chunk.divisor <= words::largest / radix) {
        chunk.divisor *= radix;
        ++chunk.digits;
    }
    return chunk;
}

// value * factor + summand, which fits.
void multiplyAndAdd(BigInt &value, quint32 factor, quint32 summand)
{
    const qint32 length = value.dataLength();
    const quint32 carry = words::multiplyAndAdd(value.getData(), length, factor, summand);
    if (carry == 0)
        return;
    value.setDataAtIndex(carry, length);
    value.setDataLength(length + 1);
}

// A number of digits whose place values, terms and sums are all below 2^2239. The slack is far above what the
// logarithm is rounded by; it takes no digit away from any radix up to 36.
[[nodiscard]] qsizetype digitsThatFit(qint32 radix)
{
    constexpr double bits = 32 * BigInt::maxLength - 1 - 0.001;
    return radix < smallestRadix ? 0 : static_cast<qsizetype>(bits / std::log2(radix));
}

// The value of digits that fit.
[[nodiscard]] BigInt valueOfDigits(QStringView digits, qint32 radix)
{
    BigInt value;
    if (digits.isEmpty())
        return value;
    const auto [divisor, digitsPerChunk] = largestChunk(static_cast<quint32>(radix));
    for (qsizetype end = digits.size() % digitsPerChunk, i = 0; i < digits.size(); end += digitsPerChunk) {
        quint32 chunk = 0;
        for (; i < end; ++i)
            chunk = chunk * static_cast<quint32>(radix) + static_cast<quint32>(digitValue(digits[i], radix));
        multiplyAndAdd(value, divisor, chunk);
    }
    return value;
}

// radix^digits, which fits.
[[nodiscard]] BigInt placeValue(qint32 radix, quint32 digits)
{
    BigInt value = BigInt::createFromInt(1);
    for (auto bit = std::bit_width(digits); bit > 0; --bit) {
        value = value.multiply(value);
        if ((digits >> (bit - 1) & 1U) != 0)
            multiplyAndAdd(value, static_cast<quint32>(radix), 0);
    }
    return value;
}

// value + the digits times their place values in front of it. Each step may overflow, so they are taken one
// by one, from right to left.
void addDigitsInFront(BigInt &value, QStringView digits, BigInt multiplier, qint32 radix, bool isNegative)
{
    const BigInt radixValue = BigInt::createFromInt(radix);
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        const qint32 digit = digitValue(digits[i], radix);
        value = value.add(multiplier.multiply(BigInt::createFromInt(isNegative ? -digit : digit)));
        // intended: the place value overflows under leading zeros too
        if (i > 0)
            multiplier = multiplier.multiply(radixValue);
    }
}

} // namespace

BigInt BigIntConversion::initWithStringAndRadix(const QString &text, qint32 radix)
{
    if (text.isEmpty())
        words::raiseArithmetic("Invalid string in constructor.");
    // intended: characters whose upper case is A to Z, or several of them, count as these
    const QString upper = text.toUpper();
    const bool isNegative = upper.front() == QLatin1Char('-');
    const QStringView digits = QStringView(upper).sliced(isNegative ? 1 : 0);
    // Among the last digits nothing but the digits themselves can be wrong.
    const qsizetype fitting = std::min(digits.size(), digitsThatFit(radix));
    BigInt result = valueOfDigits(digits.last(fitting), radix);
    if (isNegative)
        result = result.negate();
    if (fitting < digits.size())
        addDigitsInFront(result, digits.chopped(fitting), placeValue(radix, static_cast<quint32>(fitting)),
                         radix, isNegative);
    if (isNegative && !result.isNegative())
        words::raiseArithmetic("Negative underflow in constructor.");
    // add() has raised before this can happen.
    if (!isNegative && result.isNegative())
        words::raiseArithmetic("Positive overflow in constructor.");
    return result;
}

QString BigIntConversion::toStringWithRadix(qint32 radix) const
{
    if (radix < smallestRadix || radix > largestRadix)
        throw BigIntError("ArgumentException", "Radix must be >= 2 and <= 36");
    const auto &x = static_cast<const BigInt &>(*this);
    if (x.isZero())
        return QStringLiteral("0");

    BigInt copy = x;
    quint32 *rest = copy.getData();
    // intended: the most negative value is written from its own words, which are those of its negation
    if (x.isNegative())
        words::negate(rest, BigInt::maxLength);
    qint32 length = words::trimmedLength(rest, x.dataLength());

    // Dividing by a power of the radix that fills a word saves most of the passes over the number.
    const auto [divisor, digitsPerChunk] = largestChunk(static_cast<quint32>(radix));
    std::array<QChar, BigInt::maxLength * 32 + 1> buffer;
    auto front = buffer.end();
    while (length > 1 || rest[0] != 0) {
        quint32 chunk = words::divide(rest, length, divisor);
        length = words::trimmedLength(rest, length);
        const bool isLast = length == 1 && rest[0] == 0;
        for (qint32 i = 0; isLast ? chunk != 0 : i < digitsPerChunk; ++i) {
            const quint32 digit = chunk % static_cast<quint32>(radix);
            chunk /= static_cast<quint32>(radix);
            *--front = QLatin1Char("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[digit]);
        }
    }
    if (x.isNegative())
        *--front = QLatin1Char('-');
    return QString(&*front, buffer.end() - front);
}

} // namespace dravolin
