#include "check/PathList.h"

#include "base/PathText.h"

namespace dravolin::check {

void PathList::append(const QString &path)
{
    m_bytes += toBytes(path);
    m_ends.push_back(m_bytes.size());
}

QString PathList::operator[](qsizetype index) const
{
    const auto at = static_cast<size_t>(index);
    const qsizetype start = at == 0 ? 0 : m_ends[at - 1];
    return fromBytes(m_bytes.sliced(start, m_ends[at] - start));
}

qsizetype PathList::indexOf(const QString &path) const
{
    qsizetype first = 0;
    for (qsizetype end = size(); first < end;) {
        const qsizetype middle = first + (end - first) / 2;
        const QString there = (*this)[middle];
        if (there == path)
            return middle;
        (there < path ? first : end) = there < path ? middle + 1 : middle;
    }
    return -1;
}

QStringList PathList::toList() const
{
    QStringList list;
    for (qsizetype i = 0; i < size(); ++i)
        list.append((*this)[i]);
    return list;
}

} // namespace dravolin::check
