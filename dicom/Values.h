#pragma once

#include "dicom/Dictionary.h"
#include "dicom/Syntax.h"

#include <QByteArray>

#include <optional>

// Elements as bytes. Pure functions, any thread.
namespace dravolin {

// The header of an element with a value of `length` bytes.
[[nodiscard]] QByteArray headerBytes(TagNumber tag, Vr representation, const Notation &notation,
                                     quint32 length);

// A whole element with a value that is bytes already; an odd one is padded.
[[nodiscard]] QByteArray elementBytes(TagNumber tag, Vr representation, const Notation &notation,
                                      QByteArray value);

// The bytes of a value that is written as text, as DCMTK's tools take it: numbers in decimal digits, bytes
// and words in hexadecimal ones, several values with a backslash between. Text values are in the character
// set of the object. Nothing when the text is no value of `representation`; of a sequence only the
// empty text is.
[[nodiscard]] std::optional<QByteArray> valueBytes(Vr representation, const Notation &notation,
                                                   const QByteArray &text);

} // namespace dravolin
