#pragma once

#include "batch/Journal.h"
#include "batch/Plan.h"
#include "batch/ProjectKey.h"

#include <functional>

// The DICOMDIR of a case: a source's own names the patient, and files that no longer have these names.
namespace dravolin {

struct CaseDirectory
{
    QString problem; // why it could not be made; "" when it is there, or was not asked for
    bool isThere = false;
    bool isNew = false;    // made by this call
    qsizetype leftOut = 0; // results of kinds that have no place in a DICOMDIR
};

// Makes one for the results of a finished case whose source has one, unless the one of an earlier call is
// there and still right; the journal then has it as what became of the source's. Stopped, it does nothing.
[[nodiscard]] CaseDirectory makeDirectoryOf(const PlannedCase &planned, const ProjectKey &key,
                                            Journal &journal, const std::function<bool()> &stop);

} // namespace dravolin
