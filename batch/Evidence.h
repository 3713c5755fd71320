#pragma once

#include "batch/BatchRun.h"

// What a run leaves behind about itself.
namespace dravolin {

// The folder in a run's folder that nobody else may see: the key, and what links old to new.
[[nodiscard]] QString secretFolder(const QString &runFolder);
// The folder in a run's folder that can be passed on.
[[nodiscard]] QString evidenceFolder(const QString &runFolder);

// Writes, over those of an earlier call: evidence/report.json, what was done by which rules, with counts a
// case; evidence/files.csv, every result with the hashes of source and result; secret/uid_map.csv and
// secret/patient_map.csv with the columns id_old and id_new; secret/not_done.csv, the files without a result
// by their names in the source. False when something could not be written.
[[nodiscard]] bool writeEvidence(const Plan &plan, const BatchOptions &options, const Journal &journal,
                                 const QList<CaseCounts> &counts);

} // namespace dravolin
