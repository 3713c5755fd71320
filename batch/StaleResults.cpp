#include "batch/StaleResults.h"

#include "batch/KnownFiles.h"
#include "batch/ResultNames.h"
#include "dicom/MediaDirectory.h"

#include <QHash>

#include <functional>

namespace dravolin {

namespace {

using NameVisit = std::function<void(const PlannedFile &file, const QString &result)>;

void forEachName(const PlannedCase &planned, PlannedFiles &files, const ProjectKey &key,
                 const NameVisit &visit)
{
    ResultNames names(key, planned.directory.has_value());
    qint64 place = planned.firstFile;
    for (qsizetype i = 0; i < planned.files && files.isGood(); ++i) {
        const PlannedFile file = files.read(&place);
        if (file.problem.isEmpty())
            visit(file, file.isDirectory ? QString::fromLatin1(mediaDirectoryName) : names.next(file));
    }
}

} // namespace

StaleResults staleResults(const PlannedCase &planned, PlannedFiles &files, const ProjectKey &key,
                          const Journal &journal)
{
    StaleResults stale;
    KnownFiles known(journal, planned.row.caseId);
    if (!known.current())
        return stale;
    QHash<QString, QString> gone; // results by paths
    const auto takeAsGone = [&] {
        gone.insert(known.current()->path, known.current()->result);
        stale.results.insert(known.current()->result);
        known.pass();
    };
    forEachName(planned, files, key, [&](const PlannedFile &file, const QString &result) {
        while (known.current() && comesBefore(known.current()->path, file.path))
            takeAsGone();
        if (!known.current() || known.current()->path != file.path)
            return;
        if (known.current()->result != result)
            stale.results.insert(known.current()->result);
        known.pass();
    });
    while (known.current())
        takeAsGone();
    stale.gone = gone.keys();
    stale.results.remove(QString());
    QSet<QString> taken; // by other files
    if (!stale.results.isEmpty())
        forEachName(planned, files, key, [&](const PlannedFile &, const QString &result) {
            if (stale.results.remove(result))
                taken.insert(result);
        });
    if (planned.isIncomplete) {
        // what was not seen may be there; but what another file overwrites is to be done anew then
        stale.results.clear();
        stale.gone.removeIf([&](const QString &path) { return !taken.contains(gone.value(path)); });
    }
    return files.isGood() ? stale : StaleResults();
}

} // namespace dravolin
