#pragma once

#include "config/AppPaths.h"

#include <QMap>
#include <QString>
#include <QStringList>

// Where anonymization configurations are looked for and what they are called. Any thread.
namespace dravolin {

using TitleToPath = QMap<QString, QString>;

// The files directly in `folder` whose lower-cased names begin with `prefix` and whose lower-cased extension
// is "txt", by what stands between the two (its case kept); an entry's type is not looked at, a later entry
// of the same title wins, a folder that cannot be listed gives nothing.
[[nodiscard]] TitleToPath textFilesByTitle(const QString &folder, const QString &prefix);

// The configurations directly in `folder`; those with an empty title are left out.
[[nodiscard]] TitleToPath configsAtPath(const QString &folder);

struct FoundConfigurations
{
    TitleToPath allConfigPaths;     // never empty
    bool revertedToDefault = false; // nothing was found: the user is told
};

// A configuration among the resources alone, else those of the desktop, the application's folder and the
// support folder (created when missing), a later place winning; else the default configuration.
[[nodiscard]] FoundConfigurations findConfigurations(const AppPaths &paths);

// The folder for a copy of the default configuration: the support folder, created when missing. `usable` is
// false when there is no such folder and it cannot be made.
struct ConfigurationFolder
{
    QString path;
    bool usable = false;
};
[[nodiscard]] ConfigurationFolder configurationFolder(const AppPaths &paths);

// Copies the default configuration into `folder` (created when missing) under `name`; gives the copy's path.
// A failure, an existing file among them, changes nothing and is not reported.
QString copyDefaultConfiguration(const AppPaths &paths, const QString &folder, const QString &name);

// The path of the configuration folder for a person who is to edit there. An empty one, created when missing,
// gets copies of the default configuration and then of the examples among the resources; the first copy that
// fails ends it, unreported. The default's comes first by name, so that it stays the one that a list of them
// begins with.
QString configurationFolderWithExamples(const AppPaths &paths);

} // namespace dravolin
