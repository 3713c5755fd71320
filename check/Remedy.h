#pragma once

#include "check/IdentifyingAttributes.h"

#include <QString>

namespace dravolin::check {

struct Place;

// What takes a value away from a place.
struct Remedy
{
    QString line;   // of a configuration file; "" where none does
    QString advice; // for people, where no line does
};

[[nodiscard]] Remedy remedyFor(const Place &place);

// The five attributes whose values come from the main window at the top level.
[[nodiscard]] bool isSetByTheWindow(Tag tag);

} // namespace dravolin::check
