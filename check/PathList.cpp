#include "check/PathList.h"

#include "base/PathText.h"

#include <algorithm>

namespace dravolin::check {

namespace {

// Below 0 when the path of these bytes stands before `path`, above when behind; as texts compare, which is
// not as bytes do.
int order(QByteArrayView bytes, const QString &path)
{
    constexpr int firstOther = 0x80; // behind ASCII
    const qsizetype size = std::min(bytes.size(), path.size());
    qsizetype at = 0;
    while (at < size && path[at].unicode() < firstOther && bytes[at] == path[at].unicode())
        ++at;
    const int there = at < bytes.size() ? static_cast<uchar>(bytes[at]) : -1;
    const int wanted = at < path.size() ? path[at].unicode() : -1;
    if (there < firstOther || wanted < firstOther)
        return there - wanted;
    return fromBytes(bytes.toByteArray()).compare(path);
}

} // namespace

void PathList::append(const QString &path)
{
    m_bytes += toBytes(path);
    m_ends.push_back(m_bytes.size());
}

QString PathList::operator[](qsizetype index) const
{
    return fromBytes(bytesAt(index).toByteArray());
}

QByteArrayView PathList::bytesAt(qsizetype index) const
{
    const auto at = static_cast<size_t>(index);
    const qsizetype start = at == 0 ? 0 : m_ends[at - 1];
    return QByteArrayView(m_bytes).sliced(start, m_ends[at] - start);
}

qsizetype PathList::indexOf(const QString &path) const
{
    qsizetype first = 0;
    for (qsizetype end = size(); first < end;) {
        const qsizetype middle = first + (end - first) / 2;
        const int there = order(bytesAt(middle), path);
        if (there == 0)
            return middle;
        (there < 0 ? first : end) = there < 0 ? middle + 1 : middle;
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
