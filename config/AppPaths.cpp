#include "config/AppPaths.h"

#include "base/Files.h"

#include <QDir>
#include <QStandardPaths>

namespace dravolin {

AppPaths AppPaths::forExecutable(const QString &executable)
{
    AppPaths paths;
    paths.applicationFolder = parentPath(executable);
    paths.resourceFolder = joinPath(paths.applicationFolder, QStringLiteral("resources"));
    if (!pathExists(paths.resourceFolder))
        paths.resourceFolder =
            QDir::cleanPath(joinPath(paths.applicationFolder, QStringLiteral("../share/dravolin")));
    paths.desktopFolder = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    paths.applicationSupportFolders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    return paths;
}

QString AppPaths::resource(const QString &name) const
{
    return joinPath(resourceFolder, name);
}

} // namespace dravolin
