#pragma once

#include "batch/Journal.h"
#include "batch/Plan.h"
#include "batch/ProjectKey.h"

#include <QSet>
#include <QStringList>

namespace dravolin {

// What earlier calls made of a case and nobody wants any more.
struct StaleResults
{
    QSet<QString> results; // paths in the destination
    QStringList gone;      // files that the journal knows and the source has no more
};

// Goes through a case's files, and through what the journal knows of it: results that had another name, and
// those of files that are gone, unless another file's result has that name now. Few are, as a rule: these
// alone are kept. The result of a file that cannot be read now, and is what it was when the result was made,
// is not stale; of a case that could not be listed completely, or whose source is empty all of a sudden, none
// is. Then gone are only files whose result goes to another one. Nothing when `files` cannot be read.
[[nodiscard]] StaleResults staleResults(const PlannedCase &planned, PlannedFiles &files,
                                        const ProjectKey &key, const Journal &journal);

} // namespace dravolin
