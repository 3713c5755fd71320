#pragma once

// What BigInt's tests of primality share.

#include "identifiers/BigInt.h"

#include <optional>

namespace dravolin::primality {

// The answer for 0 to 3 and for even numbers; nothing for the others. The number is not negative.
[[nodiscard]] std::optional<bool> simpleAnswer(const BigInt &number);

// 2^twos * odd.
struct Factors
{
    qint32 twos;
    BigInt odd;
};

// The number is not zero.
[[nodiscard]] Factors splitTwos(const BigInt &number);

} // namespace dravolin::primality
