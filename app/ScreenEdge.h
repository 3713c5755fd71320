#pragma once

#include <QWidget>

namespace dravolin {

// How many of the lower pixels of a widget are below its screen; 0 where another screen goes on there. Main
// thread.
[[nodiscard]] int heightBelowScreen(const QWidget &widget);

} // namespace dravolin
