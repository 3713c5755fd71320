#include "batch/TableFile.h"

#include "base/PathText.h"
#include "batch/Csv.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace dravolin {

TableFile::TableFile(const QString &path, unsigned mode)
    : m_path(path), m_temporary(path + QStringLiteral(".part")),
      m_file(::open(systemPath(m_temporary).constData(),
                    O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, mode))
{
}

void TableFile::add(const QByteArray &bytes)
{
    constexpr qsizetype enough = 65536;
    m_buffer += bytes;
    if (m_buffer.size() > enough)
        flush();
}

void TableFile::addLine(const QStringList &values)
{
    add(toBytes(csvLine(values)));
}

bool TableFile::finish()
{
    flush();
    return m_good && ::fsync(m_file.get()) == 0 &&
           std::rename(systemPath(m_temporary).constData(), systemPath(m_path).constData()) == 0;
}

void TableFile::flush()
{
    const auto size = static_cast<size_t>(m_buffer.size());
    m_good = m_good && m_file.isOpen() &&
             ::write(m_file.get(), m_buffer.constData(), size) == static_cast<ssize_t>(size);
    m_buffer.clear();
}

} // namespace dravolin
