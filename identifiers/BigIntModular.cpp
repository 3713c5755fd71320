#include "identifiers/BigIntNumberTheory.h"

#include "identifiers/BarrettModulus.h"
#include "identifiers/BigInt.h"
#include "identifiers/BigIntWords.h"

#include <utility>

namespace dravolin {

BigInt BigIntNumberTheory::barrettReductionAndNAndConstant(const BigInt &x, const BigInt &n,
                                                           const BigInt &constant)
{
    return BarrettModulus(n, constant).reduce(x);
}

BigInt BigIntNumberTheory::modPowWithMod(BigInt &exponent, const BigInt &modulus) const
{
    const auto &x = static_cast<const BigInt &>(*this);
    if (exponent.isNegative())
        words::raiseArithmetic("Positive exponents only.");
    BigInt result = BigInt::createFromInt(1);
    BigInt base = x.abs().mod(modulus);
    const BarrettModulus n(modulus.abs());
    const qint32 bitTotal = exponent.bitCount();
    qint32 bit = 0;
    do {
        if ((exponent.getDataAtIndex(bit / 32) >> bit % 32 & 1U) != 0)
            result = n.reduce(result.multiply(base));
        base = n.square(base);
        ++bit;
    } while (bit < bitTotal && !base.isOne());
    // intended: an odd power of a negative value is negative, not a residue
    return x.isNegative() && !exponent.isEven() ? result.negate() : result;
}

BigInt BigIntNumberTheory::modPowWithMod(const BigInt &exponent, const BigInt &modulus) const
{
    BigInt copy = exponent;
    return modPowWithMod(copy, modulus);
}

qint32 BigIntNumberTheory::jacobiAndB(const BigInt &a, const BigInt &b)
{
    BigInt top = a;
    BigInt bottom = b;
    qint32 sign = 1;
    for (;;) {
        if (bottom.isEven())
            throw BigIntError("ArgumentException", "Jacobi defined only for odd integers.");
        if (top.greaterThanOrEqualTo(bottom))
            top = top.mod(bottom);
        // intended: with b = 1 the remainder decides, so (a/1) is 0
        if (top.isZero())
            return 0;
        if (top.isOne())
            return sign;
        const quint32 bottomWord = bottom.getDataAtIndex(0);
        if (top.isNegative()) {
            top = top.negate();
            if ((bottomWord & 2U) != 0)
                sign = -sign;
            continue;
        }
        const qint32 zeros = words::trailingZeros(top.getData());
        top = top.shiftRight(zeros);
        if (zeros % 2 != 0 && (bottomWord % 8 == 3 || bottomWord % 8 == 5))
            sign = -sign;
        if (bottomWord % 4 == 3 && top.getDataAtIndex(0) % 4 == 3)
            sign = -sign;
        if (top.isOne())
            return sign;
        bottom = std::exchange(top, bottom.mod(top));
    }
}

} // namespace dravolin
