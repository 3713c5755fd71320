#include "batch/ResultNames.h"

#include "base/PathText.h"

namespace dravolin {

QString ResultNames::next(const PlannedFile &file)
{
    const QString first = stem(file, 1);
    const quint64 hash = qHash(first, 0);
    int copy = 1;
    if (m_given.contains(hash))
        copy = 1 + ++m_copies[hash];
    else
        m_given.insert(hash);
    if (!m_forDirectory)
        return copy == 1 ? first + QStringLiteral(".dcm") : QStringLiteral("%1_%2.dcm").arg(first).arg(copy);
    return copy == 1 ? first : stem(file, copy);
}

QString ResultNames::stem(const PlannedFile &file, int copy)
{
    if (m_folder.isEmpty() || file.series != m_series) {
        m_series = file.series;
        m_folder = m_key.shortName(file.series);
    }
    const QByteArray number = copy == 1 ? QByteArray() : ' ' + QByteArray::number(copy);
    return joinPath(m_folder, m_key.shortName(file.sopInstance + number));
}

} // namespace dravolin
