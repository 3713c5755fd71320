#pragma once

#include <exception>

namespace dravolin {

// What BigInt raises. The name groups errors, the reason says what happened; both are texts of static
// lifetime, so an error is made, copied and thrown without allocating.
//
// Names: "ArithmeticException" (nearly all), "ArgumentException" (an argument outside its domain) and
// "ArithmaticException" (too many words for a value; the spelling is part of the interface).
class BigIntError : public std::exception
{
public:
    BigIntError(const char *name, const char *reason) noexcept : m_name(name), m_reason(reason) {}

    [[nodiscard]] const char *name() const noexcept { return m_name; }
    [[nodiscard]] const char *reason() const noexcept { return m_reason; }
    [[nodiscard]] const char *what() const noexcept override { return m_reason; }

private:
    const char *m_name;
    const char *m_reason;
};

} // namespace dravolin
