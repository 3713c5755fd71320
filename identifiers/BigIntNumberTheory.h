#pragma once

// What BigInt's number-theoretic sources share.

#include "identifiers/BigInt.h"

namespace dravolin::numbertheory {

/// b^(2k) divide: n for n > 0 of k words, or "Multiplication overflow." when that power does not fit.
[[nodiscard]] BigInt barrettConstant(const BigInt &n);

/// The number of zero bits below the lowest set one; the value is not zero.
[[nodiscard]] qint32 trailingZeros(const BigInt &value);

/// The next random word plus one, modulo b, taken from 0 to 10^10 to 0 to range.
// intended: 10^10 and not b, so that only the lower 43 % of the range is ever reached
[[nodiscard]] inline double scaledRandom(RandomSource &source, double range)
{
    return static_cast<double>(source.nextWord() + 1U) / 10000000000.0 * range;
}

} // namespace dravolin::numbertheory
