#pragma once

#include "identifiers/Uuid.h"
#include "run/jobs/RunHost.h"

#include <QString>

// The user's UID root and CaseID under the rules of identifiers/UidRoot.h. Any thread.
namespace dravolin {

// Whether root and CaseID make a valid Study Instance UID. Shows the trimmed root and whether it is valid.
bool checkUidRoot(RunHost &host);

// Shows a freshly generated root. It is not stored as a preference.
void createUidRoot(RunHost &host, NOXUtils::UuidSource &uuids);

// The Study Instance UID of `texts` for one load of a configuration. A valid root is shown without its
// trailing dot; instead of an invalid root a fresh one is used, and the one that is shown is left as it is.
[[nodiscard]] QString composeStudyInstanceUid(RunHost &host, const CaseTexts &texts,
                                              NOXUtils::UuidSource &uuids);

} // namespace dravolin
