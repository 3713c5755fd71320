#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Text in the character sets of DICOM (Specific Character Set, PS3.3 C.12.1.1.2), converted by DCMTK, or,
// where it knows a set but cannot convert it, as with Japanese ones, by base/CharacterSets.h. Pure functions,
// any thread.
namespace dravolin {

inline constexpr char utf8CharacterSet[] = "ISO_IR 192";

// `text` in the character set that the attribute's value `characterSet` names, without code extensions: with
// several, in the first. Nothing when it cannot hold the text or is not known.
[[nodiscard]] std::optional<QByteArray> encodeText(const QString &text, const QByteArray &characterSet);

// UTF-8 for the bytes of a value; `isName` says that components are divided as in a person name. Nothing when
// they do not fit the character set, or when it is not known.
[[nodiscard]] std::optional<QByteArray> utf8Text(const QByteArray &value, const QByteArray &characterSet,
                                                 bool isName);

} // namespace dravolin
