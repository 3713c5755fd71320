#pragma once

#include "check/WalkBytes.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// A first look at the bytes of an object, before a library sees them: how deep its sequences go, whether
// every length stays inside what holds it, where the pixel data lies and where the data set ends. It keeps
// its own stack, so that no nesting ends the program, and reads nothing but lengths. Pure functions, any
// thread.
namespace dravolin::check {

// Sequences deeper than this are refused. Real objects stay below twenty; libraries that call themselves for
// each level end by some thousand.
inline constexpr qsizetype deepestNesting = 100;
// A deflated data set is inflated up to this size.
inline constexpr qsizetype largestInflated = qsizetype(1) << 30;

// What a data set holds, counted; two readers that agree have both read all of it.
struct Contents
{
    quint64 values = 0; // not empty, on all levels, pixel data left out
    quint64 bytes = 0;  // in them

    bool operator==(const Contents &) const = default;
};

struct Span
{
    qsizetype start = 0;
    qsizetype end = 0;

    [[nodiscard]] bool isEmpty() const { return end <= start; }
    [[nodiscard]] qsizetype size() const { return end - start; }
};

struct Walk
{
    enum class Kind { Object, NoObject, Damaged };
    Kind kind = Kind::NoObject;
    QString reason; // why it is Damaged, for people

    bool hasPreamble = false; // 128 bytes and DICM
    qsizetype dataSet = 0;    // where it begins, behind the meta information
    Syntax syntax;            // of the data set
    QByteArray uid;           // the transfer syntax's value as it stands in the file
    QByteArray meta;          // the meta information's other attributes, without its length
    Contents metaContents;    // of these
    qsizetype end = 0;        // where the bytes end that were understood; in the file
    Span pixelElement;        // the pixel data of the top level, with tag and length; in the data set's bytes
    Span pixelValue;          // without
    bool encapsulated = false;
    bool deflated = false;
    QByteArray inflated; // the data set, when it was deflated
    Contents contents;
};

[[nodiscard]] Walk walk(const QByteArray &file);

// True for the value of a sequence whose VR is not told: items in the implicit syntax, from the first byte to
// the last, not nested too deep.
[[nodiscard]] bool holdsItems(QByteArrayView value);

} // namespace dravolin::check
