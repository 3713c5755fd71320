#pragma once

#include <QSet>
#include <QString>

// Folders that results are written into. Paths are texts of base/PathText.h. Any thread.
namespace dravolin {

// What the result of that file of a run is called until its bytes are safe.
[[nodiscard]] QString temporaryName(qsizetype number);

// Makes the folder if need be, and removes what an earlier call left there under temporary names. Gives the
// problem, a text for people, or "".
[[nodiscard]] QString makeDestination(const QString &path);

// Waits until all that was written in these folders is on the disk, which has to be before a result gets its
// name. Gives the problem as above.
[[nodiscard]] QString syncFolders(const QSet<QString> &folders);

} // namespace dravolin
