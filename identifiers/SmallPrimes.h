#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

namespace dravolin {

inline constexpr quint32 smallPrimeLimit = 2000;

[[nodiscard]] constexpr bool isSmallPrime(quint32 number)
{
    for (quint32 divisor = 2; divisor * divisor <= number; ++divisor) {
        if (number % divisor == 0)
            return false;
    }
    return number > 1;
}

[[nodiscard]] constexpr size_t smallPrimeCount()
{
    size_t count = 0;
    for (quint32 number = 0; number < smallPrimeLimit; ++number)
        count += isSmallPrime(number) ? 1 : 0;
    return count;
}

// Every prime below 2000, in increasing order.
inline constexpr auto smallPrimes = [] {
    std::array<quint32, smallPrimeCount()> primes{};
    size_t count = 0;
    for (quint32 number = 0; number < smallPrimeLimit; ++number) {
        if (isSmallPrime(number))
            primes[count++] = number;
    }
    return primes;
}();
static_assert(smallPrimes.size() == 303 && smallPrimes.front() == 2 && smallPrimes.back() == 1999);

} // namespace dravolin
