#pragma once

#include <QColor>
#include <QPalette>

// Colours that can be told apart from what they stand on (WCAG 2.1: 1.4.3, 1.4.11). Pure functions.
namespace dravolin {

inline constexpr double textContrast = 4.5;
inline constexpr double borderContrast = 3;

// Between 1 and 21; both colours without transparency.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

// `colour` as it looks on `ground`, moved towards black or white as far as it takes to reach `ratio`; black
// or white when nothing reaches it.
[[nodiscard]] QColor readable(const QColor &colour, const QColor &ground, double ratio = textContrast);

// Of the edges of fields, boxes and buttons: against what is inside and what is outside.
[[nodiscard]] QColor borderColour(const QPalette &palette);

// Of the edge of what has the keyboard or takes a drag.
[[nodiscard]] QColor focusColour(const QPalette &palette);

// `palette` with every text readable where it stands, in all three states.
[[nodiscard]] QPalette withReadableTexts(QPalette palette);

} // namespace dravolin
