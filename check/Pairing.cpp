#include "check/Pairing.h"

#include "check/Folding.h"

#include <QHash>

namespace dravolin::check {

namespace {

class Pairs
{
public:
    Pairs(const KeptRecords &originals, const KeptRecords &results)
        : m_originals(originals), m_results(results), m_originalOf(results.size(), nobody),
          m_isTaken(originals.size(), false)
    {
    }

    // A result that several originals name belongs to the first one.
    void pairByName(const std::vector<qsizetype> &named)
    {
        for (size_t i = 0; i < named.size(); ++i)
            if (named[i] != nobody && m_originalOf[static_cast<size_t>(named[i])] == nobody)
                join(i, static_cast<size_t>(named[i]));
    }

    // Pairs what has the same key on both sides; 0 is none.
    void pairBy(quint64 KeptRecord::*key)
    {
        QMultiHash<quint64, size_t> free;
        for (size_t i = m_originals.size(); i-- > 0;)
            if (!m_isTaken[i] && m_originals[i].*key != 0)
                free.insert(m_originals[i].*key, i);
        for (size_t i = 0; i < m_results.size(); ++i) {
            const auto found =
                m_originalOf[i] == nobody ? free.constFind(m_results[i].*key) : free.constEnd();
            if (found == free.constEnd())
                continue;
            join(*found, i);
            free.erase(found);
        }
    }

    [[nodiscard]] Pairing pairing() const
    {
        Pairing result;
        for (size_t i = 0; i < m_originals.size(); ++i) {
            if (!m_isTaken[i])
                result.missing.append(static_cast<qsizetype>(i));
        }
        for (size_t i = 0; i < m_results.size(); ++i) {
            if (m_originalOf[i] == nobody)
                result.added.append(static_cast<qsizetype>(i));
            else
                compare(m_originals[static_cast<size_t>(m_originalOf[i])], i, result);
        }
        return result;
    }

private:
    void join(size_t original, size_t result)
    {
        m_originalOf[result] = static_cast<qsizetype>(original);
        m_isTaken[original] = true;
    }

    void compare(const KeptRecord &original, size_t at, Pairing &pairing) const
    {
        const KeptRecord &result = m_results[at];
        const auto index = static_cast<qsizetype>(at);
        ++pairing.pairs;
        if (original.state == FileRecord::State::Object && result.state == FileRecord::State::NoObject)
            pairing.noObjects.append(index);
        if (result.state != FileRecord::State::Unreadable && original.content == result.content)
            pairing.unchanged.append(index);
        else if (original.state == FileRecord::State::Object && result.state == FileRecord::State::Object &&
                 original.pixels != result.pixels)
            pairing.pixelsChanged.append(index);
    }

    const KeptRecords &m_originals;
    const KeptRecords &m_results;
    std::vector<qsizetype> m_originalOf; // of each result
    std::vector<bool> m_isTaken;         // of each original
};

} // namespace

KeptRecord::KeptRecord(const FileRecord &record)
    : content(mixed(record.content, record.bytes)), pixels(record.pixels), instance(record.instance),
      state(record.state)
{
}

Pairing pairUp(const KeptRecords &originals, const KeptRecords &results, const std::vector<qsizetype> &named)
{
    Pairs pairs(originals, results);
    pairs.pairByName(named);
    pairs.pairBy(&KeptRecord::instance);
    pairs.pairBy(&KeptRecord::pixels);
    return pairs.pairing();
}

} // namespace dravolin::check
