#pragma once

#include <QString>
#include <QStringList>

class QMimeData;
class QUrl;

// What a drag brings. Pure functions, any thread.
namespace dravolin {

// Whether `url` names a file of this machine.
[[nodiscard]] bool isLocalFile(const QUrl &url);

// The paths of a drag's file-name list, byte for byte, without a separator at the end; addresses that are no
// local files give empty paths.
[[nodiscard]] QStringList droppedPaths(const QMimeData &drag);

// Whether a path has the name of a picture, by its extension alone.
[[nodiscard]] bool isPicture(const QString &path);

} // namespace dravolin
