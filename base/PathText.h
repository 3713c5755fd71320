#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

// Paths as texts. A path is a QString that stands for exact bytes: bytes that are not UTF-8 are held
// as lone low surrogates U+DC80..U+DCFF (Python's PEP 383 does the same), so that every name that the file
// system allows can be listed, shown, run in and deleted. Qt's own file classes lose such names.
// Pure functions, callable from any thread; none of them fails.
namespace dravolin {

// The bytes of a path or text; the inverse of fromBytes.
[[nodiscard]] QByteArray toBytes(const QString &text);
// The bytes of a path for a system call; none when it holds a NUL, so that every call then fails.
[[nodiscard]] QByteArray systemPath(const QString &path);
// A path or name from its bytes.
[[nodiscard]] QString fromBytes(const QByteArray &bytes);
// The bytes of U+FEFF, with which a UTF-8 text may begin.
inline constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");

// Strict UTF-8: nothing when a single byte is wrong. A byte-order mark is dropped.
[[nodiscard]] std::optional<QString> decodeUtf8(const QByteArray &bytes);

// `folder` and `name` with exactly one separator between them.
[[nodiscard]] QString joinPath(const QString &folder, const QString &name);
[[nodiscard]] QString lastPathComponent(const QString &path);
// The path of the folder that holds `path`; "/" for an entry of the root.
[[nodiscard]] QString parentPath(const QString &path);
// What stands behind the last dot of the last component, without the dot; "" for a name such as ".txt".
[[nodiscard]] QString pathExtension(const QString &path);
[[nodiscard]] QString withoutExtension(const QString &name);

} // namespace dravolin
