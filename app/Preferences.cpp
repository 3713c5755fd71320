#include "app/Preferences.h"

#include "base/Files.h"
#include "base/SystemLog.h"
#include "config/AppPaths.h"
#include "config/HomeBytes.h"

#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

#include <fcntl.h>

namespace dravolin {

namespace {

const QString uidRootKey = QStringLiteral("uidRoot");
// Milliseconds. The window is closing, and Qt alone would wait for half a minute.
constexpr int lockPatience = 20;

QString settingsFolder()
{
    return withBytesOfHome(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

// The way to an open folder, whatever its name.
QString wayThroughHandle(const QString &folder)
{
    (void)createFolder(folder);
    static const int handle = ::open(systemPath(folder).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    return QStringLiteral("/proc/self/fd/%1").arg(handle);
}

// As QSettings knows it, which loses bytes that are not UTF-8.
QString folderOfQt()
{
    QString folder = settingsFolder();
    if (systemPath(folder).isValidUtf8())
        return folder;
    static const QString way = wayThroughHandle(folder);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, way);
    return way;
}

// Where QSettings keeps what belongs to the user; it reads the maker's file as well.
QString makersFile(const QString &folder)
{
    return joinPath(folder, executableName() + QStringLiteral(".conf"));
}

QString programsFile(const QString &folder)
{
    return makersFile(joinPath(folder, executableName()));
}

bool areReadable()
{
    const auto canBeOpened = [](const QString &path) {
        return !QFileInfo::exists(path) || QFileInfo(path).isFile();
    };
    return canBeOpened(programsFile(folderOfQt())) && canBeOpened(makersFile(folderOfQt()));
}

bool areLocked()
{
    QLockFile lock(programsFile(folderOfQt()) + QStringLiteral(".lock"));
    lock.setStaleLockTime(0); // the lock of a program that has ended is none, however old a living one's is
    return !lock.tryLock(lockPatience) && lock.error() == QLockFile::LockFailedError;
}

QSettings settings()
{
    return QSettings(executableName(), executableName());
}

bool store(const QString &root)
{
    QSettings stored = settings();
    stored.setValue(uidRootKey, root);
    stored.sync();
    return stored.status() != QSettings::AccessError; // what was there may have been damaged
}

} // namespace

QString storedUidRoot()
{
    return areReadable() ? settings().value(uidRootKey).toString() : QString();
}

void storeUidRoot(const QString &root)
{
    if (!areReadable() || areLocked() || !store(root))
        logMessage(
            QStringLiteral("Could not store the UID root in file: %1").arg(programsFile(settingsFolder())));
}

} // namespace dravolin
