#include "config/HomeBytes.h"

#include "base/PathText.h"

#include <QDir>

namespace dravolin {

QString withBytesOfHome(const QString &path)
{
    const QByteArray bytes = qgetenv("HOME");
    const QString home = QDir::homePath();
    if (bytes.isValidUtf8() || !path.startsWith(home))
        return path;
    return QDir::cleanPath(fromBytes(bytes)) + path.sliced(home.size());
}

} // namespace dravolin
