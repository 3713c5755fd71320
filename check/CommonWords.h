#pragma once

#include "check/Folding.h"

#include <span>

namespace dravolin::check {

// True when these words are one word that stands in many files of many people: an everyday word, a term of
// imaging, or what is written in place of a value. Any thread.
[[nodiscard]] bool isCommon(std::span<const Word> words);

// True for what programs write in the place of a value that was taken out ("Anonymized", "Unknown", ...).
[[nodiscard]] bool isDummy(std::span<const Word> words);

} // namespace dravolin::check
