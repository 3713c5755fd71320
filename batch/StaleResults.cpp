#include "batch/StaleResults.h"

#include "batch/KnownFiles.h"
#include "batch/ResultNames.h"
#include "dicom/MediaDirectory.h"

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

void takeAsGone(StaleResults &stale, KnownFiles &known)
{
    stale.results.insert(known.current()->result);
    stale.gone.append(known.current()->path);
    known.pass();
}

} // namespace

StaleResults staleResults(const PlannedCase &planned, PlannedFiles &files, const ProjectKey &key,
                          const Journal &journal)
{
    StaleResults stale;
    KnownFiles known(journal, planned.row.caseId);
    if (!known.current())
        return stale;
    forEachName(planned, files, key, [&](const PlannedFile &file, const QString &result) {
        while (known.current() && comesBefore(known.current()->path, file.path))
            takeAsGone(stale, known);
        if (!known.current() || known.current()->path != file.path)
            return;
        if (known.current()->result != result)
            stale.results.insert(known.current()->result);
        known.pass();
    });
    while (known.current())
        takeAsGone(stale, known);
    stale.results.remove(QString());
    if (!stale.results.isEmpty())
        forEachName(planned, files, key,
                    [&](const PlannedFile &, const QString &result) { stale.results.remove(result); });
    return files.isGood() ? stale : StaleResults();
}

} // namespace dravolin
