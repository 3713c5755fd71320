#pragma once

#include "app/StatusIcon.h"
#include "run/jobs/RunJudgement.h"

#include <QString>

// A run's result beside its summary. Pure, any thread.
namespace dravolin {

// A run over nothing, and data that still tells who the patient is, ask for attention.
[[nodiscard]] StatusIcon::Kind kindOf(const RunJudgement &judgement);

// One line of what was counted, such as "5 files changed, 2 unchanged, in 3 folders".
[[nodiscard]] QString factsOf(const RunJudgement &judgement);

} // namespace dravolin
