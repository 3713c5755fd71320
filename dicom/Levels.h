#pragma once

#include "dicom/ElementReader.h"
#include "dicom/Patches.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <vector>

namespace dravolin {

// What an element's meaning depends on, beside itself.
struct Surroundings
{
    QByteArray characterSet;
    QHash<quint32, QString> creators; // of private blocks, by privateBlock()
};

// The number of the block of private elements that a private element lies in, or that its creator reserves.
[[nodiscard]] quint32 privateBlock(TagNumber tag);

// Collects changes to a data set, and changes the lengths of everything that holds them.
class Levels
{
public:
    explicit Levels(const Notation &notation);

    // Entering a sequence or an item, and leaving the innermost one.
    void enter(const Element &header);
    void leave();
    // Before anything is said about an element of the group at this level.
    void enterGroup(quint16 group);
    // The length of the current group, as it stands in the file. It goes with the last element of the group.
    void setGroupLength(const Element &element, quint32 length);

    // Puts bytes in place of `removed` ones at this level.
    void replace(quint64 offset, quint64 removed, const QByteArray &inserted);

    // At this level; what enters gets the character set of what holds it.
    [[nodiscard]] Surroundings &surroundings() { return m_levels.back().surroundings; }
    [[nodiscard]] bool isTop() const { return m_levels.size() == 1; }

    // What the changes take so far, in bytes.
    [[nodiscard]] quint64 memory() const
    {
        return m_patches.size() * (sizeof(Patch) + allocation) + m_inserted;
    }

    // All changes, in order. To be called once, at the end of the data set.
    [[nodiscard]] Patches patches();

private:
    struct Level
    {
        Element header;
        Notation notation; // of the level's own elements
        Surroundings surroundings;
        qint64 growth = 0;
        int group = -1;
        Element groupLengthElement; // tag 0 for none
        quint32 groupLength = 0;
        qint64 groupGrowth = 0;
    };
    void leaveGroup();
    void add(const Patch &patch);

    static constexpr quint64 allocation = 32; // of a byte array, beside its bytes
    quint64 m_inserted = 0;                   // bytes
    std::vector<Level> m_levels;
    Patches m_patches;
};

} // namespace dravolin
