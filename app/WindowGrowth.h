#pragma once

#include <QWidget>

#include <functional>

namespace dravolin {

// Grows the window to its height in a run within so many milliseconds, with its top edge in place, and
// returns at once. `then` is called when it is grown, or when another growth takes over; never when the
// window was closed meanwhile. Main thread.
void growWindow(QWidget &window, int milliseconds, std::function<void()> then);

} // namespace dravolin
