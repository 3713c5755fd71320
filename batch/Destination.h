#pragma once

#include "dicom/SourceFile.h"

#include <QSet>
#include <QString>

// Folders that results are written into. Paths are texts of base/PathText.h. Any thread.
namespace dravolin {

// What the result of that file of a run is called until its bytes are safe.
[[nodiscard]] QString temporaryName(qsizetype number);

// Makes the folder if need be. Gives the problem, a text for people, or "".
[[nodiscard]] QString makeDestination(const QString &path);

// Keeps other calls out of a folder that exists until the descriptor is closed; a file system without locks
// lets them in. What an earlier call of the same run left there under temporary names is removed from a
// folder that was begun by it; any other folder has to be empty. After a failure nothing in it has changed,
// and `problem` has a text for people.
[[nodiscard]] Descriptor takeDestination(const QString &path, bool isBegun, QString *problem);

// Waits until all that was written in these folders is on the disk, which has to be before a result gets its
// name. Gives the problem as above.
[[nodiscard]] QString syncFolders(const QSet<QString> &folders);

} // namespace dravolin
