#pragma once

#include <QString>

// What the program remembers from one start to the next, in the user's settings file. Main thread.
namespace dravolin {

// The UID root that was used last; "" when there is none, or when the settings file is no file (a pipe would
// be waited for without an end).
[[nodiscard]] QString storedUidRoot();

// Stores it. What was stored before stays, with a message in the system log, when the file is no file, when
// it cannot be written, or when another program holds its lock.
void storeUidRoot(const QString &root);

} // namespace dravolin
