#include "check/PathList.h"

#include "base/PathText.h"

#include <algorithm>
#include <numeric>

namespace dravolin::check {

namespace {

constexpr int firstOther = 0x80; // behind ASCII

// The unit at a place of bytes or of a text; -1 behind the last.
int unitAt(QByteArrayView bytes, qsizetype at)
{
    return at < bytes.size() ? static_cast<uchar>(bytes[at]) : -1;
}

int unitAt(const QString &text, qsizetype at)
{
    return at < text.size() ? text[at].unicode() : -1;
}

QString textOf(QByteArrayView bytes)
{
    return fromBytes(bytes.toByteArray());
}

const QString &textOf(const QString &text)
{
    return text;
}

// Below 0 when the path of these bytes stands before the other one, above when behind; as texts compare,
// which is not as bytes do.
template <typename Path>
int order(QByteArrayView bytes, const Path &other)
{
    qsizetype at = 0;
    while (at < bytes.size() && unitAt(bytes, at) < firstOther && unitAt(bytes, at) == unitAt(other, at))
        ++at;
    const int one = unitAt(bytes, at);
    const int two = unitAt(other, at);
    return one < firstOther || two < firstOther ? one - two : textOf(bytes).compare(textOf(other));
}

} // namespace

void PathList::appendBytes(QByteArrayView path)
{
    m_bytes += path;
    m_ends.push_back(m_bytes.size());
}

void PathList::squeeze()
{
    m_bytes.squeeze();
    m_ends.shrink_to_fit();
}

QString PathList::operator[](qsizetype index) const
{
    return textOf(bytesAt(index));
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

std::vector<qsizetype> PathList::sorted(Order wanted) const
{
    std::vector<qsizetype> indices(m_ends.size());
    std::iota(indices.begin(), indices.end(), 0);
    std::sort(indices.begin(), indices.end(), [this, wanted](qsizetype one, qsizetype two) {
        const QByteArrayView first = bytesAt(one);
        const QByteArrayView second = bytesAt(two);
        return wanted == Order::Bytes ? first < second : order(first, second) < 0;
    });
    return indices;
}

QStringList PathList::toList() const
{
    QStringList list;
    for (qsizetype i = 0; i < size(); ++i)
        list.append((*this)[i]);
    return list;
}

} // namespace dravolin::check
