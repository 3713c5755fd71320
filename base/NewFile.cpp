#include "base/NewFile.h"

#include "base/Files.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>

namespace dravolin {

NewFile writeNewText(const QString &path, const QString &text)
{
    const int fd = ::open(systemPath(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0)
        return errno == EEXIST ? NewFile::Taken : NewFile::Failed;
    QFile file;
    const QByteArray bytes = toBytes(text);
    const bool written =
        file.open(fd, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle) &&
        file.write(bytes) == bytes.size();
    if (written)
        return NewFile::Written;
    removeFile(path);
    return NewFile::Failed;
}

} // namespace dravolin
