#include "app/Preferences.h"

#include "base/SystemLog.h"
#include "config/AppPaths.h"

#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>

namespace dravolin {

namespace {

const QString uidRootKey = QStringLiteral("uidRoot");
// Milliseconds. The window is closing, and Qt alone would wait for half a minute.
constexpr int lockPatience = 20;

// Where QSettings keeps what belongs to the user; it reads the maker's file as well.
QString settingsFile(const QString &name)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + u'/' + name + QStringLiteral(".conf");
}

QString programsFile()
{
    return settingsFile(executableName() + u'/' + executableName());
}

bool areReadable()
{
    const auto canBeOpened = [](const QString &path) {
        return !QFileInfo::exists(path) || QFileInfo(path).isFile();
    };
    return canBeOpened(programsFile()) && canBeOpened(settingsFile(executableName()));
}

bool areLocked()
{
    QLockFile lock(programsFile() + QStringLiteral(".lock"));
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
        logMessage(QStringLiteral("Could not store the UID root in file: %1").arg(programsFile()));
}

} // namespace dravolin
