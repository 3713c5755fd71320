#include "config/ConfigurationDiscovery.h"

#include "base/Files.h"
#include "base/Texts.h"
#include "config/DirectoryLocations.h"

namespace dravolin {

TitleToPath textFilesByTitle(const QString &folder, const QString &prefix)
{
    TitleToPath found;
    for (const QString &name : listNames(folder)) {
        if (!name.toLower().startsWith(prefix) || pathExtension(name).toLower() != QStringLiteral("txt"))
            continue;
        found.insert(withoutExtension(name).sliced(prefix.size()), joinPath(folder, name));
    }
    return found;
}

TitleToPath configsAtPath(const QString &folder)
{
    TitleToPath found = textFilesByTitle(folder, QStringLiteral("anonymizationconfiguration_"));
    found.remove(QString());
    return found;
}

FoundConfigurations findConfigurations(const AppPaths &paths)
{
    const QString bundled = paths.resource(QStringLiteral("AnonymizationConfiguration.txt"));
    if (pathExists(bundled))
        return {{{Texts::tr("Bundled Configuration"), bundled}}, false};

    FoundConfigurations found;
    QStringList folders = {paths.desktopFolder, paths.applicationFolder};
    if (const std::optional<QString> support = applicationSupportDirectory(paths))
        folders.append(*support);
    for (const QString &folder : folders)
        found.allConfigPaths.insert(configsAtPath(folder));
    if (found.allConfigPaths.isEmpty()) {
        found.allConfigPaths.insert(Texts::tr("Bundled Default"), paths.defaultConfiguration());
        found.revertedToDefault = true;
    }
    return found;
}

ConfigurationFolder configurationFolder(const AppPaths &paths)
{
    const QString path = applicationSupportPath(paths);
    return {path, !path.isEmpty() && createFolder(path)};
}

QString copyDefaultConfiguration(const AppPaths &paths, const QString &folder, const QString &name)
{
    QString copy = joinPath(folder, name);
    if (createFolder(folder))
        (void)copyFile(paths.defaultConfiguration(), copy);
    return copy;
}

QString configurationFolderWithExamples(const AppPaths &paths)
{
    const ConfigurationFolder folder = configurationFolder(paths);
    if (!folder.usable || !listNames(folder.path).isEmpty())
        return folder.path;
    // without the default beside them, one of the examples would be what the next start begins with
    const QString copy = joinPath(folder.path, QStringLiteral("AnonymizationConfiguration_Default.txt"));
    if (!copyFile(paths.defaultConfiguration(), copy))
        return folder.path;
    const TitleToPath examples = configsAtPath(paths.examplesFolder());
    for (const QString &example : examples) {
        if (!copyFile(example, joinPath(folder.path, lastPathComponent(example))))
            break;
    }
    return folder.path;
}

} // namespace dravolin
