#pragma once

#include <QWidget>

namespace dravolin {

// How many of the lower pixels of a widget are below its screen; 0 where another screen goes on there, and
// for what can be scrolled into sight. Main thread.
[[nodiscard]] int heightBelowScreen(const QWidget &widget);

// What a window can have of its screen, without its title bar. Main thread.
[[nodiscard]] QSize roomOnScreen(const QWidget &window);

// Scrolls a widget to the middle, or as near as it gets, where it lies in an area that can be scrolled;
// later, when what has changed in that area is laid out. Main thread.
void bringIntoSight(QWidget &widget);

} // namespace dravolin
