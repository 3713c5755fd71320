#include "check/AssertionGuard.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

namespace {

thread_local std::jmp_buf *guard = nullptr;

} // namespace

// Takes the place of the C library's function for the whole program: the libraries are built with it as the
// end of the process, and an exception cannot leave it.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" [[noreturn]] void __assert_fail(const char *assertion, const char *file, unsigned int line,
                                           const char *function) noexcept
{
#ifndef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
    if (guard)
        std::longjmp(*guard, 1);
#endif
    std::fprintf(stderr, "%s:%u: %s: Assertion `%s' failed.\n", file, line, function, assertion);
    std::abort();
}

namespace dravolin::check {

bool survivesAssertions(const std::function<bool()> &work)
{
    std::jmp_buf here;
    if (setjmp(here) != 0) { // NOLINT(cert-err52-cpp): an exception cannot pass the libraries' frames
        guard = nullptr;
        return false;
    }
    guard = &here;
    const bool result = work();
    guard = nullptr;
    return result;
}

} // namespace dravolin::check
