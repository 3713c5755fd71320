#pragma once

#include "check/IdentifyingAttributes.h"
#include "check/Numbers.h"

#include <QByteArrayView>

// GDCM, which reads the objects, comes in a module: to load it and to leave it takes longer than all else of
// the program's start, and only a check needs it. This is all that the program and the module know of each
// other; neither needs a symbol of the other.
namespace dravolin::check {

// How a value is written: by its VR, or by that of the dictionary where the object tells none.
struct ValueForm
{
    enum class Kind { Text, Numbers, Bytes }; // Numbers: written as text
    Kind kind = Kind::Bytes;
    NumberForm numbers = NumberForm::None; // of Bytes
    bool person = false;
};

// Is told what an object holds, in the order of its attributes. Bytes are valid during the call.
class ObjectVisitor
{
public:
    // The value of Specific Character Set (0008,0005), before all else of the data set or item that has it.
    virtual void characterSets(QByteArrayView definedTerms) = 0;
    virtual void beginItem(Tag sequence, size_t item) = 0; // counted from 0
    virtual void endItem() = 0;
    // Every attribute but sequences that have items, and pixel data.
    virtual void value(Tag tag, ValueForm form, QByteArrayView bytes) = 0;
    // Whether a value of unknown VR is to be read as a sequence.
    [[nodiscard]] virtual bool isSequence(QByteArrayView value) const = 0;

protected:
    ~ObjectVisitor() = default;
};

// Any thread.
class GdcmModule
{
public:
    // False, after some calls or none, when GDCM does not read an object in these bytes, or throws, or a
    // visitor does. A failed assertion of GDCM ends in the program's __assert_fail().
    [[nodiscard]] virtual bool read(QByteArrayView file, ObjectVisitor &meta,
                                    ObjectVisitor &dataSet) const = 0;
    // The name in the dictionary; null for an unknown or a private attribute.
    [[nodiscard]] virtual const char *attributeName(Tag tag) const = 0;

protected:
    ~GdcmModule() = default;
};

// The module's one symbol: itself, or null for a program of another version.
using GdcmModuleEntry = const GdcmModule *(*)(const char *version);
inline constexpr char gdcmModuleEntry[] = "dravolinGdcmModule";

} // namespace dravolin::check
