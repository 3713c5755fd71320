#pragma once

#include "app/Alerts.h"
#include "run/jobs/RunHost.h"

// What a run asks and refuses, in words. Pure, any thread.
namespace dravolin {

// The alternate button goes on.
[[nodiscard]] ModalAlert questionAlert(Question question);

// A refusal that stops everything until it has been read, or none for one that comes as a sheet.
[[nodiscard]] std::optional<ModalAlert> refusalAlert(Refusal refusal);

// A refusal as a sheet, without its completion.
[[nodiscard]] AlertSheet refusalSheet(Refusal refusal, const QString &detail);

} // namespace dravolin
