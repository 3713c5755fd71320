#pragma once

#include <QString>

namespace dravolin {

// Writes one message to the system log: through Qt's message handler, which is standard error and, for a
// program that the desktop started, the session's journal. Any thread.
void logMessage(const QString &text);

// Whether a short text written to standard error now would not wait for a reader. Any thread.
[[nodiscard]] bool canWriteToStandardError();

} // namespace dravolin
