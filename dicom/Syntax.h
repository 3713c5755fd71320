#pragma once

#include <QByteArray>
#include <QtGlobal>

// How elements are written down in a transfer syntax (DICOM PS3.5, 7 and 10, annex A). Pure functions,
// callable from any thread; none of them fails.
namespace dravolin {

using TagNumber = quint32; // group and element, such as 0x00100010

[[nodiscard]] constexpr quint16 groupOf(TagNumber tag)
{
    return static_cast<quint16>(tag >> 16);
}
[[nodiscard]] constexpr quint16 elementOf(TagNumber tag)
{
    return static_cast<quint16>(tag & 0xffff);
}
[[nodiscard]] constexpr bool isPrivate(TagNumber tag)
{
    return (groupOf(tag) & 1) != 0;
}

struct Notation
{
    bool explicitVr = true;
    bool bigEndian = false;

    bool operator==(const Notation &) const = default;

    [[nodiscard]] quint16 number16(const char *bytes) const;
    [[nodiscard]] quint32 number32(const char *bytes) const;
    [[nodiscard]] QByteArray bytes16(quint16 number) const;
    [[nodiscard]] QByteArray bytes32(quint32 number) const;
};

struct Syntax
{
    Notation notation;
    bool deflated = false; // the whole data set, not the frames of the image
};

// The transfer syntax of a UID. One that is not known is written in explicit VR, little endian, like every
// syntax of compressed images, those to come included.
[[nodiscard]] Syntax syntaxOf(const QByteArray &uid);

// A UID without the padding behind it.
[[nodiscard]] QByteArray withoutPadding(QByteArray value);

} // namespace dravolin
