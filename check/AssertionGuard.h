#pragma once

#include <functional>

namespace dravolin::check {

// Runs `work` and gives its result; false when an assert() of a library fails in it. GDCM, as Debian builds
// it, ends the process in that way over some broken objects. What `work` had allocated is then lost, and no
// destructor runs, so that it may hold no lock. Any thread; not nested.
[[nodiscard]] bool survivesAssertions(const std::function<bool()> &work);

} // namespace dravolin::check
