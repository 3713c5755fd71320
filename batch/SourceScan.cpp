#include "batch/Plan.h"

#include "base/Files.h"
#include "base/PathText.h"
#include "base/Texts.h"
#include "batch/Workers.h"
#include "dicom/ObjectFile.h"
#include "identifiers/UidRoot.h"

#include <QMutex>
#include <QMutexLocker>

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

// Looks at files, whose names are many: nothing of them is kept twice.
class Scan
{
public:
    explicit Scan(Plan &plan)
    {
        for (QList<PlannedCase> *some : {&plan.cases, &plan.others})
            for (PlannedCase &planned : *some)
                add(planned);
    }

    [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(m_places.size()); }

    // Any thread; each number once.
    void look(qsizetype number)
    {
        const Place &place = m_places[static_cast<size_t>(number)];
        const QString folder = m_folders[place.ofCase];
        const ObjectFacts facts = readFacts(joinPath(folder, place.file->path));
        const QMutexLocker locker(&m_mutex);
        take(*m_cases[place.ofCase], *place.file, facts);
    }

    void finish()
    {
        for (PlannedCase *planned : m_cases) {
            planned->studies.remove(QByteArray());
            planned->patients.remove(QByteArray());
            const CaseRow &row = planned->row;
            if (planned->studies.size() <= 1 && !row.uidRoot.isEmpty())
                planned->studyUid =
                    studyInstanceUid(checkRoot(row.uidRoot, row.caseId).trimmedRoot, row.caseId).toLatin1();
        }
    }

private:
    struct Place
    {
        size_t ofCase = 0;
        PlannedFile *file = nullptr;
    };

    void add(PlannedCase &planned)
    {
        listSource(planned);
        for (PlannedFile &file : planned.files)
            m_places.push_back({m_cases.size(), &file});
        m_folders.push_back(planned.sourceFolder());
        m_cases.push_back(&planned);
    }

    void take(PlannedCase &planned, PlannedFile &file, const ObjectFacts &facts)
    {
        file.size = facts.size;
        file.modified = facts.modified;
        file.problem = facts.problem;
        file.isDirectory = facts.isDirectory;
        planned.bytes += facts.size;
        if (!facts.problem.isEmpty() || facts.isDirectory)
            return;
        file.sopInstance = facts.names.sopInstance;
        file.series = *m_series.insert(facts.names.series);
        if (file.sopInstance.isEmpty())
            file.problem = Texts::tr("has no SOP Instance UID");
        planned.studies.insert(facts.names.study);
        planned.patients.insert(facts.names.patientId);
    }

    std::vector<PlannedCase *> m_cases;
    std::vector<QString> m_folders; // of the cases
    std::vector<Place> m_places;
    QMutex m_mutex;            // guards what the files say
    QSet<QByteArray> m_series; // each once, however many files name it
};

} // namespace

void scanSources(Plan &plan, int workers, const std::function<bool()> &stop)
{
    Scan scan(plan);
    workThrough(
        scan.size(), workers, [&scan](qsizetype number) { scan.look(number); }, stop);
    scan.finish();
}

} // namespace dravolin
