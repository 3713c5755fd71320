#pragma once

#include <QWidget>

// What a screen reader is told beside what Qt tells it.
namespace dravolin {

// Lets windows be frames, the drop area a button that can be pressed, a widget what its property
// "accessibleRole" says ("alert", "graphic" or "separator"), and pop-ups be chosen from by the action of a
// list's entry. Main thread only, once; for widgets that are looked at from now on.
void installAccessibility();

// A busy widget says so, in its state.
void setBusy(QWidget &widget, bool busy);
[[nodiscard]] bool isBusy(const QWidget &widget);

// Makes a screen reader speak the name of an alert.
void announce(QWidget &alert, const QString &name);

} // namespace dravolin
