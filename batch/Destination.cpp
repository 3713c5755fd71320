#include "batch/Destination.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dravolin {

namespace {

bool isTemporaryName(const QString &name)
{
    return name.startsWith(QStringLiteral(".dravolin-")) && name.endsWith(QStringLiteral(".part"));
}

} // namespace

QString temporaryName(qsizetype number)
{
    return QStringLiteral(".dravolin-%1.part").arg(number);
}

QString makeDestination(const QString &path)
{
    SystemError error;
    if (!createFolder(path, &error))
        return Texts::tr("the destination %1 cannot be made: %2").arg(path, error.text);
    return {};
}

Descriptor takeDestination(const QString &path, bool isBegun, QString *problem)
{
    Descriptor folder(::open(systemPath(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder.isOpen())
        *problem = Texts::tr("the destination %1 cannot be opened: %2")
                       .arg(path, QString::fromLocal8Bit(std::strerror(errno)));
    else if (::flock(folder.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        *problem = Texts::tr("another call is at work in %1").arg(path);
    else if (!isBegun && !listNames(path).isEmpty())
        *problem = Texts::tr("the destination %1 is in use").arg(path);
    if (!problem->isEmpty())
        return Descriptor();
    for (const QString &name : listNames(path))
        if (isTemporaryName(name))
            removeFile(joinPath(path, name));
    return folder;
}

QString syncFolders(const QSet<QString> &folders)
{
    QString problem;
    QSet<quint64> synced; // file systems
    for (const QString &folder : folders) {
        const Descriptor opened(::open(systemPath(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        struct stat attributes = {};
        if (!opened.isOpen() || ::fstat(opened.get(), &attributes) != 0 || synced.contains(attributes.st_dev))
            continue;
        if (::syncfs(opened.get()) != 0)
            problem = Texts::tr("results in %1 cannot be made safe: %2")
                          .arg(folder, QString::fromLocal8Bit(std::strerror(errno)));
        synced.insert(attributes.st_dev);
    }
    return problem;
}

} // namespace dravolin
