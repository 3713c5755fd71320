#include "batch/PlannedFiles.h"

#include "base/PathText.h"

#include <fcntl.h>
#include <unistd.h>

namespace dravolin {

PlannedFiles::PlannedFiles(const QString &folder)
{
    // not every file system makes files that have had no name
    const QByteArray path = systemPath(joinPath(folder, QStringLiteral("plan.part")));
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    ::unlink(path.constData());
    if (file >= 0 && !m_file.open(file, QIODevice::ReadWrite, QFileDevice::AutoCloseHandle))
        ::close(file);
    m_stream.setDevice(&m_file);
}

void PlannedFiles::add(const PlannedFile &file)
{
    m_stream << file.path << file.size << file.modified << file.sopInstance << file.series << file.isDirectory
             << file.problem;
    m_end = m_file.pos();
}

PlannedFile PlannedFiles::read(qint64 *place)
{
    if (m_file.pos() != *place)
        m_file.seek(*place);
    PlannedFile file;
    m_stream >> file.path >> file.size >> file.modified >> file.sopInstance >> file.series >>
        file.isDirectory >> file.problem;
    *place = m_file.pos();
    return file;
}

bool PlannedFiles::isGood()
{
    m_good = m_good && m_file.isOpen() && m_file.flush() && m_stream.status() == QDataStream::Ok;
    return m_good;
}

} // namespace dravolin
