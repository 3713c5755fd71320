#pragma once

#include "base/CharacterSets.h"
#include "check/ByteWalk.h"
#include "check/GdcmModule.h"

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <vector>

// Reads an object with GDCM. Any thread.
namespace dravolin::check {

// A sequence on the way to an attribute, and which of its items, counted from 0 as in the paths of dcmodify.
struct PathStep
{
    Tag sequence = 0;
    size_t item = 0;
};

struct Element
{
    using Kind = ValueForm::Kind;
    Tag tag = 0;
    Kind kind = Kind::Bytes;
    NumberForm numbers = NumberForm::None; // of Bytes
    bool person = false;
    QByteArrayView bytes;              // valid during the visit
    const std::vector<PathStep> &path; // outermost first
    const CharacterSets &sets;         // in force there
};

using ElementVisit = std::function<void(const Element &)>;

// Loads GDCM, if no call before has done so: whatever else needs it does the same, but cannot tell that it
// failed. Why it failed, for people; then no object is read as a whole, and no attribute has a name.
[[nodiscard]] QString initialiseReader();

// Visits every attribute of an object, on all levels, those of the meta information first; not sequences that
// have items, and not the pixel data. False, after some visits or none, when GDCM does not read what walk()
// has seen.
[[nodiscard]] bool readObject(const QByteArray &file, const Walk &walk, const ElementVisit &visit);

// (0040,0275)[0].(0032,1060)
[[nodiscard]] QString pathText(const std::vector<PathStep> &path, Tag tag);

// The attribute's name in the dictionary; "" for an unknown or a private one.
[[nodiscard]] QString attributeName(Tag tag);

} // namespace dravolin::check
