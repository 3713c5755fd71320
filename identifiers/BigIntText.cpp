#include "identifiers/BigInt.h"

#include "identifiers/BigIntWords.h"

#include <algorithm>

namespace dravolin {

namespace {

constexpr qint32 smallestRadix = 2;
constexpr qint32 largestRadix = 36;
// intended: any other character is a digit of this value, which only a radix larger still takes
constexpr qint64 noDigit = 9999999;

[[nodiscard]] qint64 digitValue(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'A' && unit <= u'Z')
        return unit - u'A' + 10;
    return noDigit;
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

} // namespace

BigInt BigInt::initWithStringAndRadix(const QString &text, qint32 radix)
{
    if (text.isEmpty())
        words::raiseArithmetic("Invalid string in constructor.");
    // intended: characters whose upper case is A to Z, or several of them, count as these
    const QString upper = text.toUpper();
    const bool negative = upper.front() == QLatin1Char('-');
    const qsizetype first = negative ? 1 : 0;
    const BigInt radixValue = createFromInt(radix);
    BigInt result;
    BigInt multiplier = createFromInt(1);
    for (qsizetype i = upper.size() - 1; i >= first; --i) {
        const qint64 digit = digitValue(upper.at(i));
        // intended: a sum or place value that overflowed further right has been raised before
        if (digit >= radix)
            words::raiseArithmetic("Invalid string in constructor.");
        result = result.add(multiplier.multiply(createFromLong(negative ? -digit : digit)));
        // intended: the place value overflows under leading zeros too
        if (i > first)
            multiplier = multiplier.multiply(radixValue);
    }
    if (negative && !result.isNegative())
        words::raiseArithmetic("Negative underflow in constructor.");
    // add() has raised before this can happen.
    if (!negative && result.isNegative())
        words::raiseArithmetic("Positive overflow in constructor.");
    return result;
}

QString BigInt::toStringWithRadix(qint32 radix) const
{
    if (radix < smallestRadix || radix > largestRadix)
        throw BigIntError("ArgumentException", "Radix must be >= 2 and <= 36");
    if (isZero())
        return QStringLiteral("0");

    std::array<quint32, maxLength> rest = m_data;
    // intended: the most negative value is written from its own words, which are those of its negation
    if (isNegative())
        words::negate(rest.data(), maxLength);
    qint32 length = words::trimmedLength(rest.data(), m_dataLength);

    // Dividing by a power of the radix that fills a word saves most of the passes over the number.
    const auto [divisor, digitsPerChunk] = largestChunk(static_cast<quint32>(radix));
    std::array<QChar, maxLength * 32 + 1> buffer;
    auto front = buffer.end();
    while (length > 1 || rest[0] != 0) {
        quint32 chunk = words::divide(rest.data(), length, divisor);
        length = words::trimmedLength(rest.data(), length);
        const bool isLast = length == 1 && rest[0] == 0;
        for (qint32 i = 0; isLast ? chunk != 0 : i < digitsPerChunk; ++i) {
            const quint32 digit = chunk % static_cast<quint32>(radix);
            chunk /= static_cast<quint32>(radix);
            *--front = QLatin1Char("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[digit]);
        }
    }
    if (isNegative())
        *--front = QLatin1Char('-');
    return QString(&*front, buffer.end() - front);
}

} // namespace dravolin
