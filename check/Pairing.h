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

// What is kept of each of many files.
struct KeptRecord
{
    explicit KeptRecord(const FileRecord &record);

    quint64 content; // as in FileRecord, its length among it
    quint64 pixels;
    quint64 instance;
    FileRecord::State state;
};
using KeptRecords = std::vector<KeptRecord>;

constexpr qsizetype nobody = -1;

// Pairs by name, then by SOP Instance UID, then by pixel data; each file once. `named` has the index of the
// result that has an original's name, or nobody, for each original.
[[nodiscard]] Pairing pairUp(const KeptRecords &originals, const KeptRecords &results,
                             const std::vector<qsizetype> &named);

} // namespace dravolin::check
