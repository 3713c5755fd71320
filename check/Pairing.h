#pragma once

#include "check/FileRecord.h"

#include <QList>
#include <QStringList>

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

// One side: records and names in the same order. A name is what an original and its result have in common
// when nothing was renamed.
struct Side
{
    const std::vector<FileRecord> &records;
    const QStringList &names;
};

// Pairs by name, then by SOP Instance UID, then by pixel data; each file once.
[[nodiscard]] Pairing pairUp(const Side &originals, const Side &results);

} // namespace dravolin::check
