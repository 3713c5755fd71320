#pragma once

#include "check/FileRecord.h"

#include <QList>

#include <vector>

namespace dravolin::check {

// Which result came from which original, and what that says.
struct Pairing
{
    QList<qsizetype> missing;       // originals without a result; indices
    QList<qsizetype> added;         // results without an original
    QList<qsizetype> unchanged;     // results that are byte for byte their original
    QList<qsizetype> pixelsChanged; // results
    QList<qsizetype> noObjects;     // results that are no object any more
    qsizetype pairs = 0;
};

constexpr qint32 nobody = -1;

// Pairs by name, then by SOP Instance UID, then by pixel data; each file once. One thread at a time.
class Pairs
{
public:
    // `named` has the index of the result that has an original's name, or nobody, for each original. A result
    // that several originals name belongs to the first one.
    Pairs(const std::vector<qint32> &named, qsizetype results);

    // All originals in their order, then all results.
    void addOriginal(const FileRecord &record);
    void addResult(const FileRecord &record);

    // Once, behind the last result.
    [[nodiscard]] Pairing pairing();

private:
    // What is kept of a file that has no name on the other side.
    struct Free
    {
        qsizetype index;
        FileRecord::State state;
        quint64 content;
        quint64 pixels;
        quint64 instance;
    };
    // What is kept of every original; of a result, nothing is.
    struct Kept
    {
        quint64 content; // as in a record, its length among it; the lowest bit says that it is an object
        quint64 pixels;
    };

    [[nodiscard]] static Free freeOf(const FileRecord &record, qsizetype index);
    void join(qsizetype original, qsizetype result);
    void pairBy(quint64 Free::*key);
    void compare(const Kept &original, const Free &result);

    std::vector<Kept> m_originals;
    std::vector<qint32> m_originalOf; // of each result
    std::vector<bool> m_isTaken;      // of each original
    std::vector<Free> m_freeOriginals;
    std::vector<Free> m_freeResults;
    qsizetype m_results = 0; // so far
    Pairing m_pairing;
};

} // namespace dravolin::check
