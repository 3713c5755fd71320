#include "identifiers/BigIntConversion.h"

#include "identifiers/BigInt.h"
#include "identifiers/BigIntWords.h"

#include <algorithm>

namespace dravolin {

BigInt BigIntConversion::init()
{
    return {};
}

BigInt BigIntConversion::initWithInt(qint32 value)
{
    return initWithLong(value);
}

BigInt BigIntConversion::initWithLong(qint64 value)
{
    BigInt result;
    qint64 rest = value;
    qint32 length = 0;
    for (; rest != 0 && length < BigInt::maxLength; ++length) {
        result.setDataAtIndex(static_cast<quint32>(rest & words::largest), length);
        rest >>= 32;
    }
    // 64 bits never come near the end of the words: checks of what the loop promises.
    if (value > 0 && result.isNegative())
        words::raiseArithmetic("Positive overflow in constructor.");
    if (value < 0 && (rest != -1 || !result.isNegative()))
        words::raiseArithmetic("Negative underflow in constructor.");
    result.setDataLength(std::max(length, 1));
    return result;
}

BigInt BigIntConversion::initWithULong(quint64 value)
{
    BigInt result;
    quint64 rest = value;
    qint32 length = 0;
    for (; rest != 0 && length < BigInt::maxLength; ++length) {
        result.setDataAtIndex(words::low(rest), length);
        rest >>= 32;
    }
    // As above.
    if (rest != 0 || result.isNegative())
        words::raiseArithmetic("Positive overflow in constructor.");
    result.setDataLength(std::max(length, 1));
    return result;
}

BigInt BigIntConversion::initWithBigInt(const BigInt &value)
{
    BigInt result;
    result.setDataLength(value.dataLength());
    std::copy_n(value.getData(), std::max(value.dataLength(), 0), result.getData());
    return result;
}

BigInt BigIntConversion::initWithUIntArrayWithSize(const quint32 *words, qint32 size)
{
    // intended: the name's spelling, here and nowhere else
    if (size > BigInt::maxLength)
        throw BigIntError("ArithmaticException", "Byte overflow in constructor");
    BigInt result;
    for (qint32 i = 0; i < size; ++i)
        result.setDataAtIndex(words[size - 1 - i], i);
    // intended: an empty array keeps its size as the length
    result.setDataLength(words::trimmedLength(result.getData(), size));
    return result;
}

BigInt BigIntConversion::create()
{
    return createFromLong(0);
}

BigInt BigIntConversion::createFromInt(qint32 value)
{
    return initWithInt(value);
}

BigInt BigIntConversion::createFromLong(qint64 value)
{
    return initWithLong(value);
}

BigInt BigIntConversion::createFromULong(quint64 value)
{
    return initWithULong(value);
}

BigInt BigIntConversion::createFromBigInt(const BigInt &value)
{
    return initWithBigInt(value);
}

BigInt BigIntConversion::createFromStringAndRadix(const QString &text, qint32 radix)
{
    return initWithStringAndRadix(text, radix);
}

} // namespace dravolin
