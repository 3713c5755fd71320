#pragma once

#include "run/jobs/RunHost.h"
#include "identifiers/Uuid.h"

#include <QString>

// The UID root and CaseID fields of the window under the rules of identifiers/UidRoot.h. Any thread; what
// they touch of the window is read and written on the main thread, and the caller waits for it.
namespace dravolin {

// Whether the fields make a valid Study Instance UID. Writes the trimmed root back and sets the label.
bool checkUidRoot(RunHost &host);

// Puts a freshly generated root into the field and checks it. It is not stored as a preference.
void createUidRoot(RunHost &host, NOXUtils::UuidSource &uuids);

// The typing filter for one of the two fields, then the check.
void filterUidField(RunHost &host, TextField field);

// The Study Instance UID for one load of a configuration. A valid root's trailing dot is dropped in its
// field, too; instead of an invalid root a fresh one is used, and the field is left as it is.
[[nodiscard]] QString composeStudyInstanceUid(RunHost &host, NOXUtils::UuidSource &uuids);

} // namespace dravolin
