#include "batch/KnownFiles.h"

#include "base/PathText.h"

namespace dravolin {

KnownFiles::KnownFiles(const Journal &journal, const QString &caseId) : m_journal(journal), m_caseId(caseId)
{
    read(QString());
}

const FileRecord *KnownFiles::current() const
{
    return m_next < m_read.size() ? &m_read.at(m_next) : nullptr;
}

void KnownFiles::pass()
{
    if (++m_next == m_read.size())
        read(QString(m_read.last().path));
}

FileRecord KnownFiles::find(const QString &path)
{
    while (current() && comesBefore(current()->path, path))
        pass();
    return current() && current()->path == path ? *current() : FileRecord();
}

void KnownFiles::read(const QString &behind)
{
    constexpr int atOnce = 500;
    m_read = m_journal.files(m_caseId, behind, atOnce);
    m_next = 0;
}

bool comesBefore(const QString &path, const QString &other)
{
    return toBytes(path) < toBytes(other);
}

} // namespace dravolin
