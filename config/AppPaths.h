#pragma once

#include <QString>
#include <QStringList>

namespace dravolin {

// Where everything lies; decided once at start and then a plain value. Any thread may read it.
struct AppPaths
{
    QString resourceFolder;    // the tools, the dictionary, the default configuration, the pictures
    QString applicationFolder; // the folder that contains the executable
    QString desktopFolder;     // the user's desktop; may not exist
    // The system's application support folders, the user's own first; may not exist, may be empty.
    QStringList applicationSupportFolders;

    // The path of this process's executable, whatever bytes its name has; a name of base/PathText.h.
    [[nodiscard]] static QString ownExecutable();
    // For the executable at `executable`: its folder's "resources" when that exists, else
    // "../share/dravolin".
    [[nodiscard]] static AppPaths forExecutable(const QString &executable);

    // The path of the resource `name`, whether it exists or not.
    [[nodiscard]] QString resource(const QString &name) const;
    [[nodiscard]] QString dcmodify() const { return resource(QStringLiteral("dcmodify")); }
    [[nodiscard]] QString dcmdump() const { return resource(QStringLiteral("dcmdump")); }
    [[nodiscard]] QString dictionary() const { return resource(QStringLiteral("dicom.dic")); }
    [[nodiscard]] QString defaultConfiguration() const
    {
        return resource(QStringLiteral("DefaultAnonymizationConfiguration.txt"));
    }
    // The tables of translated texts, dravolin_LANGUAGE.qm.
    [[nodiscard]] QString translationsFolder() const { return resource(QStringLiteral("translations")); }
    // Configurations to start from; nothing looks for configurations or tables in it.
    [[nodiscard]] QString examplesFolder() const { return resource(QStringLiteral("examples")); }
};

// The name that the application's own folders carry.
inline QString executableName()
{
    return QStringLiteral("Dravolin");
}

} // namespace dravolin
