#pragma once

#include <QString>

#include <optional>

// Which attributes hold values that say who or where somebody is, from the attributes of the basic
// confidentiality profile (DICOM PS3.15, E.1-1). Pure functions, any thread.
namespace dravolin::check {

// Strongest first: a value that stands in several attributes counts as the first of its classes.
enum class ValueClass : quint8 {
    Person,
    Identifier,
    Listed, // a line of the user's own list
    Contact,
    Uid,
    Institution,
    Place,
    Date,
    Device,
    FreeText,
    FileName, // a word of the name of an original or of a folder
};

// A tag as one number, group first.
using Tag = quint32;

// The class of an attribute's values; nothing when they identify nobody.
[[nodiscard]] std::optional<ValueClass> classOf(Tag tag);

// For people: "person", "free text", ...
[[nodiscard]] QString nameOf(ValueClass valueClass);

// (gggg,eeee) in lower case.
[[nodiscard]] QString tagText(Tag tag);

} // namespace dravolin::check
