#pragma once

#include <QString>

#include <thread>

namespace dravolin::cli {

// From now on Ctrl-C and the signal to terminate are noted instead of ending the process; a second one ends
// it.
void noteInterruptions();
// Any thread.
[[nodiscard]] bool isInterrupted();

// As long as the result lives: when an interruption was noted and the command has not come to its end soon
// after, prints the text and ends the process with the status of an interruption.
[[nodiscard]] std::jthread endWhenInterrupted(const QString &text);

} // namespace dravolin::cli
