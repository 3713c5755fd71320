#include "check/Pairing.h"

#include <QHash>

#include <functional>

namespace dravolin::check {

namespace {

constexpr qsizetype nobody = -1;

class Pairs
{
public:
    Pairs(const Side &originals, const Side &results)
        : m_originals(originals), m_results(results), m_originalOf(results.names.size(), nobody),
          m_isTaken(static_cast<size_t>(originals.names.size()), false)
    {
    }

    // Pairs what has the same key on both sides; keys that are not true are none.
    template <typename Key>
    void pairBy(const std::function<Key(const Side &, qsizetype)> &keyOf)
    {
        QMultiHash<Key, qsizetype> free;
        for (qsizetype i = m_originals.names.size() - 1; i >= 0; --i) {
            if (const Key key = keyOf(m_originals, i); !m_isTaken[static_cast<size_t>(i)] && key != Key())
                free.insert(key, i);
        }
        for (qsizetype i = 0; i < m_results.names.size(); ++i) {
            const auto found =
                m_originalOf[i] == nobody ? free.constFind(keyOf(m_results, i)) : free.constEnd();
            if (found == free.constEnd())
                continue;
            m_originalOf[i] = *found;
            m_isTaken[static_cast<size_t>(*found)] = true;
            free.erase(found);
        }
    }

    [[nodiscard]] Pairing pairing() const
    {
        Pairing result;
        for (qsizetype i = 0; i < m_originals.names.size(); ++i) {
            if (!m_isTaken[static_cast<size_t>(i)])
                result.missing.append(i);
        }
        for (qsizetype i = 0; i < m_results.names.size(); ++i) {
            if (m_originalOf[i] == nobody)
                result.added.append(i);
            else
                compare(m_originals.records[static_cast<size_t>(m_originalOf[i])], i, result);
        }
        return result;
    }

private:
    void compare(const FileRecord &original, qsizetype index, Pairing &pairing) const
    {
        const FileRecord &result = m_results.records[static_cast<size_t>(index)];
        ++pairing.pairs;
        if (original.state == FileRecord::State::Object && result.state == FileRecord::State::NoObject)
            pairing.noObjects.append(index);
        if (result.state != FileRecord::State::Unreadable && original.content == result.content &&
            original.bytes == result.bytes)
            pairing.unchanged.append(index);
        else if (original.state == FileRecord::State::Object && result.state == FileRecord::State::Object &&
                 original.pixels != result.pixels)
            pairing.pixelsChanged.append(index);
    }

    const Side &m_originals;
    const Side &m_results;
    QList<qsizetype> m_originalOf; // of each result
    std::vector<bool> m_isTaken;   // of each original
};

const FileRecord &recordOf(const Side &side, qsizetype index)
{
    return side.records[static_cast<size_t>(index)];
}

} // namespace

Pairing pairUp(const Side &originals, const Side &results)
{
    Pairs pairs(originals, results);
    pairs.pairBy<QString>([](const Side &side, qsizetype i) { return side.names[i]; });
    pairs.pairBy<quint64>([](const Side &side, qsizetype i) { return recordOf(side, i).instance; });
    pairs.pairBy<quint64>([](const Side &side, qsizetype i) { return recordOf(side, i).pixels; });
    return pairs.pairing();
}

} // namespace dravolin::check
