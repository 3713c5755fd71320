#pragma once

#include <QString>

namespace dravolin {

class BigInt;

// The part of BigInt that makes values from machine integers, words and texts, and texts from values. Each
// create... is the init... of the same argument. Errors as in BigInt.h.
class BigIntConversion
{
public:
    // Zero.
    [[nodiscard]] static BigInt init();
    [[nodiscard]] static BigInt initWithInt(qint32 value);
    [[nodiscard]] static BigInt initWithLong(qint64 value);
    [[nodiscard]] static BigInt initWithULong(quint64 value);
    // A copy of the words in use; words above them come out zero even when the argument's are not.
    [[nodiscard]] static BigInt initWithBigInt(const BigInt &value);
    // size words, most significant first. More than 70: "ArithmaticException" / "Byte overflow in
    // constructor". A size of 0 or less gives a zero whose length is that size.
    [[nodiscard]] static BigInt initWithUIntArrayWithSize(const quint32 *words, qint32 size);
    // The text in the radix (not checked), letters of either case, an optional "-" in front and no "+". Of
    // several errors the one furthest to the right is raised: "Invalid string in constructor." for a
    // character that is no digit or an empty text; the errors of add() and multiply(), which the place value
    // of a character meets as well (leading zeros count, and the binary text of -2^2239 is refused); then
    // "Negative underflow in constructor." for a "-" before zero or nothing.
    [[nodiscard]] static BigInt initWithStringAndRadix(const QString &text, qint32 radix);

    [[nodiscard]] static BigInt create();
    [[nodiscard]] static BigInt createFromInt(qint32 value);
    [[nodiscard]] static BigInt createFromLong(qint64 value);
    [[nodiscard]] static BigInt createFromULong(quint64 value);
    [[nodiscard]] static BigInt createFromBigInt(const BigInt &value);
    [[nodiscard]] static BigInt createFromStringAndRadix(const QString &text, qint32 radix);

    // Digits 0-9 and A-Z, "-" in front of a negative value, no leading zeros. A radix outside 2 to 36:
    // "ArgumentException" / "Radix must be >= 2 and <= 36".
    [[nodiscard]] QString toStringWithRadix(qint32 radix) const;

protected:
    constexpr BigIntConversion() noexcept = default;
};

} // namespace dravolin
