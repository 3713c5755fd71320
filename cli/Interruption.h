#pragma once

namespace dravolin::cli {

// From now on Ctrl-C and the signal to terminate are noted instead of ending the process; a second one ends
// it.
void noteInterruptions();
// Any thread.
[[nodiscard]] bool isInterrupted();

} // namespace dravolin::cli
