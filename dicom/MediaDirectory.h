#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace dravolin {

// The name of the directory of a folder of objects, and the class by which such a file is told under any
// name.
inline constexpr char mediaDirectoryName[] = "DICOMDIR";
inline constexpr char mediaDirectoryClass[] = "1.2.840.10008.1.3.10";

struct MediaDirectory
{
    QString problem;     // why it was not made, a text for people; "" when it was
    QStringList leftOut; // objects of kinds that have no place in such a directory
};

// Makes the file `target`, which must not exist, a DICOMDIR of the objects `files` in `folder`, by DCMTK.
// Their paths are relative, each part eight capital letters, digits and underscores at most. `uid` names the
// directory: the same objects and UID give the same bytes. `stop` ends the work early; nothing is left then,
// nor after a problem. What was written is read back: one that a full disk has cut is a problem. One thread.
[[nodiscard]] MediaDirectory makeMediaDirectory(const QString &target, const QString &folder,
                                                const QStringList &files, const QByteArray &uid,
                                                const std::function<bool()> &stop);

} // namespace dravolin
