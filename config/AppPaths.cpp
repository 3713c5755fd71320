#include "config/AppPaths.h"

#include "base/Files.h"
#include "config/HomeBytes.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace dravolin {

QString AppPaths::ownExecutable()
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? QCoreApplication::applicationFilePath()
                 : fromBytes(QByteArray::fromStdString(path.native()));
}

AppPaths AppPaths::forExecutable(const QString &executable)
{
    AppPaths paths;
    paths.applicationFolder = parentPath(executable);
    paths.resourceFolder = joinPath(paths.applicationFolder, QStringLiteral("resources"));
    if (!pathExists(paths.resourceFolder))
        paths.resourceFolder =
            QDir::cleanPath(joinPath(paths.applicationFolder, QStringLiteral("../share/dravolin")));
    paths.desktopFolder = withBytesOfHome(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    for (const QString &folder : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        paths.applicationSupportFolders.append(withBytesOfHome(folder));
    return paths;
}

QString AppPaths::resource(const QString &name) const
{
    return joinPath(resourceFolder, name);
}

} // namespace dravolin
