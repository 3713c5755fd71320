#include "dicom/Levels.h"

#include <algorithm>
#include <utility>

namespace dravolin {

namespace {

quint32 grown(quint64 length, qint64 growth)
{
    return static_cast<quint32>(static_cast<qint64>(length) + growth);
}

} // namespace

quint32 privateBlock(TagNumber tag)
{
    const bool isCreator = elementOf(tag) <= 0xff;
    const unsigned block = isCreator ? elementOf(tag) : elementOf(tag) >> 8;
    return static_cast<quint32>(groupOf(tag)) << 16 | block;
}

Levels::Levels(const Notation &notation) : m_levels(1)
{
    m_levels.front().notation = notation;
}

void Levels::enter(const Element &header)
{
    Level level;
    level.header = header;
    level.surroundings.characterSet = surroundings().characterSet;
    level.notation = header.written == vr('U', 'N') ? Notation{false, false} : header.notation;
    m_levels.push_back(level);
}

void Levels::leave()
{
    leaveGroup();
    const Level level = m_levels.back();
    m_levels.pop_back();
    if (level.growth == 0)
        return;
    const Element &header = level.header;
    if (header.length != undefinedLength)
        add({header.lengthField, 4, header.notation.bytes32(grown(header.length, level.growth))});
    m_levels.back().growth += level.growth;
    m_levels.back().groupGrowth += level.growth;
}

void Levels::enterGroup(quint16 group)
{
    if (m_levels.back().group == group)
        return;
    leaveGroup();
    m_levels.back().group = group;
}

void Levels::setGroupLength(const Element &element, quint32 length)
{
    m_levels.back().groupLengthElement = element;
    m_levels.back().groupLength = length;
    m_levels.back().groupGrowth = 0;
}

void Levels::replace(quint64 offset, quint64 removed, const QByteArray &inserted)
{
    const qint64 growth = inserted.size() - static_cast<qint64>(removed);
    add({offset, removed, inserted});
    m_levels.back().growth += growth;
    m_levels.back().groupGrowth += growth;
}

Patches Levels::patches()
{
    leaveGroup();
    std::stable_sort(m_patches.begin(), m_patches.end(),
                     [](const Patch &one, const Patch &other) { return one.offset < other.offset; });
    return std::move(m_patches);
}

void Levels::add(const Patch &patch)
{
    m_patches.push_back(patch);
    m_inserted += static_cast<quint64>(patch.inserted.size());
}

void Levels::leaveGroup()
{
    Level &level = m_levels.back();
    const Element element = std::exchange(level.groupLengthElement, {});
    const quint32 length = grown(level.groupLength, level.groupGrowth);
    const bool changed = element.tag != 0 && level.groupGrowth != 0;
    level.groupGrowth = 0;
    if (changed && length != 0) {
        add({element.value, 4, level.notation.bytes32(length)});
    } else if (changed) {
        const quint64 size = element.end() - element.start;
        add({element.start, size, {}});
        level.growth -= static_cast<qint64>(size);
    }
}

} // namespace dravolin
