#pragma once

#include "batch/CaseList.h"
#include "batch/Plan.h"

#include <QList>
#include <QString>

// Where a run reads and writes. Paths are texts of base/PathText.h.
namespace dravolin {

// One text for a place, whichever links lead there: the real path of the deepest part that exists, and the
// rest as it is. Any thread.
[[nodiscard]] QString placeOf(const QString &path);

// What is wrong with sources and destinations: a run may write into no source, destinations do not hold each
// other, the run's own folder or the key, and neither does a source hold these. Compares places, not paths,
// and writes nothing.
[[nodiscard]] QList<ListProblem> placeProblems(const QList<CaseRow> &rows, const BatchOptions &options);

} // namespace dravolin
