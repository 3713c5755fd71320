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
    if (m_blocks.empty() || m_blocks.back().ends.size() == pathsInBlock)
        m_blocks.emplace_back();
    Block &block = m_blocks.back();
    block.bytes += path;
    block.ends.push_back(static_cast<quint32>(block.bytes.size()));
    if (block.ends.size() == pathsInBlock)
        block.bytes.squeeze();
}

qsizetype PathList::size() const
{
    const size_t size =
        m_blocks.empty() ? 0 : (m_blocks.size() - 1) * pathsInBlock + m_blocks.back().ends.size();
    return static_cast<qsizetype>(size);
}

QString PathList::operator[](qsizetype index) const
{
    return textOf(bytesAt(index));
}

QByteArrayView PathList::bytesAt(qsizetype index) const
{
    const Block &block = m_blocks[static_cast<size_t>(index) / pathsInBlock];
    const size_t at = static_cast<size_t>(index) % pathsInBlock;
    const quint32 start = at == 0 ? 0 : block.ends[at - 1];
    return QByteArrayView(block.bytes).sliced(start, block.ends[at] - start);
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

std::vector<quint32> PathList::sorted(Order wanted) const
{
    std::vector<quint32> indices(static_cast<size_t>(size()));
    std::iota(indices.begin(), indices.end(), 0);
    std::sort(indices.begin(), indices.end(), [this, wanted](quint32 one, quint32 two) {
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
