#pragma once

#include "base/PathText.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

// Files by name, through the system's own calls; names are the texts of base/PathText.h.
// All functions may be called from any thread; none of them follows a failure with an exception.
namespace dravolin {

// What the system says about a failure.
struct SystemError
{
    int code = 0; // errno
    QString text;
};

enum class EntryKind { File, Folder, Other };

// The names in a folder in the file system's own order, hidden ones and broken links included, without "."
// and ".."; empty when the folder cannot be listed.
[[nodiscard]] QStringList listNames(const QString &folder);
// The same, only the folders: directories by their own attributes, a link to one is not; entries whose
// attributes cannot be read are left out.
[[nodiscard]] QStringList listFolderNames(const QString &folder);
[[nodiscard]] bool isFolder(const QString &path);
// What an entry is by its own attributes, a link is Other; nothing when they cannot be read, and `error` (may
// be null) then gets the reason.
[[nodiscard]] std::optional<EntryKind> entryKind(const QString &path, SystemError *error = nullptr);
// Follows links: a broken link does not exist.
[[nodiscard]] bool pathExists(const QString &path);

// Bytes; a larger file is not read as a whole.
inline constexpr qsizetype largestFile = qsizetype(1) << 30;
// The whole file; nothing when it cannot be opened or read, is no regular file (a folder, a pipe, a device),
// is larger than `largestFile`, or does not fit into memory (which is logged).
[[nodiscard]] std::optional<QByteArray> readBytes(const QString &path);
// readBytes, then decodeUtf8.
[[nodiscard]] std::optional<QString> readText(const QString &path);
enum class Links { Follow, Refuse };
// Creates or truncates `path` and writes in place, not by renaming. False when anything was not written (a
// partly written file is removed again; what a link leads to stays), or when `path` is a link and links are
// refused.
[[nodiscard]] bool writeText(const QString &path, const QString &text, Links links = Links::Follow);
// Sets the permissions to 0777.
[[nodiscard]] bool makeExecutable(const QString &path);
// Creates a folder with all missing parents; an existing folder counts as success. `error` (may be null) gets
// the system's error on failure.
[[nodiscard]] bool createFolder(const QString &path, SystemError *error = nullptr);
// Copies a file; false, and nothing changed, when the target exists already or cannot be written as a whole.
[[nodiscard]] bool copyFile(const QString &from, const QString &to);
// Failures, a missing file among them, are ignored.
void removeFile(const QString &path);

} // namespace dravolin
