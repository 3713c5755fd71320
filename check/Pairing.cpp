#include "check/Pairing.h"

#include "check/Folding.h"

#include <QHash>

#include <algorithm>

namespace dravolin::check {

namespace {

constexpr quint64 objectBit = 1;

} // namespace

Pairs::Pairs(const std::vector<qint32> &named, qsizetype results)
    : m_originalOf(static_cast<size_t>(results), nobody), m_isTaken(named.size(), false)
{
    m_originals.reserve(named.size());
    for (size_t i = 0; i < named.size(); ++i) {
        if (named[i] != nobody && m_originalOf[static_cast<size_t>(named[i])] == nobody)
            join(static_cast<qsizetype>(i), named[i]);
    }
}

void Pairs::join(qsizetype original, qsizetype result)
{
    m_originalOf[static_cast<size_t>(result)] = static_cast<qint32>(original);
    m_isTaken[static_cast<size_t>(original)] = true;
}

Pairs::Free Pairs::freeOf(const FileRecord &record, qsizetype index)
{
    return {index, record.state, mixed(record.content, record.bytes) & ~objectBit, record.pixels,
            record.instance};
}

void Pairs::addOriginal(const FileRecord &record)
{
    const size_t index = m_originals.size();
    const Free own = freeOf(record, static_cast<qsizetype>(index));
    m_originals.push_back(
        {own.content | (own.state == FileRecord::State::Object ? objectBit : 0), own.pixels});
    if (!m_isTaken[index])
        m_freeOriginals.push_back(own);
}

void Pairs::addResult(const FileRecord &record)
{
    const Free own = freeOf(record, m_results++);
    const qsizetype original = m_originalOf[static_cast<size_t>(own.index)];
    if (original == nobody)
        m_freeResults.push_back(own);
    else
        compare(m_originals[static_cast<size_t>(original)], own);
}

// Pairs what has the same key on both sides; 0 is none.
void Pairs::pairBy(quint64 Free::*key)
{
    QMultiHash<quint64, qsizetype> free;
    for (auto original = m_freeOriginals.crbegin(); original != m_freeOriginals.crend(); ++original)
        if (!m_isTaken[static_cast<size_t>(original->index)] && *original.*key != 0)
            free.insert(*original.*key, original->index);
    for (const Free &result : m_freeResults) {
        const bool isPaired = m_originalOf[static_cast<size_t>(result.index)] != nobody;
        const auto found = isPaired ? free.constEnd() : free.constFind(result.*key);
        if (found == free.constEnd())
            continue;
        join(*found, result.index);
        free.erase(found);
    }
}

void Pairs::compare(const Kept &original, const Free &result)
{
    using State = FileRecord::State;
    const bool wasObject = (original.content & objectBit) != 0;
    ++m_pairing.pairs;
    if (wasObject && result.state == State::NoObject)
        m_pairing.noObjects.append(result.index);
    if (result.state != State::Unreadable && (original.content & ~objectBit) == result.content)
        m_pairing.unchanged.append(result.index);
    else if (wasObject && result.state == State::Object && original.pixels != result.pixels)
        m_pairing.pixelsChanged.append(result.index);
}

Pairing Pairs::pairing()
{
    pairBy(&Free::instance);
    pairBy(&Free::pixels);
    for (const Free &original : m_freeOriginals) {
        if (!m_isTaken[static_cast<size_t>(original.index)])
            m_pairing.missing.append(original.index);
    }
    for (const Free &result : m_freeResults) {
        const qsizetype original = m_originalOf[static_cast<size_t>(result.index)];
        if (original == nobody)
            m_pairing.added.append(result.index);
        else
            compare(m_originals[static_cast<size_t>(original)], result);
    }
    for (QList<qsizetype> *list : {&m_pairing.unchanged, &m_pairing.pixelsChanged, &m_pairing.noObjects})
        std::sort(list->begin(), list->end());
    return std::move(m_pairing);
}

} // namespace dravolin::check
