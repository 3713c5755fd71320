#include "batch/StaleResults.h"

#include "batch/KnownFiles.h"
#include "batch/ResultNames.h"
#include "dicom/MediaDirectory.h"

#include <QHash>

#include <functional>
#include <utility>

namespace dravolin {

namespace {

// The name is "" for a file that cannot be done.
using NameVisit = std::function<void(const PlannedFile &file, const QString &result)>;

void forEachName(const PlannedCase &planned, PlannedFiles &files, const ProjectKey &key,
                 const NameVisit &visit)
{
    ResultNames names(key, planned.directory.has_value());
    qint64 place = planned.firstFile;
    for (qsizetype i = 0; i < planned.files && files.isGood(); ++i) {
        const PlannedFile file = files.read(&place);
        if (!file.problem.isEmpty())
            visit(file, QString());
        else
            visit(file, file.isDirectory ? QString::fromLatin1(mediaDirectoryName) : names.next(file));
    }
}

// What the journal knows of a case beside what its source holds now.
struct Comparison
{
    QSet<QString> renamed;          // results
    QHash<QString, QString> gone;   // results by paths
    QHash<QString, QString> unseen; // the same of files that may be as they were
};

Comparison compared(const PlannedCase &planned, PlannedFiles &files, const ProjectKey &key, KnownFiles &known)
{
    Comparison found;
    const auto pass = [&](QHash<QString, QString> &results) {
        results.insert(known.current()->path, known.current()->result);
        known.pass();
    };
    forEachName(planned, files, key, [&](const PlannedFile &file, const QString &result) {
        while (known.current() && comesBefore(known.current()->path, file.path))
            pass(found.gone);
        if (!known.current() || known.current()->path != file.path)
            return;
        const FileRecord &record = *known.current();
        if (!file.problem.isEmpty()) {
            // without a directory in the source all names are others
            const bool isAsBefore = record.size == file.size && record.modified == file.modified &&
                                    record.result != QLatin1String(mediaDirectoryName);
            return pass(isAsBefore ? found.unseen : found.gone);
        }
        if (record.result != result)
            found.renamed.insert(record.result);
        known.pass();
    });
    while (known.current())
        pass(found.gone);
    return found;
}

} // namespace

StaleResults staleResults(const PlannedCase &planned, PlannedFiles &files, const ProjectKey &key,
                          const Journal &journal)
{
    KnownFiles known(journal, planned.row.caseId);
    if (!known.current())
        return {};
    Comparison found = compared(planned, files, key, known);
    if (planned.isIncomplete || planned.files == 0) {
        found.renamed.clear();
        found.unseen.insert(std::exchange(found.gone, {}));
    }
    StaleResults stale = {found.renamed, found.gone.keys()};
    for (const QString &result : std::as_const(found.gone))
        stale.results.insert(result);
    stale.results.remove(QString());
    const QSet<QString> unseen(found.unseen.cbegin(), found.unseen.cend());
    QSet<QString> taken; // of these, by other files: what they overwrite is to be done anew then
    if (!stale.results.isEmpty() || !unseen.isEmpty())
        forEachName(planned, files, key, [&](const PlannedFile &, const QString &result) {
            stale.results.remove(result);
            if (!result.isEmpty() && unseen.contains(result))
                taken.insert(result);
        });
    for (auto file = found.unseen.cbegin(); file != found.unseen.cend(); ++file)
        if (taken.contains(*file))
            stale.gone.append(file.key());
    return files.isGood() ? stale : StaleResults();
}

} // namespace dravolin
