#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

// Look-up tables as text files: old value, tabs or at least three spaces, new value. Any thread; nothing here
// logs or shows anything.
namespace dravolin {

// Old value to new value; no key or value begins or ends with a blank. Looked up exactly as it stands.
using LutTable = QHash<QString, QString>;

// The key that every table has to have; propagation writes it where the table has no new value.
inline const QString missingValue = QStringLiteral("<missing>");
// The new value that leaves a file as it is.
inline const QString skippedValue = QStringLiteral("<skip>");

// How the new value of "<missing>" comes.
enum class MissingText { LowerCase, AsWritten };

// The table in the bytes of a file: lines that begin with "#" are comments, those with one field are ignored,
// fields between the first and the last as well, a later line of the same key wins. The new value of
// "<missing>" is "Unknown" when it is still the text that lutText() writes. May be empty; nothing when there
// is no text or when it is not UTF-8.
[[nodiscard]] std::optional<LutTable> parseLut(const QByteArray &bytes,
                                               MissingText missing = MissingText::LowerCase);

// The same for the file at `path`; nothing, too, when it cannot be read.
[[nodiscard]] std::optional<LutTable> loadLut(const QString &path,
                                              MissingText missing = MissingText::LowerCase);

// A table file as the program writes it: the explanation with the attribute `tag` (gggg,eeee), then one row
// for each of `values`, which become Subject_001, Subject_002 and so on.
[[nodiscard]] QString lutText(const QString &tag, const QStringList &values);

} // namespace dravolin
