#include "config/AppPaths.h"

#include "base/Files.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

namespace dravolin {

namespace {

// Qt replaces bytes of the home folder that are not UTF-8.
QString withBytesOfHome(const QString &path)
{
    const QByteArray bytes = qgetenv("HOME");
    const QString home = QDir::homePath();
    if (bytes.isValidUtf8() || !path.startsWith(home))
        return path;
    return QDir::cleanPath(fromBytes(bytes)) + path.sliced(home.size());
}

} // namespace

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
