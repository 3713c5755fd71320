#pragma once

#include "identifiers/BigInt.h"

namespace dravolin {

// A modulus n with the constant of Barrett's reduction, b^(2k) / n for n of k words and b = 2^32: one
// division for many reductions.
class BarrettModulus
{
public:
    // For n > 0, with the constant that divide() finds. "Division by zero."; "Multiplication overflow." for
    // more than 34 words, as b^(2k) needs word 2k.
    explicit BarrettModulus(const BigInt &n);
    // With a constant that the caller has. Nothing is checked before a reduction.
    BarrettModulus(const BigInt &n, const BigInt &constant) : m_n(n), m_constant(constant) {}

    [[nodiscard]] const BigInt &n() const { return m_n; }
    // x mod n for 0 <= x < b^(2k), as BigInt::barrettReductionAndNAndConstant() says; errors as above.
    [[nodiscard]] BigInt reduce(const BigInt &x) const;
    // The same of x * x.
    [[nodiscard]] BigInt square(const BigInt &x) const { return reduce(x.multiply(x)); }

private:
    BigInt m_n;
    BigInt m_constant;
};

} // namespace dravolin
