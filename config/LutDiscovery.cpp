#include "config/LutDiscovery.h"

#include "config/DirectoryLocations.h"

namespace dravolin {

TitleToPath lutsAtPath(const QString &folder)
{
    TitleToPath found = textFilesByTitle(folder, QStringLiteral("anonymizationlut_"));
    found.removeIf([](const auto &entry) { return entry.key().toLower() == QStringLiteral("example"); });
    return found;
}

TitleToPath findLuts(const AppPaths &paths)
{
    QStringList folders = {paths.resourceFolder, paths.applicationFolder, paths.desktopFolder};
    if (const std::optional<QString> support = applicationSupportDirectory(paths))
        folders.append(*support);
    TitleToPath found;
    for (const QString &folder : folders)
        found.insert(lutsAtPath(folder));
    return found;
}

} // namespace dravolin
