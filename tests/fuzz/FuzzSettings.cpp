#include "Fuzz.h"

#include "app/Preferences.h"
#include "base/Files.h"
#include "config/AppPaths.h"
#include "identifiers/UidRoot.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>

using namespace dravolin;
using fuzz::require;

// The settings file, whatever stands in it; and the rules for the root that it holds.

namespace {

QString settingsFile()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        ::setenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()).constData(), 1);
        const QString own = joinPath(folder.path(), executableName());
        require(createFolder(own), "a scratch folder can be made");
        return joinPath(own, executableName() + QStringLiteral(".conf"));
    }();
    return path;
}

// The time of the file goes on with every call: it is read again only when it has changed.
void touch(const QString &path)
{
    static time_t seconds = 0;
    ++seconds;
    const timespec times[] = {{seconds, 0}, {seconds, 0}};
    require(::utimensat(AT_FDCWD, systemPath(path).constData(), times, 0) == 0, "the file can be touched");
}

void write(const QByteArray &bytes)
{
    FILE *file = std::fopen(systemPath(settingsFile()).constData(), "wb");
    const auto size = static_cast<size_t>(bytes.size());
    require(file && std::fwrite(bytes.constData(), 1, size, file) == size && std::fclose(file) == 0,
            "the file can be written");
    touch(settingsFile());
}

void requireRules(const QString &root, const QString &caseId)
{
    const RootCheck check = checkRoot(root, caseId);
    require(fuzz::isTrimmedLine(check.trimmedRoot) || !check.valid, "a valid root is a trimmed text");
    require(checkRoot(check.trimmedRoot, caseId) == check,
            "a root that is shown trimmed is checked the same");
    const QString uid = studyInstanceUid(withoutTrailingDot(check.trimmedRoot), caseId);
    require(!check.valid || uid.size() <= 64, "a UID has at most 64 characters");
    const QString typed = filterTypedIdentifier(root);
    require(root.contains(typed) && filterTypedIdentifier(typed) == typed, "what is typed is filtered once");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    static QCoreApplication application(*count, *arguments);
    (void)settingsFile();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes = fuzz::bytesOf(data, size);
    write(bytes);
    const QString stored = storedUidRoot();
    requireRules(stored, QStringLiteral("1"));

    const QString root = QString::fromUtf8(bytes);
    requireRules(root, stored);
    storeUidRoot(root);
    touch(settingsFile());
    require(storedUidRoot() == root, "what was stored is read again");
    return 0;
}
