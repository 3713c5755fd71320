#pragma once

#include "dicom/Syntax.h"

#include <QString>

#include <optional>

// What DCMTK's data dictionary knew when the program was built. Any thread.
namespace dravolin {

// Two letters such as PN, as a number that can be compared; 0 for none.
using Vr = quint16;
[[nodiscard]] constexpr Vr vr(char first, char second)
{
    return static_cast<Vr>(static_cast<unsigned char>(first) << 8 | static_cast<unsigned char>(second));
}

[[nodiscard]] QByteArray letters(Vr representation);

// The value representation of an attribute: LO for a private creator, UL for a group's length, OW for what
// may be bytes or words, US for what may have a sign; 0 for an attribute that is not known.
[[nodiscard]] Vr dictionaryVr(TagNumber tag);

// gggg,eeee in hexadecimal digits of any case, the first of which may be a plus sign, as the tools take it
// for 0; nothing for every other text.
[[nodiscard]] std::optional<TagNumber> tagFromText(const QString &text);
// (gggg,eeee) in lower case
[[nodiscard]] QString tagText(TagNumber tag);

// Text in the object's character set: SH, LO, ST, LT, UC, UT, PN.
[[nodiscard]] bool isText(Vr representation);
// Whether explicit VR writes the length in four bytes behind two reserved ones.
[[nodiscard]] bool hasLongHeader(Vr representation);

} // namespace dravolin
