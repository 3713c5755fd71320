#include "config/DirectoryLocations.h"

#include "base/Files.h"
#include "base/SystemLog.h"

#include <QCoreApplication>

namespace dravolin {

namespace {

const QString descriptionKey = QStringLiteral("NSLocalizedDescription");

} // namespace

QString LocationError::text() const
{
    return userInfo.value(descriptionKey).toString();
}

QStringList searchPathDirectories(const AppPaths &paths, SearchPathDirectory directory,
                                  SearchPathDomain domain)
{
    if (domain != SearchPathDomain::User)
        return {};
    switch (directory) {
    case SearchPathDirectory::ApplicationSupport: return paths.applicationSupportFolders;
    case SearchPathDirectory::Desktop:
        return paths.desktopFolder.isEmpty() ? QStringList() : QStringList{paths.desktopFolder};
    }
    return {};
}

std::optional<QString> findOrCreateDirectory(const AppPaths &paths, SearchPathDirectory directory,
                                             SearchPathDomain domain, const QString &component,
                                             std::optional<LocationError> *error)
{
    const auto fail = [error](const LocationError &reason) -> std::optional<QString> {
        if (error)
            *error = reason;
        return std::nullopt;
    };
    const QStringList found = searchPathDirectories(paths, directory, domain);
    if (found.isEmpty()) {
        const QString text = QCoreApplication::translate("Errors", "No path found for directory in domain.");
        return fail({QStringLiteral("DirectoryLocationDomain"),
                     0,
                     {{descriptionKey, text},
                      {QStringLiteral("NSSearchPathDirectory"), static_cast<int>(directory)},
                      {QStringLiteral("NSSearchPathDomainMask"), static_cast<int>(domain)}}});
    }
    const QString path = component.isEmpty() ? found.first() : joinPath(found.first(), component);
    SystemError reason;
    if (!createFolder(path, &reason))
        return fail({QStringLiteral("POSIX"), reason.code, {{descriptionKey, reason.text}}});
    if (error)
        error->reset();
    return path;
}

std::optional<QString> applicationSupportDirectory(const AppPaths &paths)
{
    std::optional<LocationError> error;
    std::optional<QString> path = findOrCreateDirectory(paths, SearchPathDirectory::ApplicationSupport,
                                                        SearchPathDomain::User, executableName(), &error);
    if (!path)
        logMessage(QStringLiteral("Unable to find or create application support directory:\n%1")
                       .arg(error ? error->text() : QString()));
    return path;
}

QString applicationSupportPath(const AppPaths &paths)
{
    const QStringList found =
        searchPathDirectories(paths, SearchPathDirectory::ApplicationSupport, SearchPathDomain::User);
    return found.isEmpty() ? QString() : joinPath(found.first(), executableName());
}

} // namespace dravolin
