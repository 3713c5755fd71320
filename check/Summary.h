#pragma once

#include "check/Check.h"

#include <QString>

namespace dravolin::check {

// "nothing found", "something found", "could not be checked": what the check comes to.
enum class Verdict { Clean, Found, Incomplete };

// Found counts more than Incomplete. Findings below `atLeast` decide nothing.
[[nodiscard]] Verdict verdictOf(const CheckReport &report, Grade atLeast);
[[nodiscard]] QString textOf(Verdict verdict);

// The result for a terminal: a screen of 24 lines at most, worst first, without any value.
[[nodiscard]] QString summaryText(const CheckReport &report, Grade atLeast);

// "1 file", "616 files".
[[nodiscard]] QString filesText(quint64 count);
// "Study Description (0008,1030)", or the place.
[[nodiscard]] QString placeText(const FindingGroup &group);

} // namespace dravolin::check
