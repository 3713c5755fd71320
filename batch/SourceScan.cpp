#include "batch/Plan.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Workers.h"
#include "dicom/ObjectFile.h"
#include "identifiers/UidRoot.h"

#include <algorithm>
#include <vector>

namespace dravolin {

namespace {

void addFile(PlannedCase &planned, const QString &path)
{
    PlannedFile file;
    file.path = path;
    planned.files.append(file);
}

void listFiles(PlannedCase &planned, const QString &below)
{
    ++planned.folders;
    const QString folder = joinPath(planned.row.source, below);
    for (const QString &name : listNames(folder)) {
        const QString path = below.isEmpty() ? name : joinPath(below, name);
        if (isFolder(joinPath(folder, name)))
            listFiles(planned, path);
        else
            addFile(planned, path);
    }
}

void listSource(PlannedCase &planned)
{
    if (isFolder(planned.row.source))
        listFiles(planned, QString());
    else
        addFile(planned, lastPathComponent(planned.row.source));
    std::sort(planned.files.begin(), planned.files.end(),
              [](const PlannedFile &one, const PlannedFile &other) { return one.path < other.path; });
}

// What the files of a case say, together.
void sumUp(PlannedCase &planned, const std::vector<ObjectFacts> &facts, size_t first)
{
    for (PlannedFile &file : planned.files) {
        const ObjectFacts &known = facts.at(first++);
        file.size = known.size;
        file.modified = known.modified;
        file.problem = known.problem;
        file.isDirectory = known.isDirectory;
        file.sopInstance = known.names.sopInstance;
        file.series = known.names.series;
        planned.bytes += known.size;
        if (!known.problem.isEmpty() || known.isDirectory)
            continue;
        if (file.sopInstance.isEmpty())
            file.problem = Texts::tr("has no SOP Instance UID");
        planned.studies.insert(known.names.study);
        planned.patients.insert(known.names.patientId);
    }
    planned.studies.remove(QByteArray());
    if (planned.studies.size() <= 1 && !planned.row.uidRoot.isEmpty())
        planned.studyUid = studyInstanceUid(checkRoot(planned.row.uidRoot, planned.row.caseId).trimmedRoot,
                                            planned.row.caseId)
                               .toLatin1();
}

} // namespace

void scanSources(Plan &plan, int workers, const std::function<bool()> &stop)
{
    QStringList paths;
    std::vector<PlannedCase *> cases;
    for (QList<PlannedCase> *some : {&plan.cases, &plan.others})
        for (PlannedCase &planned : *some)
            cases.push_back(&planned);
    for (PlannedCase *found : cases) {
        PlannedCase &planned = *found;
        listSource(planned);
        const QString folder = planned.sourceFolder();
        for (const PlannedFile &file : planned.files)
            paths.append(joinPath(folder, file.path));
    }
    std::vector<ObjectFacts> facts(static_cast<size_t>(paths.size()));
    workThrough(
        paths.size(), workers,
        [&](qsizetype number) { facts[static_cast<size_t>(number)] = readFacts(paths.at(number)); }, stop);
    size_t first = 0;
    for (PlannedCase *planned : cases) {
        sumUp(*planned, facts, first);
        first += static_cast<size_t>(planned->files.size());
    }
}

} // namespace dravolin
